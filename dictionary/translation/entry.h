#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dictionary/source/csv_reader.h"
#include "dictionary/translation/translation_line.h"

namespace dictionary {

/// A headword with its parsed translation.
struct Entry {
  std::u16string headword;
  bool important = false;  ///< as in SourceEntry
  std::vector<TranslationLine> lines;
  /// Other headwords that the entry gives as its meaning: "= groundsheet".
  std::vector<std::u16string> references;
};

/// Parses an entry of the source; nullopt if its word cannot be a headword (see headword()).
std::optional<Entry> extractEntry(const SourceEntry& source);

}  // namespace dictionary
