#include "tests/support/process/button.h"

#include "tests/support/process/find.h"
#include "tests/support/process/input.h"

namespace support {
namespace {

/// How long a user looks at a button that does not move before pressing again, ms.
constexpr DWORD kUntilPressedAgain = 1'000;

}  // namespace

std::chrono::duration<double, std::milli> pressButton(HWND button) {
  std::chrono::steady_clock::time_point pressed;
  bool again = false;
  actUntil(
      "a button to go down",
      [&] {
        if (std::exchange(again, true)) input::release();
        input::press(centreOf(rectOf(button)));
        pressed = std::chrono::steady_clock::now();
      },
      [&] { return (send(button, BM_GETSTATE) & BST_PUSHED) != 0; },
      {.most = 10, .after = kUntilPressedAgain});
  return std::chrono::steady_clock::now() - pressed;
}

void clickButton(HWND button) {
  pressButton(button);
  input::release();
}

}  // namespace support
