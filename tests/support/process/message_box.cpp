#include "tests/support/process/message_box.h"

#include <algorithm>
#include <array>

#include "tests/support/process/find.h"
#include "tests/support/process/input.h"
#include "tests/support/process/screen.h"

namespace support {
namespace {

/// The control id of a message box's text, as the system numbers it.
constexpr int kTextId = 65535;

/// The picture beside the text, if there is one.
HWND iconOf(HWND box) {
  for (HWND child : childrenOf(box, L"Static")) {
    if ((GetWindowLongPtrW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) return child;
  }
  return nullptr;
}

bool showsErrorIcon(HWND box) {
  HWND icon = iconOf(box);
  if (icon == nullptr || IsWindowVisible(icon) == FALSE) return false;
  const RECT rect = clientRectOf(icon);
  const SIZE size{GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
  const RECT pictured{rect.left, rect.top, rect.left + size.cx, rect.top + size.cy};
  const std::vector<COLORREF> error = iconPixels(IDI_ERROR, size);
  const std::array all{error, iconPixels(IDI_WARNING, size), iconPixels(IDI_INFORMATION, size),
                       iconPixels(IDI_QUESTION, size)};
  // The box may be up before it is painted.
  std::vector<COLORREF> seen;
  const bool painted = eventually(
      [&] {
        seen = screenPixels(pictured);
        return std::ranges::find(all, seen) != all.end();
      },
      kDefaultTimeout);
  return painted && seen == error;
}

std::vector<HWND> buttonsOf(HWND box) {
  std::vector<HWND> buttons = childrenOf(box, L"Button");
  std::erase_if(buttons, [](HWND button) { return IsWindowVisible(button) == FALSE; });
  std::ranges::sort(buttons, {}, [](HWND button) { return rectOf(button).left; });
  return buttons;
}

std::vector<std::wstring> captions(HWND box) {
  std::vector<std::wstring> texts;
  for (HWND button : buttonsOf(box)) texts.push_back(textOf(button));
  return texts;
}

}  // namespace

void ShownMessage::answer() const {
  // The window manager may still be about to put it in its place.
  waitFor("the message box to close", [&] {
    const std::vector<HWND> toPress = buttonsOf(window);
    if (IsWindow(window) == FALSE || toPress.empty()) return true;
    input::click(centreOf(rectOf(toPress.front())));
    return eventually([&] { return IsWindow(window) == FALSE; }, kReactionTime);
  });
}

std::optional<ShownMessage> findMessageBox(const Process& program) {
  HWND window = findWindow({.process = program.id(), .className = L"#32770", .title = {}});
  if (window == nullptr) return std::nullopt;
  return ShownMessage{window, textOf(window), textOf(GetDlgItem(window, kTextId)),
                      showsErrorIcon(window), captions(window)};
}

ShownMessage waitForMessageBox(const Process& program, DWORD milliseconds) {
  return *waitFor(
      "a message box", [&] { return findMessageBox(program); }, milliseconds);
}

}  // namespace support
