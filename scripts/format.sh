#!/usr/bin/env bash
# Brings every source into the repository's layout (.clang-format).
#
#   scripts/format.sh           rewrites what deviates
#   scripts/format.sh --check   only names it, and fails if there is any
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mode=(-i)
[[ ${1:-} == --check ]] && mode=(--dry-run -Werror)
find . \( -path ./build -o -path ./node_modules -o -path ./.git \) -prune -o \
  \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format "${mode[@]}"
