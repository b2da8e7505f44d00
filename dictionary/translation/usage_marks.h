#pragma once

#include <string_view>

/// Marks of usage, which the source writes as notes: "[美俚]", "<古>". The functions are pure.
namespace dictionary {

/// Returns whether one of the notes in `notes` marks slang, dialect, or rare, obsolete or poetic
/// use. Text outside brackets does not count.
bool marksSlang(std::u16string_view notes);

}  // namespace dictionary
