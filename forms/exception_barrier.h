#pragma once

#include <exception>
#include <string>
#include <utility>

/// The exception barrier: no exception leaves a callback that Windows calls, since the system's own
/// code between two of our functions cannot be unwound. User-interface thread only.
namespace forms {

/// Returns the error's own description, cut and wrapped to fit a message box (see text_lines.h).
std::u16string describe(const std::exception_ptr& error);

/// Reports an error that a handler let out; may throw.
using ErrorHandler = void (*)(const std::exception_ptr& error);

/// Sets the handler of uncaught errors (showErrorBox of message_box.h in the program). Before, and
/// after null, an uncaught error only beeps.
void setErrorHandler(ErrorHandler handler);

/// Calls the handler of uncaught errors. While it runs, further errors are dropped.
void reportUncaught(const std::exception_ptr& error) noexcept;

/// Counts the handlers that are running, one inside the other, until the end of the scope.
class ScopedHandler {
 public:
  ScopedHandler();
  ~ScopedHandler();
  ScopedHandler(const ScopedHandler&) = delete;
  ScopedHandler& operator=(const ScopedHandler&) = delete;
  /// Returns the number of handlers that are running.
  static int depth();
};

/// Runs `handler` inside the barrier: what it throws goes to reportUncaught.
template <class Handler>
void guard(Handler&& handler) noexcept {
  const ScopedHandler running;
  try {
    std::forward<Handler>(handler)();
  } catch (...) {
    reportUncaught(std::current_exception());
  }
}

}  // namespace forms
