#pragma once

#include <string>
#include <string_view>

namespace dictionary {

/// Puts back the Han characters for which the source has a stand-in (a Cyrillic letter, a box
/// drawing or private-use character) and whose meaning is certain. Cyrillic letters inside Cyrillic
/// words stay.
std::u16string repairStandIns(std::u16string_view text);

}  // namespace dictionary
