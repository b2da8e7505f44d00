#pragma once

#include <cstddef>

namespace data {
class RecordSet;
}

namespace query {

/// Makes row `chosen` of the catalogue, counted from 1, the default dictionary, and no other: each
/// row that changes is written by itself, at once. The chosen one is written even if it is the
/// default already. Throws data::Error; what was written before stays.
void chooseDefault(data::RecordSet& catalogue, std::size_t chosen);

/// Number of the last row of the catalogue that is flagged as default, from 1; 0 for none.
std::size_t lastDefault(data::RecordSet& catalogue);

}  // namespace query
