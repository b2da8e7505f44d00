#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace dictionary {

/// Why a piece of a translation is no Chinese headword.
enum class PieceFault : std::uint8_t {
  kNone,
  kNoHan,          ///< holds no Han character
  kTooLong,        ///< more than 20 characters
  kPunctuation,    ///< punctuation or a wildcard is left over
  kLostCharacter,  ///< holds a character that stands for a lost one, or none a row may hold
  kLabel,          ///< names a kind of word ("人名"), or is a bare particle
  kExplanation,    ///< explains a name instead of translating it
  kCount,
};

/// What a report calls the fault, e.g. "longer than 20 characters".
std::string_view describe(PieceFault fault);

/// A piece of a translation as a Chinese headword; `word` is "" if there is a fault.
struct Equivalent {
  std::u16string word;
  PieceFault fault = PieceFault::kNone;
};

/// Makes a Chinese headword of a piece (see headwordText), or says why there is none.
Equivalent makeEquivalent(std::u16string_view piece, bool abbreviation);

/// Whether no lost or forbidden character stands in `text`.
bool isIntact(std::u16string_view text);

}  // namespace dictionary
