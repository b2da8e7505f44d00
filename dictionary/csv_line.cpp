#include "dictionary/csv_line.h"

#include <algorithm>
#include <cstddef>

namespace dictionary {
namespace {

/// Length of the valid UTF-8 sequence at the beginning of `bytes`, 0 if there is none.
std::size_t sequenceLength(std::string_view bytes) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char lead = at(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((at(i) & 0xC0) != 0x80) return 0;
  }
  const bool overlong = (lead == 0xE0 && at(1) < 0xA0) || (lead == 0xF0 && at(1) < 0x90);
  const bool outside = (lead == 0xED && at(1) > 0x9F) || (lead == 0xF4 && at(1) > 0x8F);
  return overlong || outside ? 0 : length;
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
