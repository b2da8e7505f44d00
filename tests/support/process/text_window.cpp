#include "tests/support/process/text_window.h"

#include "tests/support/process/find.h"

namespace support {
namespace {

/// Has the window's thread wait until the event in its wParam is set, and sets the other one.
constexpr UINT kKeepBusy = WM_APP + 1;

std::optional<LRESULT> handle(HWND /*window*/, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != kKeepBusy) return std::nullopt;
  SetEvent(reinterpret_cast<HANDLE>(lParam));
  WaitForSingleObject(reinterpret_cast<HANDLE>(wParam), 60'000);
  return 0;
}

}  // namespace

const wchar_t* furtherRichEdit() {
  static constexpr const wchar_t* kName = L"WindowsForms10.RICHEDIT50W.app.0.141b42a_r6_ad1";
  LoadLibraryW(L"riched20.dll");
  WNDCLASSEXW control{};
  control.cbSize = sizeof control;
  if (GetClassInfoExW(nullptr, L"RichEdit20W", &control) == FALSE) {
    throw Failure("there are no rich edit controls");
  }
  control.lpszClassName = kName;
  control.hInstance = GetModuleHandleW(nullptr);
  control.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
  RegisterClassExW(&control);
  return kName;
}

TextWindow::TextWindow(const wchar_t* className, DWORD style, const RECT& place,
                       const std::wstring& text)
    : window_({.controlClass = className,
               .controlStyle = style,
               .place = place,
               .prepare = [text](HWND control) { SetWindowTextW(control, text.c_str()); },
               .handle = handle}) {
  waitFor("the text to be seen", [&] { return WindowFromPoint(characterPoint(0)) == control(); });
}

POINT TextWindow::characterPoint(int index) const {
  DWORD_PTR place = 0;
  SendMessageTimeoutW(control(), EM_POSFROMCHAR, static_cast<WPARAM>(index), 0, SMTO_ABORTIFHUNG,
                      kDefaultTimeout, &place);
  POINT point{static_cast<SHORT>(LOWORD(place)) + 4, static_cast<SHORT>(HIWORD(place)) + 6};
  ClientToScreen(control(), &point);
  return point;
}

TextWindow::Busy::Busy(const TextWindow& window)
    : window_(window.window()), free_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  HANDLE reached = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  PostMessageW(window.window(), kKeepBusy, reinterpret_cast<WPARAM>(free_),
               reinterpret_cast<LPARAM>(reached));
  WaitForSingleObject(reached, kDefaultTimeout);
  CloseHandle(reached);
}

TextWindow::Busy::~Busy() {
  SetEvent(free_);
  // Answered once the thread waits no more.
  SendMessageW(window_, WM_NULL, 0, 0);
  CloseHandle(free_);
}

}  // namespace support
