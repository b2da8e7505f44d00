#include <algorithm>

#include "tests/support/window/fake_uia.h"

namespace support::grid {
namespace {

/// Where the row begins that holds the character at `index`, and its number.
std::pair<std::size_t, int> rowOf(const std::u16string& text, std::size_t index) {
  const auto before = std::u16string_view(text).substr(0, index);
  const std::size_t lineEnd = before.rfind(u'\n');
  return {lineEnd == std::u16string_view::npos ? 0 : lineEnd + 1,
          static_cast<int>(std::count(before.begin(), before.end(), u'\n'))};
}

}  // namespace

std::size_t nearest(const std::u16string& text, POINT point) {
  const long row = std::max(0L, (point.y - kTop) / kHeight);
  std::size_t begin = 0;
  for (long i = 0; i < row; ++i) {
    const std::size_t lineEnd = text.find(u'\n', begin);
    if (lineEnd == std::u16string::npos) break;
    begin = lineEnd + 1;
  }
  const std::size_t length = std::min(text.find(u'\n', begin), text.size()) - begin;
  const long column = std::max(0L, (point.x - kLeft + kWidth / 2) / kWidth);
  return begin + std::min(length, static_cast<std::size_t>(column));
}

std::vector<double> rectangles(const std::u16string& text, std::size_t begin, std::size_t end) {
  std::vector<double> all;
  auto [rowBegin, row] = rowOf(text, begin);
  while (begin < end) {
    const std::size_t rowEnd = std::min(text.find(u'\n', begin), text.size());
    const std::size_t last = std::min(rowEnd, end);
    if (last > begin) {
      all.push_back(kLeft + static_cast<double>(begin - rowBegin) * kWidth);
      all.push_back(kTop + row * kHeight);
      all.push_back(static_cast<double>(last - begin) * kWidth);
      all.push_back(kHeight);
    }
    begin = rowBegin = rowEnd + 1;
    ++row;
  }
  return all;
}

}  // namespace support::grid
