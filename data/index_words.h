#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/data_control.h"

namespace data {

/// The shared index list: slot 0 empty, slot k the lower-cased headword of [edict] row k x 100.
using IndexWords = std::vector<std::u16string>;

/// The query for table [edictidx].
inline constexpr std::u16string_view kIndexQuery = u"select word from edictidx order by word";

/// Takes the rows of kIndexQuery into an index list. Throws std::overflow_error above 32,767 rows.
IndexWords readIndexWords(RecordSet& rows);

/// Runs kIndexQuery and reads its rows.
IndexWords readIndexWords(DataControl& control);

}  // namespace data
