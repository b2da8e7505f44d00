#include "capture/nhw32/control_text.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "capture/nhw32/word_at.h"

namespace nhw32 {
namespace {

constexpr int kWidth = 10;   ///< of a character
constexpr int kHeight = 20;  ///< of a line

/// A control whose characters all are of one size. Like real ones it answers with the nearest gap
/// between characters, wherever the point lies, and knows no place behind the text.
class Grid : public ControlText {
 public:
  /// Lines end with a line feed or behind `columns` characters.
  explicit Grid(std::u16string text, std::size_t columns = 1000) : text_(std::move(text)) {
    for (std::size_t i = 0; i < text_.size(); ++i) {
      const bool full = i - starts_.back() == columns;
      if (full || (i > 0 && text_[i - 1] == u'\n')) starts_.push_back(i);
    }
  }

  std::size_t positionNear(ScreenPoint point) override {
    const auto row = static_cast<std::size_t>(
        std::clamp(point.y / kHeight, 0, static_cast<int>(starts_.size()) - 1));
    const std::size_t end = row + 1 < starts_.size() ? starts_[row + 1] : text_.size();
    const int column = std::max(0, (point.x + kWidth / 2) / kWidth);
    return std::min(starts_[row] + static_cast<std::size_t>(column), end);
  }

  TextPart textAround(std::size_t position) override {
    const std::size_t first = position > kLongestWord ? position - kLongestWord - 1 : 0;
    return {text_.substr(first, 2 * (kLongestWord + 1)), first};
  }

  std::optional<ScreenPoint> cornerOf(std::size_t position) override {
    if (position >= text_.size()) return std::nullopt;
    const std::size_t row = lineOf(position);
    return ScreenPoint{static_cast<int>(position - starts_[row]) * kWidth,
                       static_cast<int>(row) * kHeight};
  }

  std::size_t lineOf(std::size_t position) override {
    return static_cast<std::size_t>(std::ranges::upper_bound(starts_, position) - starts_.begin()) -
           1;
  }

  std::optional<std::size_t> startOf(std::size_t line) override {
    return line < starts_.size() ? std::optional(starts_[line]) : std::nullopt;
  }

  std::optional<int> lineHeight() override { return saidHeight; }

  std::optional<int> saidHeight = kHeight;

 private:
  std::u16string text_;
  std::vector<std::size_t> starts_{0};
};

std::u16string under(Grid grid, int x, int y) {
  const auto word = wordUnder(grid, {x, y});
  return word ? word->text : u"";
}

TEST(ControlText, TellsTheWordWhoseCharacterLiesUnderThePoint) {
  const Grid grid(u"one two\nthree");
  for (int x = 0; x < 30; ++x) EXPECT_EQ(under(grid, x, 5), u"one") << x;
  for (int x = 30; x < 40; ++x) EXPECT_EQ(under(grid, x, 5), u"") << x;
  for (int x = 40; x < 70; ++x) EXPECT_EQ(under(grid, x, 5), u"two") << x;
  for (int x = 70; x < 200; ++x) EXPECT_EQ(under(grid, x, 5), u"") << x;
  for (int y = 0; y < 20; ++y) EXPECT_EQ(under(grid, 5, y), u"one") << y;
  for (int y = 20; y < 40; ++y) EXPECT_EQ(under(grid, 5, y), u"three") << y;
}

TEST(ControlText, NothingBesideTheText) {
  const Grid grid(u"one two\nthree");
  EXPECT_EQ(under(grid, -1, 5), u"");
  EXPECT_EQ(under(grid, 5, -1), u"");
  EXPECT_EQ(under(grid, 5, 40), u"");
  EXPECT_EQ(under(grid, 49, 39), u"three");
  EXPECT_EQ(under(grid, 50, 39), u"") << "the last letter is as wide as its neighbour";
  EXPECT_EQ(under(Grid(u""), 5, 5), u"");
}

TEST(ControlText, ALoneLineIsAsHighAsTheControlSays) {
  Grid grid(u"word");
  EXPECT_EQ(under(grid, 5, 19), u"word");
  EXPECT_EQ(under(grid, 5, 20), u"");
  grid.saidHeight.reset();
  EXPECT_EQ(under(grid, 5, 15), u"word");
  EXPECT_EQ(under(grid, 5, 16), u"") << "the usual height";
}

TEST(ControlText, TheOnlyLetterOfTheTextHasAWidthToo) {
  EXPECT_EQ(under(Grid(u"a"), 7, 5), u"a");
  EXPECT_EQ(under(Grid(u"a"), 8, 5), u"");
}

TEST(ControlText, TellsTheWordsBox) {
  Grid grid(u"one well-known\nword");
  EXPECT_EQ(wordUnder(grid, {45, 5})->box, (ScreenBox{40, 0, 140, 20}));
  EXPECT_EQ(wordUnder(grid, {135, 5})->box, (ScreenBox{40, 0, 140, 20}));
  EXPECT_EQ(wordUnder(grid, {39, 25})->box, (ScreenBox{0, 20, 40, 40}));
}

TEST(ControlText, AWordThatIsBrokenByTheLinesEndIsWholeInEitherPart) {
  Grid grid(u"broken word", 4);  // brok|en w|ord
  for (const ScreenPoint point : {ScreenPoint{0, 5}, {39, 19}, {0, 20}, {19, 39}}) {
    const auto word = wordUnder(grid, point);
    ASSERT_TRUE(word) << point.x << ", " << point.y;
    EXPECT_EQ(word->text, u"broken");
    EXPECT_EQ(word->box, point.y < 20 ? (ScreenBox{0, 0, 40, 20}) : (ScreenBox{0, 20, 20, 40}));
  }
  EXPECT_EQ(under(grid, 40, 5), u"");
  EXPECT_EQ(under(grid, 25, 25), u"");
}

TEST(ControlText, FarFromTheBeginningToo) {
  std::u16string text;
  for (int i = 0; i < 5000; ++i) text += u"ab cd\n";
  EXPECT_EQ(under(Grid(text), 45, 4000 * kHeight + 3), u"cd");
  EXPECT_EQ(under(Grid(text), 25, 4000 * kHeight + 3), u"");
}

/// The text is gone by the time its places are asked for.
class Shrinking : public Grid {
 public:
  using Grid::Grid;
  std::optional<ScreenPoint> cornerOf(std::size_t /*position*/) override { return std::nullopt; }
};

TEST(ControlText, NothingWhereTheTextShrinksMeanwhile) {
  Shrinking control(u"one two");
  EXPECT_FALSE(wordUnder(control, {5, 5}));
}

}  // namespace
}  // namespace nhw32
