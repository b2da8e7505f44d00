#pragma once

#include <cstddef>
#include <vector>

#include "data/lookup_sql.h"
#include "dictionary/arrange/vocabulary.h"

namespace dictionary {

/// What the lookups can reach, by the arithmetic of their bound step (data/lookup_sql.h). Tests
/// choose smaller limits: at least one row each, and room for a block.
struct LookupLimits {
  /// Rows of a block, of which the last is named by a row of [edictidx] or [cdictidx].
  std::size_t blockRows = data::kBlockRows;
  /// Most rows of a table: where the bound step ends a Chinese search that no index row ends.
  std::size_t maxRows = data::kLastRow;
  /// Most rows of a Chinese headword: a Chinese search reaches kReachBack rows back from the last
  /// index row that is not after the word, that row included.
  std::size_t maxChineseRows = data::kReachBack + 1;
};

/// Chooses the pairs that the general dictionary takes, so that the lookups reach every row:
/// - as many whole blocks of rows as there are pairs for and as the tables may have;
/// - no English headword, and no group of English headwords that are equal up to and including
///   their first apostrophe, crosses from one block into the next;
/// - no Chinese headword has more rows than a search reaches.
/// Of the pairs that do not fit, the least valuable are left out (see Tier). Of a group that is
/// larger than a block, the pairs of important words stay, then the first pair of every other word,
/// those that only Chinese entries give last: its words are close by their spelling only.
/// English blocks are cut where few frequent headwords stand shortly before the cut, since a list
/// ends with its block.
///
/// Chinese headwords may cross a block, but only those that do not fit between two cuts, and others
/// where English blocks could not be filled otherwise. That costs some valuable pairs: where a
/// Chinese block has more of them than rows, the last ones are left out, and their English blocks
/// take less valuable ones. Of a full dictionary they are some dozens. Exchanges that would win a
/// part of them back, without a row more for any block, are not looked for.
///
/// Returns one flag for each of the vocabulary's pairs; the same ones for the same vocabulary on
/// every machine. Throws Failure if the pairs fill no block, std::invalid_argument if the limits
/// leave no room for one.
std::vector<bool> choosePairs(const Vocabulary& vocabulary, const LookupLimits& limits);

}  // namespace dictionary
