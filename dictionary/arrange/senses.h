#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dictionary/translation/entry.h"

/// Which of an entry's equivalents the general dictionary offers, in their order of importance.
namespace dictionary {

/// Kinds of equivalents, by the subject tags of their lines.
enum class SenseKind : std::uint8_t { kOrdinary, kName, kWeb };

/// An equivalent that an entry offers; the word belongs to the entry.
struct Sense {
  const std::u16string* word = nullptr;
  SenseKind kind = SenseKind::kOrdinary;
  PartOfSpeechSet parts = 0;  ///< of all lines that hold it
  bool reference = false;     ///< names the form of another word: "take的过去分词"
};

/// Up to this rank by frequency a word is common: it occurs on every page or two of running text.
inline constexpr std::uint32_t kCommonRank = 5'000;

/// Returns whether the word of the entry is common.
inline bool isCommon(const Entry& entry) { return entry.rank > 0 && entry.rank <= kCommonRank; }

/// Returns the entry's distinct equivalents: ordinary ones, then names, then those from the web,
/// each in the order of the source, which is its order of importance. Of a common word only some
/// are returned, since its rows are sorted by their Chinese text, so that any rare sense may come
/// first: at most ten ordinary ones, taken in turn from its lines (that is, of each part of
/// speech); no slang beside others; at most two from lines of a subject, which that subject's
/// dictionary has as well, and none of these for a function word or one of the most frequent; none
/// from the web beside others.
std::vector<Sense> sensesOf(const Entry& entry);

}  // namespace dictionary
