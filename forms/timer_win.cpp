#include "forms/timer.h"

#include "forms/dispatcher.h"
#include "forms/form.h"

namespace forms {

Timer::Timer(Form& form, int interval, bool enabled) : form_(form), interval_(interval) {
  setEnabled(enabled);
}

Timer::~Timer() { stop(); }

void Timer::setInterval(int milliseconds) {
  interval_ = milliseconds;
  stop();
  if (enabled_) start();
}

void Timer::setEnabled(bool enabled) {
  if (enabled == enabled_) return;
  if (enabled) {
    start();
  } else {
    stop();
  }
  enabled_ = enabled;
}

// While Form_Unload runs, and the message loop of a box in it, the timer is silent.
void Timer::start() {
  if (interval_ <= 0) return;
  id_ = Dispatcher::instance().startTimer(static_cast<UINT>(interval_), [this] {
    if (!form_.isUnloading()) onTimer.raise();
  });
}

void Timer::stop() {
  if (id_ == 0) return;
  Dispatcher::instance().stopTimer(id_);
  id_ = 0;
}

}  // namespace forms
