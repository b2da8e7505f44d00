#!/usr/bin/env bash
# Runs clang-tidy over the sources: scripts/tidy.sh [FILE...]. Those that need Windows are read with
# mingw-w64's headers. About three seconds a file, so it is no part of the tests.
set -euo pipefail

# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
cd "$LEXILO_ROOT"

set_up_program
ensure_packages clang-tidy

files=("$@")
if ((${#files[@]} == 0)); then
  mapfile -t files < <(git ls-files '*.cpp')
fi

library=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
windows_flags=(--target=x86_64-w64-mingw32 -DUNICODE -D_UNICODE -DNOMINMAX -DWIN32_LEAN_AND_MEAN
  -DSTRICT -D_WIN32_WINNT=0x0A00 -DNTDDI_VERSION=0x0A000002 '-DLEXILO_HOME_PAGE="page"'
  -nostdinc++ -isystem "$library/include/c++" -isystem "$library/include/c++/x86_64-w64-mingw32"
  -isystem /usr/share/mingw-w64/include)
common_flags=(-std=c++20 -I. -isystem node_modules/better-sqlite3/deps/sqlite3
  -isystem /usr/src/googletest/googletest/include)

failures=0
for file in "${files[@]}"; do
  flags=("${common_flags[@]}")
  case $file in
    app/* | forms/* | lookup/* | capture/* | settings/* | bench/windows/* | tests/windows/* | \
      tests/program/* | tests/tour/*) flags+=("${windows_flags[@]}") ;;
  esac
  say "$file"
  clang-tidy --quiet "$file" -- "${flags[@]}" 2>/dev/null || failures=$((failures + 1))
done
say "$failures of ${#files[@]} files have something to mend."
((failures == 0))
