#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "capture/nhw32/policy.h"
#include "capture/nhw32/reader.h"

namespace nhw32 {

/// Returns the reader for all windows: it chooses the kind of reader by the window's class
/// (readerKindFor) for each question and backs off from windows that keep timing out (Backoff) and
/// from places without a word (RestingQuestion), by the time that `clock` tells. The thread has to
/// be per-monitor DPI aware. In a header of its own, since the readers that it chooses from include
/// reader.h.
std::unique_ptr<WordReader> makeWindowReader(const Clock& clock = std::chrono::steady_clock::now);

/// What asking a window came to, for a report.
struct Diagnosis {
  std::u16string className;
  std::u16string realClassName;
  std::optional<ReaderKind> reader;  ///< nullopt: the window was not asked or does not answer
  bool isPassword = false;           ///< of controls that are read by messages
  Answer answer;
  std::chrono::microseconds time{0};  ///< that the answer took
};

/// Returns what is known of a window that is not asked: its classes.
Diagnosis describe(WindowId window);

/// Asks a question with a reader of its own: once, by UI Automation twice, of which the second
/// counts. The thread has to be per-monitor DPI aware. May take some seconds.
Diagnosis diagnose(const Question& question);

}  // namespace nhw32
