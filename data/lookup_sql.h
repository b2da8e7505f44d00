#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The SQL texts of the headword lookups, and the row numbers that they count in. Words are given
/// with their quotes doubled. Deliberate: every blank, doubled or missing, in these texts.
namespace data {

/// Every kBlockRows rows of [edict] and [cdict] one is in the index tables: index row k names the
/// headword of row k * kBlockRows. A dictionary is built by the same numbers, so that every lookup
/// finds its rows.
inline constexpr std::int32_t kBlockRows = 100;

/// The lower bound is so far below the last row of a block, so that the block before is searched
/// too.
inline constexpr std::int32_t kReachBack = 200;

/// The widest range of rows that is searched.
inline constexpr std::int32_t kWindowRows = 500;

/// Upper bound of a Chinese search that no index row ends: the rows that [cdict] may have.
inline constexpr std::int32_t kLastRow = 1'060'000;

/// The query for table [edictidx].
inline constexpr std::u16string_view kIndexQuery = u"select word from edictidx order by word";

/// A window of row numbers (eid or cid) that a list or meaning query searches; both ends included.
struct Bounds {
  std::int32_t lower = 0;
  std::int32_t upper = 0;
  bool operator==(const Bounds&) const = default;
};

/// `word` as a search key: `replacement`, which contains neither, in the place of each "%" and "_".
std::u16string withoutWildcards(std::u16string_view word, std::u16string_view replacement);

/// Up to 75 headwords from `word` on.
std::u16string englishListSql(Bounds bounds, std::u16string_view word);
std::u16string chineseListSql(Bounds bounds, std::u16string_view word);

/// All equivalents of the headword `word`.
std::u16string englishMeaningSql(Bounds bounds, std::u16string_view word);
std::u16string chineseMeaningSql(Bounds bounds, std::u16string_view word);

/// The Chinese index rows up to `low`, and those from `high` followed by 做做 on. 做 is among the
/// last characters by pinyin, so that the latter pass over nearly all words that begin with `high`.
std::u16string indexRowsUpToSql(std::u16string_view low);
std::u16string indexRowsBehindSql(std::u16string_view high);

}  // namespace data
