#include "forms/exception_barrier.h"

#include "forms/text_lines.h"
#include "text/utf.h"
#include "win32/win32.h"

// Function-local statics, since handlers may run before other sources' globals are constructed and
// after they are destroyed. All are trivially destructible.
namespace forms {
namespace {

ErrorHandler& errorHandler() {
  static ErrorHandler handler = nullptr;
  return handler;
}

bool& reporting() {
  static bool now = false;
  return now;
}

int& runningHandlers() {
  static int count = 0;
  return count;
}

}  // namespace

ScopedHandler::ScopedHandler() { ++runningHandlers(); }

ScopedHandler::~ScopedHandler() { --runningHandlers(); }

int ScopedHandler::depth() { return runningHandlers(); }

std::u16string describe(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const std::exception& known) {
    return fittedToBox(text::toUtf16(known.what()));
  } catch (...) {
    return u"未知错误";
  }
}

void setErrorHandler(ErrorHandler handler) { errorHandler() = handler; }

void reportUncaught(const std::exception_ptr& error) noexcept {
  if (reporting()) return;
  reporting() = true;
  try {
    if (errorHandler() != nullptr) {
      errorHandler()(error);
    } else {
      MessageBeep(MB_ICONERROR);
    }
  } catch (...) {
    // The handler failed too, for lack of memory say. The program goes on.
    MessageBeep(MB_ICONERROR);
  }
  reporting() = false;
}

}  // namespace forms
