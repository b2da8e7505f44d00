#pragma once

#include <memory>

#include "capture/nhw32/reader.h"

namespace nhw32 {

/// Returns the reader for all windows: it chooses the kind of reader by the window's class
/// (readerKindFor) for each question and backs off from windows that keep timing out (Backoff).
/// The thread has to be per-monitor DPI aware. In a header of its own, since the readers that it
/// chooses from include reader.h.
std::unique_ptr<WordReader> makeWindowReader();

}  // namespace nhw32
