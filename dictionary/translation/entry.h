#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dictionary/source/csv_reader.h"
#include "dictionary/translation/translation_line.h"

namespace dictionary {

/// A headword with its translation taken apart.
struct Entry {
  std::u16string headword;
  bool important = false;
  std::vector<TranslationLine> lines;
  /// Other headwords that the entry says it means the same as: "= groundsheet".
  std::vector<std::u16string> references;
};

/// Takes an entry of the source apart; nothing if its word cannot be a headword.
std::optional<Entry> extractEntry(const SourceEntry& source);

}  // namespace dictionary
