#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/record_set.h"

namespace data {

/// Field "Meaning" of every row, from the first on.
std::vector<std::u16string> readMeanings(RecordSet& rows);

/// The text of the meaning pane and the length of its first part, the headword's line.
struct MeaningText {
  std::u16string body;
  std::size_t headLength = 0;
};

/// Headword line and one line a meaning, as the quick lookup window shows them: every line with a
/// blank before it, every meaning but the last with a full-width semicolon behind it.
MeaningText meaningLines(std::u16string_view escapedWord,
                         const std::vector<std::u16string>& meanings);

}  // namespace data
