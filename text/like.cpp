// Greedy glob matching: on a mismatch the matcher backtracks to the last "%" only and has it take
// one unit more. Whatever an earlier "%" might take, the last one can take as well, so that the
// time is at most pattern length times text length.

#include "text/like.h"

#include "text/characters.h"
#include "text/order.h"
#include "text/utf.h"

namespace text {
namespace {

constexpr char16_t kAnyRun = u'%';
constexpr char16_t kAnyUnit = u'_';

/// Matches a pattern against a text from left to right, both read as UTF-16 code units.
template <typename Units>
class Matcher {
 public:
  Matcher(Units pattern, Units text, StepBudget& budget)
      : pattern_(pattern), text_(text), budget_(budget) {}

  /// Also false where the budget is exhausted.
  bool run() {
    while (inPattern_ < pattern_.size() || inText_ < text_.size()) {
      if (!step() && !lengthenRun()) {
        return false;
      }
    }
    return true;
  }

 private:
  /// Goes on by one unit of the pattern; false where the text does not follow it.
  bool step() {
    if (inPattern_ == pattern_.size()) {
      return false;
    }
    const Unit wanted = pattern_.at(inPattern_);
    if (wanted.value == kAnyRun) {
      return startRun(inPattern_ + wanted.length);
    }
    if (inText_ == text_.size()) {
      return false;
    }
    const Unit unit = text_.at(inText_);
    if (wanted.value != kAnyUnit && foldCase(wanted.value) != foldCase(unit.value)) {
      return false;
    }
    inPattern_ += wanted.length;
    inText_ += unit.length;
    return true;
  }

  /// Begins with the empty run for a "%"; the rest of the pattern starts at `follower`.
  bool startRun(std::size_t follower) {
    hasRun_ = true;
    follower_ = follower;
    runEnd_ = follower < pattern_.size() ? inText_ : text_.size();
    return seekFollower();
  }

  bool lengthenRun() {
    if (!hasRun_ || runEnd_ == text_.size()) {
      return false;
    }
    if (!budget_.consume(inPattern_ - follower_ + 1)) {
      return false;
    }
    runEnd_ += text_.at(runEnd_).length;
    return seekFollower();
  }

  /// Lengthens the run to the next unit that may match what follows the "%", and goes on there.
  bool seekFollower() {
    const char16_t follower = follower_ < pattern_.size() ? pattern_.at(follower_).value : kAnyRun;
    if (follower != kAnyRun && follower != kAnyUnit) {
      runEnd_ = seek(follower, runEnd_);
      if (runEnd_ == text_.size()) {
        return false;
      }
    }
    inPattern_ = follower_;
    inText_ = runEnd_;
    return true;
  }

  /// Offset, from `offset` on, of the first unit that may be `wanted` in either case, or the end.
  std::size_t seek(char16_t wanted, std::size_t offset) const {
    while (offset < text_.size()) {
      const Unit unit = text_.at(offset);
      if ((unit.value | kCaseBit) == (wanted | kCaseBit)) {
        break;
      }
      offset += unit.length;
    }
    return offset;
  }

  Units pattern_;
  Units text_;
  StepBudget& budget_;  // consumed where a run is lengthened: all else goes through each text once
  std::size_t inPattern_ = 0;
  std::size_t inText_ = 0;
  bool hasRun_ = false;       // whether a "%" has been passed; the rest is about the last one
  std::size_t follower_ = 0;  // offset in the pattern of what follows it
  std::size_t runEnd_ = 0;    // what it takes of the text ends here
};

}  // namespace

bool like(std::u16string_view pattern, std::u16string_view text) {
  StepBudget unlimited;
  return Matcher(Utf16Units(pattern), Utf16Units(text), unlimited).run();
}

bool likeUtf8(std::string_view pattern, std::string_view text) {
  StepBudget unlimited;
  return likeUtf8(pattern, text, unlimited);
}

bool likeUtf8(std::string_view pattern, std::string_view text, StepBudget& budget) {
  return Matcher(Utf8Units(pattern), Utf8Units(text), budget).run();
}

}  // namespace text
