# shellcheck shell=bash
# Running tests and counting them.

results_dir=$LEXILO_ROOT/build/results
passed=0
failed=0
aside=

# count LAYER PASSED FAILED TENTHS: adds up and tells.
count() {
  passed=$((passed + $2))
  failed=$((failed + $3))
  say "$1: $2 passed, $3 failed ($(($4 / 10)).$(($4 % 10)) s)"
}

# run_test NAME SECONDS COMMAND...: a test that is one command; it passes when the command succeeds.
run_test() {
  local name=$1 seconds=$2 log=$results_dir/$1.log start status=0
  shift 2
  mkdir -p "$results_dir"
  start=$(tenths)
  timeout -k 5 "$seconds" "$@" >"$log" 2>&1 </dev/null || status=$?
  if ((status == 0)); then
    count "$name" 1 0 $(($(tenths) - start))
  else
    tail -n 40 "$log"
    ((status != 124 && status != 137)) || say "$name: stopped after $seconds s"
    count "$name" 0 1 $(($(tenths) - start))
  fi
}

# run_gtest LAYER SECONDS COMMAND...: a GoogleTest executable, each of whose tests counts. One that
# crashes, runs out of time or runs no test has failed, whatever it says.
run_gtest() {
  local layer=$1 seconds=$2 start status=0 ticker numbers
  local log=$results_dir/$1.log json=$results_dir/$1.json
  shift 2
  # The sanitizers' reports belong to the log; what Wine says does not.
  local errors=$log
  [[ $1 != wine ]] || errors=$LEXILO_ROOT/build/logs/wine-$layer.log
  mkdir -p "$results_dir"
  rm -f "$json"
  : >"$log"
  : >"$errors"
  start=$(tenths)
  announce "$layer" "$log" &
  ticker=$!
  timeout -k 5 "$seconds" "$@" "--gtest_output=json:${json#"$LEXILO_ROOT"/}" \
    >>"$log" 2>>"$errors" </dev/null || status=$?
  kill "$ticker" 2>/dev/null || true
  wait "$ticker" 2>/dev/null || true
  # The reader's report goes to the screen, its two numbers come back.
  numbers=$(node "$LEXILO_ROOT/scripts/lib/gtest_results.mjs" "$json" "$log" "$status" "$seconds") ||
    fail "the results of $layer could not be read (see build/results)."
  # shellcheck disable=SC2086
  count "$layer" $numbers $(($(tenths) - start))
}

# set_aside LAYERS: runs that function, which runs layers, while the script goes on with others. It
# gives way to those: they wait for windows, whose users have no patience.
# shellcheck disable=SC2030
set_aside() {
  mkdir -p "$results_dir"
  rm -f "$results_dir/aside.count"
  (
    trap - EXIT
    renice -n 10 -p "$BASHPID" >/dev/null
    passed=0 failed=0
    "$1"
    printf '%s %s\n' "$passed" "$failed" >"$results_dir/aside.count"
  ) >"$results_dir/aside.log" 2>&1 </dev/null &
  aside=$!
}

# Waits for what was set aside, shows what it said and adds up what it counted.
# shellcheck disable=SC2031
gather_aside() {
  local numbers
  wait "$aside" || true
  aside=
  # Progress is of no interest any more.
  grep -v -e '^  [0-9]* s: ' -e ' \.\.\.$' "$results_dir/aside.log" || true
  read -r -a numbers 2>/dev/null <"$results_dir/aside.count" ||
    fail "the tests that were set aside did not end."
  passed=$((passed + numbers[0]))
  failed=$((failed + numbers[1]))
}

# Ends what was set aside and still runs.
stop_aside() {
  [[ -z $aside ]] || end_tree "$aside"
}

# end_tree PID: ends a process and all that it started.
end_tree() {
  local child children
  children=$(cat "/proc/$1/task/$1/children" 2>/dev/null) || return 0
  kill "$1" 2>/dev/null || true
  for child in $children; do
    end_tree "$child"
  done
}
