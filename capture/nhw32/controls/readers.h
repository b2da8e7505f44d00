#pragma once

#include <optional>

#include "capture/nhw32/controls/target_window.h"
#include "capture/nhw32/reader.h"

/// Reading edit and rich edit controls of any program by window messages. For the worker thread,
/// which must be per-monitor DPI aware.
namespace nhw32 {

/// Returns whether a window supports EM_GETLINECOUNT as text controls do; a window whose class name
/// merely resembles one does not. Throws NoAnswer after at most TargetWindow::kMessageTime.
bool hasLines(WindowId window);

/// Returns the word under the question's point in an edit control. Returns nullopt if there is no
/// word, the window is hidden, a password field or does not contain the point, and if it was moved,
/// resized or hidden meanwhile. The word's box is clipped to the client area. Throws NoAnswer after
/// at most TargetWindow::kQuestionTime. For windows of ReaderKind::kEdit that have lines.
std::optional<Word> editWordAt(const Question& question);

/// The same for a rich edit control (ReaderKind::kRichEdit). Its messages take addresses of
/// structures, which are therefore written into `memory`, in the control's own process; it stays
/// there for the next question.
std::optional<Word> richEditWordAt(const Question& question, KeptMemory& memory);

}  // namespace nhw32
