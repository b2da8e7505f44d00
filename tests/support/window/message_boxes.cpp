#include "tests/support/window/message_boxes.h"

#include "forms/widget.h"

namespace support {
namespace {

/// Number of a message box's text, as the system gives it.
constexpr int kTextId = 65535;

constexpr wchar_t kDialogClass[] = L"#32770";

BOOL CALLBACK findBox(HWND window, LPARAM found) {
  wchar_t name[16] = L"";
  GetClassNameW(window, name, 16);
  if (lstrcmpW(name, kDialogClass) != 0 || !IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

Icon iconOf(HWND box) {
  HICON icon = nullptr;
  for (HWND part = nullptr; (part = FindWindowExW(box, part, L"Static", nullptr)) != nullptr;) {
    if ((GetWindowLongPtrW(part, GWL_STYLE) & SS_TYPEMASK) != SS_ICON) continue;
    icon = reinterpret_cast<HICON>(SendMessageW(part, STM_GETICON, 0, 0));
  }
  if (icon == nullptr) return Icon::kNone;
  // The system shares its own icons: one handle each.
  if (icon == LoadIconW(nullptr, IDI_ERROR)) return Icon::kError;
  if (icon == LoadIconW(nullptr, IDI_WARNING)) return Icon::kWarning;
  if (icon == LoadIconW(nullptr, IDI_INFORMATION)) return Icon::kInformation;
  return Icon::kOther;
}

}  // namespace

MessageBoxes::MessageBoxes() : watcher_([this] { return look(); }) {}

HWND MessageBoxes::current() {
  HWND found = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), findBox, reinterpret_cast<LPARAM>(&found));
  return found;
}

bool MessageBoxes::look() {
  HWND box = current();
  if (box == nullptr || box == answered_) return false;
  answered_ = box;
  seen_.push_back({forms::windowText(box), forms::windowText(GetDlgItem(box, kTextId)), iconOf(box),
                   GetWindow(box, GW_OWNER)});
  if (const auto act = std::exchange(whileUp_, {})) act(box);
  if (std::exchange(leaveNextAlone_, false)) return false;
  SendMessageW(FindWindowExW(box, nullptr, L"Button", nullptr), BM_CLICK, 0, 0);
  return false;
}

}  // namespace support
