# shellcheck shell=bash disable=SC2034
# Debian packages and the Chinese locale, installed only where they are missing.

# What building and running takes.
program_packages=(g++ g++-mingw-w64-x86-64-posix cmake ninja-build googletest libxml2-dev nlohmann-json3-dev zlib1g-dev
  wine wine64 xvfb x11-utils xdotool openbox imagemagick locales fonts-wqy-microhei ca-certificates)
# What the tests take beyond that.
test_packages=(clang libclang-rt-14-dev clang-format nsis)

# Runs a command as root.
as_root() {
  if ((EUID == 0)); then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail "root is needed for: $*. Run this script as root once, or install sudo."
  fi
}

# Prints those of the given packages that are not installed.
missing_packages() {
  local installed
  installed=$(dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' "$@" 2>/dev/null || true)
  local package
  for package in "$@"; do
    grep -qx "ii *$package" <<<"$installed" || printf '%s\n' "$package"
  done
}

# Installs packages without asking anything.
install_packages() {
  as_root env DEBIAN_FRONTEND=noninteractive apt-get update &&
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
}

# ensure_packages PACKAGE...: installs those that are missing. Node.js counts as installed where
# its commands are there, whoever packaged it.
ensure_packages() {
  command -v apt-get >/dev/null ||
    fail "this is no Debian: set-up needs apt-get, and these packages: $*"
  local missing
  mapfile -t missing < <(missing_packages "$@")
  command -v node >/dev/null || missing+=(nodejs)
  command -v npm >/dev/null || missing+=(npm)
  ((${#missing[@]} == 0)) && return
  say "To be installed: ${missing[*]}"
  step "Installing ${#missing[@]} Debian packages" packages.log \
    "Check the network and the package sources, then run this again." \
    install_packages "${missing[@]}"
}

generate_locale() {
  as_root sh -c 'echo zh_CN.UTF-8 UTF-8 >>/etc/locale.gen' && as_root locale-gen
}

# The locale under which Wine takes GBK as its ANSI code page, as a Chinese Windows does.
ensure_locale() {
  grep -qix 'zh_CN\.utf-\?8' <<<"$(locale -a 2>/dev/null)" && return
  step "Generating the locale zh_CN.UTF-8" locale.log \
    "Generate it by hand: dpkg-reconfigure locales." generate_locale
}
