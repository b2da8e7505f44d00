# shellcheck shell=bash
# Lanes: functions that run at the same time, each in a subshell with a display and a Wine prefix of
# its own where it starts them. All that a lane starts is ended with it.

lanes=0

# start_lane FUNCTION ARGUMENT...: runs it in the background.
start_lane() {
  (
    # Inherited from the script, but not this lane's; display.sh and wine.sh read them.
    # shellcheck disable=SC2034
    display_pids=() started_prefix=
    trap 'stop_wine; stop_display' EXIT
    trap 'exit 143' TERM
    "$@"
  ) </dev/null &
  lanes=$((lanes + 1))
}

# Waits for all lanes. One that could not run its tests ends the script, and with it the others.
wait_for_lanes() {
  for (( ; lanes > 0; lanes--)); do
    wait -n || fail "not all tests could be run."
  done
}

# Ends what runs in the background of this shell, and waits until it has cleaned up.
stop_jobs() {
  local job
  for job in $(jobs -p); do
    # shellcheck disable=SC2046
    kill $(tree "$job") 2>/dev/null || true
  done
  wait
}

# tree PID: prints the ids of a process and of all that it started.
tree() {
  local child
  printf '%s ' "$1"
  while read -r -d ' ' child; do
    tree "$child"
  done < <(cat "/proc/$1/task/$1/children" 2>/dev/null)
}
