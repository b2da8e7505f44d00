#pragma once

#include <exception>
#include <functional>
#include <string>
#include <utility>

/// The boundary around every handler: no exception ever reaches a callback of the system.
namespace forms {

/// The error's own description, fitted to a message box (see box_text.h).
std::u16string describe(const std::exception_ptr& error);

/// The handler of uncaught errors: a message box with the error's description, the critical icon
/// and no title. While one is up, further errors are dropped.
void reportUncaught(const std::exception_ptr& error) noexcept;

/// Counts the handlers that are running, one inside the other.
class HandlerRunning {
 public:
  HandlerRunning();
  ~HandlerRunning();
  HandlerRunning(const HandlerRunning&) = delete;
  HandlerRunning& operator=(const HandlerRunning&) = delete;
  static int depth();
};

/// Runs one handler inside the boundary.
template <class Handler>
void guard(Handler&& handler) noexcept {
  const HandlerRunning running;
  try {
    std::forward<Handler>(handler)();
  } catch (...) {
    reportUncaught(std::current_exception());
  }
}

/// One event of a widget: holds the handler that its window wired to it, and runs it guarded.
template <class... Args>
class Event {
 public:
  template <class Handler>
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }
  explicit operator bool() const { return static_cast<bool>(handler_); }

  void raise(Args... args) const noexcept {
    if (handler_) guard([&] { handler_(args...); });
  }

 private:
  std::function<void(Args...)> handler_;
};

}  // namespace forms
