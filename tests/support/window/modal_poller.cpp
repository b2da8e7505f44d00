#include "tests/support/window/modal_poller.h"

#include <gtest/gtest.h>

#include <map>

namespace support {
namespace {

std::map<UINT_PTR, ModalPoller*>& watchers() {
  static std::map<UINT_PTR, ModalPoller*> all;
  return all;
}

}  // namespace

ModalPoller::ModalPoller(std::function<bool()> look) : look_(std::move(look)) {
  id_ = SetTimer(nullptr, 0, 10, tick);
  watchers()[id_] = this;
}

ModalPoller::~ModalPoller() {
  KillTimer(nullptr, id_);
  watchers().erase(id_);
}

void CALLBACK ModalPoller::tick(HWND /*window*/, UINT /*message*/, UINT_PTR id, DWORD /*time*/) {
  const auto found = watchers().find(id);
  if (found != watchers().end()) found->second->lookOnce();
}

void ModalPoller::lookOnce() {
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

}  // namespace support
