#include "capture/nhw32/controls/text_geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <vector>

#include "tests/support/data/plain_readings.h"

namespace nhw32 {
namespace {

constexpr int kWidth = 10;   ///< of a character
constexpr int kHeight = 20;  ///< of a line

/// A control whose characters all are of one size, or as many sizes as it has lines. Like real ones
/// it answers with the nearest gap between characters, wherever the point lies, and knows no place
/// after the text.
class Grid : public ControlText {
 public:
  /// Lines end with a line feed or after `columns` characters.
  explicit Grid(std::u16string text, std::size_t columns = 1000) : text_(std::move(text)) {
    for (std::size_t i = 0; i < text_.size(); ++i) {
      const bool full = i - starts_.back() == columns;
      if (full || (i > 0 && text_[i - 1] == u'\n')) starts_.push_back(i);
    }
  }

  /// Lines of these heights and of letters half as wide, one to each.
  static Grid ofHeights(std::u16string text, std::vector<int> heights) {
    Grid grid(std::move(text));
    grid.heights_ = std::move(heights);
    grid.saidHeight.reset();
    return grid;
  }

  std::optional<std::size_t> positionNear(ClientPoint point) override {
    std::size_t row = 0;
    while (row + 1 < starts_.size() && point.y >= top(row + 1)) ++row;
    const std::size_t end = row + 1 < starts_.size() ? starts_[row + 1] : text_.size();
    std::size_t position = starts_[row];
    while (position < end && point.x >= left(position) + widthOf(position) / 2) ++position;
    return position;
  }

  TextPart textAround(std::size_t position) override {
    const std::size_t first = position > kReach ? position - kReach : 0;
    return {text_.substr(first, 2 * kReach), first};
  }

  std::optional<ClientPoint> cornerOf(std::size_t position) override {
    if (position >= text_.size()) return std::nullopt;
    return ClientPoint{left(position), top(lineOf(position))};
  }

  std::size_t lineOf(std::size_t position) override {
    return static_cast<std::size_t>(std::ranges::upper_bound(starts_, position) - starts_.begin()) -
           1;
  }

  std::optional<std::size_t> startOf(std::size_t line) override {
    return line < starts_.size() ? std::optional(starts_[line]) : std::nullopt;
  }

  [[nodiscard]] bool linesAreAlike() const override { return heights_.empty(); }

  std::optional<int> bottomOfLastLine(int top) override {
    return saidHeight ? std::optional(top + *saidHeight) : std::nullopt;
  }

  [[nodiscard]] int dpi() const override { return resolution; }

  std::optional<int> saidHeight = kHeight;
  int resolution = 96;

 protected:
  [[nodiscard]] char16_t at(std::size_t position) const { return text_[position]; }

 private:
  virtual int widthOf(std::size_t position) {
    return heights_.empty() ? kWidth : heights_[lineOf(position)] / 2;
  }

  int left(std::size_t position) {
    int x = 0;
    for (std::size_t i = starts_[lineOf(position)]; i < position; ++i) x += widthOf(i);
    return x;
  }

  [[nodiscard]] int top(std::size_t row) const {
    if (heights_.empty()) return static_cast<int>(row) * kHeight;
    return std::accumulate(heights_.begin(), heights_.begin() + static_cast<int>(row), 0);
  }

  std::u16string text_;
  std::vector<std::size_t> starts_{0};
  std::vector<int> heights_;
};

std::u16string under(Grid grid, int x, int y) {
  const auto word = wordUnder(grid, {x, y});
  return word ? support::plainWord(word->readings) : u"";
}

/// How many pixels below `top` a word is told of, all from there on.
int heightUnder(ControlText& control, int x, int top) {
  int height = 0;
  while (wordUnder(control, {x, top + height})) ++height;
  for (int y = height; y < 4 * height; ++y) EXPECT_FALSE(wordUnder(control, {x, top + y})) << y;
  return height;
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
  EXPECT_EQ(under(grid, 50, 39), u"");
  EXPECT_EQ(under(Grid(u""), 5, 5), u"");
}

TEST(ControlText, ALoneLineIsAsHighAsTheControlSays) {
  Grid grid(u"word");
  for (const int height : {18, 20, 30}) {
    grid.saidHeight = height;
    EXPECT_EQ(heightUnder(grid, 5, 0), height);
  }
}

TEST(ControlText, AReportedHeightIsLimitedByTheLetters) {
  Grid grid(u"word");  // expected to be 23 high
  grid.saidHeight = 200;
  EXPECT_EQ(heightUnder(grid, 5, 0), 35) << "a box much higher than its line";
  grid.saidHeight = 1;
  EXPECT_EQ(heightUnder(grid, 5, 0), 16) << "a caret made invisible";
}

TEST(ControlText, ALoneLineOfUnknownHeightHasTheUsualHeightAtTheDpi) {
  for (const auto& [dpi, height] : {std::pair{96, 16}, {120, 20}, {144, 24}, {192, 32}}) {
    Grid grid = Grid::ofHeights(u"word", {12});
    grid.resolution = dpi;
    EXPECT_EQ(heightUnder(grid, 5, 0), height);
  }
}

TEST(ControlText, ALoneLineOfLargeLettersIsEstimatedFromThem) {
  for (const int height : {30, 60, 100}) {
    Grid grid = Grid::ofHeights(u"word", {height});
    EXPECT_NEAR(heightUnder(grid, 5, 0), 1.15 * height, 1);
  }
}

TEST(ControlText, HanCharactersAreAsHighAsWide) {
  Grid grid = Grid::ofHeights(u"字典", {60});  // 30 wide
  EXPECT_EQ(heightUnder(grid, 5, 0), 39);
}

/// Letters of Arial at 48 pixels an em, whose lines are 55 pixels high.
class Arial : public Grid {
 public:
  explicit Arial(std::u16string text) : Grid(ofHeights(std::move(text), {55})) {}

 private:
  int widthOf(std::size_t position) override {
    static const std::map<char16_t, int> kWidths{
        {u'W', 45}, {u'a', 27}, {u'd', 27}, {u'e', 27}, {u'f', 13}, {u'i', 11}, {u'l', 11},
        {u'm', 40}, {u'o', 27}, {u'r', 16}, {u't', 13}, {u'u', 27}, {u'y', 24}};
    return kWidths.at(at(position));
  }
};

TEST(ControlText, NarrowAndWideLettersGiveAboutTheSameEstimate) {
  for (const auto* word : {u"fatality", u"mummy", u"Word", u"model", u"at", u"tidy"}) {
    Arial line(word);
    const int height = heightUnder(line, 5, 0);
    EXPECT_GE(height, 55 * 0.9) << height;
    EXPECT_LE(height, 55 * 1.4) << height;
  }
  Arial narrowest(u"fill");
  EXPECT_GE(heightUnder(narrowest, 5, 0), 44) << "down to the base line at least";
}

TEST(ControlText, ALastLineOfLargeLettersBelowSmallOnesIsEstimatedFromThem) {
  for (const int dpi : {96, 144, 192}) {
    Grid grid = Grid::ofHeights(u"small\nsmall\nlarge", {15, 15, 60});
    grid.resolution = dpi;
    EXPECT_EQ(heightUnder(grid, 5, 30), 69);
    EXPECT_EQ(under(grid, 1, 29), u"small");
  }
}

TEST(ControlText, ALastLineOfSmallLettersBelowLargeOnesIsNotAsHighAsThose) {
  for (const auto& [dpi, height] : {std::pair{96, 16}, {144, 24}, {192, 32}}) {
    Grid grid = Grid::ofHeights(u"large\nsmall", {60, 13});
    grid.resolution = dpi;
    EXPECT_EQ(heightUnder(grid, 3, 60), height);
    EXPECT_EQ(under(grid, 5, 59), u"large");
  }
}

TEST(ControlText, ALastLineIsAsHighAsTheOneBeforeWhereTheLettersAgree) {
  Grid grid = Grid::ofHeights(u"wide\nlines", {72, 60});
  EXPECT_EQ(heightUnder(grid, 3, 72), 72);
}

TEST(ControlText, TheCaretOnALastLineTellsItsHeight) {
  Grid grid = Grid::ofHeights(u"small\nlarge", {15, 60});
  grid.saidHeight = 60;
  EXPECT_EQ(heightUnder(grid, 5, 15), 60);
  Grid mixed = Grid::ofHeights(u"large\nsmall", {60, 13});
  mixed.saidHeight = 60;
  EXPECT_EQ(heightUnder(mixed, 3, 60), 60) << "small letters beside large ones";
}

TEST(ControlText, TheBoxOfAWordInALastLineEndsWithTheLine) {
  Grid grid = Grid::ofHeights(u"small\nlarge one", {15, 60});
  EXPECT_EQ(wordUnder(grid, {5, 20})->box, (ClientBox{0, 15, 150, 84}));
}

TEST(ControlText, TheLastLetterOfTheTextIsAsWideAsItIs) {
  for (const auto& [word, width] : {std::pair{u"aim", 78}, {u"mail", 89}, {u"W", 45}, {u"l", 11}}) {
    Arial line(word);
    int right = 0;
    while (wordUnder(line, {right, 5})) ++right;
    EXPECT_NEAR(right, width, 1);
    for (int x = right; x < 200; ++x) EXPECT_FALSE(wordUnder(line, {x, 5})) << x;
  }
}

/// Right of the text it names the last character, as the documentation of EM_CHARFROMPOS says.
class EndsAtItsLastLetter : public Grid {
 public:
  explicit EndsAtItsLastLetter(std::u16string text) : Grid(text), last_(text.size() - 1) {}

  std::optional<std::size_t> positionNear(ClientPoint point) override {
    return std::min(last_, *Grid::positionNear(point));
  }

 private:
  int widthOf(std::size_t position) override { return position == last_ ? 3 * kWidth : kWidth; }

  std::size_t last_;
};

TEST(ControlText, ALastLetterWhoseMiddleIsNotToldIsAsWideAsTheOneBefore) {
  EndsAtItsLastLetter control(u"aim");
  for (int x = 0; x < 30; ++x) EXPECT_TRUE(wordUnder(control, {x, 5})) << x;
  for (int x = 30; x < 60; ++x) EXPECT_FALSE(wordUnder(control, {x, 5})) << x;
}

TEST(ControlText, TheOnlyLetterWhoseMiddleIsNotToldHasTheUsualWidthAtTheDpi) {
  for (const auto& [dpi, width] : {std::pair{96, 8}, {144, 12}, {192, 16}}) {
    EndsAtItsLastLetter control(u"a");
    control.resolution = dpi;
    EXPECT_TRUE(wordUnder(control, {width - 1, 5})) << dpi;
    EXPECT_FALSE(wordUnder(control, {width, 5})) << dpi;
  }
}

TEST(ControlText, TellsTheWordsBox) {
  Grid grid(u"one well-known\nword");
  EXPECT_EQ(wordUnder(grid, {45, 5})->box, (ClientBox{40, 0, 140, 20}));
  EXPECT_EQ(wordUnder(grid, {135, 5})->box, (ClientBox{40, 0, 140, 20}));
  EXPECT_EQ(wordUnder(grid, {39, 25})->box, (ClientBox{0, 20, 40, 40}));
}

TEST(ControlText, AWordThatIsBrokenByTheLinesEndIsWholeInEitherPart) {
  Grid grid(u"broken word", 4);  // brok|en w|ord
  for (const ClientPoint point : {ClientPoint{0, 5}, {39, 19}, {0, 20}, {19, 39}}) {
    const auto word = wordUnder(grid, point);
    ASSERT_TRUE(word) << point.x << ", " << point.y;
    EXPECT_EQ(support::plainWord(word->readings), u"broken");
    EXPECT_EQ(word->box, point.y < 20 ? (ClientBox{0, 0, 40, 20}) : (ClientBox{0, 20, 20, 40}));
  }
  EXPECT_EQ(under(grid, 40, 5), u"");
  EXPECT_EQ(under(grid, 25, 25), u"");
}

/// Further lines than the first begin 100 pixels to the right.
class HangingIndent : public Grid {
 public:
  using Grid::Grid;

  std::optional<std::size_t> positionNear(ClientPoint point) override {
    if (point.y >= kHeight) point.x -= kIndent;
    return Grid::positionNear(point);
  }

  std::optional<ClientPoint> cornerOf(std::size_t position) override {
    auto corner = Grid::cornerOf(position);
    if (corner && corner->y >= kHeight) corner->x += kIndent;
    return corner;
  }

 private:
  static constexpr int kIndent = 100;
};

TEST(ControlText, ALineEndsWithItsLastLetterWhereverTheNextOneBegins) {
  HangingIndent control(u"word", 2);  // wo|rd
  const auto word = wordUnder(control, {15, 5});
  ASSERT_TRUE(word);
  EXPECT_EQ(word->box, (ClientBox{0, 0, 20, 20}));
  EXPECT_FALSE(wordUnder(control, {25, 5}));
  EXPECT_EQ(wordUnder(control, {105, 25})->box, (ClientBox{100, 20, 120, 40}));
}

/// A letter and the accent after it have one cell and one corner, and are found as the letter.
class Accented : public Grid {
 public:
  explicit Accented(std::u16string text) : Grid(text), size_(text.size()) {}

  std::optional<std::size_t> positionNear(ClientPoint point) override {
    const auto position = Grid::positionNear(point);
    return position && isAccent(*position) ? *position - 1 : position;
  }

 private:
  [[nodiscard]] bool isAccent(std::size_t position) const {
    return position < size_ && at(position) == u'\u0301';
  }
  int widthOf(std::size_t position) override { return isAccent(position + 1) ? 0 : kWidth; }

  std::size_t size_;
};

TEST(ControlText, ALetterWithAnAccentOfItsOwnIsFoundAllOver) {
  Accented control(u"cafe\u0301 x");
  for (int x = 0; x < 40; ++x) {
    const auto word = wordUnder(control, {x, 5});
    ASSERT_TRUE(word) << x;
    EXPECT_EQ(support::plainWord(word->readings), u"cafe") << x;
  }
}

TEST(ControlText, ADividedWordIsJoinedAcrossADeepIndentation) {
  const Grid grid(u"associ-\n" + std::u16string(127, u' ') + u"ated");
  EXPECT_EQ(under(grid, 1, 5), u"associated");
  EXPECT_EQ(under(grid, 1309, kHeight + 5), u"associated") << "nearest to the end of the text";
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
  std::optional<ClientPoint> cornerOf(std::size_t /*position*/) override { return std::nullopt; }
};

TEST(ControlText, NothingWhereTheTextShrinksMeanwhile) {
  Shrinking control(u"one two");
  EXPECT_FALSE(wordUnder(control, {5, 5}));
}

/// The lines are others by the time they are asked for.
class Rewrapped : public Grid {
 public:
  using Grid::Grid;
  std::optional<std::size_t> startOf(std::size_t line) override { return 5 + 2 * line; }
};

TEST(ControlText, NothingWhereTheTextIsWrappedAnewMeanwhile) {
  Rewrapped control(u"one two");
  EXPECT_FALSE(wordUnder(control, {5, 5}));
}

}  // namespace
}  // namespace nhw32
