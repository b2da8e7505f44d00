#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "dictionary/arrange/senses.h"
#include "dictionary/translation/entry.h"

/// The pairs that could be rows of the general dictionary, and what each is worth.
namespace dictionary {

/// Value of a pair where not all of them fit, the most valuable first: what readers of running text
/// in either language meet most is kept. Pairs of one tier are given up from the headword's last
/// equivalent on. A pair has the better one of what it is worth to those who look up its English
/// word and to those who look up its Chinese word (chinese_side.h).
///
/// Importance is measured on words, not on equivalents. A word is important if the source gives it
/// a frequency rank, a place in a learner's dictionary or in an examination's list
/// (SourceEntry::important). The source ranks forms under their lemma only ("went" has no rank,
/// "go" has 37), so that what a form takes over from an important lemma, or says itself of what it
/// means as a form, is rated as the lemma's. Among the equivalents of one word the source's order
/// counts, which is its order of importance. Which of a common word's many equivalents are offered
/// at all is decided before (sensesOf). From this follows the order of the tiers:
///
/// 1. Every important word has a row, and every form of one has a row besides the note whose form
///    it is. So has every common Chinese word, and every current term.
/// 2. Then further equivalents of important words, what their forms take over, and up to three
///    names ("詹姆斯（姓氏, 男子名）"); and the second and third gloss of common Chinese words.
/// 3. Then one row for every other word that has an ordinary equivalent: a reader who meets the
///    word is helped by the first meaning far more than by a fifth one of another rare word. The
///    same for every Chinese word that a dictionary or a list of frequencies has, and for an
///    abbreviation that a dictionary gives beside its long form; after these for English phrases,
///    at which nobody can point. Then a term whose equivalents with a row are no known Chinese
///    words has the first that is one: "random variable | [计] 随机变数, 随机变量". Last come
///    Chinese texts that are equivalents of the English source only, and mostly phrases.
/// 4. Then further equivalents of these words, those of subjects first, and after them those of
///    their forms.
/// 5. Last names and equivalents from the web: the first one of a word that has nothing else and no
///    sign of importance, then those of any word beside its ordinary equivalents, and all further
///    ones. There is room for few of these.
enum class Tier : std::uint8_t {
  /// First pair of an important word, of whatever kind it has, or of a form of one; first pair, or
  /// the most valuable one, of a common Chinese word; a term of our own list.
  kImportantFirst,
  kImportant,       ///< further equivalent of an important word, of the same kind, or a name
  kFirst,           ///< first ordinary equivalent of another word; first pair of a Chinese word
  kFirstOfPhrase,   ///< first ordinary equivalent of several words
  kKnownOfSubject,  ///< further equivalent of a subject, the first that is a known Chinese word
  kFirstOfChinese,  ///< first pair of another Chinese headword
  kOfSubject,       ///< further ordinary equivalent of another word, from the line of a subject
  kOrdinary,        ///< further ordinary equivalent of another word
  kInflected,       ///< further equivalent, its own or taken over, of another word that is a form
  kOnly,            ///< first equivalent of another word that has only names or web equivalents
  kWebFirst,        ///< first web equivalent of a word that has others
  kName,            ///< any other name
  kWeb,             ///< any other web equivalent
};

inline constexpr std::size_t kTierCount = 13;

/// An English headword and a Chinese equivalent, as indexes into the vocabulary's lists.
struct Pair {
  std::uint32_t english = 0;
  std::uint32_t chinese = 0;
  Tier tier = Tier::kWeb;
  std::uint8_t position = 0;  ///< among the headword's equivalents, from 0 to kMaxPosition

  /// The greatest position that fits; equivalents from there on are of equal value.
  static constexpr std::size_t kMaxPosition = 255;
  /// The first positions of what only a Chinese entry gives: of its equivalents, and of texts that
  /// explain it, which nobody looks up. Hardly any headword has as many equivalents of its own.
  static constexpr std::size_t kFirstGloss = 100;
  static constexpr std::size_t kFirstExplanation = 200;
};

/// All pairs that could be rows of the general dictionary.
struct Vocabulary {
  std::vector<std::u16string> english;  ///< distinct, in the text order
  std::vector<std::u16string> chinese;  ///< distinct, in the text order
  std::vector<Pair> pairs;              ///< distinct, by English, then by Chinese headword
  std::vector<std::uint32_t> ranks;     ///< by English headword: as in SourceEntry
  std::vector<bool> common;             ///< by English headword: see PairList::Headword
};

/// Returns the better one of two ranks, of which 0 is none.
constexpr std::uint32_t betterRank(std::uint32_t a, std::uint32_t b) {
  return a == 0 || b == 0 ? std::max(a, b) : std::min(a, b);
}

/// Sorts the words and pairs of a vocabulary in any order. Words that are equal in the text order
/// (they differ in case only) become one, spelled as the first and with the better rank, and common
/// if one of them is; of equal pairs the one of the best tier and position stays.
void sortVocabulary(Vocabulary& vocabulary);

/// Returns the tier of the equivalent `sense` of an entry. `form`: the entry is a form of another
/// word; `only`: it has no equivalents of a kind that comes before that of `sense`; `nth`: how many
/// of its kind come before it.
Tier tierOf(const Entry& entry, bool form, const Sense& sense, bool only, std::size_t nth);

/// The words and pairs of a vocabulary while they are gathered, in the order in which they are
/// added. An English word may be added several times.
class PairList {
 public:
  /// A headword, and what is known of it.
  struct Headword {
    std::u16string word;
    std::uint32_t rank = 0;  ///< as in SourceEntry
    bool important = false;  ///< as in SourceEntry
    /// Whether readers take its letters for a common word (kCommonRank), not for an abbreviation:
    /// it is a word to the source as well (isWord()), or the form of such a word without a rank of
    /// its own.
    bool common = false;
  };

  /// Adds a headword and returns its index.
  std::uint32_t addHeadword(Headword headword);
  /// Notes that the headword with that index is common.
  void setCommon(std::uint32_t english) { headwords_[english].common = true; }

  /// Adds a pair of the headword with that index. `position` may exceed Pair::kMaxPosition; `parts`
  /// are the parts of speech of the equivalent's line. Copies the text.
  void addPair(std::uint32_t english, const std::u16string& chinese, Tier tier,
               std::size_t position, PartOfSpeechSet parts = 0);

  [[nodiscard]] const std::vector<Headword>& headwords() const { return headwords_; }
  [[nodiscard]] std::size_t size() const { return pairs_.size(); }
  /// Return a pair by its index, its Chinese word by the index in the pair, and its parts of
  /// speech.
  [[nodiscard]] const Pair& pair(std::size_t index) const { return pairs_[index]; }
  [[nodiscard]] const std::u16string& chinese(std::uint32_t word) const { return chinese_[word]; }
  [[nodiscard]] PartOfSpeechSet parts(std::size_t index) const { return parts_[index]; }
  void setTier(std::size_t index, Tier tier) { pairs_[index].tier = tier; }

  /// Returns everything added, sorted. Ends the use of the list.
  [[nodiscard]] Vocabulary finish() &&;

 private:
  std::vector<Headword> headwords_;
  std::vector<std::u16string> chinese_;  ///< distinct, in the order of their first use
  std::unordered_map<std::u16string, std::uint32_t> chineseIds_;  ///< indexes into chinese_
  std::vector<Pair> pairs_;
  std::vector<PartOfSpeechSet> parts_;  ///< by index into pairs_
};

}  // namespace dictionary
