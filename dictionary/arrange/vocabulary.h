#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "dictionary/translation/entry.h"

/// The pairs that could be rows of the general dictionary, and what each is worth.
namespace dictionary {

/// Value of a pair where not all of them fit, the most valuable first. "Important" words are those
/// of SourceEntry::important; names and web equivalents are those with such a subject tag.
enum class Tier : std::uint8_t {
  kImportantFirst,  ///< first equivalent of an important word
  kImportant,       ///< further equivalent of an important word
  kFirst,           ///< first equivalent of another word
  kOrdinary,        ///< further equivalent of another word
  kInflectedFirst,  ///< first equivalent of an inflected form
  kInflected,       ///< further equivalent of an inflected form
  kOnly,            ///< first equivalent of a word that has only names or web equivalents
  kWebFirst,        ///< first web equivalent of a word that has others
  kName,            ///< any other name
  kWeb,             ///< any other web equivalent
};

inline constexpr std::size_t kTierCount = 10;

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
  /// Adds the entry's pairs and returns their number. Copies the texts. An entry that has none but
  /// refers to another headword gets the first four of that one's pairs in finish().
  std::size_t add(const Entry& entry);

  /// Returns everything added, sorted; words that are equal in the text order (they differ in case
  /// only) become one, spelled as the first. Ends the use of the collector.
  [[nodiscard]] Vocabulary finish() &&;

 private:
  /// An entry that gives other headwords, here in lower case, as its meaning.
  struct Reference {
    std::u16string headword;
    std::vector<std::u16string> others;
    bool important = false;
  };

  void followReferences();
  void addPair(const std::u16string& chinese, Tier tier, std::size_t position);

  std::vector<std::u16string> english_;  ///< one for each entry with pairs, in their order
  std::vector<std::u16string> chinese_;  ///< distinct, in the order of their first use
  std::unordered_map<std::u16string, std::uint32_t> chineseIds_;  ///< indexes into chinese_
  std::vector<Pair> pairs_;
  std::vector<Reference> references_;
};

}  // namespace dictionary
