#pragma once

#include <cstdint>
#include <vector>

#include "dictionary/arrange/vocabulary.h"

namespace dictionary {

/// One row of [edict] or [cdict]. Its own number is its place in the table, from 1.
struct HeadwordRow {
  std::uint32_t word = 0;  ///< place in the vocabulary's list of that language
  std::uint32_t link = 0;  ///< number of the row of the other table with the other half
};

/// The rows of the general dictionary, in order.
struct GeneralDictionary {
  std::vector<HeadwordRow> edict;
  std::vector<HeadwordRow> cdict;
};

/// Arranges the chosen pairs: one flag for each of the vocabulary's pairs.
GeneralDictionary arrange(const Vocabulary& vocabulary, const std::vector<bool>& chosen);

}  // namespace dictionary
