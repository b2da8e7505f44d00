#pragma once

#include <string>
#include <string_view>

/// Optional characters of a term, which lines of medicine write in square brackets: "硬脑[脊]膜" is
/// both 硬脑脊膜 and 硬脑膜. The functions are pure.
namespace dictionary {

/// Returns `text` with the brackets around optional characters deleted: the full form. Brackets
/// around a note stay: a kind of drug behind its name ("卤泛群[抗疟药]"), a mark of usage, anything
/// longer than six characters or not of Han characters only.
std::u16string withOptionalCharacters(std::u16string_view text);

}  // namespace dictionary
