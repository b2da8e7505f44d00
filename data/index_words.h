#pragma once

#include <string>
#include <vector>

#include "data/data_control.h"

namespace data {

/// The shared index list: slot 0 empty, slot k the lower-cased headword of [edict] row k x 100.
using IndexWords = std::vector<std::u16string>;

/// Reads table [edictidx] into an index list. Throws std::overflow_error above 32,767 rows.
IndexWords readIndexWords(DataControl& control);

}  // namespace data
