#pragma once

#include <string>
#include <string_view>

#include "text/query_text.h"

namespace data {

/// `word` as a search key: `replacement` in the place of each SQL wildcard. It holds none itself.
inline std::u16string withoutWildcards(std::u16string_view word, std::u16string_view replacement) {
  return user::replaceStr(user::replaceStr(word, u"%", replacement), u"_", replacement);
}

}  // namespace data
