#!/usr/bin/env bash
# Examines sources with clang-tidy (.clang-tidy) and cppcheck; takes some seconds a file.
#
#   scripts/tidy.sh                  every source
#   scripts/tidy.sh app lookup/x.cpp only these folders and files
set -euo pipefail

# shellcheck source=setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
cd "$LEXILO_ROOT"

ensure_packages "${program_packages[@]}" clang-tidy cppcheck
ensure_node_modules
paths=("$@")
((${#paths[@]} > 0)) || paths=(app bench capture data dictionary forms lookup query settings tests text win32)

# A compilation database is all that is needed of a build, except for generated headers.
for preset in native windows; do
  if [[ ! -f build/$preset/compile_commands.json ]]; then
    step "Configuring the preset $preset" "configure-$preset.log" \
      "If the message names a missing tool, install it." cmake --preset "$preset"
  fi
done

# Where the cross-compiler finds its headers, for a clang that knows nothing of it.
windows_flags=(--extra-arg=--target=x86_64-w64-mingw32)
while read -r directory; do
  windows_flags+=("--extra-arg=-isystem$directory")
done < <(x86_64-w64-mingw32-g++-posix -E -Wp,-v -xc++ /dev/null 2>&1 | sed -n 's/^ \//\//p' |
  grep -v '/lib/gcc/.*/include\(-fixed\)\?$')

# built_by PRESET FILE: whether the preset compiles it.
built_by() {
  grep -q "\"file\": \"$LEXILO_ROOT/$2\"" "build/$1/compile_commands.json"
}

mapfile -t files < <(find "${paths[@]}" -name '*.cpp' | sort)
failures=0
number=0
for file in "${files[@]}"; do
  number=$((number + 1))
  say "[$number/${#files[@]}] $file"
  if built_by native "$file"; then
    flags=(-p build/native)
  elif built_by windows "$file"; then
    flags=(-p build/windows "${windows_flags[@]}")
  else
    continue
  fi
  clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option "${flags[@]}" "$file" 2>/dev/null || failures=$((failures + 1))
done

say "cppcheck ..."
cppcheck --quiet --platform=win64 --std=c++20 --language=c++ --library=googletest -I . \
  --enable=warning,performance,portability --suppress=missingIncludeSystem \
  --suppress=useInitializationList --error-exitcode=1 "${paths[@]}" ||
  failures=$((failures + 1))

say "Findings: $failures (of ${#files[@]} files, and cppcheck)"
((failures == 0))
