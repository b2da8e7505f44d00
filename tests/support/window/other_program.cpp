#include "tests/support/window/other_program.h"

#include <gtest/gtest.h>

#include "tests/support/wait.h"

namespace support {
namespace {

/// The window's focus is its text box's.
std::optional<LRESULT> handle(HWND window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) {
  if (message != WM_SETFOCUS) return std::nullopt;
  SetFocus(GetWindow(window, GW_CHILD));
  return 0;
}

}  // namespace

OtherProgram::OtherProgram()
    : window_({.controlStyle = ES_MULTILINE,
               .place = {40, 560, 440, 860},
               .title = L"Other program",
               .style = WS_OVERLAPPEDWINDOW,
               .extendedStyle = 0,
               .handle = handle}) {}

OtherProgram::~OtherProgram() {
  window_.close();
  // Its thread may wait for an answer from ours while it goes.
  eventually([this] { return IsWindow(window()) == FALSE; });
}

std::u16string OtherProgram::text() const {
  wchar_t text[1024] = L"";
  const auto length = SendMessageW(edit(), WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
  return {text, text + length};
}

void OtherProgram::activate() const {
  const auto active = [this] {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window(), nullptr), &info);
    return isForeground() && info.hwndFocus == edit();
  };
  constexpr DWORD kLasting = 100;
  bringToFront(window(), active, kLasting);
}

}  // namespace support
