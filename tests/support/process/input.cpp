#include "tests/support/process/input.h"

#include <string>
#include <vector>

#include "tests/support/process/process.h"

namespace support::input {
namespace {

void inject(std::vector<INPUT> events) {
  const auto count = static_cast<UINT>(events.size());
  if (SendInput(count, events.data(), sizeof(INPUT)) != count) {
    throw Failure("the system took no input");
  }
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

/// One run of the tool that moves the mouse of the display.
void useMouse(const std::string& commands) { runBelow("xdotool " + commands); }

std::string place(POINT point) {
  return " mousemove " + std::to_string(point.x) + " " + std::to_string(point.y);
}

/// Waits until the system knows of a button that it is down, or is up. The display tells it so by
/// the program below the pointer; of one that does not answer the system hears nothing.
void awaitButton(int button, bool down) {
  constexpr DWORD kLongEnough = 500;
  never([=] { return (GetAsyncKeyState(button) < 0) == down; }, kLongEnough);
}

/// Clicks so that keys that are pressed afterwards come after it.
void pressAndLetGo(POINT point, const std::string& number, int button) {
  useMouse(place(point) + " sleep 0.02 mousedown " + number);
  awaitButton(button, true);
  useMouse("mouseup " + number);
  awaitButton(button, false);
}

}  // namespace

void moveTo(POINT point) {
  useMouse(place(point));
  waitFor("the pointer to arrive", [&] {
    POINT now{};
    GetCursorPos(&now);
    return now.x == point.x && now.y == point.y;
  });
}

void click(POINT point) { pressAndLetGo(point, "1", VK_LBUTTON); }

void press(POINT point) { useMouse(place(point) + " mousedown 1"); }

void release() { useMouse("mouseup 1"); }

void doubleClick(POINT point) { useMouse(place(point) + " click --repeat 2 --delay 60 1"); }

void rightClick(POINT point) { pressAndLetGo(point, "3", VK_RBUTTON); }

void drag(POINT from, POINT to, int steps) {
  // A hand takes its time; programs that arm a drag by a timer need it.
  std::string commands = place(from) + " mousedown 1 sleep 0.06";
  for (int i = 1; i <= steps; ++i) {
    commands +=
        place({from.x + ((to.x - from.x) * i / steps), from.y + ((to.y - from.y) * i / steps)});
    commands += " sleep 0.01";
  }
  useMouse(commands + " sleep 0.06 mouseup 1");
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

void pressOnDisplay(std::initializer_list<const char*> keys) {
  std::string commands = "key --delay 60";
  for (const char* key : keys) commands.append(" ").append(key);
  runBelow("xdotool " + commands);
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

}  // namespace support::input
