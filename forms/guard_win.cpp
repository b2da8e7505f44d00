#include "forms/guard.h"

#include "forms/box_text.h"
#include "forms/message_box.h"
#include "text/utf.h"
#include "win32/win32.h"

namespace forms {
namespace {

bool& boxIsUp() {
  static bool up = false;
  return up;
}

int& runningHandlers() {
  static int count = 0;
  return count;
}

}  // namespace

HandlerRunning::HandlerRunning() { ++runningHandlers(); }

HandlerRunning::~HandlerRunning() { --runningHandlers(); }

int HandlerRunning::depth() { return runningHandlers(); }

std::u16string describe(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const std::exception& known) {
    return fittedToBox(text::toUtf16(known.what()));
  } catch (...) {
    return u"未知错误";
  }
}

void reportUncaught(const std::exception_ptr& error) noexcept {
  if (boxIsUp()) return;
  boxIsUp() = true;
  try {
    showMessage(describe(error), MessageIcon::critical);
  } catch (...) {
    // Not even memory for the text: the program goes on, which is all that is asked here.
    MessageBeep(MB_ICONERROR);
  }
  boxIsUp() = false;
}

}  // namespace forms
