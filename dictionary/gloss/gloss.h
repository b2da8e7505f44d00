#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/gloss/references.h"
#include "dictionary/translation/subjects.h"

/// Parsing a gloss of the second source into English headwords. Its grammar is known from its texts
/// only, so that nothing is an error: what cannot be used is left out. The functions are pure.
namespace dictionary {

/// What an English text is worth as a translation of its Chinese word, the best first.
enum class GlossValue : std::uint8_t {
  kPair,         ///< an equivalent of at most four words
  kUsage,        ///< the same, but the word has it in a region, an age or a style only
  kExplanation,  ///< a longer text, or one that describes: for a word that has nothing else
  kPart,         ///< a meaning of words in which the character is used
  kSurname,      ///< "surname Li"
  kLiteral,      ///< the word-for-word meaning of a phrase that means another thing
};

/// The most words of a pair.
inline constexpr std::size_t kMaxPairWords = 4;

/// An English text for a Chinese word.
struct Gloss {
  std::u16string english;  ///< a headword as headword() in source/cleanup.h allows it
  std::size_t words = 0;   ///< in `english`
  SubjectSet subjects = 0;
  GlossValue value = GlossValue::kPair;
};

/// Returns whether the text is an equivalent, not an explanation or the like.
inline bool isEquivalent(const Gloss& gloss) {
  return gloss.value == GlossValue::kPair || gloss.value == GlossValue::kUsage;
}

/// A gloss of the source as it is parsed.
struct ParsedGloss {
  std::vector<Gloss> glosses;  ///< in the order of the source
  std::vector<GlossReference> references;
};

/// What a record is about, on which the grammar of its glosses depends.
enum class WordKind : std::uint8_t {
  kTerm,
  kCharacter,  ///< a single one: "to insult or maltreat" are two of its meanings
  kPhrase,     ///< an idiom, a saying or a slogan, as one gloss of the record says
};

/// Parses one gloss: "lit. change to more severe (idiom); to become more intense". Meanings that
/// semicolons part are several equivalents. A note before the first one holds for all of them.
/// Texts that are literal have GlossValue::kLiteral, whether or not there is another meaning.
ParsedGloss parseGloss(std::u16string_view gloss, WordKind kind = WordKind::kTerm);

/// Returns whether the gloss has a note that its word is an idiom, a saying or a slogan, so that
/// all glosses of the record are sentences or parts of them rather than terms.
bool marksPhrase(std::u16string_view gloss);

}  // namespace dictionary
