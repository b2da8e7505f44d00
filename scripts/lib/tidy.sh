# shellcheck shell=bash
# clang-tidy over sources of both systems, several at a time.

# A compilation database each, without precompiled headers: clang cannot read GCC's, and a source that
# lacks an include of its own is found.
configure_tidy() {
  local preset
  # Each time: a source that was added since is in no database.
  for preset in native windows; do
    step "Configuring clang-tidy ($preset)" "configure-tidy-$preset.log" \
        "If the message names a missing tool, install it." \
      cmake --preset "$preset" -B "build/tidy/$preset" -DLEXILO_PRECOMPILE=OFF
  done
}

# Where the cross-compiler finds its headers, for a clang that knows nothing of it.
windows_flags() {
  echo --extra-arg=--target=x86_64-w64-mingw32
  x86_64-w64-mingw32-g++-posix -E -Wp,-v -xc++ /dev/null 2>&1 | sed -n 's/^ \//\//p' |
    grep -v '/lib/gcc/.*/include\(-fixed\)\?$' | sed 's/^/--extra-arg=-isystem/'
}

# built_by PRESET FILE: whether the preset compiles it.
built_by() {
  grep -q "\"file\": \"$LEXILO_ROOT/$2\"" "build/tidy/$1/compile_commands.json"
}

# tidy CHECKS FILE...: prints the findings, and fails if there are any. CHECKS as the option --checks
# of clang-tidy takes them, without the compiler's warnings; "" for those of .clang-tidy.
tidy() {
  local checks=$1 file native=() windows=() flags status=0 log=build/logs/tidy.log
  shift
  (($# > 0)) || fail "there are no sources to examine."
  configure_tidy
  : >"$log"
  for file; do
    if built_by native "$file"; then
      native+=("$file")
    elif built_by windows "$file"; then
      windows+=("$file")
    else
      say "$file: neither preset compiles it"
      status=1
    fi
  done
  flags=(--quiet --extra-arg=-Wno-unknown-warning-option ${checks:+"--checks=$checks" --extra-arg=-w})
  if ((${#native[@]} > 0)); then
    printf '%s\0' "${native[@]}" |
      xargs -0 -n 1 -P "$(nproc)" clang-tidy "${flags[@]}" -p build/tidy/native 2>>"$log" || status=1
  fi
  if ((${#windows[@]} > 0)); then
    mapfile -t -O "${#flags[@]}" flags < <(windows_flags)
    printf '%s\0' "${windows[@]}" |
      xargs -0 -n 1 -P "$(nproc)" clang-tidy "${flags[@]}" -p build/tidy/windows 2>>"$log" ||
      status=1
  fi
  # Other errors than findings, such as a missing clang-tidy.
  grep -vE 'warnings? (and [0-9]+ errors? )?generated|^Error while processing|errors? generated' "$log" |
    tail -n 5 || true
  return "$status"
}
