#include "tests/support/process/meaning_popup.h"

#include "tests/support/process/text.h"

namespace support {
namespace {

/// The service leaves a program alone for 5 s that a busy machine kept from answering three times
/// in a row, and then for 10 s.
constexpr DWORD kBackedOff = 15'000;

}  // namespace

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
  const auto look = [&]() -> std::optional<std::wstring> {
    std::wstring shown = text();
    if (shown.substr(0, shown.find(L'\r')) != headword) return std::nullopt;
    return shown;
  };
  return support::waitFor("the popup to show " + utf8(headword), look, kDefaultTimeout + kBackedOff)
      .value();
}

void MeaningPopup::waitUntilClosed() const {
  support::waitFor("the popup to close", [&] { return !isUp(); });
}

bool MeaningPopup::staysAway(DWORD milliseconds) const {
  return never([&] { return isUp(); }, milliseconds);
}

}  // namespace support
