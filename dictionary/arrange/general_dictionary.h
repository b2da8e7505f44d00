#pragma once

#include <cstdint>
#include <vector>

#include "dictionary/arrange/vocabulary.h"

namespace dictionary {

/// One row of [edict] or [cdict]. Its row number is its index in the table plus 1.
struct HeadwordRow {
  std::uint32_t word = 0;  ///< index into the vocabulary's list of that language
  std::uint32_t link = 0;  ///< row number of the other half of the pair in the other table
};

/// The rows of the general dictionary, each table in the text order of its headwords.
struct GeneralDictionary {
  std::vector<HeadwordRow> edict;
  std::vector<HeadwordRow> cdict;
};

/// Makes the rows of the chosen pairs. `chosen` has one flag for each of the vocabulary's pairs.
GeneralDictionary arrange(const Vocabulary& vocabulary, const std::vector<bool>& chosen);

}  // namespace dictionary
