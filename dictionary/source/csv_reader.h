#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

/// Reading the source, a CSV file in UTF-8 with a header line. A full one has 770,000 lines.
namespace dictionary {

/// Reasons why a line of the source cannot be read.
enum class LineFault {
  kNone,
  kTooLong,           ///< longer than a megabyte
  kInvalidUtf8,       ///< not well-formed UTF-8
  kControlCharacter,  ///< contains NUL or another control character except the tab
  kOpenQuote,         ///< a quoted field has no closing quote on its line
  kTextAfterQuote,    ///< a closing quote is followed by something other than a comma
  kColumnCount,       ///< more or fewer columns than the header
};

/// Returns a clause for reports, such as "a quoted field does not end".
std::string_view describe(LineFault fault);

/// Splits one line of comma-separated values into `fields`, replacing what it holds, and returns
/// kNone; otherwise a fault, with the fields before it in `fields`. `line` has no line ending.
/// Quoting as in RFC 4180, with two exceptions: a quote inside an unquoted field is an ordinary
/// character, and a quoted field cannot contain a line break, so that a missing quote spoils its
/// own line only. Does not return kTooLong or kColumnCount.
LineFault splitCsvLine(std::string_view line, std::vector<std::string>& fields);

/// The columns of one line that the dictionary uses. Texts are UTF-8, as in the source: not yet
/// cleaned (cleanup.h).
struct SourceEntry {
  std::string word;
  std::string translation;
  /// Whether the source gives the word a frequency rank, an examination's list or a place in a
  /// learner's dictionary.
  bool important = false;
  /// The better of the word's ranks by frequency in two corpora, 1 for the most frequent word; 0 if
  /// it has none. Ranks are of lemmas: a form of a word ("asked") has none, or one as a word of its
  /// own.
  std::uint32_t rank = 0;
  /// Forms and lemma, see inflection.h.
  std::string exchange = {};
};

/// Up to this rank readers of running text meet a word often: some 23,000 words, since a rank is
/// the better one of two.
inline constexpr std::uint32_t kFrequentRank = 20'000;

/// Reads the source entry by entry. A line that cannot be read is reported by its number and does
/// not affect the others, whatever bytes it contains.
class SourceReader {
 public:
  /// What next() has read: an entry, a line that it could not read, or nothing more.
  enum class Result { kEntry, kBadLine, kEnd };

  /// Reads the header, whose columns may be in any order; others than those used are skipped. Keeps
  /// a reference to `stream`, which must be open in binary mode and outlive the reader. Throws
  /// Failure if the header is missing, cannot be read or lacks a column.
  explicit SourceReader(std::istream& stream);

  /// Reads the next line that is not empty, into entry() or fault(). An error of the stream reads
  /// as its end.
  Result next();

  /// The entry of the last kEntry; overwritten by the next one.
  [[nodiscard]] const SourceEntry& entry() const { return entry_; }
  /// Number of the line read last, from 1; the header is line 1.
  [[nodiscard]] std::size_t lineNumber() const { return lineNumber_; }
  /// Fault of the line read last; kNone for an entry.
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
  std::size_t exchangeColumn_ = 0;
  std::vector<std::size_t> importanceColumns_;
  std::vector<std::size_t> rankColumns_;
};

}  // namespace dictionary
