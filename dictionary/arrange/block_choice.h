#pragma once

#include <vector>

#include "dictionary/arrange/lookup_limits.h"
#include "dictionary/arrange/vocabulary.h"

namespace dictionary {

/// Chooses the pairs that the general dictionary takes, so that the lookups reach every row: as
/// many whole blocks of rows as there are pairs for and as fit; no English headword, and no group
/// of English headwords that are the same up to their first apostrophe, runs from one block into
/// the next; no Chinese headword has more rows than a search reaches. Of what must stay out, the
/// least valuable pairs do.
/// Returns one flag for each of the vocabulary's pairs. Throws Failure if they fill no block.
std::vector<bool> choosePairs(const Vocabulary& vocabulary, const LookupLimits& limits);

}  // namespace dictionary
