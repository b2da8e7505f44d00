#pragma once

#include "capture/nhw32/reader.h"

namespace nhw32 {

/// Returns the word under the question's point in an edit control of any program, read by window
/// messages within TargetWindow::kQuestionTime. Password fields are refused. Errors are reported by
/// the outcome. For windows of ReaderKind::kEdit that have lines (hasLines).
Answer editWordAt(const Question& question);

/// The same for a rich edit control. Its messages take addresses of structures, which are therefore
/// written into memory allocated in the control's own process.
Answer richEditWordAt(const Question& question);

}  // namespace nhw32
