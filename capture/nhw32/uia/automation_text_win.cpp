#include "capture/nhw32/uia/automation_text.h"

#include <string>
#include <utility>

#include "capture/nhw32/uia/automation_owners.h"
#include "capture/nhw32/uia/automation_rules.h"
#include "capture/nhw32/word_at.h"

namespace nhw32 {
namespace {

/// How many characters on each side of the point are read: as far as a word can reach.
constexpr int kReach = static_cast<int>(kLongestWord);
/// The most code units that are read at once; so many are more than `kReach` characters take.
constexpr int kMostText = 2 * kReach + 1;

using TextRange = Reference<AutomationTextRange>;

/// Reads around one point. Units of words are not relied on: programs part words at hyphens and
/// apostrophes, count blanks in, and hand out whole lines.
class Reader {
 public:
  Reader(ScreenPoint point, AutomationCalls& calls) : point_(point), calls_(calls) {}

  std::optional<Word> wordIn(AutomationTextPattern& pattern) {
    const auto box = findCell(pattern);
    if (!box) return std::nullopt;
    const auto character = textOf(cell_);
    if (!character) return std::nullopt;
    if (isOneCharacter(*character)) return wordAround(*character);
    // The program knows no units as small as characters: then its units have to be words.
    const auto word = onlyWord(*character);
    if (word.empty()) return std::nullopt;
    return Word{std::u16string(word), *box};
  }

 private:
  /// Sets the cell to the character under the point and tells its place. The text's position that
  /// is nearest to the point may lie before that character or, right of its middle, behind it.
  std::optional<ScreenBox> findCell(AutomationTextPattern& pattern) {
    const POINT point{point_.x, point_.y};
    if (!calls_.make([&] { return pattern.RangeFromPoint(point, cell_.out()); }) || !cell_ ||
        !calls_.make([&] { return cell_->ExpandToEnclosingUnit(TextUnit::character); })) {
      return std::nullopt;
    }
    const auto box = boxOf(cell_);
    if (box) return box;
    int moved = 0;
    if (!calls_.make([&] { return cell_->Move(TextUnit::character, -1, &moved); }) || moved != -1) {
      return std::nullopt;
    }
    return boxOf(cell_);
  }

  std::optional<Word> wordAround(const std::u16string& character) {
    const auto before = textBeside(TextEnd::start);
    if (!before) return std::nullopt;
    const auto behind = textBeside(TextEnd::end);
    if (!behind) return std::nullopt;
    const std::u16string text = *before + character + *behind;
    const std::size_t begin = before->size();
    const auto place = wordAt(text, begin);
    if (!place) return std::nullopt;

    auto range = copyOfCell();
    if (!range || !moveEnd(range, TextEnd::start, place->begin, begin) ||
        !moveEnd(range, TextEnd::end, place->end, begin + character.size())) {
      return std::nullopt;
    }
    // The text may have changed meanwhile, or its units be others than taken for granted.
    Word word{text.substr(place->begin, place->end - place->begin), {}};
    if (textOf(range) != word.text) return std::nullopt;
    const auto box = boxOf(range);
    if (!box) return std::nullopt;
    word.box = *box;
    return word;
  }

  /// The text between the cell's start and a place before it, or its end and one behind it.
  std::optional<std::u16string> textBeside(TextEnd side) {
    const bool before = side == TextEnd::start;
    const TextEnd held = before ? TextEnd::end : TextEnd::start;
    const auto range = copyOfCell();
    int moved = 0;
    if (!range ||
        !calls_.make([&] { return range->MoveEndpointByRange(held, cell_.get(), side); }) ||
        !calls_.make([&] {
          return range->MoveEndpointByUnit(side, TextUnit::character, before ? -kReach : kReach,
                                           &moved);
        })) {
      return std::nullopt;
    }
    if (moved == 0) return std::u16string();
    auto text = textOf(range);
    return text && !text->empty() ? std::move(text) : std::nullopt;
  }

  /// Moves an end from one index to another, both counted in characters.
  bool moveEnd(const TextRange& range, TextEnd end, std::size_t to, std::size_t from) {
    const int count = static_cast<int>(to) - static_cast<int>(from);
    int moved = 0;
    return count == 0 || (calls_.make([&] {
             return range->MoveEndpointByUnit(end, TextUnit::character, count, &moved);
           }) && moved == count);
  }

  TextRange copyOfCell() {
    TextRange copy;
    if (!calls_.make([&] { return cell_->Clone(copy.out()); })) copy.reset();
    return copy;
  }

  /// The text of a range; none where it is cut off or longer than what was asked for.
  std::optional<std::u16string> textOf(const TextRange& range) {
    OwnedText text;
    if (!calls_.make([&] { return range->GetText(kMostText, text.out()); }) ||
        text.view().size() >= kMostText) {
      return std::nullopt;
    }
    return std::u16string(text.view());
  }

  /// The rectangle of a range that holds the point.
  std::optional<ScreenBox> boxOf(const TextRange& range) {
    OwnedDoubles rectangles;
    if (!calls_.make([&] { return range->GetBoundingRectangles(rectangles.out()); })) {
      return std::nullopt;
    }
    return boxUnder(rectangles.values(), point_);
  }

  ScreenPoint point_;
  AutomationCalls& calls_;
  TextRange cell_;
};

}  // namespace

std::optional<Word> wordUnder(AutomationTextPattern& pattern, ScreenPoint point,
                              AutomationCalls& calls) {
  return Reader(point, calls).wordIn(pattern);
}

}  // namespace nhw32
