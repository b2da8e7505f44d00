#include <algorithm>

#include "tests/support/window/fake_uia.h"

namespace support::grid {

Rows rowsOf(const std::u16string& text, std::size_t columns) {
  Rows rows;
  std::size_t begin = 0;
  while (true) {
    const std::size_t lineEnd = std::min(text.find(u'\n', begin), text.size());
    for (; columns > 0 && lineEnd - begin > columns; begin += columns) {
      rows.push_back({begin, begin + columns});
    }
    rows.push_back({begin, lineEnd});
    if (lineEnd == text.size()) return rows;
    begin = lineEnd + 1;
  }
}

std::size_t nearest(const Rows& rows, POINT point, bool rowOnly) {
  const long number = std::max(0L, (point.y - kTop) / kHeight);
  const Row& row = rows[std::min(static_cast<std::size_t>(number), rows.size() - 1)];
  if (rowOnly) return row.begin;
  const long column = std::max(0L, (point.x - kLeft + kWidth / 2) / kWidth);
  return row.begin + std::min(row.end - row.begin, static_cast<std::size_t>(column));
}

std::vector<double> rectangles(const Rows& rows, std::size_t begin, std::size_t end) {
  std::vector<double> all;
  for (std::size_t number = 0; number < rows.size(); ++number) {
    const Row& row = rows[number];
    const std::size_t first = std::max(begin, row.begin);
    const std::size_t last = std::min(end, row.end);
    if (first >= last) continue;
    all.push_back(kLeft + static_cast<double>(first - row.begin) * kWidth);
    all.push_back(kTop + static_cast<double>(number) * kHeight);
    all.push_back(static_cast<double>(last - first) * kWidth);
    all.push_back(kHeight);
  }
  return all;
}

}  // namespace support::grid
