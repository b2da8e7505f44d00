// Greedy glob matching with backtracking: on a mismatch the matcher goes back to the last "%" only
// and has it take one unit more. That is enough: whatever an earlier "%" might take in addition,
// the last one can take as well. So the time is at most pattern length times text length.
//
// Two short cuts, which change no result: a "%" at the end of the pattern takes all the rest of the
// text at once, and the first character after a "%" is searched for before the rest of the pattern
// is compared (seekFollower).

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
  /// Advances by one unit of the pattern; returns false where the text does not match it.
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

  /// Starts a "%" with the empty run; the rest of the pattern begins at offset `follower`.
  bool startRun(std::size_t follower) {
    hasRun_ = true;
    follower_ = follower;
    runEnd_ = follower < pattern_.size() ? inText_ : text_.size();
    return seekFollower();
  }

  /// Backtracks to the last "%", which takes one unit more. Returns false where that is impossible
  /// or the budget is exhausted. Only the steps that are made in vain count.
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

  /// Lengthens the run to the next unit that may match what follows the "%", and continues there.
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

  /// Returns the offset, from `offset` on, of the first unit that may be `wanted` in either case,
  /// otherwise the end. With the case bit set on both sides some units match that are not letters
  /// ("@" and "`"): step() compares exactly.
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
  StepBudget& budget_;         // consumed where a run is lengthened; the rest is one pass
  std::size_t inPattern_ = 0;  // offset of the next unit of the pattern
  std::size_t inText_ = 0;     // offset of the next unit of the text
  bool hasRun_ = false;       // whether a "%" has been passed; the members below are the last one's
  std::size_t follower_ = 0;  // offset in the pattern of what follows it
  std::size_t runEnd_ = 0;    // offset in the text of the end of its run
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
