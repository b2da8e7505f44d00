#pragma once

#include <functional>
#include <utility>

#include "forms/exception_barrier.h"

namespace forms {

/// An event of a widget or form: holds at most one handler and runs it inside the exception
/// barrier. User-interface thread only.
template <class... Args>
class Event {
 public:
  /// Sets the handler, replacing the previous one.
  template <class Handler>
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }
  /// Whether there is a handler.
  explicit operator bool() const { return static_cast<bool>(handler_); }

  /// Runs the handler if there is one.
  void raise(Args... args) const noexcept {
    if (handler_) guard([&] { handler_(args...); });
  }

 private:
  std::function<void(Args...)> handler_;
};

}  // namespace forms
