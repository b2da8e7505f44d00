#pragma once

#include <string_view>

namespace dictionary {

/// Returns a translation, in the grammar of the source, of a word that people meet and whose
/// translation there cannot be used ("=has not", "（等于I have）"); otherwise "". `word` is
/// compared without regard to the case of ASCII letters. Written for this dictionary.
std::u16string_view supplementaryTranslation(std::u16string_view word);

}  // namespace dictionary
