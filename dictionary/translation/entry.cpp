// The translation is cleaned and divided into lines (source/cleanup.h), each line is parsed
// (line.h), and what depends on the headword, on the other lines or on the supplements of this
// dictionary (supplement.h) is decided here.

#include "dictionary/translation/entry.h"

#include <algorithm>
#include <utility>

#include "dictionary/source/characters.h"
#include "dictionary/source/cleanup.h"
#include "dictionary/translation/brackets.h"
#include "dictionary/translation/explanations.h"
#include "dictionary/translation/foreign_words.h"
#include "dictionary/translation/supplement.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// The headword that the piece refers to if it is nothing else: "= groundsheet", "见metal
/// detector", "即Ezekiel", "同“diameter”".
std::optional<std::u16string> referenceIn(const Piece& piece) {
  if (piece.equivalent.fault == PieceFault::kNone) return std::nullopt;
  const std::u16string text = foldBlanks(withoutNotes(piece.noted));
  constexpr std::u16string_view kSigns = u"=＝见即同";
  if (text.empty() || kSigns.find(text[0]) == std::u16string_view::npos) return std::nullopt;
  std::u16string_view other = std::u16string_view(text).substr(1);
  if (other.size() > 1 && quotationEnd(other, 0) == other.size()) {
    other = other.substr(1, other.size() - 2);
  }
  return std::ranges::all_of(other, isForeign) ? headword(other) : std::nullopt;
}

/// Returns whether the general dictionary has something to show for the entry.
bool hasMeaning(const Entry& entry) {
  return !entry.references.empty() ||
         std::ranges::any_of(entry.lines, [](const TranslationLine& line) {
           return !line.inflection.empty() ||
                  std::ranges::any_of(line.pieces, [](const Piece& piece) {
                    return piece.equivalent.fault == PieceFault::kNone;
                  });
         });
}

/// Makes an equivalent of the first explanation that can serve as one.
void useExplanation(Entry& entry) {
  for (TranslationLine& line : entry.lines) {
    for (Piece& piece : line.pieces) {
      Equivalent& equivalent = piece.equivalent;
      if (equivalent.explanation.empty()) continue;
      equivalent = {std::move(equivalent.explanation), PieceFault::kNone, {}};
      return;
    }
  }
}

/// "-phagous" and "oleo-", which are translated in sentences: "表示食, 吃".
bool isWordElement(std::u16string_view headword) {
  return headword.starts_with(u'-') || headword.ends_with(u'-');
}

/// Takes the lead-ins off the equivalents of a word element.
void removeLeadIns(TranslationLine& line) {
  for (Piece& piece : line.pieces) {
    Equivalent& equivalent = piece.equivalent;
    if (equivalent.fault != PieceFault::kNone) continue;
    equivalent.word = std::u16string(elementMeaning(equivalent.word));
    if (equivalent.word.empty()) equivalent.fault = PieceFault::kLabel;
  }
}

/// Takes foreign words that are not part of them off the equivalents. Those from the web stay: they
/// are terms of which a word was left untranslated ("katabatic风").
void removeForeignWords(TranslationLine& line, std::u16string_view headword) {
  for (Piece& piece : line.pieces) {
    Equivalent& equivalent = piece.equivalent;
    const bool web = (piece.subjects & setOf(Subject::kWeb)) != 0;
    if (web || equivalent.fault != PieceFault::kNone) continue;
    equivalent.word = std::u16string(withoutForeignWords(equivalent.word, headword));
    if (equivalent.word.empty()) equivalent.fault = PieceFault::kLabel;
  }
}

/// Parses `translation` and adds its lines and references.
void addLines(Entry& entry, std::u16string_view translation) {
  bool inCommand = false;
  for (const std::u16string& line : translationLines(translation)) {
    // A description is continued by lines without a head.
    if (inCommand && readHead(line, true, false).length == 0) continue;
    entry.lines.push_back(parseLine(line));
    if (isWordElement(entry.headword)) removeLeadIns(entry.lines.back());
    removeForeignWords(entry.lines.back(), entry.headword);
    inCommand = entry.lines.back().endsInCommand;
    for (const Piece& piece : entry.lines.back().pieces) {
      if (const auto reference = referenceIn(piece)) entry.references.push_back(*reference);
    }
  }
}

/// Returns whether the entry has an equivalent that is neither a reference to another word nor from
/// the web.
bool hasEquivalent(const Entry& entry) {
  const auto means = [](const Piece& piece) {
    return !piece.equivalent.word.empty() && (piece.subjects & setOf(Subject::kWeb)) == 0 &&
           !inflectionIn(piece.equivalent.word) && !isReference(piece.equivalent.word);
  };
  return std::ranges::any_of(entry.lines, [&](const TranslationLine& line) {
    return std::ranges::any_of(line.pieces, means);
  });
}

}  // namespace

std::optional<Entry> extractEntry(const SourceEntry& source) {
  std::optional<std::u16string> word = headword(text::toUtf16(source.word));
  if (!word) return std::nullopt;
  Entry entry;
  entry.headword = std::move(*word);
  entry.important = source.important;
  entry.rank = source.rank;
  entry.inflection = inflectionOf(source.exchange, source.word);
  if (entry.important) entry.forms = formsIn(source.exchange);
  const std::u16string_view corrected = correctedTranslation(entry.headword);
  if (!corrected.empty()) entry.important = true;
  addLines(entry,
           corrected.empty() ? text::toUtf16(source.translation) : std::u16string(corrected));
  const std::u16string_view name = missingGivenName(entry.headword);
  if (!name.empty()) addLines(entry, name);
  const std::u16string_view supplement = supplementaryTranslation(entry.headword);
  if (!supplement.empty() && !hasEquivalent(entry)) {
    entry.references.clear();
    addLines(entry, supplement);
    entry.important = true;
  }
  if (!hasMeaning(entry)) useExplanation(entry);
  return entry;
}

}  // namespace dictionary
