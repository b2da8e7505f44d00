#!/usr/bin/env bash
# Examines sources with clang-tidy (.clang-tidy) and cppcheck; takes some seconds a file.
#
#   scripts/tidy.sh                  every source but the fuzz targets
#   scripts/tidy.sh app lookup/x.cpp only these folders and files
set -euo pipefail

# shellcheck source=setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
# shellcheck source=lib/tidy.sh
source "$LEXILO_ROOT/scripts/lib/tidy.sh"
cd "$LEXILO_ROOT"

ensure_packages "${program_packages[@]}" clang-tidy cppcheck
ensure_node_modules
paths=("$@")
((${#paths[@]} > 0)) || paths=(app bench capture data dictionary forms lookup query settings tests text win32)

# Fuzz targets and the generator of the pinyin order are compiled by other presets only.
mapfile -t files < <(find "${paths[@]#./}" -name '*.cpp' ! -path '*/fuzz/*' | sort)
failures=0
say "clang-tidy, ${#files[@]} files ..."
tidy "" "${files[@]}" || failures=$((failures + 1))

say "cppcheck ..."
cppcheck --quiet --platform=win64 --std=c++20 --language=c++ --library=googletest -I . \
  --enable=warning,performance,portability --suppress=missingIncludeSystem \
  --suppress=useInitializationList --error-exitcode=1 "${paths[@]}" ||
  failures=$((failures + 1))

((failures == 0)) || fail "see the findings above."
say "No findings."
