#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace dictionary {

/// Why a line of the source cannot be read.
enum class LineFault {
  kNone,
  kTooLong,           ///< longer than a megabyte
  kInvalidUtf8,       ///< not well-formed UTF-8
  kControlCharacter,  ///< contains NUL or another control character except the tab
  kOpenQuote,         ///< a quoted field has no closing quote on its line
  kTextAfterQuote,    ///< a closing quote is followed by something other than a comma
  kColumnCount,       ///< more or fewer columns than the header
};

/// A clause for reports, e.g. "a quoted field does not end".
std::string_view describe(LineFault fault);

/// Splits one line of comma-separated values into `fields`, which holds the fields read so far if a
/// fault is returned. `line` has no line ending. Quoting as in RFC 4180, with two exceptions: a
/// quote inside an unquoted field is an ordinary character, and a quoted field cannot contain a
/// line break, so that a missing quote spoils its own line only.
LineFault splitCsvLine(std::string_view line, std::vector<std::string>& fields);

/// What the dictionary takes from one line of the source. Texts are UTF-8.
struct SourceEntry {
  std::string word;
  std::string translation;
  /// Whether the source gives the word a frequency rank, an examination's list or a place in a
  /// learner's dictionary.
  bool important = false;
};

/// Reads the source, a CSV file with a header line, entry by entry. A line that cannot be read is
/// reported by its number and does not affect the others, whatever bytes it contains.
class SourceReader {
 public:
  enum class Result { kEntry, kBadLine, kEnd };

  /// Reads the header, whose columns may come in any order. Keeps a reference to `stream`, which
  /// must be open in binary mode and outlive the reader. Throws Failure if the header is missing,
  /// cannot be read or lacks a column.
  explicit SourceReader(std::istream& stream);

  /// Reads the next line that is not empty.
  Result next();

  /// The entry of the last kEntry.
  [[nodiscard]] const SourceEntry& entry() const { return entry_; }
  /// Number of the line read last, from 1; the header is line 1.
  [[nodiscard]] std::size_t lineNumber() const { return lineNumber_; }
  /// Fault of the line read last.
  [[nodiscard]] LineFault fault() const { return fault_; }

 private:
  bool readLine();
  [[nodiscard]] std::size_t columnOf(std::string_view name) const;

  std::istream& stream_;
  std::string line_;
  std::vector<std::string> fields_;
  SourceEntry entry_;
  std::size_t lineNumber_ = 0;
  LineFault fault_ = LineFault::kNone;

  std::size_t columns_ = 0;
  std::size_t wordColumn_ = 0;
  std::size_t translationColumn_ = 0;
  std::vector<std::size_t> importanceColumns_;
};

}  // namespace dictionary
