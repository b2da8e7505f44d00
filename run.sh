#!/usr/bin/env bash
# Builds Lexilo, setting up first what is missing, and starts it under Wine.
#
# On a display ($DISPLAY) it runs until it is closed (the toolbar's menu, last item). Where there is
# no display it plays a short tour on a virtual one, leaves screenshots in build/tour and ends.
set -euo pipefail

# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"
cd "$LEXILO_ROOT"

set_up_program
build windows lexilo
build tools kkbuild
ensure_full_database
assemble_app

if have_display; then
  use_prefix "$(copy_prefix user)"
  say "Lexilo is starting on display $DISPLAY; its toolbar appears near the top right corner."
  wine build/app/lexilo.exe >build/logs/lexilo.log 2>&1 </dev/null &
  lexilo=$!
  trap 'kill "$lexilo" 2>/dev/null || true; exit 130' INT TERM
  wait "$lexilo" || fail "Lexilo ended with status $? (see build/logs/lexilo.log$(crash_hint))."
  exit
fi

trap 'stop_wine; stop_display' EXIT
trap 'exit 130' INT TERM
build windows tour
say "There is no display: playing a short tour on a virtual one."
tour_dir=$LEXILO_ROOT/build/tour
rm -rf "$tour_dir"
mkdir -p "$tour_dir"
start_display
start_wine "$(fresh_prefix tour)"
run_wine build/windows/bin/tour.exe build/tour
say "The screenshots are in build/tour."
