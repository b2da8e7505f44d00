# shellcheck shell=bash
# The pinned npm packages, which carry SQLite's sources and the dictionary data.

install_node_modules() {
  cd "$LEXILO_ROOT" && npm ci
}

# Installs them when node_modules is not what the lock file asks for.
ensure_node_modules() {
  local stamp=$LEXILO_ROOT/node_modules/.installed-lock
  cmp -s "$LEXILO_ROOT/package-lock.json" "$stamp" && return
  step "Fetching SQLite's sources and the dictionary data from npm" npm.log \
    "Check the network and npm's registry setting, then run this again." install_node_modules
  cp "$LEXILO_ROOT/package-lock.json" "$stamp"
}
