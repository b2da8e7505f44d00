#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dictionary {

/// Row numbers, from 1, that a lookup searches; both ends included.
struct RowWindow {
  std::int64_t lower = 0;
  std::int64_t upper = 0;

  [[nodiscard]] bool holds(std::int64_t first, std::int64_t last) const {
    return lower <= first && last <= upper;
  }
};

/// The bound step of the lookups (data/headword_lookup.h) on an index in memory, so that it can be
/// followed for every headword. The index need not be in order: it is searched as the lookups do.
class EnglishBoundStep {
 public:
  explicit EnglishBoundStep(const std::vector<std::u16string>& index);

  /// Window for a word as typed; nothing for one behind the whole index.
  [[nodiscard]] std::optional<RowWindow> window(std::u16string_view word) const;

 private:
  /// Lower-cased; each the greatest of itself and those before, so that the first that is not less
  /// than a word stands where it does in the index.
  std::vector<std::u16string> greatest_;
};

class ChineseBoundStep {
 public:
  explicit ChineseBoundStep(const std::vector<std::u16string>& index);

  [[nodiscard]] RowWindow window(std::u16string_view word) const;

 private:
  std::vector<std::u16string> greatest_;  ///< of each word and those before it
  std::vector<std::u16string> least_;     ///< of each word and those behind it
};

}  // namespace dictionary
