#!/usr/bin/env bash
# Sets up what building, running and testing Lexilo takes, each thing only where it is missing.
# Called by run.sh, test.sh and bench.sh; may be run by itself.

LEXILO_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export LEXILO_ROOT

# shellcheck source=lib/say.sh
source "$LEXILO_ROOT/scripts/lib/say.sh"
# shellcheck source=lib/packages.sh
source "$LEXILO_ROOT/scripts/lib/packages.sh"
# shellcheck source=lib/node.sh
source "$LEXILO_ROOT/scripts/lib/node.sh"
# shellcheck source=lib/wine.sh
source "$LEXILO_ROOT/scripts/lib/wine.sh"
# shellcheck source=lib/display.sh
source "$LEXILO_ROOT/scripts/lib/display.sh"
# shellcheck source=lib/build.sh
source "$LEXILO_ROOT/scripts/lib/build.sh"

# What building and running takes.
set_up_program() {
  ensure_packages "${program_packages[@]}"
  ensure_locale
  ensure_node_modules
  ensure_wine_base
}

# The same and what testing takes.
set_up_tests() {
  ensure_packages "${program_packages[@]}" "${test_packages[@]}"
  ensure_locale
  ensure_node_modules
  ensure_wine_base
}

if [[ ${BASH_SOURCE[0]} == "$0" ]]; then
  set -euo pipefail
  set_up_tests
  say "All is set up."
fi
