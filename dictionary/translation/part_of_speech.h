#pragma once

#include <cstddef>
#include <string_view>

namespace dictionary {

/// Length of the part-of-speech marks at the beginning of `text` ("n.", "vt. & vi.", "n " before
/// Chinese text), including the blanks after them; 0 if there are none.
std::size_t partOfSpeechLength(std::u16string_view text);

/// Returns whether `text` begins with a mark that introduces another sense even without a separator
/// before it: "渗透现象v.使渗透", "脱离轨道 ll n.脱离轨道" (the source has ll for Ⅱ).
bool beginsFurtherSense(std::u16string_view text);

}  // namespace dictionary
