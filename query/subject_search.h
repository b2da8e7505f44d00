#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace data {
class RecordSet;
}

/// Searches of one subject dictionary: their SQL texts, and the lines that show what they find, a
/// word padded to a column and its meaning. Table names are put into the texts as they are.
/// Deliberate: every blank in the SQL texts. Functions that read a record set throw data::Error.
namespace query {

/// Modes of a search: for texts that begin with what was typed, and for texts that contain it.
inline constexpr std::u16string_view kEasy = u"Easy";
inline constexpr std::u16string_view kComplex = u"Complex";

/// A search as it is run.
struct Search {
  std::u16string sql;          ///< "" for any other mode
  std::u16string_view column;  ///< the column searched, "word" or "meaning"
};

/// Returns the search of `table` for `text`, whose wildcards are converted and quotes doubled in
/// the caller's variable. A Chinese text is searched for in the meanings. Deliberate: words and
/// meanings then have each other's names, so that the Chinese side comes first in the result line.
Search makeQuerySql(std::u16string& text, std::u16string_view mode, std::u16string_view table);

/// Returns the search of `table` for entries with `english` in the word and `chinese` in the
/// meaning. Deliberate: both exactly as typed, unlike in makeQuerySql. "*" and "?" are no
/// wildcards, a quote spoils the statement, and the rows are in no order.
std::u16string specialSql(std::u16string_view table, std::u16string_view english,
                          std::u16string_view chinese);

/// Returns what the input box shows after that search.
std::u16string specialInput(std::u16string_view english, std::u16string_view chinese);

/// Rows from which the width of the words' column is computed. Deliberate: a sample, so that a
/// longer word further down is followed by two blanks and its meaning is out of line.
inline constexpr int kSampledRows = 10;

/// Returns the width of the words' column, in columns of a fixed-pitch font, for `rows` words (at
/// least one) that take `columns` columns together: their mean, rounded to the nearest integer with
/// halves to even, plus 10. Throws std::overflow_error beyond 16 bits.
std::int16_t lineWidth(std::size_t columns, std::size_t rows);

/// Returns the same for the first kSampledRows rows of `rows`, which must not be empty. Leaves it
/// after the last row that it read.
std::int16_t sampleWidth(data::RecordSet& rows);

/// Returns the line for the current row.
std::u16string resultLine(data::RecordSet& rows, std::int16_t width);

}  // namespace query
