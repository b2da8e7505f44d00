#pragma once

#include <vector>

#include "dictionary/arrange/vocabulary.h"
#include "dictionary/gloss/cedict.h"
#include "dictionary/gloss/term_list.h"
#include "dictionary/source/word_frequencies.h"

/// What is known from the Chinese side: pairs given by Chinese headwords, and what a pair is worth
/// to those who look up its Chinese headword.
namespace dictionary {

/// The sources besides the English one. Any of them may be empty.
struct ChineseSources {
  std::vector<ChineseEntry> entries;
  /// Current terms, each of which is worth a row (Tier), but for an abbreviation that is spelled as
  /// a common word ("IT").
  std::vector<Term> terms;
  WordRanks ranks;
};

/// Adds the pairs of the sources to the vocabulary and rates pairs by their Chinese headwords (see
/// Tier). A pair that the vocabulary has keeps the better of its tiers.
/// - A Chinese headword gets its first three equivalents; the first other text, such as an
///   explanation, only if it has no pair otherwise.
/// - A common English word (kCommonRank) gets the most frequent Chinese words of those that have it
///   among these three and that the vocabulary does not give it already, eight at most, and no rare
///   single character: every synonym has it as its gloss.
/// - A common Chinese word has a row in any case.
/// - No abbreviation that is spelled as a common word is added ("IT").
Vocabulary addChineseSide(Vocabulary vocabulary, const ChineseSources& sources);

}  // namespace dictionary
