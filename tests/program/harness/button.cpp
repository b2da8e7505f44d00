#include "tests/program/harness/button.h"

#include "tests/program/harness/find.h"
#include "tests/program/harness/input.h"

namespace harness {
namespace {

/// How long a user looks at a button that does not move before pressing again, ms.
constexpr DWORD kUntilPressedAgain = 1'000;

}  // namespace

std::chrono::duration<double, std::milli> pressButton(HWND button) {
  std::chrono::steady_clock::time_point pressed;
  waitFor("a button to go down", [&] {
    input::press(centreOf(rectOf(button)));
    pressed = std::chrono::steady_clock::now();
    const bool lost = neverWithin(kUntilPressedAgain,
                                  [&] { return (send(button, BM_GETSTATE) & BST_PUSHED) != 0; });
    if (lost) {
      input::release();
      tellOnceMore("a button to go down");
    }
    return !lost;
  });
  return std::chrono::steady_clock::now() - pressed;
}

void clickButton(HWND button) {
  pressButton(button);
  input::release();
}

}  // namespace harness
