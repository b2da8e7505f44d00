#!/usr/bin/env bash
# Takes the pictures of the help page anew, from the real windows on a virtual display.
set -euo pipefail

# shellcheck source=setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
cd "$LEXILO_ROOT"

trap 'stop_wine; stop_display' EXIT
trap 'exit 130' INT TERM

set_up_program
build windows lexilo help_pictures
build tools kkbuild
ensure_full_database
assemble_app
start_display
start_wine "$(fresh_prefix help)"
run_wine build/windows/bin/help_pictures.exe help/pictures
