#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace data {
class RecordSet;
}

/// Searches of one subject dictionary: their SQL texts, and the lines that show what they find, a
/// word padded to a column and its meaning. Deliberate: every blank in the SQL texts. What reads a
/// record set throws data::Error.
namespace query {

/// Modes of a search: texts that begin with what was typed, and texts that contain it.
inline constexpr std::u16string_view kEasy = u"Easy";
inline constexpr std::u16string_view kComplex = u"Complex";

/// A search as it is run.
struct Search {
  std::u16string sql;          ///< "" for a mode that is none
  std::u16string_view column;  ///< the column searched, "word" or "meaning"
};

/// The search of `table` for `text`, whose wildcards are converted and quotes doubled in the
/// caller's variable. A Chinese text is searched for in the meanings. Deliberate: words and
/// meanings are then named as each other, so that the meaning leads the result line.
Search makeQuerySql(std::u16string& text, std::u16string_view mode, std::u16string_view table);

/// The search of `table` for entries with `english` in the word and `chinese` in the meaning, both
/// exactly as typed: no wildcards, no quotes doubled.
std::u16string specialSql(std::u16string_view table, std::u16string_view english,
                          std::u16string_view chinese);

/// What the input box shows after that search.
std::u16string specialInput(std::u16string_view english, std::u16string_view chinese);

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
