#pragma once

#include <memory>

#include "capture/nhw32/reader.h"

namespace nhw32 {

/// Returns the reader for all windows: it chooses the kind of reader by the window's class
/// (readerKindFor) for each question and backs off from windows that keep timing out (Backoff). To
/// be made, used and destroyed by one thread, which has to be per-monitor DPI aware.
std::unique_ptr<WordReader> makeWindowReader();

}  // namespace nhw32
