#include "tests/support/process/meaning_popup.h"

#include "tests/support/process/text.h"

namespace support {

HWND MeaningPopup::window() const {
  return findWindow(
      {.process = lexilo_.id(), .className = L"Lexilo.frmScreenWordMeaning", .title = {}});
}

std::wstring MeaningPopup::text() const {
  HWND popup = window();
  if (popup == nullptr) return {};
  HWND box = GetWindow(popup, GW_CHILD);
  wchar_t text[8192] = L"";
  DWORD_PTR length = 0;
  // It may close at any moment.
  SendMessageTimeoutW(box, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text),
                      SMTO_ABORTIFHUNG, kDefaultTimeout, &length);
  return {text, length};
}

std::wstring MeaningPopup::headword() const {
  const std::wstring shown = text();
  return shown.substr(0, shown.find(L'\r'));
}

std::wstring MeaningPopup::waitFor(const std::wstring& headword) const {
  return support::waitFor("the popup to show " + utf8(headword),
                          [&]() -> std::optional<std::wstring> {
                            std::wstring shown = text();
                            if (shown.substr(0, shown.find(L'\r')) != headword) return std::nullopt;
                            return shown;
                          })
      .value();
}

void MeaningPopup::waitUntilClosed() const {
  support::waitFor("the popup to close", [&] { return !isUp(); });
}

bool MeaningPopup::staysAway(DWORD milliseconds) const {
  return never([&] { return isUp(); }, milliseconds);
}

}  // namespace support
