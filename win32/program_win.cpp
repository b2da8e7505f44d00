#include "win32/program.h"

#include "win32/handles.h"

namespace win32 {

bool claimOnlyInstance(const wchar_t* name) {
  // Deliberate: the mutex has no owner and is never closed, so that it lasts as long as the
  // process.
  static const bool first = [name] {
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, name);
    const DWORD error = GetLastError();
    return mutex != nullptr && error != ERROR_ALREADY_EXISTS;
  }();
  return first;
}

// Not ExitProcess, which ends the other threads wherever they are and then runs the entry points of
// all libraries: one that needs a lock of those threads may deadlock (its remarks). Nothing is left
// to be written. TerminateProcess returns before the process has ended.
void endProgram() {
  if (TerminateProcess(GetCurrentProcess(), 0) != FALSE) Sleep(INFINITE);
  ExitProcess(0);
}

std::u16string applicationFolder() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  while (length == path.size()) {
    path.resize(path.size() * 2);
    length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  }
  path.resize(length);
  const auto end = path.find_last_of(L'\\');
  return fromWide(std::wstring_view(path).substr(0, end == std::wstring::npos ? 0 : end));
}

std::u16string programOf(HWND window) {
  // The longest path, its NUL included ("Maximum path length limitation").
  constexpr std::size_t kLongestPath = 32'768;
  DWORD id = 0;
  GetWindowThreadProcessId(window, &id);
  const OwnedKernelObject process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
  std::wstring path(kLongestPath, L'\0');
  auto size = static_cast<DWORD>(path.size());
  if (!process || QueryFullProcessImageNameW(process.get(), 0, path.data(), &size) == FALSE) {
    return {};
  }
  path.resize(size);
  return fromWide(std::wstring_view(path).substr(path.find_last_of(L'\\') + 1));
}

void startProgram(const std::u16string& path, std::u16string_view arguments) {
  // Without the first argument CreateProcess would try the parts of an unquoted path before each
  // blank. The child gets the command line unchanged: up to the first unquoted blank it is taken
  // for the program's name, the rest for its arguments.
  std::u16string commandLine = u'"' + path + u"\" " + std::u16string(arguments);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(wide(path), reinterpret_cast<wchar_t*>(commandLine.data()), nullptr, nullptr,
                      FALSE, 0, nullptr, nullptr, &startup, &process)) {
    throwLastError();
  }
  const OwnedKernelObject processHandle(process.hProcess);
  const OwnedKernelObject threadHandle(process.hThread);
}

}  // namespace win32
