#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The SQL texts of the headword lookups. Words are given with their quotes doubled. Every blank
/// and every missing blank in these texts is meant.
namespace data {

/// A window of row numbers (eid or cid) that a list or meaning query searches; both ends included.
struct Bounds {
  std::int32_t lower = 0;
  std::int32_t upper = 0;
  bool operator==(const Bounds&) const = default;
};

/// Up to 75 headwords from `word` on.
std::u16string englishListSql(Bounds bounds, std::u16string_view word);
std::u16string chineseListSql(Bounds bounds, std::u16string_view word);

/// All equivalents of the headword `word`.
std::u16string englishMeaningSql(Bounds bounds, std::u16string_view word);
std::u16string chineseMeaningSql(Bounds bounds, std::u16string_view word);

/// The Chinese index rows up to `low`, and those from `high` and all that begins with it on.
std::u16string indexRowsUpToSql(std::u16string_view low);
std::u16string indexRowsBehindSql(std::u16string_view high);

}  // namespace data
