#!/usr/bin/env bash
# Measures how fast Lexilo looks words up on the full dictionary, and prints a table.
#
#   ./bench.sh          both halves
#   ./bench.sh native   only the lookups, natively, without windows
#   ./bench.sh painted  only from keystroke to painted list and pane, under Wine
#
# Other work on the machine shows in the figures.
set -euo pipefail

# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"
cd "$LEXILO_ROOT"

halves=("${@:-native painted}")
[[ "${halves[*]}" =~ ^(native|painted|native painted)$ ]] ||
  fail "'${halves[*]}' is neither 'native' nor 'painted'."

# measured HALF: whether it is wanted.
measured() {
  [[ " ${halves[*]} " == *" $1 "* ]]
}

trap 'stop_wine; stop_display' EXIT
trap 'exit 130' INT TERM

set_up_program
build tools kkbuild lookup_bench
ensure_full_database

if measured native; then
  say "Natively, without windows:"
  build/tools/bin/lookup_bench build/kk.dat
fi

if measured painted; then
  build windows window_bench
  start_display
  start_wine "$(fresh_prefix bench)"
  say "Under Wine on a virtual display:"
  # The pipe keeps Wine from taking the terminal for a console of its own.
  wine build/windows/bin/window_bench.exe build/kk.dat 2>&1 </dev/null | cat
fi
