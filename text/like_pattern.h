#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "text/effort.h"

namespace text {

/// A LIKE pattern that is tried on many texts in UTF-8. It says what likeUtf8 says of each, sooner:
/// a text without the pattern's fixed beginning or, where it has none, without its longest stretch
/// of fixed characters is turned down at once.
class LikePattern {
 public:
  explicit LikePattern(std::string_view pattern);

  [[nodiscard]] bool matches(std::string_view text) const {
    Effort unlimited;
    return matches(text, unlimited);
  }
  /// The same, with the steps counted that go beyond one pass over the pattern and the text; false
  /// where they are given up.
  [[nodiscard]] bool matches(std::string_view text, Effort& effort) const;

 private:
  /// One byte of the fixed stretch, to be looked for at eight places of a text at once.
  struct Probe {
    std::size_t offset = 0;      ///< where it stands in the stretch
    std::uint64_t wanted = 0;    ///< eight times the byte
    std::uint64_t caseBits = 0;  ///< eight times the bit in which its capital differs
  };

  /// Notes a stretch of the pattern that holds neither a wildcard nor U+FFFD, if it is the
  /// pattern's beginning or, in one that begins otherwise, the longest.
  void offer(std::size_t start, std::size_t length);
  void foldFixed();
  void chooseProbes();
  [[nodiscard]] Probe probeOf(std::size_t offset) const;

  [[nodiscard]] bool occursIn(std::string_view text, Effort& effort) const;
  [[nodiscard]] bool occursInShort(std::string_view text) const;
  [[nodiscard]] std::uint64_t candidatesAmong8(const char* place) const;
  [[nodiscard]] bool standsAt(const char* place) const;

  std::string pattern_;
  std::string fixed_;     ///< the bytes of the fixed stretch, letters in lower case
  std::string caseBits_;  ///< for each of them the bit in which its capital differs
  Probe rarest_;
  Probe second_;  ///< the rarest of the other bytes; the same one where there is no other
  bool isAnchored_ = false;            ///< whether the stretch is the pattern's beginning
  std::unique_ptr<LikePattern> rest_;  ///< what follows that beginning, but for a "%" alone
  bool isWhole_ = false;  ///< whether the pattern is no more than "fixed%" or "%fixed%"
};

}  // namespace text
