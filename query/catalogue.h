#pragma once

#include <cstddef>
#include <string_view>

namespace data {
class RecordSet;
}

/// The catalogue of the subject dictionaries, table [Index], and which of them is the default. Rows
/// are counted from 1, in the order of the dictionaries' names, which is that of the nodes in the
/// windows. Functions throw data::Error. Deliberate: every blank in the SQL texts, and that they
/// write the table's name differently.
namespace query {

/// The dictionaries that are shown, in the order of their names.
inline constexpr std::u16string_view kShownDictionaries =
    u"select * from  [Index]  where Isshow = 1 order by Cname";

/// All dictionaries, in the order of their names.
inline constexpr std::u16string_view kAllDictionaries = u"select * from [index] order by Cname";

/// Makes row `chosen` of the catalogue the default dictionary, and no other. Deliberate: each row
/// is written by itself, without a transaction around them, and the chosen one even if it is the
/// default already. After an error, what was written before it stays.
void chooseDefault(data::RecordSet& catalogue, std::size_t chosen);

/// Returns the number of the last row that is flagged as default; 0 if none is. Several are only in
/// a file that was edited by other means; the last one counts.
std::size_t lastDefault(data::RecordSet& catalogue);

}  // namespace query
