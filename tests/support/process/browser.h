#pragma once

#include <windows.h>

#include <string>

namespace support {

/// The browser that Lexilo starts: Wine's, whose page stays blank without its engine.
class Browser {
 public:
  /// Waits for its window.
  Browser();
  /// Ends it.
  ~Browser();
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;

  /// Waits for its address bar to show this address; whatever it shows instead is in the failure.
  void waitForAddress(const std::wstring& address) const;

 private:
  HWND window_;
};

}  // namespace support
