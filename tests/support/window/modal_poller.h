#pragma once

#include <windows.h>

#include <functional>

namespace support {

/// Calls a function every 10 ms while messages are handled, in the modal loops of message boxes and
/// menus too, so that a test can act while one of them is open.
class ModalPoller {
 public:
  /// `look` is called until it returns true.
  explicit ModalPoller(std::function<bool()> look);
  ~ModalPoller();
  ModalPoller(const ModalPoller&) = delete;
  ModalPoller& operator=(const ModalPoller&) = delete;

  [[nodiscard]] bool done() const { return done_; }

 private:
  static void CALLBACK tick(HWND window, UINT message, UINT_PTR id, DWORD time);
  void lookOnce();

  std::function<bool()> look_;
  UINT_PTR id_ = 0;
  bool done_ = false;
  bool looking_ = false;
};

}  // namespace support
