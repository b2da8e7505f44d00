#pragma once

#include <string_view>

namespace nhw32 {

/// The ways to ask a window for its words.
enum class Way { edit, richEdit, automation };

/// The way for windows of a class, by what its name contains (case matters): rich edit controls,
/// edit controls and those known under another name, UI Automation for all others. Whether one
/// that only sounds like an edit control is one, the way itself finds out.
Way wayFor(std::u16string_view className);

}  // namespace nhw32
