#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Chinese headwords from pieces of a translation. The functions are pure.
namespace dictionary {

/// Reasons why a piece of a translation cannot be a Chinese headword.
enum class PieceFault : std::uint8_t {
  kNone,
  kNoHan,          ///< contains no Han character
  kTooLong,        ///< more than 20 Han characters, or 40 in all
  kPunctuation,    ///< contains punctuation or a wildcard that could not be removed
  kLostCharacter,  ///< contains a substitute for a lost character, or a forbidden one
  kLabel,          ///< names a kind of word ("人名"), or is a bare particle
  kExplanation,    ///< explains a name instead of translating it
  kCount,          ///< not a fault: the number of values
};

/// Returns the fault in the words of a report, such as "longer than 20 Han characters".
std::string_view describe(PieceFault fault);

/// A piece of a translation as a Chinese headword; `word` is empty if there is a fault.
struct Equivalent {
  std::u16string word;
  PieceFault fault = PieceFault::kNone;
  /// With kTooLong, the text of up to 30 Han characters and 40 in all that can serve an entry
  /// without any equivalent: "观众/听众通过电话参与讨论或提问的电视节目". Otherwise empty.
  std::u16string explanation;
};

/// Makes a Chinese headword of a piece: notes are deleted, wide forms narrowed, outer quotation
/// marks, dots and blanks removed. Of an abbreviation, its expansion in foreign words is removed as
/// well; a single word only if `abbreviation` is set: the line translates an abbreviation.
Equivalent makeEquivalent(std::u16string_view piece, bool abbreviation);

/// Returns a Chinese word as a headword, with wide forms narrowed ("，" becomes ","); "" if it
/// cannot be one: see PieceFault, of which kLabel does not apply. `word` is a word of its own, not
/// a piece of a translation; it has at most 20 characters.
std::u16string chineseHeadword(std::u16string_view word);

}  // namespace dictionary
