#pragma once

#include <windows.h>

#include <thread>

#include "tests/windows/support/pump.h"

namespace wintest {

/// Keeps the clipboard open for some milliseconds, as another program may.
class ClipboardHolder {
 public:
  explicit ClipboardHolder(DWORD milliseconds) {
    HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    thread_ = std::thread([=] {
      while (!OpenClipboard(nullptr)) Sleep(1);
      SetEvent(ready);
      Sleep(milliseconds);
      CloseClipboard();
    });
    WaitForSingleObject(ready, kPatience);
    CloseHandle(ready);
  }
  ~ClipboardHolder() { thread_.join(); }
  ClipboardHolder(const ClipboardHolder&) = delete;
  ClipboardHolder& operator=(const ClipboardHolder&) = delete;

 private:
  std::thread thread_;
};

}  // namespace wintest
