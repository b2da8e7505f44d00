#!/usr/bin/env bash
# Runs every test of Lexilo, setting up first what is missing.
#
#   ./test.sh              all of them
#   ./test.sh unit format  only some layers: format help unit threads wine-unit windows program dpi144 fuzz
#
# The last line says how many passed and failed; the exit status is 0 when none failed.
set -euo pipefail

# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"
# shellcheck source=scripts/lib/tests.sh
source "$LEXILO_ROOT/scripts/lib/tests.sh"
cd "$LEXILO_ROOT"

all_layers=(format help unit threads fuzz wine-unit windows program dpi144)
layers=("${@:-${all_layers[@]}}")
for layer in "${layers[@]}"; do
  [[ " ${all_layers[*]} " == *" $layer "* ]] ||
    fail "there is no layer '$layer'; the layers are: ${all_layers[*]}."
done

# wanted LAYER...: whether one of these is to run.
wanted() {
  local layer
  for layer in "$@"; do
    [[ " ${layers[*]} " == *" $layer "* ]] && return
  done
  return 1
}

trap 'stop_aside; stop_wine; stop_display' EXIT
trap 'exit 130' INT TERM

set_up_tests

wanted format && run_test format 60 scripts/format.sh --check
wanted help && run_test help 20 node scripts/check_help.mjs

if wanted unit wine-unit program dpi144; then
  build tools kkbuild
  ensure_small_database
fi
wanted unit && build native unit_tests
wanted threads && build tsan thread_tests
wanted fuzz && build fuzz fuzz_targets

run_native_layers() {
  local source name
  wanted unit && run_gtest unit 400 build/native/bin/unit_tests
  wanted threads && run_gtest threads 60 build/tsan/bin/thread_tests
  wanted fuzz || return 0
  for source in tests/fuzz/*_fuzz.cpp; do
    name=$(basename "$source" .cpp)
    run_test "$name" 90 scripts/fuzz.sh 3 "$name"
  done
}

if wanted wine-unit windows program dpi144; then
  targets=()
  wanted wine-unit && targets+=(unit_tests)
  wanted windows && targets+=(window_tests)
  wanted program dpi144 && targets+=(lexilo program_tests)
  build windows "${targets[@]}"
  if wanted program dpi144; then
    ensure_full_database
    assemble_app
    rm -rf build/shots build/program
  fi
  wanted program && build_licence_page
  wanted unit threads fuzz && set_aside run_native_layers
  start_display
  start_wine "$(fresh_prefix test)"
else
  run_native_layers
fi

wanted wine-unit && run_gtest wine-unit 180 wine build/windows/bin/unit_tests.exe
wanted windows && run_gtest windows 480 wine build/windows/bin/windows/window_tests.exe
wanted program &&
  run_gtest program 600 wine build/windows/bin/program_tests.exe '--gtest_filter=-*Dpi144*'
if wanted dpi144; then
  stop_wine
  start_wine "$(fresh_prefix test-144)"
  set_dpi 144
  run_gtest dpi144 120 wine build/windows/bin/program_tests.exe '--gtest_filter=*Dpi144*'
fi
[[ -z $aside ]] || gather_aside

tell_of_crashes
say "$passed passed, $failed failed"
((failed == 0))
