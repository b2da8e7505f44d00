#include "tests/support/process/text_box.h"

#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"
#include "tests/support/process/input.h"
#include "tests/support/process/text.h"
#include "tests/support/wait.h"

namespace support {

void takeKeyboard(HWND box) {
  HWND window = GetAncestor(box, GA_ROOT);
  actUntil(
      "a text box to get the keyboard", [&] { input::click(centreOf(clientRectOf(box))); },
      [&] { return GetForegroundWindow() == window && focusIn(window) == box; });
}

void typeInto(HWND box, const std::wstring& text) {
  takeKeyboard(box);
  input::key(VK_END);
  input::key(VK_HOME, {VK_SHIFT});
  input::key(VK_DELETE);
  waitFor("the text box to be empty", [&] { return textOf(box).empty(); });
  input::type(text);
  waitFor("the typed text " + utf8(text), [&] { return textOf(box) == text; });
}

}  // namespace support
