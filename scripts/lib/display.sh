# shellcheck shell=bash
# A display without a screen: Xvfb with a window manager, on a free number.

display_pids=()

# Waits up to ten seconds for a command to succeed.
wait_for() {
  local tries
  for ((tries = 0; tries < 200; tries++)); do
    "$@" >/dev/null 2>&1 && return
    sleep 0.05
  done
  return 1
}

has_window_manager() {
  xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}

# start_display [NAME]: starts a display and makes it $DISPLAY. The name distinguishes its log from those of
# other displays.
start_display() {
  local number log=$LEXILO_ROOT/build/logs/display${1:+-$1}.log
  mkdir -p "${log%/*}"
  local fifo
  fifo=$(mktemp -u)
  mkfifo "$fifo"
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$fifo" >"$log" 2>&1 </dev/null &
  display_pids+=($!)
  read -r -t 20 number <>"$fifo" || true
  rm -f "$fifo"
  [[ -n ${number:-} ]] || fail "the virtual display did not start (see ${log#"$LEXILO_ROOT"/})."
  export DISPLAY=:$number
  # The system's own configuration: a user's could change what the keys do.
  openbox --sm-disable --config-file /etc/xdg/openbox/rc.xml >>"$log" 2>&1 </dev/null &
  display_pids+=($!)
  wait_for has_window_manager ||
    fail "the window manager openbox did not start (see ${log#"$LEXILO_ROOT"/})."
}

# Ends the display and the window manager that start_display started.
stop_display() {
  local pid
  for pid in "${display_pids[@]}"; do
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
  display_pids=()
  unset DISPLAY
}

# Whether there is a display that answers; one that is named but silent ends the script.
have_display() {
  [[ -n ${DISPLAY:-} ]] || return 1
  xdpyinfo >/dev/null 2>&1 ||
    fail "the display $DISPLAY does not answer. Unset DISPLAY to run on a virtual one."
}
