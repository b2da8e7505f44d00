# shellcheck shell=bash
# Wine prefixes of our own: one kept as made, and copies of it for running and testing.

wine_base=$LEXILO_ROOT/build/wine/base

# Wine's own messages, and the backtraces of programs that crashed. None of it is for the
# terminal: it is partly in Chinese, in whatever code page, and says nothing to a user.
wine_log=$LEXILO_ROOT/build/logs/wine.log
crash_log=$LEXILO_ROOT/build/logs/crashes.log

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

# set_registry KEY VALUE TYPE DATA: writes a value into the registry of the prefix in use. reg tells
# what it did in the prefix's code page.
set_registry() {
  wine reg add "$1" /v "$2" /t "$3" /d "$4" /f 2>>"$wine_log" </dev/null |
    iconv -c -f GBK -t UTF-8 | tr -d '\r' >>"$wine_log"
}

make_prefix() {
  use_prefix "$1"
  # Without a display: nothing may pop up on the user's screen meanwhile.
  unset DISPLAY
  say "Windows' folders and registry; Wine's messages go to ${wine_log#"$LEXILO_ROOT"/}"
  rm -rf "$WINEPREFIX" && mkdir -p "$WINEPREFIX" || return
  wine wineboot -i >"$wine_log" 2>&1 </dev/null || return
  # A crash is to end a program, not to open a dialog that waits. Its backtrace, which Wine would
  # mix with what the program prints, goes to C:\logs, which is build/logs in every copy.
  ln -s ../../../logs "$WINEPREFIX/drive_c/logs" || return
  set_registry 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0 || return
  set_registry 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' Debugger REG_SZ \
    'cmd /c "C:\windows\system32\winedbg.exe --auto %ld %ld >>C:\logs\crashes.log 2>&1"' || return
  wineserver -w
  [[ -f $WINEPREFIX/user.reg && -f $WINEPREFIX/drive_c/windows/system32/kernel32.dll ]] &&
    base_stamp >"$WINEPREFIX/made-by"
}

# What a base prefix is made by: Wine, and the steps above, whose number rises when they change.
base_stamp() {
  printf '%s, steps 2\n' "$(wine --version 2>/dev/null)"
}

# Makes the prefix from which all others are copied, again when Wine has changed.
ensure_wine_base() {
  # The backtraces of earlier runs say nothing about this one.
  rm -f "$crash_log"
  [[ $(cat "$wine_base/made-by" 2>/dev/null) == "$(base_stamp)" ]] && return
  step "Making a Wine prefix" prefix.log \
    "Look for a message in build/logs/wine.log; 'wine --version' should say 8.0 or later." \
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
  mkdir -p "${wine_log%/*}"
  if ! wineserver -p >>"$wine_log" 2>&1 </dev/null ||
    ! wine cmd /c exit >>"$wine_log" 2>&1 </dev/null; then
    fail "Wine did not start in ${1#"$LEXILO_ROOT"/} (see build/logs/wine.log). Remove build/wine" \
      "and run this again."
  fi
}

# wine_server: the process id of Wine's server for the prefix that was started.
wine_server() {
  local process
  for process in $(pgrep wineserver); do
    if grep -qzxF "WINEPREFIX=$started_prefix" "/proc/$process/environ" 2>/dev/null; then
      echo "$process"
    fi
  done
}

# run_wine PROGRAM ARGUMENT...: runs a program, whose standard output, errors included, comes here.
# Standard error, where Wine has its say, goes to build/logs/NAME.log. Without a terminal on either
# side Wine does not take it for a console of its own.
run_wine() {
  local name log status=0
  name=$(basename "$1" .exe)
  log=build/logs/$name.log
  wine "$@" 2>"$LEXILO_ROOT/$log" </dev/null | sed -u 's/\r$//' || status=$?
  ((status == 0)) || fail "$name ended with status $status (see $log$(crash_hint))."
}

# Where the backtraces of this run's crashes are, if there were any: as the end of a list of logs, and
# as a sentence.
crash_hint() {
  [[ ! -s $crash_log ]] || printf ' and %s' "${crash_log#"$LEXILO_ROOT"/}"
}

tell_of_crashes() {
  [[ ! -s $crash_log ]] || say "The backtraces of crashes are in ${crash_log#"$LEXILO_ROOT"/}."
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

# start_windows NAME: a display, and a prefix of that name without anything that earlier programs left.
# What is started from here on runs there.
start_windows() {
  start_display "$1"
  start_wine "$(fresh_prefix "$1")"
}

# set_dpi DPI: the resolution that programs in the prefix that was started see from here on.
set_dpi() {
  set_registry 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD "$1" ||
    fail "Wine did not take $1 dpi (see build/logs/wine.log). Remove build/wine and run this again."
  local prefix=$started_prefix
  stop_wine
  start_wine "$prefix"
}
