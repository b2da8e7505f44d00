#include "bench/windows/processor_time.h"

#include <tlhelp32.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "win32/handles.h"

namespace bench {
namespace {

double milliseconds(const FILETIME& time) {
  constexpr double kPerMillisecond = 10'000;  // steps of 100 ns
  const auto steps = static_cast<std::uint64_t>(time.dwHighDateTime) << 32U | time.dwLowDateTime;
  return static_cast<double>(steps) / kPerMillisecond;
}

double threadTime(DWORD id) {
  const win32::OwnedKernelObject thread(OpenThread(THREAD_QUERY_INFORMATION, FALSE, id));
  FILETIME created{};
  FILETIME ended{};
  FILETIME kernel{};
  FILETIME user{};
  if (GetThreadTimes(thread.get(), &created, &ended, &kernel, &user) == FALSE) return 0;
  return milliseconds(kernel) + milliseconds(user);
}

}  // namespace

// Thread by thread: Wine returns process times of the calling process only.
double processorTime(DWORD process) {
  const win32::OwnedKernelObject snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
  THREADENTRY32 entry{};
  entry.dwSize = sizeof entry;
  double time = 0;
  for (BOOL more = Thread32First(snapshot.get(), &entry); more != FALSE;
       more = Thread32Next(snapshot.get(), &entry)) {
    if (entry.th32OwnerProcessID == process) time += threadTime(entry.th32ThreadID);
  }
  return time;
}

// Fields 14 and 15 of proc(5)'s stat, behind the name in brackets, in hundredths of a second.
double serverTime() {
  const char* const id = std::getenv("LEXILO_WINE_SERVER");
  std::ifstream file(id == nullptr ? "" : "Z:\\proc\\" + std::string(id) + "\\stat");
  std::string text;
  if (!std::getline(file, text)) return 0;
  std::istringstream fields(text.substr(text.rfind(')') + 1));
  std::string skipped;
  for (int field = 3; field < 14; ++field) fields >> skipped;
  double user = 0;
  double kernel = 0;
  fields >> user >> kernel;
  return 10 * (user + kernel);
}

}  // namespace bench
