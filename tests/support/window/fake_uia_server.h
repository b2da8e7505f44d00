#pragma once

#include <objbase.h>
#include <windows.h>

#include <future>
#include <thread>

#include "tests/support/window/fake_uia.h"

namespace support {

/// Makes the fake the system's client of UI Automation for this process: its class object is
/// registered in the multithreaded apartment, by a thread of its own, until the end of the scope.
/// Classes and interfaces are asked for by their published ids, and no others are given.
class FakeUiaServer {
 public:
  explicit FakeUiaServer(FakeUia& uia);
  /// Every client has to be released before.
  ~FakeUiaServer();
  FakeUiaServer(const FakeUiaServer&) = delete;
  FakeUiaServer& operator=(const FakeUiaServer&) = delete;

  [[nodiscard]] bool registered() const { return SUCCEEDED(result_); }

 private:
  void serve(FakeUia& uia);

  std::promise<HRESULT> registered_;
  std::promise<void> end_;
  std::thread thread_;
  HRESULT result_;
};

}  // namespace support
