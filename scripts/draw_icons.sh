#!/usr/bin/env bash
# Draws app/resources/*.ico anew from app/resources/svg/*.svg. Needed only when a drawing has
# changed: the icons are committed, and the build takes them as they are.
#
# NAME.svg serves every size for which there is no drawing of its own, NAME_SIZE.svg.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# shellcheck source=lib/say.sh
source scripts/lib/say.sh

# Small icons at 100 %, 125 %, 150 %, 200 % and 300 % scaling; Explorer's largest view for the mark.
sizes=(16 20 24 32 48)
app_sizes=(256)

for tool in rsvg-convert icotool; do
  command -v "$tool" >/dev/null ||
    fail "$tool is missing: apt-get install librsvg2-bin icoutils"
done

work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# draw NAME SIZE: one picture of one size.
draw() {
  local source=app/resources/svg/$1_$2.svg
  [[ -e $source ]] || source=app/resources/svg/$1.svg
  rsvg-convert --width "$2" --height "$2" --output "$work/$1_$2.png" "$source"
}

# pack NAME SIZE...: the pictures of all sizes as one icon. The largest size is kept compressed.
pack() {
  local name=$1 size pictures=()
  shift
  for size in "$@"; do
    draw "$name" "$size"
    if ((size == 256)); then
      pictures+=(--raw="$work/${name}_$size.png")
    else
      pictures+=("$work/${name}_$size.png")
    fi
  done
  icotool --create --bit-depth=32 --output="app/resources/$name.ico" "${pictures[@]}"
}

for drawing in app/resources/svg/*.svg; do
  name=$(basename "$drawing" .svg)
  [[ $name =~ _[0-9]+$ ]] && continue
  if [[ $name == app ]]; then
    pack "$name" "${sizes[@]}" "${app_sizes[@]}"
  else
    pack "$name" "${sizes[@]}"
  fi
done
