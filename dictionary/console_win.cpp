// The Windows half of console.cpp, and the only file of the builder that knows the Windows API.

#include <windows.h>

#include <psapi.h>

#include "dictionary/console.h"

namespace dictionary {

// The working set is the part of the process in physical memory, as ru_maxrss is elsewhere. The
// size of the structure says which version of it the caller was built with.
std::size_t peakMemory() {
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof(counters);
  const BOOL known = GetProcessMemoryInfo(GetCurrentProcess(), &counters, counters.cb);
  return known != FALSE ? counters.PeakWorkingSetSize : 0;
}

// Holds for the console, not for the process: a shell in the same console keeps it after kkbuild
// has ended, and shows its own output in UTF-8 as well. Redirected output is UTF-8 either way.
void useUtf8Output() { SetConsoleOutputCP(CP_UTF8); }

}  // namespace dictionary
