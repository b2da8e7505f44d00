#!/usr/bin/env bash
# Checks the sources without running them: their layout, what the folders may include, names and bug
# patterns, and the scripts. Takes some minutes, sets up what is missing.
#
#   scripts/check.sh
#
# clang-tidy examines the portable sources for everything that .clang-tidy names; the sources for
# Windows and the portable tests for their names only, which takes a tenth of the time; the other
# tests and the benchmarks not at all. scripts/tidy.sh examines all of them for everything.
set -euo pipefail

# shellcheck source=setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
# shellcheck source=lib/tidy.sh
source "$LEXILO_ROOT/scripts/lib/tidy.sh"
cd "$LEXILO_ROOT"

ensure_packages "${program_packages[@]}" "${test_packages[@]}" clang-tidy shellcheck
ensure_node_modules

failed=()
# check NAME COMMAND...: prints what it finds.
check() {
  local name=$1 start=$SECONDS
  shift
  if "$@"; then
    say "$name: no findings ($((SECONDS - start)) s)"
  else
    failed+=("$name")
    say "$name: see the findings above"
  fi
}

# sources PATTERN: sources of the repository that match an extended regular expression.
sources() { git ls-files '*.cpp' | grep -E "$1"; }

mapfile -t scripts < <(git ls-files '*.sh' .ci/run)
mapfile -t portable < <(sources '^(text|data|dictionary|settings|forms|capture|lookup|query)/' |
  grep -v '_win\.cpp$')
mapfile -t others < <(sources '_win\.cpp$|^tests/(unit|threads)/')

check "layout of the code" scripts/format.sh --check
check "folders and includes" node scripts/check_layout.mjs
check "scripts" shellcheck -x "${scripts[@]}"
check "portable sources" tidy "" "${portable[@]}"
check "names of the others" tidy '-*,readability-identifier-naming' "${others[@]}"

((${#failed[@]} == 0)) || fail "findings in: ${failed[*]}."
