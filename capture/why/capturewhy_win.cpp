#include <algorithm>
#include <cwchar>

#include "capture/nhw32/router.h"
#include "capture/why/report.h"
#include "settings/settings_file.h"
#include "text/utf.h"
#include "win32/program.h"
#include "win32/win32.h"

// capturewhy.exe: tells why the popup does or does not name the word under the pointer. It asks the
// window as Lexilo does, whether Lexilo runs or not, and only if Lexilo would: some programs change
// when they are asked by UI Automation.

namespace {

constexpr const wchar_t* kUsage =
    L"Tells why Lexilo's popup does or does not name the word under the pointer.\n"
    L"\n"
    L"  capturewhy [SECONDS]\n"
    L"\n"
    L"Waits 3 seconds, or SECONDS (0 to 60), in which the pointer is put on the word. Then it\n"
    L"prints which window is there, whether Lexilo probes it, how its text is read and what came\n"
    L"back. Texts of password fields are not read.\n";

constexpr int kDefaultWait = 3;
constexpr int kMaxWait = 60;

/// Writes to the standard output: to a console in UTF-16, to a file or a pipe in UTF-8.
void print(std::u16string_view text) {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  DWORD written = 0;
  if (GetConsoleMode(output, &mode) != FALSE) {
    WriteConsoleW(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    return;
  }
  const std::string bytes = text::toUtf8(text);
  WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

capture::WhyFindings findingsAt(POINT point) {
  const HWND window = WindowFromPoint(point);
  const nhw32::Question question{reinterpret_cast<nhw32::WindowId>(window),
                                 {static_cast<int>(point.x), static_cast<int>(point.y)}};
  capture::WhyFindings findings{.point = question.point,
                                .program = win32::programOf(window),
                                .furtherWindows = user::furtherWindows(),
                                .diagnosis = nhw32::describe(question.window)};
  if (capture::isAsked(findings)) findings.diagnosis = nhw32::diagnose(question);
  return findings;
}

void waitForPointer(int seconds) {
  print(u"Put the pointer on the word, and leave it there.");
  for (int left = seconds; left > 0; --left) {
    print(u" " + win32::fromWide(std::to_wstring(left)));
    Sleep(1000);
  }
  print(u"\n\n");
}

/// Keeps a console open that was opened for this program alone, by a double click.
void keepConsole() {
  DWORD process = 0;
  DWORD mode = 0;
  const bool isOwn = GetConsoleProcessList(&process, 1) == 1 &&
                     GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) != FALSE;
  if (!isOwn) return;
  print(u"\nPress Enter to close this window.\n");
  wchar_t key = 0;
  DWORD read = 0;
  ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), &key, 1, &read, nullptr);
}

/// Returns the seconds that a command line asks for, -1 for one that cannot be understood.
int secondsOf(int count, wchar_t** arguments) {
  if (count == 1) return kDefaultWait;
  wchar_t* end = nullptr;
  const long seconds = std::wcstol(arguments[1], &end, 10);
  const bool isNumber = end != arguments[1] && *end == L'\0';
  return count == 2 && isNumber && seconds >= 0 && seconds <= kMaxWait ? static_cast<int>(seconds)
                                                                       : -1;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const int seconds = secondsOf(count, arguments);
  if (seconds < 0) {
    print(win32::fromWide(kUsage));
    return 2;
  }
  // As Lexilo's worker: all coordinates are physical pixels.
  SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  waitForPointer(seconds);
  POINT point{};
  GetCursorPos(&point);
  print(capture::whyReport(findingsAt(point)));
  keepConsole();
  return 0;
}
