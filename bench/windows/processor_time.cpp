#include "bench/windows/processor_time.h"

#include <tlhelp32.h>

#include <cstdint>

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

}  // namespace bench
