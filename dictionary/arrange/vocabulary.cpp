// Rating: an entry's equivalents are listed in three kinds, ordinary ones, then names, then those
// from the web, each in the order of the source. The tier of a pair depends on its kind, on whether
// it is the first of its kind, whether the kind is the entry's best, and on the headword:
// important, an inflected form, or neither. So a headword's first equivalent is given up later than
// its others.
//
// Pairs hold indexes while they are collected; the words are sorted once in the end, and the
// indexes replaced. An equivalent in several lines of an entry, or under spellings that differ in
// case, is one pair, with the best tier and position.

#include "dictionary/arrange/vocabulary.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <utility>

#include "text/order.h"

namespace dictionary {
namespace {

/// Equivalents that an entry takes over from the headword that it refers to: its main meanings. The
/// headword itself has them all.
constexpr std::size_t kMaxFollowed = 4;

/// Kinds of equivalents, by the subject tags of their lines.
enum class Kind : std::uint8_t { kOrdinary, kWeb, kName };

/// An equivalent that an entry offers; the word belongs to the entry.
struct Candidate {
  const std::u16string* word;
  Kind kind;
};

/// A web tag outweighs a name's.
Kind kindOf(SubjectSet subjects) {
  if ((subjects & setOf(Subject::kWeb)) != 0) return Kind::kWeb;
  return (subjects & kNameSubjects) != 0 ? Kind::kName : Kind::kOrdinary;
}

/// The entry's distinct equivalents: ordinary ones, then names, then those from the web.
std::vector<Candidate> candidatesOf(const Entry& entry) {
  std::vector<Candidate> candidates;
  for (const Kind kind : {Kind::kOrdinary, Kind::kName, Kind::kWeb}) {
    for (const TranslationLine& line : entry.lines) {
      for (const Piece& piece : line.pieces) {
        const std::u16string& word = piece.equivalent.word;
        if (word.empty() || kindOf(piece.subjects) != kind) continue;
        const bool known = std::ranges::any_of(
            candidates, [&](const Candidate& other) { return *other.word == word; });
        if (!known) candidates.push_back({&word, kind});
      }
    }
  }
  return candidates;
}

/// The tier of an equivalent of that kind. `first`: it is the entry's first of its kind; `only`:
/// the entry has no equivalents of a kind that comes before it.
Tier tierOf(const Entry& entry, bool inflected, Kind kind, bool only, bool first) {
  if (entry.important && only && kind != Kind::kOrdinary) {
    return first ? Tier::kImportantFirst : Tier::kImportant;
  }
  if (kind == Kind::kWeb) {
    if (!first) return Tier::kWeb;
    return only ? Tier::kOnly : Tier::kWebFirst;
  }
  if (kind == Kind::kName) return first && only ? Tier::kOnly : Tier::kName;
  if (entry.important) return first ? Tier::kImportantFirst : Tier::kImportant;
  if (inflected) return first ? Tier::kInflectedFirst : Tier::kInflected;
  return first ? Tier::kFirst : Tier::kOrdinary;
}

/// Sorts `words`, removes all but the first of those that are equal, and returns the new index of
/// each old one.
std::vector<std::uint32_t> sortWords(std::vector<std::u16string>& words) {
  std::vector<std::uint32_t> order(words.size());
  std::iota(order.begin(), order.end(), 0U);
  std::ranges::sort(order, [&](std::uint32_t a, std::uint32_t b) {
    const int compared = text::compare(words[a], words[b]);
    return compared != 0 ? compared < 0 : a < b;
  });
  std::vector<std::uint32_t> places(words.size());
  std::vector<std::u16string> sorted;
  sorted.reserve(words.size());
  for (const std::uint32_t old : order) {
    if (sorted.empty() || !text::equal(sorted.back(), words[old])) {
      sorted.push_back(std::move(words[old]));
    }
    places[old] = static_cast<std::uint32_t>(sorted.size() - 1);
  }
  words = std::move(sorted);
  return places;
}

}  // namespace

/// Adds a pair of the headword added last.
void PairCollector::addPair(const std::u16string& chinese, Tier tier, std::size_t position) {
  const auto next = static_cast<std::uint32_t>(chinese_.size());
  const auto [place, isNew] = chineseIds_.try_emplace(chinese, next);
  if (isNew) chinese_.push_back(chinese);
  const auto english = static_cast<std::uint32_t>(english_.size() - 1);
  pairs_.push_back({english, place->second, tier,
                    static_cast<std::uint8_t>(std::min(position, Pair::kMaxPosition))});
}

std::size_t PairCollector::add(const Entry& entry) {
  const auto inflectedLine = std::ranges::find_if(
      entry.lines, [](const TranslationLine& line) { return !line.inflection.empty(); });
  const bool inflected = inflectedLine != entry.lines.end();
  const std::vector<Candidate> candidates = candidatesOf(entry);
  if (candidates.empty() && !entry.references.empty()) {
    Reference reference{entry.headword, {}, entry.important};
    for (const std::u16string& other : entry.references) {
      reference.others.push_back(text::toLower(other));
    }
    references_.push_back(std::move(reference));
    return 0;
  }
  if (candidates.empty() && !inflected) return 0;

  // "apple的复数" is the only meaning of many inflected forms.
  english_.push_back(entry.headword);
  if (candidates.empty()) {
    addPair(inflectedLine->inflection, tierOf(entry, true, Kind::kOrdinary, true, true), 0);
    return 1;
  }
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    const Kind kind = candidates[i].kind;
    const bool first = i == 0 || candidates[i - 1].kind != kind;
    const bool only = candidates[0].kind == kind;
    addPair(*candidates[i].word, tierOf(entry, inflected, kind, only, first), i);
  }
  return candidates.size();
}

/// Done in the end, since an entry may refer to one that comes after it. References to references
/// are not followed.
void PairCollector::followReferences() {
  std::unordered_map<std::u16string, std::vector<std::uint32_t>> meanings;
  for (const Reference& reference : references_) {
    for (const std::u16string& other : reference.others) meanings.try_emplace(other);
  }
  for (const Pair& pair : pairs_) {
    const auto found = meanings.find(text::toLower(english_[pair.english]));
    const bool wanted =
        found != meanings.end() && pair.tier < Tier::kOnly && found->second.size() < kMaxFollowed;
    if (wanted) found->second.push_back(pair.chinese);
  }
  for (const Reference& reference : references_) {
    english_.push_back(reference.headword);
    std::size_t position = 0;
    for (const std::u16string& other : reference.others) {
      for (const std::uint32_t chinese : meanings[other]) {
        const bool first = position == 0;
        const Tier tier = reference.important ? (first ? Tier::kImportantFirst : Tier::kImportant)
                                              : (first ? Tier::kFirst : Tier::kOrdinary);
        // A copy: addPair() may grow the list that holds the word.
        addPair(std::u16string(chinese_[chinese]), tier, position++);
      }
    }
  }
  references_.clear();
}

Vocabulary PairCollector::finish() && {
  followReferences();
  chineseIds_.clear();
  const std::vector<std::uint32_t> englishPlaces = sortWords(english_);
  const std::vector<std::uint32_t> chinesePlaces = sortWords(chinese_);
  for (Pair& pair : pairs_) {
    pair.english = englishPlaces[pair.english];
    pair.chinese = chinesePlaces[pair.chinese];
  }
  const auto key = [](const Pair& pair) {
    return std::tie(pair.english, pair.chinese, pair.tier, pair.position);
  };
  std::ranges::sort(pairs_, {}, key);
  const auto same = [](const Pair& a, const Pair& b) {
    return a.english == b.english && a.chinese == b.chinese;
  };
  // Of equal pairs the first has the best tier and position.
  pairs_.erase(std::unique(pairs_.begin(), pairs_.end(), same), pairs_.end());
  return {std::move(english_), std::move(chinese_), std::move(pairs_)};
}

}  // namespace dictionary
