#include "bench/native/yardsticks.h"

#include <algorithm>
#include <chrono>

#include "text/utf.h"

namespace bench {
namespace {

std::string longestFixed(std::u16string_view pattern) {
  std::u16string_view longest;
  while (!pattern.empty()) {
    const std::u16string_view fixed = pattern.substr(0, pattern.find_first_of(u"%_"));
    if (fixed.size() > longest.size()) longest = fixed;
    pattern.remove_prefix(std::min(pattern.size(), fixed.size() + 1));
  }
  return text::toUtf8(longest);
}

std::size_t count(std::string_view texts, std::string_view piece) {
  std::size_t found = 0;
  if (piece.empty()) return found;
  for (std::size_t place = texts.find(piece); place != std::string_view::npos;
       place = texts.find(piece, place + piece.size())) {
    ++found;
  }
  return found;
}

}  // namespace

Yardsticks::Yardsticks(const char* file, const std::vector<Entry>& entries)
    : connection_(data::openConnection(file, data::Access::kRead, std::chrono::seconds(1))) {
  for (const Entry& entry : entries) {
    words_.append(text::toUtf8(entry.word)).append(1, '\0');
    meanings_.append(text::toUtf8(entry.meaning)).append(1, '\0');
  }
}

void Yardsticks::scan(std::string_view column) const {
  data::execute(connection_.get(),
                "select * from med where octet_length(" + std::string(column) + ")<0");
}

std::size_t Yardsticks::countWords(std::u16string_view pattern) const {
  return count(words_, longestFixed(pattern));
}

std::size_t Yardsticks::countMeanings(std::u16string_view pattern) const {
  return count(meanings_, longestFixed(pattern));
}

}  // namespace bench
