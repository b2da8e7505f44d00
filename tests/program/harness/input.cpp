#include "tests/program/harness/input.h"

#include <vector>

#include "tests/program/harness/wait.h"

namespace harness::input {
namespace {

void inject(std::vector<INPUT> events) {
  const auto count = static_cast<UINT>(events.size());
  if (SendInput(count, events.data(), sizeof(INPUT)) != count) {
    throw Failure("the system took no input");
  }
}

INPUT mouseEvent(DWORD flags, POINT place = {}) {
  INPUT event{};
  event.type = INPUT_MOUSE;
  event.mi.dwFlags = flags;
  event.mi.dx = place.x;
  event.mi.dy = place.y;
  return event;
}

INPUT keyEvent(WORD virtualKey, DWORD flags) {
  INPUT event{};
  event.type = INPUT_KEYBOARD;
  event.ki.wVk = virtualKey;
  event.ki.wScan = static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
  event.ki.dwFlags = flags;
  switch (virtualKey) {
    case VK_UP:
    case VK_DOWN:
    case VK_LEFT:
    case VK_RIGHT:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_INSERT:
    case VK_DELETE:
      event.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY;
      break;
    default:
      break;
  }
  return event;
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
  inject({mouseEvent(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, absolute(point))});
  waitFor("the pointer to arrive", [&] {
    POINT now{};
    GetCursorPos(&now);
    return now.x == point.x && now.y == point.y;
  });
}

void pressLeft() { inject({mouseEvent(MOUSEEVENTF_LEFTDOWN)}); }

void releaseLeft() { inject({mouseEvent(MOUSEEVENTF_LEFTUP)}); }

void click(POINT point) {
  moveTo(point);
  pressLeft();
  releaseLeft();
}

void doubleClick(POINT point) {
  click(point);
  pressLeft();
  releaseLeft();
}

void rightClick(POINT point) {
  moveTo(point);
  inject({mouseEvent(MOUSEEVENTF_RIGHTDOWN), mouseEvent(MOUSEEVENTF_RIGHTUP)});
}

void drag(POINT from, POINT to, int steps) {
  moveTo(from);
  pressLeft();
  // A hand takes a moment; programs that arm a drag by a timer need it.
  Sleep(60);
  for (int i = 1; i <= steps; ++i) {
    moveTo({from.x + ((to.x - from.x) * i / steps), from.y + ((to.y - from.y) * i / steps)});
    Sleep(10);
  }
  releaseLeft();
}

void key(WORD virtualKey, std::initializer_list<WORD> modifiers) {
  std::vector<INPUT> events;
  for (WORD modifier : modifiers) events.push_back(keyEvent(modifier, 0));
  events.push_back(keyEvent(virtualKey, 0));
  events.push_back(keyEvent(virtualKey, KEYEVENTF_KEYUP));
  for (auto modifier = std::rbegin(modifiers); modifier != std::rend(modifiers); ++modifier) {
    events.push_back(keyEvent(*modifier, KEYEVENTF_KEYUP));
  }
  inject(events);
}

void type(std::wstring_view text) {
  std::vector<INPUT> events;
  for (wchar_t unit : text) {
    INPUT event{};
    event.type = INPUT_KEYBOARD;
    event.ki.wScan = unit;
    event.ki.dwFlags = KEYEVENTF_UNICODE;
    events.push_back(event);
    event.ki.dwFlags |= KEYEVENTF_KEYUP;
    events.push_back(event);
  }
  inject(events);
}

}  // namespace harness::input
