// Records are parsed first, since a reference may lead to any of them. It leads to the record of
// the same forms and pinyin; where there is none, as pinyin and traditional form are written
// otherwise at times, to those of the same simplified form.

#include "dictionary/gloss/cedict.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "dictionary/gloss/descriptions.h"
#include "dictionary/source/characters.h"
#include "dictionary/translation/equivalent.h"
#include "text/order.h"

namespace dictionary {
namespace {

/// References that are followed one after the other. The source has chains of three; a loop ends
/// here.
constexpr int kMaxSteps = 4;

/// A parsed record, with the meanings of what it refers to.
struct Record {
  const CedictRecord* source = nullptr;
  std::vector<Gloss> glosses;
  std::vector<GlossReference> references;
};

/// More than twice the number of meanings that any word has.
constexpr std::size_t kAfterAll = 10'000;

using Numbers = std::vector<std::uint32_t>;

WordKind kindOf(const CedictRecord& source) {
  if (std::ranges::any_of(source.glosses, marksPhrase)) return WordKind::kPhrase;
  return source.simplified.size() == 1 ? WordKind::kCharacter : WordKind::kTerm;
}

Record parseRecord(const CedictRecord& source) {
  Record record{&source, {}, {}};
  const WordKind kind = kindOf(source);
  for (const std::u16string& text : source.glosses) {
    ParsedGloss parsed = parseGloss(text, kind);
    std::erase_if(parsed.glosses, [&](const Gloss& gloss) {
      return labelsItsWord(gloss.english, source.simplified);
    });
    std::ranges::move(parsed.glosses, std::back_inserter(record.glosses));
    std::ranges::move(parsed.references, std::back_inserter(record.references));
  }
  // Without another meaning the literal one is what the word means.
  const bool otherwise = std::ranges::any_of(record.glosses, [](const Gloss& gloss) {
    return gloss.value != GlossValue::kLiteral && gloss.value != GlossValue::kSurname;
  });
  for (Gloss& gloss : record.glosses) {
    if (gloss.value != GlossValue::kLiteral || otherwise) continue;
    gloss.value = gloss.words > kMaxPairWords ? GlossValue::kExplanation : GlossValue::kUsage;
  }
  return record;
}

/// A reading in capitals is that of a name.
bool isName(const Record& record) {
  const std::u16string& pinyin = record.source->pinyin;
  return !pinyin.empty() && pinyin[0] >= u'A' && pinyin[0] <= u'Z';
}

/// Returns whether the character has the meanings of the word only as a part of it: 秘 of 秘鲁 is
/// not "Peru". Short forms of two characters do stand for the whole.
bool isPartOf(const Record& character, const Record& word) {
  return character.source->simplified.size() == 1 && word.source->simplified.size() > 1;
}

/// Orders the records of one simplified form: names last, then by the number of meanings, which is
/// greatest for the reading that is met most.
bool precedes(const Record& a, const Record& b) {
  if (isName(a) != isName(b)) return isName(b);
  return a.glosses.size() > b.glosses.size();
}

class Entries {
 public:
  explicit Entries(const std::vector<CedictRecord>& sources) {
    records_.reserve(sources.size());
    for (const CedictRecord& source : sources) {
      Numbers& numbers = bySimplified_[source.simplified];
      if (numbers.empty()) words_.push_back(source.simplified);
      numbers.push_back(static_cast<std::uint32_t>(records_.size()));
      records_.push_back(parseRecord(source));
    }
  }

  std::vector<ChineseEntry> make() {
    std::vector<ChineseEntry> entries;
    for (const std::u16string& simplified : words_) {
      std::u16string word = chineseHeadword(simplified);
      if (word.empty()) continue;
      std::vector<Gloss> glosses = glossesOf(bySimplified_.at(simplified));
      if (!glosses.empty()) entries.push_back({std::move(word), std::move(glosses)});
    }
    return entries;
  }

 private:
  [[nodiscard]] Numbers targets(const Record& record, const GlossReference& reference) const;
  [[nodiscard]] Numbers sameReading(Numbers numbers, const std::u16string& pinyin) const;
  [[nodiscard]] std::vector<Gloss> meaningsOf(const Record& record, int steps) const;
  void follow(const Record& record, int steps, std::vector<Gloss>& glosses) const;
  [[nodiscard]] std::vector<Gloss> glossesOf(const Numbers& numbers) const;

  std::vector<Record> records_;
  std::vector<std::u16string> words_;  ///< simplified forms in the order of their first record
  std::unordered_map<std::u16string, Numbers> bySimplified_;
};

/// The records of the word to which `record` refers. Of a reference without pinyin from a word of
/// the same length they are those of the same reading: a variant has no other.
Numbers Entries::targets(const Record& record, const GlossReference& reference) const {
  const auto found = bySimplified_.find(reference.simplified);
  if (found == bySimplified_.end()) return {};
  Numbers exact;
  for (const std::uint32_t number : found->second) {
    const CedictRecord& source = *records_[number].source;
    const bool sameForm = source.traditional == reference.traditional;
    const bool samePinyin = reference.pinyin.empty() || source.pinyin == reference.pinyin;
    if (sameForm && samePinyin) exact.push_back(number);
  }
  const CedictRecord& own = *record.source;
  const bool told = !reference.pinyin.empty() || found->second.size() == 1;
  if (!told && own.simplified.size() == reference.simplified.size()) {
    if (exact.empty()) exact = found->second;
    return sameReading(exact, own.pinyin);
  }
  return exact.empty() ? found->second : exact;
}

/// The records with the pinyin; those that differ in a capital where none is the same.
Numbers Entries::sameReading(Numbers numbers, const std::u16string& pinyin) const {
  const auto reading = [this](std::uint32_t number) -> const std::u16string& {
    return records_[number].source->pinyin;
  };
  const auto same = [&](std::uint32_t number) { return reading(number) == pinyin; };
  if (std::ranges::any_of(numbers, same)) {
    std::erase_if(numbers, [&](std::uint32_t number) { return !same(number); });
  } else {
    const std::u16string lower = text::toLower(pinyin);
    std::erase_if(numbers,
                  [&](std::uint32_t number) { return text::toLower(reading(number)) != lower; });
  }
  return numbers;
}

/// Adds the meanings of the words to which the record refers. A related word, or one without its
/// pinyin, which may be another ("same as 泰山" is Mount Tai, not Tarzan), counts only where the
/// record says nothing itself.
void Entries::follow(const Record& record, int steps, std::vector<Gloss>& glosses) const {
  for (const GlossReference& reference : record.references) {
    const bool doubtful = reference.kind == ReferenceKind::kRelated || reference.pinyin.empty();
    if (reference.kind == ReferenceKind::kNone || (doubtful && !glosses.empty())) continue;
    for (const std::uint32_t number : targets(record, reference)) {
      const Record& target = records_[number];
      if (&target == &record) continue;
      // Two words with meanings of their own may share one of them only.
      const bool further = record.glosses.empty() || target.glosses.empty();
      for (Gloss gloss : meaningsOf(target, further ? steps - 1 : 0)) {
        if (reference.usage) gloss.value = std::max(gloss.value, GlossValue::kUsage);
        if (reference.kind == ReferenceKind::kPart || isPartOf(record, target)) {
          gloss.value = std::max(gloss.value, GlossValue::kPart);
        }
        glosses.push_back(std::move(gloss));
      }
    }
  }
}

std::vector<Gloss> Entries::meaningsOf(const Record& record, int steps) const {
  std::vector<Gloss> glosses = record.glosses;
  if (steps > 0) follow(record, steps, glosses);
  return glosses;
}

std::vector<Gloss> Entries::glossesOf(const Numbers& numbers) const {
  std::vector<const Record*> readings;
  for (const std::uint32_t number : numbers) readings.push_back(&records_[number]);
  std::ranges::stable_sort(readings,
                           [](const Record* a, const Record* b) { return precedes(*a, *b); });
  // Rank: value first, then twice the place in its reading, later by three for each further
  // reading.
  std::vector<std::pair<std::pair<GlossValue, std::size_t>, Gloss>> ranked;
  for (std::size_t reading = 0; reading < readings.size(); ++reading) {
    const bool nameAfterWord = isName(*readings[reading]) && !isName(*readings[0]);
    std::size_t place = 3 * reading + (nameAfterWord ? kAfterAll : 0);
    for (Gloss& gloss : meaningsOf(*readings[reading], kMaxSteps)) {
      const std::pair key(gloss.value, place);
      place += 2;
      ranked.emplace_back(key, std::move(gloss));
    }
  }
  std::ranges::stable_sort(ranked, {}, [](const auto& item) { return item.first; });
  std::vector<Gloss> glosses;
  std::unordered_map<std::u16string, std::size_t> places;
  for (auto& [key, gloss] : ranked) {
    const auto [place, added] = places.try_emplace(text::toLower(gloss.english), glosses.size());
    if (added) {
      glosses.push_back(std::move(gloss));
    } else {
      glosses[place->second].subjects |= gloss.subjects;
    }
  }
  return glosses;
}

}  // namespace

std::vector<ChineseEntry> chineseEntries(const std::vector<CedictRecord>& records) {
  return Entries(records).make();
}

std::vector<ChineseEntry> readCedict(const std::filesystem::path& file) {
  return chineseEntries(readCedictRecords(file));
}

}  // namespace dictionary
