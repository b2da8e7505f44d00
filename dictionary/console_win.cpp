#include <windows.h>

#include <psapi.h>

#include "dictionary/console.h"

namespace dictionary {

std::size_t peakMemory() {
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof(counters);
  const BOOL known = GetProcessMemoryInfo(GetCurrentProcess(), &counters, counters.cb);
  return known != FALSE ? counters.PeakWorkingSetSize : 0;
}

void useUtf8Output() { SetConsoleOutputCP(CP_UTF8); }

}  // namespace dictionary
