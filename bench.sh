#!/usr/bin/env bash
# Measures how fast Lexilo is on the full dictionary and how much memory it takes, and prints tables.
#
#   ./bench.sh          all parts
#   ./bench.sh native   only lookups and searches, natively, without windows
#   ./bench.sh painted  only from keystroke or click to what it has painted, under Wine
#   ./bench.sh capture  only words under the pointer: popup, service, toolbar, processor time
#   ./bench.sh memory   only memory: at the start, and after 1,000 lookups, beside a bare window
#
# Other work on the machine shows in the figures.
set -euo pipefail

# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"
cd "$LEXILO_ROOT"

all_parts=(native painted capture memory)
parts=("${@:-${all_parts[@]}}")
for part in "${parts[@]}"; do
  [[ " ${all_parts[*]} " == *" $part "* ]] ||
    fail "there is no part '$part'; the parts are: ${all_parts[*]}."
done

# measured PART...: whether one of these is wanted.
measured() {
  local part
  for part in "$@"; do
    [[ " ${parts[*]} " == *" $part "* ]] && return
  done
  return 1
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

if measured painted capture memory; then
  build windows window_bench search_bench capture_bench memory_bench bare_probe bare_window lexilo
  assemble_app
  start_display
  start_wine "$(fresh_prefix bench)"
  say "Under Wine on a virtual display:"
fi
if measured painted; then
  run_wine build/windows/bin/window_bench.exe build/kk.dat
  run_wine build/windows/bin/search_bench.exe build/kk.dat
fi
if measured capture; then
  LEXILO_WINE_SERVER=$(wine_server) run_wine build/windows/bin/capture_bench.exe \
    'build\windows\bin\bare_probe.exe'
fi
if measured memory; then
  run_wine build/windows/bin/memory_bench.exe build/windows/bin/bare_window.exe
fi
