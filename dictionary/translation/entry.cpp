#include "dictionary/translation/entry.h"

#include <utility>

#include "dictionary/source/cleanup.h"
#include "dictionary/translation/brackets.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// The headword after an equals sign if the piece is nothing else.
std::optional<std::u16string> referenceIn(const Piece& piece) {
  if (piece.equivalent.fault != PieceFault::kNoHan) return std::nullopt;
  const std::u16string text = foldBlanks(withoutNotes(piece.noted));
  if (!text.starts_with(u'=') && !text.starts_with(u'＝')) return std::nullopt;
  return headword(std::u16string_view(text).substr(1));
}

}  // namespace

std::optional<Entry> extractEntry(const SourceEntry& source) {
  std::optional<std::u16string> word = headword(text::toUtf16(source.word));
  if (!word) return std::nullopt;
  Entry entry;
  entry.headword = std::move(*word);
  entry.important = source.important;
  for (const std::u16string& line : translationLines(text::toUtf16(source.translation))) {
    entry.lines.push_back(parseLine(line));
    for (const Piece& piece : entry.lines.back().pieces) {
      if (const auto reference = referenceIn(piece)) entry.references.push_back(*reference);
    }
  }
  return entry;
}

}  // namespace dictionary
