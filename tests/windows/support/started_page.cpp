#include "tests/windows/support/started_page.h"

#include <windows.h>

#include <cstring>

#include "app/process.h"
#include "app/state.h"
#include "tests/unit/support/temp_folder.h"

namespace wintest {
namespace {

std::filesystem::path record() {
  return std::filesystem::path(app::applicationFolder()) / u"started.txt";
}

std::u16string ownPath() {
  wchar_t path[MAX_PATH] = L"";
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  return {path, path + length};
}

}  // namespace

bool tookPage() {
  const std::wstring_view line = GetCommandLineW();
  if (!line.ends_with(L"help.htm") && line.find(L" https://") == std::wstring_view::npos)
    return false;
  // Under another name until it is complete.
  const auto draft = record().concat(".new");
  support::writeFile(draft, {reinterpret_cast<const char*>(line.data()), line.size() * 2});
  std::filesystem::rename(draft, record());
  return true;
}

void useAsBrowser() {
  std::filesystem::remove(record());
  user::BrowserPath = ownPath();
}

std::u16string startedCommandLine() {
  const std::string bytes = support::readFile(record());
  std::u16string line(bytes.size() / 2, u'\0');
  std::memcpy(line.data(), bytes.data(), bytes.size());
  return line;
}

}  // namespace wintest
