#include "tests/windows/support/started_page.h"

#include <windows.h>

#include <cstring>

#include "app/process.h"
#include "app/state.h"
#include "tests/unit/support/temp_folder.h"

namespace wintest {
namespace {

constexpr wchar_t kUnasked = 0xFFFF;

std::filesystem::path record() {
  return std::filesystem::path(app::applicationFolder()) / u"started.txt";
}

std::u16string ownPath() {
  wchar_t path[MAX_PATH] = L"";
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  return {path, path + length};
}

/// How this program was asked to show its window; kUnasked where it may choose.
wchar_t shownAs() {
  STARTUPINFOW startup{};
  GetStartupInfoW(&startup);
  return (startup.dwFlags & STARTF_USESHOWWINDOW) != 0 ? startup.wShowWindow : kUnasked;
}

/// What is on record; "" where nothing is.
std::u16string recorded() {
  const std::string bytes = support::readFile(record());
  std::u16string told(bytes.size() / 2, u'\0');
  std::memcpy(told.data(), bytes.data(), told.size() * 2);
  return told;
}

}  // namespace

bool tookPage() {
  const std::wstring_view line = GetCommandLineW();
  if (!line.ends_with(L"help.htm") && line.find(L" https://") == std::wstring_view::npos)
    return false;
  std::wstring told(1, shownAs());
  told += line;
  // Under another name until it is complete.
  const auto draft = record().concat(".new");
  support::writeFile(draft, {reinterpret_cast<const char*>(told.data()), told.size() * 2});
  std::filesystem::rename(draft, record());
  return true;
}

void useAsBrowser() {
  std::filesystem::remove(record());
  user::BrowserPath = ownPath();
}

std::u16string startedCommandLine() {
  const std::u16string told = recorded();
  return told.empty() ? told : told.substr(1);
}

int startedShow() {
  const std::u16string told = recorded();
  return told.empty() ? kUnasked : told.front();
}

}  // namespace wintest
