#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "dictionary/arrange/senses.h"
#include "dictionary/translation/entry.h"

/// The pairs that could be rows of the general dictionary, and what each is worth.
namespace dictionary {

/// Value of a pair where not all of them fit, the most valuable first: what readers of running text
/// meet most is kept. Pairs of one tier are given up from the headword's last equivalent on.
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
///    it is.
/// 2. Then further equivalents of important words, what their forms take over, and up to three
///    names ("詹姆斯（姓氏, 男子名）").
/// 3. Then one row for every other word that has an ordinary equivalent: a reader who meets the
///    word is helped by the first meaning far more than by a fifth one of another rare word.
/// 4. Then further equivalents of these words, and after them those of their forms.
/// 5. Last names and equivalents from the web: the first one of a word that has nothing else and no
///    sign of importance, then those of any word beside its ordinary equivalents, and all further
///    ones. There is room for few of these.
enum class Tier : std::uint8_t {
  kImportantFirst,  ///< first equivalent of an important word, of whatever kind it has
  kImportant,       ///< further equivalent of an important word, of the same kind, or a name
  kFirst,           ///< first ordinary equivalent of another word
  kOrdinary,        ///< further ordinary equivalent of another word
  kInflected,       ///< further equivalent, its own or taken over, of another word that is a form
  kOnly,            ///< first equivalent of another word that has only names or web equivalents
  kWebFirst,        ///< first web equivalent of a word that has others
  kName,            ///< any other name
  kWeb,             ///< any other web equivalent
};

inline constexpr std::size_t kTierCount = 9;

/// An English headword and a Chinese equivalent, as indexes into the vocabulary's lists.
struct Pair {
  std::uint32_t english = 0;
  std::uint32_t chinese = 0;
  Tier tier = Tier::kWeb;
  std::uint8_t position = 0;  ///< among the headword's equivalents, from 0 to kMaxPosition

  /// The greatest position that fits; equivalents from there on are of equal value.
  static constexpr std::size_t kMaxPosition = 255;
};

/// All pairs that could be rows of the general dictionary.
struct Vocabulary {
  std::vector<std::u16string> english;  ///< distinct, in the text order
  std::vector<std::u16string> chinese;  ///< distinct, in the text order
  std::vector<Pair> pairs;              ///< distinct, by English, then by Chinese headword
};

/// Makes the vocabulary: takes the entries one by one, rates their pairs and sorts them in the end.
class PairCollector {
 public:
  /// Adds the entry's pairs and returns their number. Copies the texts. An entry that has no
  /// ordinary equivalent but refers to another headword gets the first four of that one's pairs in
  /// finish(). An entry that is a form of another word gets that one's first equivalents there,
  /// unless its own translation gives them, which then are as important as that word, or is what
  /// readers most often mean by it.
  std::size_t add(const Entry& entry);

  /// Returns everything added, sorted; words that are equal in the text order (they differ in case
  /// only) become one, spelled as the first. Ends the use of the collector.
  [[nodiscard]] Vocabulary finish() &&;

 private:
  /// A headword with pairs, and what is known of it.
  struct Headword {
    std::uint32_t rank = 0;
    bool important = false;
  };

  /// An entry that gives other headwords, here in lower case, as its meaning.
  struct Reference {
    std::u16string headword;
    std::vector<std::u16string> others;
    bool important = false;
  };

  /// A headword that is a form of another one.
  struct FormEntry {
    std::uint32_t english = 0;  ///< index of the headword; its pairs are added
    Inflection inflection;
    bool noted = false;         ///< whether the translation names the form
    bool alone = false;         ///< whether it gives nothing else
    bool given = false;         ///< whether it gives the form's own meaning
    std::size_t next = 0;       ///< position after those of its own pairs
    std::size_t firstPair = 0;  ///< index into pairs_ of its first own pair; there are `next`
  };

  /// A pair of a word that others refer to.
  struct Meaning {
    std::uint32_t chinese = 0;
    PartOfSpeechSet parts = 0;
  };

  /// Such a word.
  struct Referred {
    std::uint32_t rank = 0;
    bool important = false;
    std::vector<Meaning> meanings;
  };
  using ReferredWords = std::unordered_map<std::u16string, Referred>;

  void recordForms(const Entry& entry);
  void addMissingForms();
  std::size_t addForm(const Entry& entry, const std::vector<Sense>& senses);
  void collectMeanings(ReferredWords& words) const;
  void followReferences();
  void followForms();
  void followForm(const FormEntry& form, const Referred& lemma);
  void raiseForm(const FormEntry& form, const Referred& lemma);
  [[nodiscard]] bool hides(const FormEntry& form, const Referred& lemma) const;
  void addHeadword(const std::u16string& word, std::uint32_t rank, bool important);
  void addPair(std::uint32_t english, const std::u16string& chinese, Tier tier,
               std::size_t position, PartOfSpeechSet parts = 0);

  std::vector<std::u16string> english_;  ///< one for each entry with pairs, in their order
  std::vector<Headword> headwords_;      ///< by index into english_
  std::vector<std::u16string> chinese_;  ///< distinct, in the order of their first use
  std::unordered_map<std::u16string, std::uint32_t> chineseIds_;  ///< indexes into chinese_
  std::vector<Pair> pairs_;
  std::vector<PartOfSpeechSet> parts_;  ///< by index into pairs_
  std::vector<Reference> references_;
  std::vector<FormEntry> forms_;
  std::map<std::u16string, Inflection> listedForms_;  ///< of important words, by the form
};

}  // namespace dictionary
