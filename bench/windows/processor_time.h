#pragma once

#include <windows.h>

namespace bench {

/// Processor time that the threads of a process have used up to now, kernel time included, in ms.
/// Threads that have ended are not counted, nor what Wine's server does for the process.
double processorTime(DWORD process);

/// Processor time of Wine's server, which does a part of Windows' work for all programs, in ms;
/// LEXILO_WINE_SERVER names its process. 0 where that is not set.
double serverTime();

}  // namespace bench
