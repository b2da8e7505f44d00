#include "tests/program/harness/message_box.h"

#include <algorithm>

#include "tests/program/harness/find.h"
#include "tests/program/harness/input.h"
#include "tests/program/harness/screen.h"

namespace harness {
namespace {

/// Control ids of a message box, as the system numbers them.
constexpr int kIconId = 20;
constexpr int kTextId = 65535;

bool showsErrorIcon(HWND box) {
  HWND icon = GetDlgItem(box, kIconId);
  if (icon == nullptr || IsWindowVisible(icon) == FALSE) return false;
  const RECT rect = clientRectOf(icon);
  const SIZE size{GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
  const RECT pictured{rect.left, rect.top, rect.left + size.cx, rect.top + size.cy};
  const std::vector<COLORREF> expected = iconPixels(IDI_ERROR, size);
  // The box may be up before it is painted.
  for (int tries = 0; tries < 100; ++tries) {
    if (screenPixels(pictured) == expected) return true;
    Sleep(10);
  }
  return false;
}

std::vector<std::wstring> captions(HWND box) {
  std::vector<HWND> buttons = childrenOf(box, L"Button");
  std::erase_if(buttons, [](HWND button) { return IsWindowVisible(button) == FALSE; });
  std::ranges::sort(buttons, {}, [](HWND button) { return rectOf(button).left; });
  std::vector<std::wstring> texts;
  for (HWND button : buttons) texts.push_back(textOf(button));
  return texts;
}

}  // namespace

void MessageBox::answer() const {
  waitFor("the message box to come to the front", [&] { return GetForegroundWindow() == window; });
  input::key(VK_RETURN);
  waitFor("the message box to close", [&] { return IsWindow(window) == FALSE; });
}

std::optional<MessageBox> findMessageBox(const Process& program) {
  HWND window = findWindow({.process = program.id(), .className = L"#32770", .title = {}});
  if (window == nullptr) return std::nullopt;
  return MessageBox{window, textOf(window), textOf(GetDlgItem(window, kTextId)),
                    showsErrorIcon(window), captions(window)};
}

MessageBox waitForMessageBox(const Process& program, DWORD milliseconds) {
  return *waitFor(
      "a message box", [&] { return findMessageBox(program); }, milliseconds);
}

}  // namespace harness
