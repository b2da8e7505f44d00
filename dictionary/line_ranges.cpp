#include "dictionary/line_ranges.h"

namespace dictionary {

void LineRanges::add(std::size_t line) {
  ++count_;
  if (!ranges_.empty() && ranges_.back().last + 1 == line) {
    ranges_.back().last = line;
  } else {
    ranges_.push_back({line, line});
  }
}

std::string LineRanges::text() const {
  std::string text = count_ == 1 ? "line " : "lines ";
  for (const Range& range : ranges_) {
    if (&range != &ranges_.front()) text += ", ";
    text += std::to_string(range.first);
    if (range.last != range.first) text += '-' + std::to_string(range.last);
  }
  return text;
}

}  // namespace dictionary
