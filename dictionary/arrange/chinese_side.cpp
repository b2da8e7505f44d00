#include "dictionary/arrange/chinese_side.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "dictionary/arrange/senses.h"
#include "dictionary/source/characters.h"
#include "text/order.h"

namespace dictionary {
namespace {

/// Glosses of a Chinese headword that become pairs.
constexpr std::size_t kMaxGlosses = 3;
/// Chinese words that a common English word gets from glosses.
constexpr std::size_t kMaxOfCommonWord = 8;
/// Up to this rank a single character is a word that readers know by itself: 死, not 娥.
constexpr std::uint32_t kCommonCharacterRank = 3'000;
/// Up to this rank by frequency a Chinese word is common.
constexpr std::uint32_t kCommonChineseRank = 20'000;

/// Words with their indexes. Those that the list has at first must be sorted; further ones are
/// added at its end.
class WordIndex {
 public:
  explicit WordIndex(std::vector<std::u16string>& words) : words_(words), sorted_(words.size()) {}

  [[nodiscard]] std::optional<std::uint32_t> find(const std::u16string& word) const {
    const auto end = words_.begin() + static_cast<std::ptrdiff_t>(sorted_);
    const auto found = std::partition_point(words_.begin(), end, [&](const std::u16string& other) {
      return text::compare(other, word) < 0;
    });
    if (found != end && text::equal(*found, word)) {
      return static_cast<std::uint32_t>(found - words_.begin());
    }
    const auto added = added_.find(text::toLower(word));
    return added == added_.end() ? std::nullopt : std::optional(added->second);
  }

  std::uint32_t findOrAdd(const std::u16string& word) {
    if (const auto found = find(word)) return *found;
    const auto index = static_cast<std::uint32_t>(words_.size());
    words_.push_back(word);
    added_.emplace(text::toLower(word), index);
    return index;
  }

 private:
  std::vector<std::u16string>& words_;
  std::size_t sorted_;
  std::unordered_map<std::u16string, std::uint32_t> added_;
};

constexpr std::uint64_t pairKey(std::uint32_t english, std::uint32_t chinese) {
  return std::uint64_t{english} << 32U | chinese;
}

/// The rank of a word, 0 if it has none.
std::uint32_t rankOf(const WordRanks& ranks, const std::u16string& word) {
  const auto found = ranks.find(word);
  return found == ranks.end() ? 0 : found->second;
}

/// Whether readers of Chinese meet the word often, as a word by itself.
bool isCommonChinese(std::u16string_view word, std::uint32_t rank) {
  return rank > 0 && rank <= (word.size() > 1 ? kCommonChineseRank : kCommonCharacterRank);
}

/// "GDP" beside "gross domestic product": readers meet the short form as often. One of two letters
/// stands for too many things, or is a word: "AM".
bool isAbbreviation(std::u16string_view english) {
  constexpr std::size_t kMinLength = 3;
  constexpr std::size_t kMaxLength = 6;
  return english.size() >= kMinLength && english.size() <= kMaxLength &&
         std::ranges::all_of(english, [](char16_t unit) {
           return isDigit(unit) || (isAsciiLetter(unit) && unit != text::foldCase(unit));
         });
}

/// The vocabulary while pairs are added.
class Merger {
 public:
  explicit Merger(Vocabulary& vocabulary)
      : vocabulary_(vocabulary),
        english_(vocabulary.english),
        chinese_(vocabulary.chinese),
        sortedPairs_(vocabulary.pairs.size()) {}

  void addTerms(const std::vector<Term>& terms);
  void addEntries(const std::vector<ChineseEntry>& entries, const WordRanks& ranks);
  void rateChineseHeadwords(const WordRanks& ranks);
  void rateKnownEquivalents(const WordRanks& ranks);
  void takeSmallLetters();

 private:
  [[nodiscard]] Pair* findPair(std::uint32_t english, std::uint32_t chinese);
  [[nodiscard]] bool isCommonWordToo(const std::u16string& text) const;
  [[nodiscard]] std::optional<std::uint32_t> commonWordWithout(const std::u16string& english,
                                                               const std::u16string& chinese);
  [[nodiscard]] bool takePlace(const Gloss& gloss, const ChineseEntry& entry, bool common);
  void addPair(const std::u16string& english, const std::u16string& chinese, Tier tier,
               std::size_t position);
  void noteSpelling(std::uint32_t index, const std::u16string& english);
  void addEntry(const ChineseEntry& entry, bool common);

  Vocabulary& vocabulary_;
  WordIndex english_;
  WordIndex chinese_;
  std::size_t sortedPairs_;
  std::unordered_map<std::uint64_t, std::size_t> addedPairs_;
  /// By common English word: how many pairs it has from glosses.
  std::unordered_map<std::uint32_t, std::size_t> placesTaken_;
  /// By English word with capitals: how the other sources spell it.
  std::unordered_map<std::uint32_t, std::u16string> spellings_;
};

Pair* Merger::findPair(std::uint32_t english, std::uint32_t chinese) {
  std::vector<Pair>& pairs = vocabulary_.pairs;
  const auto end = pairs.begin() + static_cast<std::ptrdiff_t>(sortedPairs_);
  const auto found = std::partition_point(pairs.begin(), end, [&](const Pair& pair) {
    return std::tie(pair.english, pair.chinese) < std::tie(english, chinese);
  });
  if (found != end && found->english == english && found->chinese == chinese) return &*found;
  const auto added = addedPairs_.find(pairKey(english, chinese));
  return added == addedPairs_.end() ? nullptr : &pairs[added->second];
}

/// The index of the English word if it is common and does not have the Chinese one.
std::optional<std::uint32_t> Merger::commonWordWithout(const std::u16string& english,
                                                       const std::u16string& chinese) {
  const auto word = english_.find(english);
  if (!word || *word >= vocabulary_.ranks.size()) return std::nullopt;
  const std::uint32_t rank = vocabulary_.ranks[*word];
  if (rank == 0 || rank > kCommonRank) return std::nullopt;
  const auto known = chinese_.find(chinese);
  return known && findPair(*word, *known) != nullptr ? std::nullopt : word;
}

void Merger::addPair(const std::u16string& english, const std::u16string& chinese, Tier tier,
                     std::size_t position) {
  const std::uint32_t englishIndex = english_.findOrAdd(english);
  const std::uint32_t chineseIndex = chinese_.findOrAdd(chinese);
  noteSpelling(englishIndex, english);
  if (Pair* pair = findPair(englishIndex, chineseIndex)) {
    pair->tier = std::min(pair->tier, tier);
    return;
  }
  addedPairs_.emplace(pairKey(englishIndex, chineseIndex), vocabulary_.pairs.size());
  vocabulary_.pairs.push_back({englishIndex, chineseIndex, tier,
                               static_cast<std::uint8_t>(std::min(position, Pair::kMaxPosition))});
}

std::size_t capitalsOf(const std::u16string& text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char16_t unit) { return unit >= u'A' && unit <= u'Z'; }));
}

/// The English source spells some words as titles or in capitals only: "CORE", "Based On". A
/// spelling that another source confirms stays: "AIDS", "Polish".
void Merger::noteSpelling(std::uint32_t index, const std::u16string& english) {
  const std::u16string& known = vocabulary_.english[index];
  if (capitalsOf(known) == 0) return;
  std::u16string& spelling = spellings_.try_emplace(index, english).first->second;
  if (capitalsOf(english) > capitalsOf(spelling)) spelling = english;
}

void Merger::takeSmallLetters() {
  for (const auto& [index, spelling] : spellings_) {
    std::u16string& word = vocabulary_.english[index];
    if (capitalsOf(spelling) < capitalsOf(word)) word = spelling;
  }
}

/// Whether the text is an abbreviation that reads as a common word or as a form of one: "IT",
/// "ATE". The word would show what hardly anybody means by it.
bool Merger::isCommonWordToo(const std::u16string& text) const {
  const bool capitals = std::ranges::none_of(
      text, [](char16_t unit) { return unit == text::foldCase(unit) && isAsciiLetter(unit); });
  const auto word = english_.find(text);
  if (!capitals || !word || *word >= vocabulary_.common.size()) return false;
  return vocabulary_.common[*word] && vocabulary_.english[*word] != text;
}

void Merger::addTerms(const std::vector<Term>& terms) {
  for (const Term& term : terms) {
    if (isCommonWordToo(term.english)) continue;
    addPair(term.english, term.chinese, Tier::kImportantFirst, Pair::kFirstGloss);
  }
}

/// Whether the gloss may become a pair of the entry. A common English word then has a place less.
/// `common`: the Chinese word is.
bool Merger::takePlace(const Gloss& gloss, const ChineseEntry& entry, bool common) {
  if (isCommonWordToo(gloss.english)) return false;
  const auto english = commonWordWithout(gloss.english, entry.word);
  if (!english) return true;
  if (entry.word.size() == 1 && !common) return false;
  std::size_t& taken = placesTaken_[*english];
  if (taken == kMaxOfCommonWord) return false;
  ++taken;
  return true;
}

void Merger::addEntry(const ChineseEntry& entry, bool common) {
  const bool known = chinese_.find(entry.word).has_value();
  const Tier first = common ? Tier::kImportantFirst : Tier::kFirst;
  const Tier further = common ? Tier::kImportant : Tier::kOrdinary;
  std::size_t taken = 0;
  for (const Gloss& gloss : entry.glosses) {
    if (!isEquivalent(gloss) || !takePlace(gloss, entry, common)) continue;
    const bool worthFirst = taken == 0 || isAbbreviation(gloss.english);
    addPair(gloss.english, entry.word, worthFirst ? first : further, Pair::kFirstGloss + taken);
    if (++taken == kMaxGlosses) return;
  }
  if (taken > 0 || known) return;
  const auto other = std::ranges::find_if(entry.glosses, [&](const Gloss& gloss) {
    return common ? !isCommonWordToo(gloss.english) : takePlace(gloss, entry, false);
  });
  if (other != entry.glosses.end()) {
    addPair(other->english, entry.word, first,
            isEquivalent(*other) ? Pair::kFirstGloss : Pair::kFirstExplanation);
  }
}

/// The most frequent words first: they take the places of common English words.
void Merger::addEntries(const std::vector<ChineseEntry>& entries, const WordRanks& ranks) {
  struct Ranked {
    std::uint32_t rank = 0;
    const ChineseEntry* entry = nullptr;
  };
  std::vector<Ranked> sorted;
  sorted.reserve(entries.size());
  for (const ChineseEntry& entry : entries) sorted.push_back({rankOf(ranks, entry.word), &entry});
  std::ranges::stable_sort(sorted, {}, [](const Ranked& one) {
    return one.rank == 0 ? std::numeric_limits<std::uint32_t>::max() : one.rank;
  });
  for (const auto& [rank, entry] : sorted) addEntry(*entry, isCommonChinese(entry->word, rank));
}

/// The most valuable pair of each Chinese headword is worth a row of its own.
void Merger::rateChineseHeadwords(const WordRanks& ranks) {
  std::vector<Pair*> best(vocabulary_.chinese.size());
  for (Pair& pair : vocabulary_.pairs) {
    Pair*& known = best[pair.chinese];
    if (known == nullptr ||
        std::tie(pair.tier, pair.position) < std::tie(known->tier, known->position)) {
      known = &pair;
    }
  }
  for (std::size_t i = 0; i < best.size(); ++i) {
    if (best[i] == nullptr) continue;
    const std::u16string& word = vocabulary_.chinese[i];
    const std::uint32_t rank = rankOf(ranks, word);
    if (rank == 0 && best[i]->tier > Tier::kInflected) continue;  // a name, or from the web
    best[i]->tier = std::min(best[i]->tier, isCommonChinese(word, rank) ? Tier::kImportantFirst
                                            : rank > 0                  ? Tier::kFirst
                                                                        : Tier::kFirstOfChinese);
  }
}

/// The first known word among the further equivalents from lines of subjects is worth a row if no
/// better pair of the English headword has one: 随机变量 beside 随机变数. A list of frequencies has
/// the word that writers use, not the one that only translators do.
void Merger::rateKnownEquivalents(const WordRanks& ranks) {
  std::vector<Pair*> first(vocabulary_.english.size());
  std::vector<bool> served(vocabulary_.english.size());
  for (Pair& pair : vocabulary_.pairs) {
    if (pair.tier > Tier::kOfSubject || rankOf(ranks, vocabulary_.chinese[pair.chinese]) == 0) {
      continue;
    }
    if (pair.tier != Tier::kOfSubject) {
      served[pair.english] = true;
      continue;
    }
    Pair*& known = first[pair.english];
    if (known == nullptr || pair.position < known->position) known = &pair;
  }
  for (std::size_t i = 0; i < first.size(); ++i) {
    if (first[i] != nullptr && !served[i]) first[i]->tier = Tier::kKnownOfSubject;
  }
}

}  // namespace

Vocabulary addChineseSide(Vocabulary vocabulary, const ChineseSources& sources) {
  Merger merger(vocabulary);
  merger.addTerms(sources.terms);
  merger.addEntries(sources.entries, sources.ranks);
  merger.rateChineseHeadwords(sources.ranks);
  merger.rateKnownEquivalents(sources.ranks);
  merger.takeSmallLetters();
  sortVocabulary(vocabulary);
  return vocabulary;
}

}  // namespace dictionary
