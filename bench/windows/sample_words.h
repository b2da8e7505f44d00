#pragma once

#include <string>
#include <vector>

#include "data/data_control.h"

namespace bench {

/// Some `count` headwords, spread evenly over `table` and in its order, read through `control`,
/// which has its connection string. Throws data::Error.
std::vector<std::u16string> sampleWords(data::DataControl& control, const std::u16string& table,
                                        int count);

}  // namespace bench
