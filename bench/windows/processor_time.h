#pragma once

#include <windows.h>

namespace bench {

/// Processor time that the threads of a process have used up to now, kernel time included, in ms.
/// Threads that have ended are not counted, nor what Wine's server does for the process.
double processorTime(DWORD process);

}  // namespace bench
