// A record is one line: the source writes a line break inside a field as a backslash and "n". So
// the reader takes lines apart, not the file, and a line that is damaged costs that entry alone. A
// line is judged before its fields are used: length, UTF-8, control characters, quotes, number of
// fields.

#include "dictionary/source/csv_reader.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "dictionary/console.h"
#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

/// Longer lines are not entries, but a sign of another file format; their rest is skipped without
/// keeping it in memory. The longest line of the source has some 12,500 bytes.
constexpr std::size_t kMaxLineBytes = 1U << 20U;
/// At the beginning of a file that was saved by a Windows program.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool isControl(char byte) {
  return (static_cast<unsigned char>(byte) < 0x20 && byte != '\t') || byte == 0x7F;
}

/// Reads the quoted field that begins at `position` and moves `position` past its closing quote. A
/// doubled quote is a quote of the field.
LineFault readQuoted(std::string_view line, std::size_t& position, std::string& field) {
  for (++position; position < line.size(); ++position) {
    if (line[position] != '"') {
      field += line[position];
    } else if (position + 1 < line.size() && line[position + 1] == '"') {
      field += line[++position];
    } else {
      ++position;
      return position == line.size() || line[position] == ',' ? LineFault::kNone
                                                              : LineFault::kTextAfterQuote;
    }
  }
  return LineFault::kOpenQuote;
}

/// The number that the field holds; 0 if it holds none.
std::uint32_t numberIn(std::string_view field) {
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
  return error == std::errc() && end == field.data() + field.size() ? number : 0;
}

}  // namespace

std::string_view describe(LineFault fault) {
  switch (fault) {
    case LineFault::kNone:
      return "nothing is wrong";
    case LineFault::kTooLong:
      return "it is longer than a megabyte";
    case LineFault::kInvalidUtf8:
      return "it is not UTF-8";
    case LineFault::kControlCharacter:
      return "it holds a control character";
    case LineFault::kOpenQuote:
      return "a quoted field does not end";
    case LineFault::kTextAfterQuote:
      return "a quoted field is followed by more text";
    case LineFault::kColumnCount:
      return "its number of columns differs from the header's";
  }
  return "it cannot be read";
}

LineFault splitCsvLine(std::string_view line, std::vector<std::string>& fields) {
  fields.clear();
  if (!isUtf8(line)) return LineFault::kInvalidUtf8;
  if (std::ranges::any_of(line, isControl)) return LineFault::kControlCharacter;
  // Each pass reads one field and ends at its comma or at the end of the line; a line that ends
  // with a comma has an empty field after it.
  for (std::size_t position = 0;; ++position) {
    std::string& field = fields.emplace_back();
    if (position < line.size() && line[position] == '"') {
      const LineFault fault = readQuoted(line, position, field);
      if (fault != LineFault::kNone) return fault;
    } else {
      const std::size_t end = std::min(line.find(',', position), line.size());
      field = line.substr(position, end - position);
      position = end;
    }
    if (position == line.size()) return LineFault::kNone;
  }
}

SourceReader::SourceReader(std::istream& stream) : stream_(stream) {
  if (!readLine()) throw Failure("the source is empty");
  if (line_.starts_with(kByteOrderMark)) line_.erase(0, kByteOrderMark.size());
  if (fault_ == LineFault::kNone) fault_ = splitCsvLine(line_, fields_);
  if (fault_ != LineFault::kNone) {
    throw Failure("the source's header cannot be read: " + std::string(describe(fault_)));
  }
  columns_ = fields_.size();
  wordColumn_ = columnOf("word");
  translationColumn_ = columnOf("translation");
  // Marks of learners' dictionaries, examinations' word lists, and ranks by frequency in corpora.
  for (const std::string_view name : {"collins", "oxford", "tag", "bnc", "frq"}) {
    importanceColumns_.push_back(columnOf(name));
  }
  rankColumns_ = {columnOf("bnc"), columnOf("frq")};
  exchangeColumn_ = columnOf("exchange");
}

std::size_t SourceReader::columnOf(std::string_view name) const {
  const auto found = std::find(fields_.begin(), fields_.end(), name);
  if (found == fields_.end()) {
    throw Failure("the source's header has no column \"" + std::string(name) + "\"");
  }
  return static_cast<std::size_t>(found - fields_.begin());
}

/// From the stream's buffer: std::getline would keep a line of any length. Lines end with LF or CR
/// LF; the last one may end with the file. Returns false at its end.
bool SourceReader::readLine() {
  line_.clear();
  fault_ = LineFault::kNone;
  std::streambuf& buffer = *stream_.rdbuf();
  constexpr int kEnd = std::char_traits<char>::eof();
  int byte = buffer.sbumpc();
  if (byte == kEnd) return false;
  for (; byte != kEnd && byte != '\n'; byte = buffer.sbumpc()) {
    if (line_.size() < kMaxLineBytes) {
      line_ += static_cast<char>(byte);
    } else {
      fault_ = LineFault::kTooLong;
    }
  }
  if (line_.ends_with('\r')) line_.pop_back();
  ++lineNumber_;
  return true;
}

SourceReader::Result SourceReader::next() {
  do {
    if (!readLine()) return Result::kEnd;
  } while (line_.empty() && fault_ == LineFault::kNone);
  if (fault_ == LineFault::kNone) fault_ = splitCsvLine(line_, fields_);
  if (fault_ == LineFault::kNone && fields_.size() != columns_) fault_ = LineFault::kColumnCount;
  if (fault_ != LineFault::kNone) return Result::kBadLine;

  entry_.word = fields_[wordColumn_];
  entry_.translation = fields_[translationColumn_];
  entry_.important = std::ranges::any_of(importanceColumns_, [&](std::size_t column) {
    const std::string& value = fields_[column];
    return !value.empty() && value != "0";
  });
  entry_.exchange = fields_[exchangeColumn_];
  entry_.rank = 0;
  for (const std::size_t column : rankColumns_) {
    const std::uint32_t rank = numberIn(fields_[column]);
    if (rank != 0 && (entry_.rank == 0 || rank < entry_.rank)) entry_.rank = rank;
  }
  return Result::kEntry;
}

}  // namespace dictionary
