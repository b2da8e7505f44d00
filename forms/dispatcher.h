#pragma once

#include <deque>
#include <functional>
#include <unordered_map>

#include "win32/win32.h"

namespace forms {

/// Runs posted functions and timer ticks from the message loop, modal loops included, by way of a
/// message-only window. User-interface thread only. The first instance() throws std::runtime_error
/// if that window cannot be created.
class Dispatcher {
 public:
  static Dispatcher& instance();

  Dispatcher(const Dispatcher&) = delete;
  Dispatcher& operator=(const Dispatcher&) = delete;

  /// Runs `work` guarded, soon, ahead of pending input; in the order posted. false where the system
  /// takes no more messages; the work then waits for the next one that it takes.
  bool post(std::function<void()> work);

  /// Calls `tick` every `milliseconds` (at least 10: the system's own floor) until stopped. The
  /// returned number names the timer.
  UINT_PTR startTimer(UINT milliseconds, std::function<void()> tick);
  void stopTimer(UINT_PTR id);

 private:
  Dispatcher();
  ~Dispatcher();
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void runPosted();
  void tick(UINT_PTR id);

  HWND window_ = nullptr;
  std::deque<std::function<void()>> posted_;
  std::unordered_map<UINT_PTR, std::function<void()>> timers_;
  UINT_PTR lastTimer_ = 0;
};

/// Handles every message that is in the queue, and returns.
void doEvents();

/// The message loop; ends with WM_QUIT and returns its code.
int runMessageLoop();

}  // namespace forms
