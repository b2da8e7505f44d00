#include "dictionary/source/source_reader.h"

#include <algorithm>
#include <string_view>

#include "dictionary/console.h"

namespace dictionary {
namespace {

constexpr std::size_t kMaxLineBytes = 1U << 20U;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

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
  for (const std::string_view name : {"collins", "oxford", "tag", "bnc", "frq"}) {
    importanceColumns_.push_back(columnOf(name));
  }
}

std::size_t SourceReader::columnOf(std::string_view name) const {
  const auto found = std::find(fields_.begin(), fields_.end(), name);
  if (found == fields_.end()) {
    throw Failure("the source's header has no column \"" + std::string(name) + "\"");
  }
  return static_cast<std::size_t>(found - fields_.begin());
}

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
  return Result::kEntry;
}

}  // namespace dictionary
