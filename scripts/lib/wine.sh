# shellcheck shell=bash
# Wine prefixes of our own: one kept as made, and copies of it for running and testing.

wine_base=$LEXILO_ROOT/build/wine/base

# The prefix that start_wine started. $WINEPREFIX may be one of the user's, with programs in it.
started_prefix=

# use_prefix PREFIX: what is started from here on runs in it, on a Chinese Windows, without Wine's
# add-ons and without its messages.
use_prefix() {
  # Without a path there is no prefix, and whoever failed to make it has said why.
  [[ -n $1 ]] || exit 1
  export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
  export LC_ALL=zh_CN.UTF-8
}

make_prefix() {
  use_prefix "$1"
  # Without a display: nothing may pop up on the user's screen meanwhile.
  unset DISPLAY
  rm -rf "$WINEPREFIX" && mkdir -p "$WINEPREFIX" || return
  wine wineboot -i || return
  # A crash is to end a program, not to open a dialog that waits.
  wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f || return
  wineserver -w
  [[ -f $WINEPREFIX/user.reg && -f $WINEPREFIX/drive_c/windows/system32/kernel32.dll ]] &&
    wine --version >"$WINEPREFIX/made-by"
}

# Makes the prefix from which all others are copied, again when Wine has changed.
ensure_wine_base() {
  [[ $(cat "$wine_base/made-by" 2>/dev/null) == "$(wine --version 2>/dev/null)" ]] && return
  step "Making a Wine prefix" wine.log \
    "Look for a message of Wine's there; 'wine --version' should say 8.0 or later." \
    make_prefix "$wine_base"
}

# Puts a copy in the place of each file it is given, where the other hard links do not show it.
# shellcheck disable=SC2016
own_files='for file; do cp -p "$file" "$file.own" && mv "$file.own" "$file" || exit; done'

# copy_prefix NAME: copies the base prefix to build/wine/NAME, unless it is there, and prints its
# path. Wine's own program files are shared through hard links, all that is written to is copied.
copy_prefix() {
  local copy=$LEXILO_ROOT/build/wine/$1
  if [[ ! -f $copy/made-by ]] || ! cmp -s "$wine_base/made-by" "$copy/made-by"; then
    # What an interrupted copy left would otherwise be copied into. Inside $(…) a failed command
    # ends nothing by itself.
    rm -rf "$copy" "$copy.new" || fail "the old Wine prefix $copy could not be removed."
    cp -al "$wine_base" "$copy.new" || fail "the Wine prefix $wine_base could not be copied."
    find "$copy.new" -type f -not -name '*.dll' -not -name '*.exe' -not -name '*.drv' \
      -not -name '*.sys' -exec bash -c "$own_files" own_files {} + ||
      fail "the files of the Wine prefix $copy.new could not be copied."
    mv "$copy.new" "$copy" || fail "the Wine prefix $copy could not be put in its place."
  fi
  printf '%s' "$copy"
}

# start_wine PREFIX: makes PREFIX the one in use and starts its server and services, which would
# otherwise hold on to the output of whatever program comes first.
start_wine() {
  use_prefix "$1"
  started_prefix=$1
  wineserver -p >/dev/null 2>&1 </dev/null && wine cmd /c exit >/dev/null 2>&1 </dev/null ||
    fail "Wine did not start in ${1#"$LEXILO_ROOT"/}. Remove build/wine and run this again."
}

# Ends the server that start_wine started, and with it every program that runs in its prefix.
stop_wine() {
  [[ -n $started_prefix ]] || return 0
  WINEPREFIX=$started_prefix wineserver -k >/dev/null 2>&1 || true
  WINEPREFIX=$started_prefix wineserver -w >/dev/null 2>&1 || true
  started_prefix=
  unset WINEPREFIX
}

# fresh_prefix NAME: the same, but without anything that an earlier run left there.
fresh_prefix() {
  rm -rf "$LEXILO_ROOT/build/wine/$1" ||
    fail "the old Wine prefix $LEXILO_ROOT/build/wine/$1 could not be removed."
  copy_prefix "$1"
}

# set_dpi DPI: the resolution that programs in the prefix that was started see from here on.
set_dpi() {
  wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f \
    >/dev/null 2>&1 </dev/null || fail "Wine did not take $1 dpi. Remove build/wine and run this again."
  local prefix=$started_prefix
  stop_wine
  start_wine "$prefix"
}
