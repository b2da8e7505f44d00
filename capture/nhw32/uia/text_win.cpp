#include "capture/nhw32/uia/text.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "capture/nhw32/uia/geometry.h"
#include "capture/nhw32/uia/range_reader.h"
#include "text/readings.h"

// The cell is found first: the range of one character whose rectangle contains the point. Programs
// tell the position nearest to a point, so it is that character or the one before. Consoles tell
// where the line begins, whatever the column; their cell is found by halving the line. Then the
// text around the cell is read, the word is found in it, and the cell is extended to the word.
namespace nhw32 {
namespace {

/// Characters that are read on each side of the cell: as far as the readings there can depend on
/// them.
constexpr int kReach = static_cast<int>(text::kMaxReach);
/// Limit of the text of a unit or a word, in code units.
constexpr std::size_t kUnitLimit = (2 * text::kMaxReach) + 1;
/// Limit of the text around a cell: a character may be two code units.
constexpr std::size_t kAroundLimit = (4 * text::kMaxReach) + kUnitLimit;
/// Limit of the text of a line. Consoles have a few hundred columns.
constexpr std::size_t kLineLimit = 2048;

constexpr auto kStart = TextPatternRangeEndpoint_Start;
constexpr auto kEnd = TextPatternRangeEndpoint_End;

/// A text and the index in it of the cell's text.
struct Surroundings {
  std::u16string text;
  std::size_t cell = 0;
};

/// Reads by character units. TextUnit_Word is not used: programs split words at hyphens and
/// apostrophes, include blanks, or return whole lines.
class TextAtPoint {
 public:
  TextAtPoint(IUIAutomationTextPattern& pattern, ScreenPoint point, UiaCalls& calls)
      : ranges_(point, calls), cell_(ranges_.nearest(pattern)) {}

  std::optional<Word> word(Search search) {
    if (search == Search::kCharacter) {
      if (const auto box = toCharacter()) return wordAt(*box, nullptr);
    }
    const TextRange line = cell_;
    const auto box = toLetterOf(line);
    return box ? wordAt(*box, line) : std::nullopt;
  }

 private:
  /// Makes cell_ the nearest character and returns its box. Right of the middle of a character, the
  /// position nearest to the point is after it.
  std::optional<ScreenBox> toCharacter() {
    ranges_.expand(cell_, TextUnit_Character);
    if (const auto box = ranges_.boxOf(cell_)) return box;
    if (ranges_.moveBy(cell_, -1) != -1) return std::nullopt;
    if (const auto box = ranges_.boxOf(cell_)) return box;
    // The position may be the first of its line.
    static_cast<void>(ranges_.moveBy(cell_, 1));
    return std::nullopt;
  }

  /// Expands `line` to its line, makes cell_ the character of it under the point and returns its
  /// box.
  std::optional<ScreenBox> toLetterOf(const TextRange& line) {
    ranges_.expand(line, TextUnit_Line);
    if (!ranges_.boxOf(line)) return std::nullopt;
    const auto text = ranges_.textOf(line, kLineLimit);
    if (!text) return std::nullopt;
    const int characters = static_cast<int>(lengthWithoutBlanks(*text));
    cell_ = ranges_.copyOf(line);
    ranges_.moveEndTo(cell_, kEnd, line, kStart);
    return characters > 0 && halve(characters) ? ranges_.boxOf(cell_) : std::nullopt;
  }

  /// Makes cell_, which is where a line begins, the character of the first `characters` under the
  /// point: the last one of the shortest beginning of the line that contains the point. There may
  /// be fewer characters than that, since a character may be two code units.
  bool halve(int characters) {
    int before = 0;
    int last = characters;
    int end = 0;
    const auto extendTo = [&](int to) {
      const int count = to - std::exchange(end, to);
      return moveEnd(kEnd, count);
    };
    while (last - before > 1) {
      const int middle = before + ((last - before) / 2);
      if (!extendTo(middle)) return false;
      (ranges_.boxOf(cell_) ? last : before) = middle;
    }
    return extendTo(last) && moveEnd(kStart, before);
  }

  /// `box` is that of cell_; `line` is its line, null if it was found without it.
  std::optional<Word> wordAt(const ScreenBox& box, const TextRange& line) {
    const auto unit = ranges_.textOf(cell_, kUnitLimit);
    if (!unit || isBlank(*unit)) return std::nullopt;
    const std::size_t label = labelLength(*unit);
    if (isOneCharacter(std::u16string_view(*unit).substr(label))) {
      const auto around = line ? aroundInLine(line, *unit) : aroundCell(*unit);
      return around ? wordIn(*around, label, *unit, box) : std::nullopt;
    }
    // The program does not support character units; the unit is used if it is one word.
    auto readings = onlyWord(*unit);
    if (!readings) return std::nullopt;
    return Word{std::move(*readings), box};
  }

  /// Returns the text around cell_, up to kReach characters on each side. `unit` is its own.
  std::optional<Surroundings> aroundCell(std::u16string_view unit) {
    const TextRange range = ranges_.copyOf(cell_);
    const int back = ranges_.moveEndBy(range, kStart, TextUnit_Character, -kReach);
    const int on = ranges_.moveEndBy(range, kEnd, TextUnit_Character, kReach);
    auto text = ranges_.textOf(range, kAroundLimit);
    if (!text) return std::nullopt;
    // A character is at least one code unit: if all are together as many, each is one.
    if (back >= -kReach && back <= 0 && on >= 0 && on <= kReach) {
      const auto before = static_cast<std::size_t>(-back);
      if (text->size() == before + unit.size() + static_cast<std::size_t>(on) &&
          text->compare(before, unit.size(), unit) == 0) {
        return Surroundings{std::move(*text), before};
      }
    }
    return divided(range, std::move(*text), unit);
  }

  /// Returns the text of a line, with the lines before and after it, where its first or last word
  /// may begin or go on.
  std::optional<Surroundings> aroundInLine(const TextRange& line, std::u16string_view unit) {
    static_cast<void>(ranges_.moveEndBy(line, kStart, TextUnit_Line, -1));
    static_cast<void>(ranges_.moveEndBy(line, kEnd, TextUnit_Line, 1));
    auto text = ranges_.textOf(line, 3 * kLineLimit);
    return text ? divided(line, std::move(*text), unit) : std::nullopt;
  }

  /// Finds where cell_ is in `text`, which is that of `range`, by reading the text up to its end.
  /// Blanks that a program leaves out are left out of both.
  std::optional<Surroundings> divided(const TextRange& range, std::u16string text,
                                      std::u16string_view unit) {
    ranges_.moveEndTo(range, kEnd, cell_, kEnd);
    const auto upTo = ranges_.textOf(range, 3 * kLineLimit);
    if (!upTo || !upTo->ends_with(unit) || !text.starts_with(*upTo)) return std::nullopt;
    return Surroundings{std::move(text), upTo->size() - unit.size()};
  }

  /// `label` units of `unit`, the text of cell_, are before its character.
  std::optional<Word> wordIn(const Surroundings& around, std::size_t label,
                             std::u16string_view unit, const ScreenBox& box) {
    const std::u16string_view text = around.text;
    const std::size_t index = around.cell + label;
    text::Readings readings = text::readingsAt(text, index);
    if (readings.empty()) return std::nullopt;
    const auto [first, last] = readings.range();
    const auto word = text.substr(first, last - first);
    // Programs count CR LF as one character or as two: the ends of a word that a line's end divides
    // cannot be reached by counting. Its box is that of the character then.
    if (word.find_first_of(u"\r\n\v\u2028") != std::u16string_view::npos) {
      return Word{std::move(readings), box};
    }
    if (!moveEnd(kStart, distance(index, first)) ||
        !moveEnd(kEnd, distance(around.cell + unit.size(), last))) {
      return std::nullopt;
    }
    // The text may have changed meanwhile, or its units may not be code units or pairs.
    const auto read = ranges_.textOf(cell_, kUnitLimit);
    if (!read || !isWordOrItem(*read, word)) return std::nullopt;
    const auto wordBox = ranges_.boxOf(cell_);
    if (!wordBox) return std::nullopt;
    return Word{std::move(readings), *wordBox};
  }

  static int distance(std::size_t from, std::size_t to) {
    return static_cast<int>(to) - static_cast<int>(from);
  }

  static std::size_t lengthWithoutBlanks(std::u16string_view text) {
    std::size_t length = text.size();
    while (length > 0 && isBlank(text.substr(length - 1, 1))) --length;
    return length;
  }

  /// Moves an end of cell_ by characters; returns whether it went all the way.
  bool moveEnd(TextPatternRangeEndpoint end, int count) {
    return count == 0 || ranges_.moveEndBy(cell_, end, TextUnit_Character, count) == count;
  }

  RangeReader ranges_;
  TextRange cell_;
};

}  // namespace

std::optional<Word> wordUnder(IUIAutomationTextPattern& pattern, ScreenPoint point, Search search,
                              UiaCalls& calls) {
  return TextAtPoint(pattern, point, calls).word(search);
}

}  // namespace nhw32
