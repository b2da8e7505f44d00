# shellcheck shell=bash
# Running tests and counting them.

results_dir=$LEXILO_ROOT/build/results

# "PASSED FAILED REPEATED" of each layer that ended, a line each: layers run in several subshells.
counts=$results_dir/counts

# How many acts of a user tests may repeat in a run, because nothing came of them at first. A busy
# display loses one now and then; more of them hide a defect of a test or of the program.
max_repeated=5

# Forgets what earlier runs counted.
start_counting() {
  mkdir -p "$results_dir"
  : >"$counts"
}

# in_words PASSED FAILED REPEATED
in_words() {
  printf '%s passed, %s failed' "$1" "$2"
  case $3 in
    0) ;;
    1) printf ', 1 act repeated' ;;
    *) printf ', %s acts repeated' "$3" ;;
  esac
}

# count LAYER PASSED FAILED REPEATED TENTHS: prints the numbers of a layer and keeps them for the sum.
count() {
  printf '%s %s %s\n' "$2" "$3" "$4" >>"$counts"
  say "$1: $(in_words "$2" "$3" "$4") ($(($5 / 10)).$(($5 % 10)) s)"
}

# Tells the sum of all layers. Fails when a test failed or too many acts were repeated.
tell_sum() {
  local layer_passed layer_failed layer_repeated passed=0 failed=0 repeated=0
  while read -r layer_passed layer_failed layer_repeated; do
    passed=$((passed + layer_passed))
    failed=$((failed + layer_failed))
    repeated=$((repeated + layer_repeated))
  done <"$counts"
  if ((repeated > max_repeated)); then
    say "FAILED: $repeated acts of users were repeated, more than $max_repeated in a run. Which ones:" \
      "grep 'ONCE MORE' build/results/*.log"
    failed=$((failed + 1))
  fi
  say "$(in_words "$passed" "$failed" "$repeated")"
  ((failed == 0 && passed > 0))
}

# run_test NAME SECONDS COMMAND...: a test that is one command; it passes when the command succeeds.
run_test() {
  local name=$1 seconds=$2 log=$results_dir/$1.log start status=0
  shift 2
  start=$(tenths)
  timeout -k 5 "$seconds" "$@" >"$log" 2>&1 </dev/null || status=$?
  if ((status == 0)); then
    count "$name" 1 0 0 $(($(tenths) - start))
  else
    tail -n 40 "$log"
    ((status != 124 && status != 137)) || say "$name: stopped after $seconds s"
    count "$name" 0 1 0 $(($(tenths) - start))
  fi
}

# run_gtest LAYER SECONDS FILTER COMMAND...: a GoogleTest executable, each of whose tests counts. One
# that crashes, runs out of time or runs no test has failed, whatever it says. An empty filter is
# none.
run_gtest() {
  local layer=$1 seconds=$2 filter=$3 start status=0 ticker numbers
  local log=$results_dir/$1.log json=$results_dir/$1.json
  shift 3
  # The sanitizers' reports belong to the log; what Wine says does not.
  local errors=$log
  [[ $1 != wine ]] || errors=$LEXILO_ROOT/build/logs/wine-$layer.log
  rm -f "$json"
  : >"$log"
  : >"$errors"
  start=$(tenths)
  announce "$layer" "$log" &
  ticker=$!
  timeout -k 5 "$seconds" "$@" "--gtest_filter=${filter:-*}" \
    "--gtest_output=json:${json#"$LEXILO_ROOT"/}" >>"$log" 2>>"$errors" </dev/null || status=$?
  kill "$ticker" 2>/dev/null || true
  wait "$ticker" 2>/dev/null || true
  # The reader's report goes to the screen, its three numbers come back.
  numbers=$(node "$LEXILO_ROOT/scripts/lib/gtest_results.mjs" "$json" "$log" "$status" "$seconds") ||
    fail "the results of $layer could not be read (see build/results)."
  # shellcheck disable=SC2086
  count "$layer" $numbers $(($(tenths) - start))
}

# without FILTER PATTERN: the filter, but without what the pattern matches. GoogleTest takes all
# patterns after the first '-' as negative ones.
without() {
  case $1 in
    *-*) printf '%s:%s' "$1" "$2" ;;
    *) printf '%s-%s' "$1" "$2" ;;
  esac
}
