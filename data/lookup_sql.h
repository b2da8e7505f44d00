#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The SQL texts of the headword lookups, and the numbers and keys that they search by. The builder
/// of the dictionary takes the same ones, so that what it builds is what the lookups reach.
///
/// Words are given with their quotes doubled and inserted as they are. Deliberate: every blank,
/// doubled or missing, in these texts. The functions are pure and throw nothing but std::bad_alloc.
namespace data {

/// Rows of a block: index row k, from 1, holds the headword of row k * kBlockRows of [edict] or
/// [cdict].
inline constexpr std::int32_t kBlockRows = 100;

/// The lower bound of a search is k * kBlockRows - kReachBack for index row k: two blocks, so that
/// a headword whose rows begin in the block before is found from its first row on. The result is
/// negative for the first block, which is searched from row 1 then.
inline constexpr std::int32_t kReachBack = 200;

/// The widest difference of the bounds: a list or meaning query reads at most kWindowRows + 1 rows.
inline constexpr std::int32_t kWindowRows = 500;

/// Upper bound of a Chinese search that no index row ends, and thereby the most rows that [cdict]
/// and [edict] may have.
inline constexpr std::int32_t kLastRow = 1'060'000;

/// Headwords that a list shows at most: the "top" of the list queries.
inline constexpr std::int32_t kListLength = 75;

/// Replacements of each "%" and "_" in a search key. In a lower key it is "0", which sorts
/// before every letter and every Han character. In an upper key it is one that sorts after what may
/// follow: λ (U+03BB) is above all of Latin-1; 做 (U+505A) is the last of the 6,763 characters of
/// GB 2312 in the text order.
inline constexpr std::u16string_view kLowSubstitute = u"0";
inline constexpr std::u16string_view kEnglishHighSubstitute = u"λ";
inline constexpr std::u16string_view kChineseHighSubstitute = u"做";

/// Appended to the upper key of a Chinese search, so that it sorts after nearly all words that
/// begin with that key.
inline constexpr std::u16string_view kChineseHighSuffix = u"做做";

/// All words of [edictidx] in the text order.
inline constexpr std::u16string_view kIndexQuery = u"select word from edictidx order by word";

/// The row numbers (eid of [edict] or cid of [cdict]) that a list or meaning query searches; both
/// ends included. `lower` may be below 1, and `upper` beyond the last row.
struct Bounds {
  std::int32_t lower = 0;
  std::int32_t upper = 0;
  bool operator==(const Bounds&) const = default;
};

/// Returns `word` as a search key, with each "%" and "_" replaced by `replacement`, one of the
/// substitutes above.
std::u16string withoutWildcards(std::u16string_view word, std::u16string_view replacement);

/// The list query: column "Word", up to kListLength headwords from `word` on.
std::u16string englishListSql(Bounds bounds, std::u16string_view word);
std::u16string chineseListSql(Bounds bounds, std::u16string_view word);

/// The meaning query: columns "Word" and "Meaning", one row for each equivalent of the headword
/// `word`, in the text order of the equivalents.
std::u16string englishMeaningSql(Bounds bounds, std::u16string_view word);
std::u16string chineseMeaningSql(Bounds bounds, std::u16string_view word);

/// The rows of [cdictidx] up to the key `low`, of which the last determines the lower bound.
std::u16string indexRowsUpToSql(std::u16string_view low);
/// The rows of [cdictidx] from `high` followed by kChineseHighSuffix on, of which the first gives
/// the upper bound.
std::u16string indexRowsFromSql(std::u16string_view high);

}  // namespace data
