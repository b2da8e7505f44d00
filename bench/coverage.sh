#!/usr/bin/env bash
# Measures how many words of running English the popup finds, in texts of several kinds that Debian
# packages: manuals, essays, quotations, definitions, texts of several sciences.
#
#   bench/coverage.sh                   with the full dictionary, which is built where it is missing
#   bench/coverage.sh FILE              with another database
#   bench/coverage.sh FILE KIND...      only some kinds, by the names below
#
# Prints a line a kind with the shares of words in lower case; the whole report of each, with the
# words that are not found, is build/coverage/KIND.txt. The packages (some 100 MB) are fetched into
# build/texts once and unpacked there, not installed; their names and versions are Debian 12's.
set -euo pipefail

# shellcheck source-path=SCRIPTDIR/../scripts source=setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/setup.sh"

# Kind, package, and what of it is read: a regular expression for the whole path in the package.
kinds=(
  'quotations fortunes ./usr/share/games/fortunes/(computers|cookie|definitions|education|food|humorists|kids|law|literature|love|medicine|men-women|miscellaneous|news|paradoxum|people|pets|platitudes|politics|science|songs-poems|sports|wisdom|work)'
  'satire dict-devil ./usr/share/dictd/devil\.dict\.dz'
  'essays anarchism .*/sec[^/]*\.html'
  'definitions dict-wn ./usr/share/dictd/wn\.dict\.dz'
  'pictures gimp-help-en .*/en/.*\.html'
  'system debian-reference-en .*/debian-reference\.en\.txt\.gz'
  'programming python3.11-doc .*/html/(tutorial|howto|faq|using|reference)/.*\.html'
  'databases postgresql-doc-15 .*\.html'
  'mathematics octave-doc .*/octave\.html/[^X][^/]*\.html'
  'statistics r-doc-html .*/R-[^/]*\.html'
  'biology python-biopython-doc .*/Doc/Tutorial\.html'
  'chemistry massxpert-doc .*\.html'
)

texts_dir=$LEXILO_ROOT/build/texts
reports_dir=$LEXILO_ROOT/build/coverage

# fetch PACKAGE: downloads and unpacks it into its own folder of texts_dir, which is complete once it
# is there.
fetch() {
  [[ -d $texts_dir/$1 ]] && return
  local new=$texts_dir/new
  rm -rf "$new"
  mkdir -p "$new/unpacked"
  (cd "$new" && apt-get download "$1") && dpkg-deb -x "$new/$1"_*.deb "$new/unpacked" || return
  mv "$new/unpacked" "$texts_dir/$1"
}

# figures REPORT: the last table of a report as one line: words in lower case, then their shares.
figures() {
  awk '/ words, .* of them in lower case/ { words = $3 }
    /^  (found|found without the last letter|only a reference|not found)  / {
      share[++count] = $(NF - 1) " %"
    }
    END {
      printf "%11s %9s %9s %9s %9s\n", words, share[count - 3], share[count - 2], share[count - 1],
        share[count]
    }' "$1"
}

# measure KIND PACKAGE PATTERN
measure() {
  local report=$reports_dir/$1.txt texts
  step "Fetching the package $2" coverage-texts.log \
    "Check the network and the package sources: apt-cache policy $2." fetch "$2"
  cd "$texts_dir/$2"
  mapfile -t texts < <(find . -type f -regextype posix-extended -regex "$3" | LC_ALL=C sort)
  ((${#texts[@]} > 0)) || fail "the package $2 has no texts that match $3."
  "$kkbuild" coverage "$file" "${texts[@]}" >"$report"
  printf '%-14s' "$1"
  figures "$report"
}

names=("${kinds[@]%% *}")
for wanted in "${@:2}"; do
  [[ " ${names[*]} " == *" $wanted "* ]] || fail "there is no kind '$wanted'; the kinds are: ${names[*]}."
done

ensure_packages g++ cmake ninja-build libxml2-dev nlohmann-json3-dev zlib1g-dev
ensure_node_modules
build tools kkbuild
if (($# > 0)); then
  file=$(realpath -- "$1")
else
  ensure_full_database
  file=$database
fi
mkdir -p "$texts_dir" "$reports_dir"

printf '%-14s%11s %9s %9s %9s %9s\n' kind words found shortened reference 'not found'
for kind in "${kinds[@]}"; do
  read -r name package pattern <<<"$kind"
  if (($# < 2)) || [[ " ${*:2} " == *" $name "* ]]; then measure "$name" "$package" "$pattern"; fi
done
