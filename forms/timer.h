#pragma once

#include "forms/event.h"
#include "win32/win32.h"

namespace forms {

class Form;

/// Raises an event periodically while enabled, until its form unloads. Intervals in milliseconds;
/// below 10 Windows uses 10. The event comes from the message loop, also from that of a menu or
/// message box, so a handler may run while another one waits in such a loop. WM_TIMER has the
/// lowest priority and does not accumulate: a busy program gets fewer ticks. User-interface thread
/// only.
class Timer {
 public:
  /// `form` must outlive the timer, usually as the form whose member it is.
  explicit Timer(Form& form, int interval = 0, bool enabled = false);
  ~Timer();
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  /// 0 never ticks. A new interval starts a running timer over.
  void setInterval(int milliseconds);
  [[nodiscard]] int interval() const { return interval_; }

  /// Enabling an enabled timer does not start it over. Throws std::runtime_error if the system has
  /// no timer left, as setInterval does; the timer stays disabled then.
  void setEnabled(bool enabled);
  [[nodiscard]] bool enabled() const { return enabled_; }

  /// An interval has passed.
  Event<> onTimer;

 private:
  void start();
  void stop();

  Form& form_;
  int interval_;
  bool enabled_ = false;
  UINT_PTR id_ = 0;
};

}  // namespace forms
