#!/usr/bin/env bash
# Runs a command on a virtual display and in a Wine prefix made for it, which are gone afterwards: a
# test, a debugger, CTest. A Windows executable is run by Wine.
#
#   scripts/on_display.sh build/windows/bin/windows/window_tests.exe '--gtest_filter=FrmSub*'
#   scripts/on_display.sh --dpi 144 build/windows/bin/program_tests.exe '--gtest_filter=Dpi144*'
#   scripts/on_display.sh ctest --preset windows -R FrmSub
#
# Inside another on_display.sh it uses that one's display and prefix. The exit status is the command's.
set -euo pipefail

# shellcheck source=setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

dpi=
if [[ ${1:-} == --dpi ]]; then
  dpi=${2:-}
  [[ $dpi =~ ^[1-9][0-9]+$ ]] || fail "'$dpi' is no resolution, such as 144."
  shift 2
fi
(($# > 0)) || fail "there is no command to run."

if [[ -z ${LEXILO_ON_DISPLAY:-} ]]; then
  prefix=on-display-$$
  trap 'stop_wine; stop_display; rm -rf "$LEXILO_ROOT/build/wine/$prefix"' EXIT
  trap 'exit 130' INT TERM
  # Standard output is the command's own.
  set_up_program >&2
  start_display on-display
  start_wine "$(fresh_prefix "$prefix")"
  [[ -z $dpi ]] || set_dpi "$dpi"
  export LEXILO_ON_DISPLAY=$DISPLAY
fi

if [[ $1 == *.exe ]]; then
  # Through a pipe, so that Wine does not take a terminal for a console of its own. CTest, which reads
  # the names of tests here, expects lines without carriage returns.
  wine "$@" </dev/null | sed -u 's/\r$//'
else
  "$@"
fi
