#pragma once

#include <windows.h>

#include <thread>

#include "tests/support/wait.h"

namespace support {

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
    WaitForSingleObject(ready, kDefaultTimeout);
    CloseHandle(ready);
  }
  ~ClipboardHolder() { thread_.join(); }
  ClipboardHolder(const ClipboardHolder&) = delete;
  ClipboardHolder& operator=(const ClipboardHolder&) = delete;

 private:
  std::thread thread_;
};

}  // namespace support
