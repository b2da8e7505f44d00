#pragma once

#include <vector>

#include "dictionary/arrange/chinese_side.h"
#include "dictionary/arrange/vocabulary.h"
#include "dictionary/gloss/term_list.h"

/// Whether our own list of terms agrees with the other sources, and with the rows that it got.
namespace dictionary {

/// Returns the terms that stand in the wrong folder: those that the vocabulary or an entry gives
/// word for word although Term::given is false, and those that none gives although it is true.
/// `vocabulary` is that of the English source, before addChineseSide().
std::vector<Term> misplacedTerms(const Vocabulary& vocabulary, const ChineseSources& sources);

/// Returns the terms that have no row of their own: those that addChineseSide() does not add, and
/// those that found no room. `chosen` has one flag for each of the vocabulary's pairs.
std::vector<Term> termsWithoutRow(const std::vector<Term>& terms, const Vocabulary& vocabulary,
                                  const std::vector<bool>& chosen);

}  // namespace dictionary
