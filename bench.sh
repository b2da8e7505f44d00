#!/usr/bin/env bash
# Measures Lexilo on the full dictionary: the lookups natively, and under Wine what a keystroke costs
# until list and pane are painted. Times are those of one run on this machine: compare their ratios.
set -euo pipefail

# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"
cd "$LEXILO_ROOT"

set_up_program
build tools kkbuild lookup_bench
build windows window_bench
ensure_full_database

say "Lookups, natively:"
build/tools/bin/lookup_bench "$database"

trap 'stop_wine; stop_display' EXIT
trap 'exit 130' INT TERM
start_display
start_wine "$(fresh_prefix bench)"
say "The quick lookup window, under Wine:"
# The pipe keeps Wine from taking the terminal for a console of its own.
wine build/windows/bin/window_bench.exe build/kk.dat 2>&1 </dev/null | cat
