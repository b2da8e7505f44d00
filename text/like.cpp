#include "text/ascii.h"
#include "text/effort.h"
#include "text/order.h"
#include "text/units.h"

namespace text {
namespace {

constexpr char16_t kAnyRun = u'%';
constexpr char16_t kAnyUnit = u'_';

/// A pattern tried on a text from left to right. Where they part, only the last "%" takes more of
/// the text: whatever an earlier one might take, the last can take as well.
template <typename Units>
class Matcher {
 public:
  Matcher(Units pattern, Units text, Effort& effort)
      : pattern_(pattern), text_(text), effort_(effort) {}

  /// Also false where the effort is given up.
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
    if (!effort_.spend(inPattern_ - follower_ + 1)) {
      return false;
    }
    runEnd_ += text_.at(runEnd_).length;
    return seekFollower();
  }

  /// Lengthens the run as far as it must, and has the pattern go on behind it.
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

  /// The first place from `place` on where the text may have `wanted` in either case, or its end.
  std::size_t seek(char16_t wanted, std::size_t place) const {
    while (place < text_.size()) {
      const Unit unit = text_.at(place);
      if ((unit.value | kCaseBit) == (wanted | kCaseBit)) {
        break;
      }
      place += unit.length;
    }
    return place;
  }

  Units pattern_;
  Units text_;
  Effort& effort_;  // spent where a run is lengthened: all else goes through each text once
  std::size_t inPattern_ = 0;
  std::size_t inText_ = 0;
  bool hasRun_ = false;       // whether a "%" has been passed; the rest is about the last one
  std::size_t follower_ = 0;  // where the pattern goes on behind it
  std::size_t runEnd_ = 0;    // what it takes of the text ends here
};

}  // namespace

bool like(std::u16string_view pattern, std::u16string_view text) {
  Effort unlimited;
  return Matcher(Utf16Units(pattern), Utf16Units(text), unlimited).run();
}

bool likeUtf8(std::string_view pattern, std::string_view text) {
  Effort unlimited;
  return likeUtf8(pattern, text, unlimited);
}

bool likeUtf8(std::string_view pattern, std::string_view text, Effort& effort) {
  return Matcher(Utf8Units(pattern), Utf8Units(text), effort).run();
}

}  // namespace text
