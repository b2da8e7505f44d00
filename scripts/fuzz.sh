#!/usr/bin/env bash
# Builds the fuzz targets and runs each for some seconds, starting from a copy of its corpus.
#
#   scripts/fuzz.sh                   every target for 5 seconds
#   scripts/fuzz.sh 600 like_fuzz     only the named ones, for 10 minutes each
#
# Prints one line a target and fails if any input broke a rule; such inputs stay in
# build/fuzz/findings. To keep what a long run found worth keeping:
#   build/fuzz/bin/NAME -merge=1 tests/fuzz/corpus/NAME build/fuzz/corpus/NAME
set -euo pipefail

# shellcheck source=setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
cd "$LEXILO_ROOT"

seconds=${1:-5}
[[ $seconds =~ ^[1-9][0-9]*$ ]] || fail "'$seconds' is no number of seconds."
targets=("${@:2}")
if ((${#targets[@]} == 0)); then
  for source in tests/fuzz/*_fuzz.cpp; do
    targets+=("$(basename "$source" .cpp)")
  done
fi

# fuzz NAME: runs one target; prints how it went.
fuzz() {
  local name=$1 status=0
  local work=build/fuzz/corpus/$1 findings=build/fuzz/findings/$1 log=build/logs/$1.log
  rm -rf "$work" "$findings"
  mkdir -p "$work" "$findings" build/logs
  if [[ -d tests/fuzz/corpus/$name ]]; then
    cp -r "tests/fuzz/corpus/$name/." "$work"
  fi
  timeout -k 5 $((seconds + 60)) "build/fuzz/bin/$name" "$work" -max_total_time="$seconds" \
    -timeout=10 -print_final_stats=1 -artifact_prefix="$findings/" >"$log" 2>&1 </dev/null ||
    status=$?
  local runs
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  if ((status == 0)) && [[ -n $runs ]]; then
    say "$name: $runs inputs, no finding"
    return
  fi
  tail -n 40 "$log"
  say "$name: FAILED with status $status after ${runs:-an unknown number of} inputs (see $log, $findings)"
  return 1
}

ensure_packages g++ cmake ninja-build libxml2-dev nlohmann-json3-dev zlib1g-dev clang libclang-rt-14-dev
ensure_node_modules
build fuzz fuzz_targets

failures=0
for name in "${targets[@]}"; do
  [[ -x build/fuzz/bin/$name ]] || fail "there is no fuzz target '$name'."
  fuzz "$name" || failures=$((failures + 1))
done
((failures == 0))
