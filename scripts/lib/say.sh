# shellcheck shell=bash
# Messages, and steps that report their progress.

# Prints one line of news.
say() {
  printf '%s\n' "$*"
}

# Ends the script with a sentence that says what is wrong and what to do.
fail() {
  printf 'error: %s\n' "$*" >&2
  exit 1
}

# Seconds since the epoch in tenths, for measuring.
tenths() {
  local now=${EPOCHREALTIME/[^0-9]/}
  printf '%s' "${now:0:-5}"
}

# The last line that was written to a log, without its control characters and without characters
# that the cutting took apart.
last_line() {
  tail -c 400 "$1" 2>/dev/null | tr '\r' '\n' | tr -d '\000-\010\013-\037' | sed '/^ *$/d' |
    tail -n 1 | cut -c 1-90 | iconv -c -f UTF-8 -t UTF-8 2>/dev/null
}

# Sleeps without holding a pipe of ours, so that nobody waits for it when the step is over.
pause() {
  sleep "$1" >/dev/null 2>&1
}

# Announces a step that has been running for a second, then its progress: every ten seconds, after a
# minute every thirty. Each line names the step, since others may be running at the same time.
announce() {
  local title=$1 log=$2 seconds=1 rest=10
  pause 1
  say "$title ..."
  while true; do
    ((seconds < 60)) || rest=30
    pause "$rest"
    seconds=$((seconds + rest))
    say "  $title, $seconds s: $(last_line "$log")"
  done
}

# step TITLE LOG ADVICE COMMAND...: runs the command with its output in build/logs/LOG. A quick one
# passes in silence; when it fails, the end of its output and the advice are shown and the script
# ends.
step() {
  local title=$1 log=$LEXILO_ROOT/build/logs/$2 advice=$3 status=0 start ticker
  shift 3
  mkdir -p "${log%/*}"
  : >"$log"
  start=$(tenths)
  announce "$title" "$log" &
  ticker=$!
  ("$@") >"$log" 2>&1 </dev/null || status=$?
  kill "$ticker" 2>/dev/null || true
  wait "$ticker" 2>/dev/null || true
  local took=$(($(tenths) - start))
  if ((status != 0)); then
    tail -n 40 "$log" >&2
    fail "$title failed (see ${log#"$LEXILO_ROOT"/}). $advice"
  fi
  if ((took >= 10)); then
    say "$title: done in $((took / 10)).$((took % 10)) s"
  fi
}
