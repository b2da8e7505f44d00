#include "app/process.h"

#include "app/state.h"
#include "forms/handles.h"
#include "forms/message_box.h"
#include "forms/system_error.h"

namespace app {

bool claimOnlyInstance() {
  // The mutex is kept, on purpose without an owner, until the process ends.
  static const bool first = [] {
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, L"Local\\Lexilo.Instance");
    const DWORD error = GetLastError();
    return mutex != nullptr && error != ERROR_ALREADY_EXISTS;
  }();
  return first;
}

void endProgram() { ExitProcess(0); }

std::u16string applicationFolder() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  while (length == path.size()) {
    path.resize(path.size() * 2);
    length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  }
  path.resize(length);
  const auto end = path.find_last_of(L'\\');
  return forms::fromWide(std::wstring_view(path).substr(0, end == std::wstring::npos ? 0 : end));
}

std::u16string connectionString(const std::u16string& folder) {
  return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + folder +
         u"\\kk.dat;Persist Security Info=False";
}

std::u16string browserPath(const std::u16string& systemDirectory) {
  return systemDirectory.substr(0, 1) + u":\\Program Files\\Internet Explorer\\IEXPLORE.EXE";
}

void openInBrowser(std::u16string_view page) {
  // Naming the program starts that file and no other, whatever lies at the parts of its path before
  // a blank. The command line then reaches the child as it stands: the child takes what comes
  // before the first unquoted blank for its own name, and the rest for the page.
  std::u16string commandLine = u'"' + user::BrowserPath + u"\" " + std::u16string(page);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(forms::wide(user::BrowserPath),
                      reinterpret_cast<wchar_t*>(commandLine.data()), nullptr, nullptr, FALSE, 0,
                      nullptr, nullptr, &startup, &process)) {
    forms::throwLastError();
  }
  const forms::OwnedKernelObject processHandle(process.hProcess);
  const forms::OwnedKernelObject threadHandle(process.hThread);
}

void showHelp() {
  try {
    openInBrowser(applicationFolder() + u"\\help\\help.htm");
  } catch (const std::exception&) {
    forms::showMessage(u"未找到帮助文件！", forms::MessageIcon::critical);
  }
}

}  // namespace app
