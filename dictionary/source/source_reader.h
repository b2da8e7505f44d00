#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

#include "dictionary/source/csv_line.h"

namespace dictionary {

/// What the dictionary needs of one line of the source.
struct SourceEntry {
  std::string word;
  std::string translation;
  /// Whether the word bears a mark of importance: a frequency rank, an examination's list, or a
  /// learner's dictionary.
  bool important = false;
};

/// Reads a source file, comma-separated with a header line, entry by entry. Lines that cannot be
/// read are told one by one and do no harm to the others, whatever bytes they hold.
class SourceReader {
 public:
  enum class Result { kEntry, kBadLine, kEnd };

  /// Reads the header. Throws Failure if it is missing or lacks a column.
  explicit SourceReader(std::istream& stream);

  Result next();

  [[nodiscard]] const SourceEntry& entry() const { return entry_; }
  /// Number of the line read last, from 1; the header is line 1.
  [[nodiscard]] std::size_t lineNumber() const { return lineNumber_; }
  /// What is wrong with the line read last.
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
