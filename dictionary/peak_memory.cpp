#include "dictionary/peak_memory.h"

#include <cstdint>

#ifdef _WIN32

namespace {

/// PROCESS_MEMORY_COUNTERS of the Windows API.
struct MemoryCounters {
  std::uint32_t size = sizeof(MemoryCounters);
  std::uint32_t pageFaults = 0;
  std::size_t peakWorkingSet = 0;
  std::size_t others[7] = {};
};

}  // namespace

// The two calls of the Windows API that this takes.
extern "C" __declspec(dllimport) void* __stdcall GetCurrentProcess();
extern "C" __declspec(dllimport) int __stdcall K32GetProcessMemoryInfo(void* process,
                                                                       MemoryCounters* counters,
                                                                       std::uint32_t size);

std::size_t dictionary::peakMemory() {
  MemoryCounters counters;
  const int known = K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, counters.size);
  return known != 0 ? counters.peakWorkingSet : 0;
}

#else

#include <sys/resource.h>

std::size_t dictionary::peakMemory() {
  constexpr std::size_t kUnit = 1024;  // Linux counts kibibytes
  rusage usage{};
  if (getrusage(RUSAGE_SELF, &usage) != 0) return 0;
  return static_cast<std::size_t>(usage.ru_maxrss) * kUnit;
}

#endif
