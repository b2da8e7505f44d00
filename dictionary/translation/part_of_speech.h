#pragma once

#include <cstddef>
#include <string_view>

namespace dictionary {

/// Length of the part-of-speech mark at the beginning of `text` ("n.", "vt. & vi.", "n " before a
/// Chinese text), with the blanks behind it; 0 if there is none.
std::size_t partOfSpeechLength(std::u16string_view text);

/// Whether a mark with another sense begins here, though nothing parts it from the Chinese text
/// before it: "渗透现象v.使渗透", "脱离轨道 ll n.脱离轨道" (ll is what became of Ⅱ).
bool beginsFurtherSense(std::u16string_view text);

}  // namespace dictionary
