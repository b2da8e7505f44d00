#pragma once

#include <deque>
#include <functional>
#include <unordered_map>

#include "win32/win32.h"

namespace forms {

/// Runs posted functions and timer ticks from the message loop, by way of a message-only window:
/// the modal loops of menus, message boxes and window moves dispatch its messages too.
/// User-interface thread only. The first instance() throws std::runtime_error if that window cannot
/// be created.
class Dispatcher {
 public:
  static Dispatcher& instance();

  Dispatcher(const Dispatcher&) = delete;
  Dispatcher& operator=(const Dispatcher&) = delete;

  /// Runs `work` inside the exception barrier from the message loop, before pending input and in
  /// the order posted. Returns false if the message queue is full; `work` then runs with the next
  /// one that is posted.
  bool post(std::function<void()> work);

  /// Calls `tick` inside the exception barrier every `milliseconds` (Windows takes less than 10,
  /// USER_TIMER_MINIMUM, as 10) until the timer is stopped. Returns the number to stop it by.
  /// Throws std::runtime_error if the system has no timer left.
  UINT_PTR startTimer(UINT milliseconds, std::function<void()> tick);
  /// Stops a timer; a tick that is already in the queue is dropped. Ignores an unknown number.
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

}  // namespace forms
