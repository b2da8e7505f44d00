#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

/// SQL's LIKE by the dictionary's own rules. "%" matches any run of UTF-16 code units, "_" exactly
/// one, also in a text that is UTF-8; any other character matches itself, without regard to the
/// case of ASCII and Latin-1 letters. There is no escape character.
namespace text {

/// Limits the time of work: counts its steps and polls a stop condition after many of them.
/// Not to be shared by threads.
class StepBudget {
 public:
  /// A budget that never ends.
  StepBudget() = default;
  /// `isOver` is polled after every kStepsBetweenPolls steps. After it returned true every
  /// consume() polls it again and returns false, until it returns false: a new statement then
  /// starts with a full budget.
  explicit StepBudget(std::function<bool()> isOver) : isOver_(std::move(isOver)) {}

  /// Counts `steps` as done and returns whether the work may go on. `isOver` is called within.
  [[nodiscard]] bool consume(std::size_t steps) {
    left_ -= static_cast<std::int64_t>(steps);
    return left_ > 0 || refill();
  }

  /// Returns whether the last consume() returned false.
  [[nodiscard]] bool exhausted() const { return left_ <= 0; }

 private:
  /// A step compares one character or byte; this number of them takes 0.1 to 1 ms.
  static constexpr std::int64_t kStepsBetweenPolls = 100'000;

  bool refill() {
    const bool over = isOver_ && isOver_();
    left_ = over ? 0 : kStepsBetweenPolls;
    return !over;
  }

  std::function<bool()> isOver_;
  std::int64_t left_ = kStepsBetweenPolls;
};

/// Returns whether `text` is LIKE `pattern`. Takes time proportional to pattern length times text
/// length at most.
bool like(std::u16string_view pattern, std::u16string_view text);

/// The same for texts in UTF-8, without converting them first. Returns what like() returns for the
/// texts that toUtf16() makes of them, invalid bytes included.
bool likeUtf8(std::string_view pattern, std::string_view text);

/// The same within a budget: consumes the steps that go beyond one pass over both texts, and
/// returns false once `budget` is exhausted, which the caller has to ask it.
bool likeUtf8(std::string_view pattern, std::string_view text, StepBudget& budget);

/// A LIKE pattern in UTF-8, prepared to be matched against many texts: matches() returns what
/// likeUtf8 returns, but sooner. A text without the pattern's fixed beginning or, for a pattern
/// that begins with a wildcard, without its longest run of fixed characters is rejected at once.
/// May be shared by threads, each with a budget of its own.
class LikePattern {
 public:
  /// Keeps a copy of `pattern`, which may be any bytes.
  explicit LikePattern(std::string_view pattern);

  /// Returns whether `text`, in UTF-8, is LIKE the pattern.
  [[nodiscard]] bool matches(std::string_view text) const {
    StepBudget unlimited;
    return matches(text, unlimited);
  }
  /// The same within a budget: consumes the steps that go beyond one pass over the pattern and the
  /// text, and returns false once `budget` is exhausted.
  [[nodiscard]] bool matches(std::string_view text, StepBudget& budget) const;

 private:
  /// One byte of the fixed run, to be searched for at eight offsets of a text at once.
  struct Probe {
    std::size_t offset = 0;      ///< of the byte in the run
    std::uint64_t wanted = 0;    ///< eight times the byte
    std::uint64_t caseBits = 0;  ///< eight times the bit in which its capital differs
  };

  /// Takes the run of fixed characters at `start` for fixed_ if it is the pattern's beginning or,
  /// where no run is, longer than the one taken so far.
  void offer(std::size_t start, std::size_t length);
  void foldFixed();
  void chooseProbes();
  [[nodiscard]] Probe probeOf(std::size_t offset) const;

  [[nodiscard]] bool occursIn(std::string_view text, StepBudget& budget) const;
  [[nodiscard]] bool occursInShort(std::string_view text) const;
  [[nodiscard]] std::uint64_t candidatesAmong8(const char* bytes) const;
  [[nodiscard]] bool startsAt(const char* bytes) const;

  std::string pattern_;
  std::string fixed_;     ///< the bytes of the fixed run, letters in lower case
  std::string caseBits_;  ///< for each of them the bit in which its capital differs
  Probe rarest_;
  Probe second_;  ///< the rarest of the other bytes; equal to rarest_ for a run of one byte
  bool isAnchored_ = false;            ///< whether the run is the pattern's beginning
  std::unique_ptr<LikePattern> rest_;  ///< what follows that beginning, unless it is "%" alone
  bool isWhole_ = false;               ///< whether the pattern is just "fixed%" or "%fixed%"
};

}  // namespace text
