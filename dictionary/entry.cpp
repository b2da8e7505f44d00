#include "dictionary/entry.h"

#include <utility>

#include "dictionary/source_text.h"
#include "text/utf.h"

namespace dictionary {

std::optional<Entry> extractEntry(const SourceEntry& source) {
  std::optional<std::u16string> word = headword(text::toUtf16(source.word));
  if (!word) return std::nullopt;
  Entry entry;
  entry.headword = std::move(*word);
  entry.important = source.important;
  for (const std::u16string& line : translationLines(text::toUtf16(source.translation))) {
    entry.lines.push_back(parseLine(line));
  }
  return entry;
}

}  // namespace dictionary
