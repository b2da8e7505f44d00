#include "dictionary/source/csv_line.h"

#include <algorithm>
#include <cstddef>

#include "text/units.h"

namespace dictionary {
namespace {

/// Length of the valid UTF-8 sequence at the beginning of `bytes`, 0 if there is none.
std::size_t sequenceLength(std::string_view bytes) {
  const bool ascii = static_cast<unsigned char>(bytes[0]) < 0x80;
  return ascii ? 1 : text::readSequence(bytes).length;
}

bool isControl(char byte) {
  return (static_cast<unsigned char>(byte) < 0x20 && byte != '\t') || byte == 0x7F;
}

/// Reads the quoted field that begins at `position` and moves behind its closing quote.
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

}  // namespace

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = sequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

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

}  // namespace dictionary
