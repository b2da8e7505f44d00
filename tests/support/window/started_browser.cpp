#include "tests/support/window/started_browser.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <shellapi.h>
#include <shlwapi.h>

#include <memory>

#include "app/state.h"
#include "tests/support/data/temp_folder.h"
#include "tests/support/wait.h"
#include "win32/program.h"

namespace support {
namespace {

namespace fs = std::filesystem;

std::u16string ownPath() {
  wchar_t path[MAX_PATH] = L"";
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  return {path, path + length};
}

/// The folder in which the browser and its record are.
fs::path browserFolder() { return fs::path(win32::applicationFolder()) / u"the browser"; }

/// A browser writes its record beside itself; all share one.
fs::path record() { return fs::path(win32::applicationFolder()) / u"started.txt"; }

std::wstring firstArgument() {
  struct Freeing {
    void operator()(wchar_t** arguments) const { LocalFree(arguments); }
  };
  int count = 0;
  const std::unique_ptr<wchar_t*, Freeing> arguments(CommandLineToArgvW(GetCommandLineW(), &count));
  return count > 0 ? arguments.get()[0] : L"";
}

wchar_t shownAs() {
  STARTUPINFOW startup{};
  GetStartupInfoW(&startup);
  return (startup.dwFlags & STARTF_USESHOWWINDOW) != 0 ? startup.wShowWindow : 0xFFFF;
}

}  // namespace

bool recordedPage() {
  const std::wstring_view line = GetCommandLineW();
  if (!line.ends_with(L"help.htm") && line.find(L" https://") == std::wstring_view::npos)
    return false;
  const std::u16string program = ownPath();
  std::wstring told(1, shownAs());
  told.append(program.begin(), program.end()).append(1, L'\n');
  told.append(firstArgument()).append(1, L'\n');
  told.append(PathGetArgsW(GetCommandLineW()));
  // The browser lies a folder deeper than whoever was started in its stead.
  fs::path folder = fs::path(program).parent_path();
  if (folder.filename() == browserFolder().filename()) folder = folder.parent_path();
  // Under another name until it is complete.
  const fs::path draft = folder / u"started.new";
  writeFile(draft, {reinterpret_cast<const char*>(told.data()), told.size() * 2});
  fs::rename(draft, folder / record().filename());
  return true;
}

void useAsBrowser() {
  fs::remove(record());
  fs::create_directories(browserFolder());
  const fs::path browser = browserFolder() / u"browser.exe";
  for (const fs::path& copy : {browser, fs::path(win32::applicationFolder()) / u"the.exe"}) {
    // One of this very program cannot be removed while it runs, and need not be.
    std::error_code ours;
    fs::remove(copy, ours);
    if (!ours) fs::create_hard_link(fs::path(ownPath()), copy);
  }
  user::BrowserPath = browser.u16string();
}

StartedBrowser waitForBrowser() {
  std::string bytes;
  EXPECT_TRUE(eventually([&] { return !(bytes = readFile(record())).empty(); }));
  if (bytes.empty()) return {};
  const std::u16string told(reinterpret_cast<const char16_t*>(bytes.data()), bytes.size() / 2);
  const auto program = told.find(u'\n');
  const auto name = told.find(u'\n', program + 1);
  return {told.substr(1, program - 1), told.substr(program + 1, name - program - 1),
          told.substr(name + 1), static_cast<std::int16_t>(told.front())};
}

}  // namespace support
