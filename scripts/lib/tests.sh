# shellcheck shell=bash
# Running tests and counting them.

results_dir=$LEXILO_ROOT/build/results
passed=0
failed=0

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
  mkdir -p "$results_dir"
  rm -f "$json" "$log"
  : >"$log"
  start=$(tenths)
  announce "$layer" "$log" &
  ticker=$!
  timeout -k 5 "$seconds" "$@" "--gtest_output=json:${json#"$LEXILO_ROOT"/}" \
    >"$log" 2>&1 </dev/null || status=$?
  kill "$ticker" 2>/dev/null || true
  wait "$ticker" 2>/dev/null || true
  # The reader's report goes to the screen, its two numbers come back.
  numbers=$(node "$LEXILO_ROOT/scripts/lib/gtest_results.mjs" "$json" "$log" "$status" "$seconds") ||
    fail "the results of $layer could not be read (see build/results)."
  # shellcheck disable=SC2086
  count "$layer" $numbers $(($(tenths) - start))
}
