#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "dictionary/source/csv_reader.h"
#include "dictionary/translation/inflection.h"
#include "dictionary/translation/line.h"

/// Parsing an entry of the source: its word, its forms and the lines of its translation. The
/// functions are pure.
namespace dictionary {

/// A headword with its parsed translation.
struct Entry {
  std::u16string headword;
  /// As in SourceEntry, or a word that this dictionary supplements or corrects.
  bool important = false;
  std::uint32_t rank = 0;                ///< as in SourceEntry
  std::optional<Inflection> inflection;  ///< by the column "exchange"
  std::vector<WordForm> forms;           ///< of an important word, by that column
  std::vector<TranslationLine> lines;
  /// Other headwords that the entry gives as its meaning: "= groundsheet".
  std::vector<std::u16string> references;
};

/// Parses an entry of the source. The first piece that is only too long becomes the equivalent of
/// an entry that would have none (Equivalent::explanation). Returns nullopt if its word cannot be a
/// headword (see headword()).
std::optional<Entry> extractEntry(const SourceEntry& source);

}  // namespace dictionary
