#pragma once

#include <cstddef>
#include <string_view>

namespace data {
class RecordSet;
}

/// The catalogue of the subject dictionaries, table [Index], and which of them is the default. Rows
/// are counted from 1. All functions throw data::Error.
namespace query {

/// The dictionaries that are shown, in the order of their names.
inline constexpr std::u16string_view kShownDictionaries =
    u"select * from  [Index]  where Isshow = 1 order by Cname";

/// All dictionaries, in the order of their names.
inline constexpr std::u16string_view kAllDictionaries = u"select * from [index] order by Cname";

/// Makes row `chosen` of the catalogue, counted from 1, the default dictionary, and no other: each
/// row that changes is written by itself, at once. The chosen one is written even if it is the
/// default already. After an error what was written before it stays.
void chooseDefault(data::RecordSet& catalogue, std::size_t chosen);

/// Number of the last row of the catalogue that is flagged as default, from 1; 0 for none.
std::size_t lastDefault(data::RecordSet& catalogue);

}  // namespace query
