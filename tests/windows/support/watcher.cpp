#include "tests/windows/support/watcher.h"

#include <gtest/gtest.h>

#include <map>

namespace wintest {
namespace {

std::map<UINT_PTR, Watcher*>& watchers() {
  static std::map<UINT_PTR, Watcher*> all;
  return all;
}

}  // namespace

Watcher::Watcher(std::function<bool()> look) : look_(std::move(look)) {
  id_ = SetTimer(nullptr, 0, 10, tick);
  watchers()[id_] = this;
}

Watcher::~Watcher() {
  KillTimer(nullptr, id_);
  watchers().erase(id_);
}

void CALLBACK Watcher::tick(HWND /*window*/, UINT /*message*/, UINT_PTR id, DWORD /*time*/) {
  const auto found = watchers().find(id);
  if (found != watchers().end()) found->second->lookOnce();
}

void Watcher::lookOnce() {
  if (done_ || looking_) return;
  looking_ = true;
  // What a test throws must not pass through the system's code.
  try {
    done_ = look_();
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
    done_ = true;
  }
  looking_ = false;
}

}  // namespace wintest
