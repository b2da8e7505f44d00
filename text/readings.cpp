#include "text/readings.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "text/characters.h"
#include "text/word_characters.h"

namespace text {
namespace {

bool isLetter(char16_t unit) { return unitKind(unit) == UnitKind::kLetter; }

/// Returns `word` without 's. Of a plural's possessive ("boys'") the apostrophe is no part of the
/// word in the first place.
std::u16string_view withoutPossessive(std::u16string_view word) {
  return word.ends_with(u"'s") || word.ends_with(u"'S") ? word.substr(0, word.size() - 2) : word;
}

/// Collects the readings at an index.
class Collector {
 public:
  Collector(std::u16string_view text, std::size_t index) : text_(text), index_(index) {}

  void addDivision(const Division& division);
  void addRun(const Run& run);
  void addPart(Range range);
  void addWord(Range range);
  [[nodiscard]] Readings take() { return std::move(readings_); }

 private:
  [[nodiscard]] std::u16string spelledIn(Range range) const { return spelled(in(text_, range)); }
  void add(std::u16string_view word, Range range);
  void addOnce(std::u16string word, Range range);
  void addWithStem(std::u16string_view word, Range range);
  void setOtherwise(std::u16string_view word, Range range);

  std::u16string_view text_;
  std::size_t index_;
  Readings readings_;
};

/// Letters beyond Latin-1 are not asked for: no English headword has one.
void Collector::addOnce(std::u16string word, Range range) {
  auto& candidates = readings_.candidates;
  const bool isWord = std::any_of(word.begin(), word.end(), isLetter) &&
                      std::none_of(word.begin(), word.end(), isChinese);
  const bool isNew = std::none_of(candidates.begin(), candidates.end(),
                                  [&](const Reading& other) { return other.word == word; });
  const bool fits = word.size() <= kMaxReading && candidates.size() < kMaxReadings;
  if (isWord && isNew && fits && range.contains(index_)) {
    candidates.push_back({std::move(word), range.begin, range.end});
  }
}

/// Adds `word` as it is and without accents.
void Collector::add(std::u16string_view word, Range range) {
  addOnce(std::u16string(word), range);
  addOnce(withoutAccents(word), range);
}

void Collector::addWithStem(std::u16string_view word, Range range) {
  add(word, range);
  add(withoutPossessive(word), range);
}

/// The first call counts.
void Collector::setOtherwise(std::u16string_view word, Range range) {
  std::u16string plain = withoutAccents(withoutPossessive(word));
  if (readings_.otherwise || plain.empty() || plain.size() > kMaxReading) return;
  readings_.otherwise = Reading{std::move(plain), range.begin, range.end};
}

void Collector::addDivision(const Division& division) {
  const auto& [left, right] = division;
  const Range whole{left.begin, right.end};
  const std::u16string joined = spelledIn(left) + spelledIn(right);
  const std::u16string hyphenated = spelledIn(left) + u'-' + spelledIn(right);
  add(joined, whole);
  add(hyphenated, whole);
  add(withoutPossessive(joined), whole);
  add(withoutPossessive(hyphenated), whole);
  setOtherwise(joined, whole);
  // "state-of-the-" and "art-form": the part that both lines share is "theart". A part that the
  // line's end does not divide does not contain the index, or is one of the word's own.
  const auto before = partAt(text_, left, left.end - 1);
  const auto after = partAt(text_, right, right.begin);
  if (before && after && (before->contains(index_) || after->contains(index_))) {
    addWithStem(spelledIn(*before) + spelledIn(*after), {before->begin, after->end});
  }
}

/// A full stop after a run with none in it is nearly always the sentence's: asked for first, "in."
/// would be the inch, "no." a number, "as." arsenic, "man." a handful, "but." butter and "art." the
/// article. So it is asked for after the run without it, for abbreviations that are headwords with
/// it only, and not with the pointer on the stop itself. A run with a full stop in it ("e.g.",
/// "U.S.") is mostly an abbreviation, of which the last one is a part.
void Collector::addRun(const Run& run) {
  const std::u16string word = spelledIn(run.range);
  const Range withStop{run.range.begin, run.range.end + 1};
  if (run.stopFollows && run.hasInnerStop) add(word + u'.', withStop);
  add(word, run.range);
  const bool onStop = !run.range.contains(index_);
  if (run.stopFollows && !run.hasInnerStop && !onStop) add(word + u'.', withStop);
  add(withoutPossessive(word), run.range);
}

void Collector::addPart(Range range) {
  const auto part = partAt(text_, range, index_);
  if (part) addWithStem(spelledIn(*part), *part);
}

void Collector::addWord(Range range) {
  const std::u16string word = spelledIn(range);
  addWithStem(word, range);
  addPart(range);
  setOtherwise(word, range);
}

}  // namespace

Readings readingsAt(std::u16string_view text, std::size_t index) {
  if (const auto han = hanRunAt(text, index)) {
    return {{}, Reading{std::u16string(in(text, *han)), han->begin, han->end}};
  }
  Collector collector(text, index);
  auto word = wordAt(text, index);
  if (word && touchesDigit(text, *word)) word.reset();
  const auto division = word ? divisionAt(text, *word) : std::nullopt;
  if (division) collector.addDivision(*division);
  const auto run = runAt(text, index);
  if (run) collector.addRun(*run);
  if (word) collector.addWord(*word);
  // Without a word the run's part is asked for: "CO2" of "CO2-rich".
  if (run && !word && run->range.contains(index)) collector.addPart(run->range);
  return collector.take();
}

std::optional<Reading> chooseReading(const Readings& readings, const IsHeadword& isHeadword) {
  try {
    for (const Reading& candidate : readings.candidates) {
      if (isHeadword && isHeadword(candidate.word)) return candidate;
    }
  } catch (const std::exception&) {
    // As if no further candidate were a headword.
  }
  return readings.otherwise;
}

}  // namespace text
