#include "tests/support/window/injected_input.h"

#include <gtest/gtest.h>

namespace support::injected {
namespace {

void inject(DWORD flags, POINT place = {}) {
  INPUT event{};
  event.type = INPUT_MOUSE;
  event.mi.dwFlags = flags;
  event.mi.dx = place.x;
  event.mi.dy = place.y;
  EXPECT_EQ(SendInput(1, &event, sizeof event), 1U);
}

/// A pixel in the measure of absolute moves, where the screen is 65,536 wide and high: the middle
/// of the pixel, so that rounding cannot lead to its neighbour.
POINT absolute(POINT point) {
  const int width = GetSystemMetrics(SM_CXSCREEN);
  const int height = GetSystemMetrics(SM_CYSCREEN);
  return {((point.x * 65'536) + 32'768) / width, ((point.y * 65'536) + 32'768) / height};
}

}  // namespace

void moveTo(POINT point) {
  inject(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, absolute(point));
  POINT now{};
  GetCursorPos(&now);
  EXPECT_EQ(now.x, point.x);
  EXPECT_EQ(now.y, point.y);
}

void pressLeft() { inject(MOUSEEVENTF_LEFTDOWN); }

void releaseLeft() { inject(MOUSEEVENTF_LEFTUP); }

void pressRight() { inject(MOUSEEVENTF_RIGHTDOWN); }

void releaseRight() { inject(MOUSEEVENTF_RIGHTUP); }

void pressMiddle() { inject(MOUSEEVENTF_MIDDLEDOWN); }

void releaseMiddle() { inject(MOUSEEVENTF_MIDDLEUP); }

void click(POINT point) {
  moveTo(point);
  pressLeft();
  releaseLeft();
}

void rightClick(POINT point) {
  moveTo(point);
  pressRight();
  releaseRight();
}

}  // namespace support::injected
