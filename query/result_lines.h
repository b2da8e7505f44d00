#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace data {
class RecordSet;
}

/// Result lines: a word, padded to a column, and its meaning.
namespace query {

/// Rows of which the width of the words' column is taken.
inline constexpr int kSampledRows = 10;

/// Width of the words' column for `rows` words (at least one) that take `columns` columns together:
/// their mean, rounded to the nearest integer with halves to even, plus 10. Throws
/// std::overflow_error beyond 16 bits.
std::int16_t lineWidth(std::size_t columns, std::size_t rows);

/// The same for the first kSampledRows rows of `rows`, which must not be empty. Leaves it behind
/// the last row that it read.
std::int16_t sampleWidth(data::RecordSet& rows);

/// The line for the current row.
std::u16string resultLine(data::RecordSet& rows, std::int16_t width);

}  // namespace query
