#!/usr/bin/env bash
# Runs every test of Lexilo, setting up first what is missing.
#
#   ./test.sh                    all of them
#   ./test.sh unit format        only some layers
#   ./test.sh windows 'FrmSub*'  only the tests of one layer whose names match a GoogleTest filter
#
# The layers: format help executable unit words threads fuzz wine-unit windows program dpi144. A
# filter is for those that are GoogleTest executables: unit words threads wine-unit windows program
# dpi144.
#
# The last line says how many passed and failed; the exit status is 0 when none failed.
set -euo pipefail

# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"
# shellcheck source=scripts/lib/tests.sh
source "$LEXILO_ROOT/scripts/lib/tests.sh"
# shellcheck source=scripts/lib/lanes.sh
source "$LEXILO_ROOT/scripts/lib/lanes.sh"
cd "$LEXILO_ROOT"

all_layers=(format help executable unit words threads fuzz wine-unit windows program dpi144)
layers=()
filter=
for argument; do
  if [[ " ${all_layers[*]} " == *" $argument "* ]]; then
    layers+=("$argument")
  elif (($# == 2 && ${#layers[@]} == 1)); then
    filter=$argument
  else
    fail "there is no layer '$argument'; the layers are: ${all_layers[*]}."
  fi
done
((${#layers[@]} > 0)) || layers=("${all_layers[@]}")
if [[ -n $filter && " format help executable fuzz " == *" ${layers[0]} "* ]]; then
  fail "'$filter' is no layer, and the layer '${layers[0]}' takes no filter."
fi

# wanted LAYER...: whether one of these is to run.
wanted() {
  local layer
  for layer in "$@"; do
    [[ " ${layers[*]} " == *" $layer "* ]] && return
  done
  return 1
}

# Layers that only compute run at a lower priority (nice): the others wait for windows with deadlines.
run_layer() {
  local programs=build/windows/bin/program_tests.exe source name
  case $1 in
    unit) run_gtest unit 480 "$filter" nice -n 5 build/native/bin/unit_tests ;;
    words) run_gtest words 60 "$filter" nice -n 5 build/native/bin/word_tests ;;
    threads) run_gtest threads 120 "$filter" nice -n 5 build/tsan/bin/thread_tests ;;
    fuzz)
      for source in tests/fuzz/*_fuzz.cpp; do
        name=$(basename "$source" .cpp)
        run_test "$name" 90 nice -n 5 scripts/fuzz.sh 3 "$name"
      done
      ;;
    wine-unit) run_gtest wine-unit 180 "$filter" wine build/windows/bin/unit_tests.exe ;;
    windows)
      run_gtest windows 480 "$filter" wine build/windows/bin/windows/window_tests.exe
      ;;
    program) run_gtest program 600 "$(without "$filter" '*Dpi144*')" wine "$programs" ;;
    dpi144)
      set_dpi 144
      run_gtest dpi144 120 "${filter:-*Dpi144*}" wine "$programs"
      ;;
  esac
}

# run_lane NAME LAYER...: those of these layers that are wanted, one after the other. All that run
# under Wine share a display and the prefix NAME.
run_lane() {
  local name=$1 layer started=
  shift
  for layer in "$@"; do
    wanted "$layer" || continue
    if [[ " wine-unit windows program dpi144 " == *" $layer "* && -z $started ]]; then
      start_windows "$name"
      started=1
    fi
    run_layer "$layer"
  done
}

trap stop_jobs EXIT
trap 'exit 130' INT TERM

set_up_tests
start_counting

if wanted format; then run_test format 60 scripts/format.sh --check; fi
if wanted help; then run_test help 20 node scripts/check_help.mjs; fi

if wanted unit words wine-unit program dpi144; then build tools kkbuild; fi
if wanted unit wine-unit program dpi144; then ensure_small_database; fi
if wanted unit; then build native unit_tests; fi
if wanted words; then build native word_tests; fi
if wanted threads; then build tsan thread_tests; fi
if wanted fuzz; then build fuzz fuzz_targets; fi

targets=()
if wanted wine-unit; then targets+=(unit_tests); fi
if wanted windows; then targets+=(window_tests); fi
if wanted program dpi144; then targets+=(program_tests); fi
if wanted executable program dpi144; then targets+=(lexilo capturewhy); fi
if ((${#targets[@]} > 0)); then build windows "${targets[@]}"; fi
if wanted executable; then
  run_test executable 20 node scripts/check_executable.mjs build/windows/bin/{lexilo,capturewhy}.exe
fi
if wanted words program dpi144; then ensure_full_database; fi
if wanted program dpi144; then
  assemble_app
  rm -rf build/shots build/program
fi
if wanted program; then build_licence_page; fi

# Two lanes that take about the same time. Not a third one for the native layers: with that, windows
# came to the front later than tests wait on two cores.
start_lane run_lane test-1 program wine-unit dpi144 fuzz
start_lane run_lane test-2 windows unit words threads
wait_for_lanes

tell_of_crashes
tell_sum
