#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bench/native/search_patterns.h"
#include "data/connection.h"

namespace bench {

/// What the searches of a subject dictionary are measured against.
class Yardsticks {
 public:
  Yardsticks(const char* file, const std::vector<Entry>& entries);

  /// Has SQLite read one column of every row of [med] and find that none has a length below zero:
  /// all that a search by LIKE does but the LIKE.
  void scan(std::string_view column) const;

  /// How often the longest stretch of a LIKE pattern without wildcards stands in the words or the
  /// meanings, byte by byte, with regard to case.
  [[nodiscard]] std::size_t countWords(std::u16string_view pattern) const;
  [[nodiscard]] std::size_t countMeanings(std::u16string_view pattern) const;

 private:
  data::Connection connection_;
  std::string words_;     ///< all words in UTF-8, a null between them
  std::string meanings_;  ///< all meanings likewise
};

}  // namespace bench
