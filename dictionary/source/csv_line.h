#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dictionary {

/// What is wrong with a line of the source.
enum class LineFault {
  kNone,
  kTooLong,           ///< longer than a megabyte
  kInvalidUtf8,       ///< holds bytes that are no UTF-8
  kControlCharacter,  ///< holds a NUL or another control character except the tab
  kOpenQuote,         ///< a quoted field does not end on its line
  kTextAfterQuote,    ///< a quoted field is followed by something else than a comma
  kColumnCount,       ///< more or fewer columns than the header
};

/// A clause for reports, e.g. "a quoted field does not end".
std::string_view describe(LineFault fault);

/// Whether the bytes are well-formed UTF-8.
bool isUtf8(std::string_view bytes);

/// Splits one line of comma-separated values into its fields. A record is one line, always: a
/// quote that is left open spoils its own line only.
LineFault splitCsvLine(std::string_view line, std::vector<std::string>& fields);

}  // namespace dictionary
