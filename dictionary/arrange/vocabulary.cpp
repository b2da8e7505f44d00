// Rating: the tier of a pair depends on the kind of the equivalent (senses.h), on whether it is the
// first of its kind, whether the kind is the entry's best, and on the headword: important or not, a
// form of another word or not. So a headword's first equivalent is given up later than its others.
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

/// Noted names of an important word that are worth as much as its further equivalents.
constexpr std::size_t kMaxNames = 3;

/// The tier of an equivalent of an important word, as tierOf().
Tier importantTier(const Sense& sense, bool only, std::size_t nth) {
  const bool first = nth == 0;
  if (only) return first ? Tier::kImportantFirst : Tier::kImportant;
  if (sense.kind == SenseKind::kName) return nth < kMaxNames ? Tier::kImportant : Tier::kName;
  return first ? Tier::kWebFirst : Tier::kWeb;
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

/// Whether the headword is several words, so that one cannot point at it as a whole.
bool isPhrase(std::u16string_view headword) {
  return headword.find(u' ') != std::u16string_view::npos;
}

}  // namespace

void sortVocabulary(Vocabulary& vocabulary) {
  const std::vector<std::uint32_t> englishPlaces = sortWords(vocabulary.english);
  const std::vector<std::uint32_t> chinesePlaces = sortWords(vocabulary.chinese);
  std::vector<std::uint32_t> ranks(vocabulary.english.size());
  for (std::size_t i = 0; i < vocabulary.ranks.size(); ++i) {
    std::uint32_t& rank = ranks[englishPlaces[i]];
    rank = betterRank(rank, vocabulary.ranks[i]);
  }
  vocabulary.ranks = std::move(ranks);
  std::vector<bool> common(vocabulary.english.size());
  for (std::size_t i = 0; i < vocabulary.common.size(); ++i) {
    if (vocabulary.common[i]) common[englishPlaces[i]] = true;
  }
  vocabulary.common = std::move(common);
  std::vector<Pair>& pairs = vocabulary.pairs;
  for (Pair& pair : pairs) {
    pair.english = englishPlaces[pair.english];
    pair.chinese = chinesePlaces[pair.chinese];
  }
  std::ranges::sort(pairs, {}, [](const Pair& pair) {
    return std::tie(pair.english, pair.chinese, pair.tier, pair.position);
  });
  const auto same = [](const Pair& a, const Pair& b) {
    return a.english == b.english && a.chinese == b.chinese;
  };
  // Of equal pairs the first has the best tier and position.
  pairs.erase(std::unique(pairs.begin(), pairs.end(), same), pairs.end());
}

Tier tierOf(const Entry& entry, bool form, const Sense& sense, bool only, std::size_t nth) {
  if (entry.important) return importantTier(sense, only, nth);
  const bool first = nth == 0;
  if (sense.kind == SenseKind::kWeb) {
    if (!first) return Tier::kWeb;
    return only ? Tier::kOnly : Tier::kWebFirst;
  }
  if (sense.kind == SenseKind::kName) return first && only ? Tier::kOnly : Tier::kName;
  if (sense.title) return Tier::kFirst;  // readers look titles up, which have no other entry
  if (first) return isPhrase(entry.headword) ? Tier::kFirstOfPhrase : Tier::kFirst;
  if (form) return Tier::kInflected;
  return sense.subject ? Tier::kOfSubject : Tier::kOrdinary;
}

std::uint32_t PairList::addHeadword(Headword headword) {
  headwords_.push_back(std::move(headword));
  return static_cast<std::uint32_t>(headwords_.size() - 1);
}

void PairList::addPair(std::uint32_t english, const std::u16string& chinese, Tier tier,
                       std::size_t position, PartOfSpeechSet parts) {
  const auto next = static_cast<std::uint32_t>(chinese_.size());
  const auto [place, isNew] = chineseIds_.try_emplace(chinese, next);
  if (isNew) chinese_.push_back(chinese);
  pairs_.push_back({english, place->second, tier,
                    static_cast<std::uint8_t>(std::min(position, Pair::kMaxPosition))});
  parts_.push_back(parts);
}

Vocabulary PairList::finish() && {
  chineseIds_.clear();
  Vocabulary vocabulary;
  vocabulary.english.reserve(headwords_.size());
  vocabulary.ranks.reserve(headwords_.size());
  vocabulary.common.reserve(headwords_.size());
  for (Headword& headword : headwords_) {
    vocabulary.english.push_back(std::move(headword.word));
    vocabulary.ranks.push_back(headword.rank);
    vocabulary.common.push_back(headword.common);
  }
  vocabulary.chinese = std::move(chinese_);
  vocabulary.pairs = std::move(pairs_);
  sortVocabulary(vocabulary);
  return vocabulary;
}

}  // namespace dictionary
