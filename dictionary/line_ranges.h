#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace dictionary {

/// Numbers of lines, kept as ranges.
class LineRanges {
 public:
  /// Adds a line behind all that are there.
  void add(std::size_t line);

  [[nodiscard]] std::size_t count() const { return count_; }

  /// "line 7", or "lines 7-9, 12".
  [[nodiscard]] std::string text() const;

 private:
  struct Range {
    std::size_t first;
    std::size_t last;
  };

  std::vector<Range> ranges_;
  std::size_t count_ = 0;
};

}  // namespace dictionary
