#include "capture/nhw32/uia/text.h"

#include <cstdint>
#include <string>
#include <utility>

#include "capture/nhw32/uia/com.h"
#include "capture/nhw32/uia/geometry.h"
#include "text/readings.h"

// The word is found in two steps. ElementWalk goes from the element under the point up to the first
// one with a text pattern. TextAtPoint takes the character of that text whose rectangle contains
// the point, reads kReach characters on each side of it, and finds the word in them.
//
// Every call may go to another process and is made by UiaCalls, which ends the question by NoAnswer
// at the first one that fails. What a provider returns is not relied on: a call that succeeds may
// leave its result null or unchanged.
namespace nhw32 {
namespace {

/// How far above the element under the point a text pattern is looked for. Documents of browsers
/// and office programs have theirs a few elements above the text.
constexpr int kMaxAncestors = 10;

HWND toHandle(WindowId window) { return reinterpret_cast<HWND>(window); }

/// Walks from the element under a point up through its ancestors.
class ElementWalk {
 public:
  ElementWalk(IUIAutomation& client, const Question& question, UiaCalls& calls)
      : client_(client), window_(toHandle(question.window)), calls_(calls) {
    const POINT point{question.point.x, question.point.y};
    calls_.make([&] { return client_.ElementFromPoint(point, element_.GetAddressOf()); });
  }

  ComPtr<IUIAutomationTextPattern> textPattern() {
    bool belongs = false;
    for (int ancestors = 0; element_ && isNoPassword(); ++ancestors) {
      belongs = belongs || ofWindow();
      ComPtr<IUIAutomationTextPattern> pattern;
      calls_.make([&] {
        return element_->GetCurrentPatternAs(UIA_TextPatternId, IID_IUIAutomationTextPattern,
                                             reinterpret_cast<void**>(pattern.GetAddressOf()));
      });
      if (pattern && belongs) return pattern;
      if (pattern || ancestors == kMaxAncestors || !toParent()) break;
    }
    return {};
  }

 private:
  bool isNoPassword() {
    UniqueVariant value;
    readProperty(UIA_IsPasswordPropertyId, value);
    return value.get().vt == VT_BOOL && value.get().boolVal == VARIANT_FALSE;
  }

  /// The point may hit a window of another process above the one that was asked for. The text of a
  /// console belongs to another process than its window, but has the same top-level window.
  bool ofWindow() {
    DWORD process = 0;
    if (GetWindowThreadProcessId(window_, &process) == 0) return false;
    const auto elementProcess = number(UIA_ProcessIdPropertyId);
    if (elementProcess && static_cast<DWORD>(*elementProcess) == process) return true;
    const auto handle = number(UIA_NativeWindowHandlePropertyId);
    if (!handle || *handle == 0) return false;
    const HWND root = GetAncestor(toHandle(static_cast<std::uint32_t>(*handle)), GA_ROOT);
    return root != nullptr && root == GetAncestor(window_, GA_ROOT);
  }

  /// Moves to the parent, null above the root; returns whether there is a walker to do it.
  bool toParent() {
    if (!walker_) {
      calls_.make([&] { return client_.get_ControlViewWalker(walker_.GetAddressOf()); });
    }
    if (!walker_) return false;
    ComPtr<IUIAutomationElement> parent;
    calls_.make([&] { return walker_->GetParentElement(element_.Get(), parent.GetAddressOf()); });
    element_ = std::move(parent);
    return true;
  }

  void readProperty(int id, UniqueVariant& value) {
    calls_.make([&] { return element_->GetCurrentPropertyValue(id, value.out()); });
  }

  /// Returns a property, nullopt if it is not a number.
  std::optional<std::int32_t> number(int id) {
    UniqueVariant value;
    readProperty(id, value);
    if (value.get().vt != VT_I4) return std::nullopt;
    return value.get().lVal;
  }

  IUIAutomation& client_;
  HWND window_;
  UiaCalls& calls_;
  ComPtr<IUIAutomationElement> element_;
  ComPtr<IUIAutomationTreeWalker> walker_;
};

/// Characters that are read on each side of the point: as far as the readings there can depend on
/// them. It is one call for each side, however many there are.
constexpr int kReach = static_cast<int>(text::kMaxReach);
/// Maximum code units of one read; more than `kReach` characters take.
constexpr int kMaxText = 2 * kReach + 1;

using TextRange = ComPtr<IUIAutomationTextRange>;

/// Reads the text around one point by character units. TextUnit_Word is not used: programs split
/// words at hyphens and apostrophes, include blanks, or return whole lines.
class TextAtPoint {
 public:
  TextAtPoint(ScreenPoint point, UiaCalls& calls) : point_(point), calls_(calls) {}

  std::optional<Word> wordIn(IUIAutomationTextPattern& pattern) {
    const auto box = findCell(pattern);
    if (!box) return std::nullopt;
    const auto character = textOf(cell_);
    if (!character) return std::nullopt;
    if (isOneCharacter(*character)) return wordAround(*character, *box);
    // The program does not support character units; the unit is used if it is one word.
    auto readings = onlyWord(*character);
    if (!readings) return std::nullopt;
    return Word{std::move(*readings), *box};
  }

 private:
  /// Sets cell_ to the character under the point and returns its box. The position nearest to the
  /// point is before that character or, right of its middle, after it.
  std::optional<ScreenBox> findCell(IUIAutomationTextPattern& pattern) {
    const POINT point{point_.x, point_.y};
    calls_.make([&] { return pattern.RangeFromPoint(point, cell_.GetAddressOf()); });
    if (!cell_) return std::nullopt;
    calls_.make([&] { return cell_->ExpandToEnclosingUnit(TextUnit_Character); });
    const auto box = boxOf(cell_);
    if (box) return box;
    int moved = 0;
    calls_.make([&] { return cell_->Move(TextUnit_Character, -1, &moved); });
    return moved == -1 ? boxOf(cell_) : std::nullopt;
  }

  /// `cellBox` is the box of cell_, whose text is `character`.
  std::optional<Word> wordAround(const std::u16string& character, const ScreenBox& cellBox) {
    const auto before = textBeside(TextPatternRangeEndpoint_Start);
    if (!before) return std::nullopt;
    const auto after = textBeside(TextPatternRangeEndpoint_End);
    if (!after) return std::nullopt;
    const std::u16string text = *before + character + *after;
    const std::size_t begin = before->size();
    text::Readings readings = text::readingsAt(text, begin);
    if (readings.empty()) return std::nullopt;
    const auto [first, last] = readings.range();
    // Programs count CR LF as one character or as two: the ends of a word that a line's end divides
    // cannot be reached by counting. Its box is that of the character then.
    if (text.substr(first, last - first).find_first_of(u"\r\n\v\u2028") != std::u16string::npos) {
      return Word{std::move(readings), cellBox};
    }

    const TextRange range = copyOfCell();
    if (!range || !moveEnd(range, TextPatternRangeEndpoint_Start, first, begin) ||
        !moveEnd(range, TextPatternRangeEndpoint_End, last, begin + character.size())) {
      return std::nullopt;
    }
    // The text may have changed meanwhile, or its units may not be code units or pairs.
    if (textOf(range) != text.substr(first, last - first)) return std::nullopt;
    const auto box = boxOf(range);
    if (!box) return std::nullopt;
    return Word{std::move(readings), *box};
  }

  /// Returns the text before the start of cell_, or after its end, up to kReach characters.
  std::optional<std::u16string> textBeside(TextPatternRangeEndpoint side) {
    const bool before = side == TextPatternRangeEndpoint_Start;
    const TextPatternRangeEndpoint held =
        before ? TextPatternRangeEndpoint_End : TextPatternRangeEndpoint_Start;
    const int count = before ? -kReach : kReach;
    const TextRange range = copyOfCell();
    if (!range) return std::nullopt;
    int moved = 0;
    calls_.make([&] { return range->MoveEndpointByRange(held, cell_.Get(), side); });
    calls_.make([&] { return range->MoveEndpointByUnit(side, TextUnit_Character, count, &moved); });
    if (moved == 0) return std::u16string();
    auto text = textOf(range);
    // A range that was extended and is empty nevertheless is no answer.
    return text && !text->empty() ? std::move(text) : std::nullopt;
  }

  /// Moves an endpoint of a range by characters, from one index to another; returns whether it went
  /// all the way.
  bool moveEnd(const TextRange& range, TextPatternRangeEndpoint end, std::size_t to,
               std::size_t from) {
    const int count = static_cast<int>(to) - static_cast<int>(from);
    if (count == 0) return true;
    int moved = 0;
    calls_.make([&] { return range->MoveEndpointByUnit(end, TextUnit_Character, count, &moved); });
    return moved == count;
  }

  /// Returns a copy, null if the program returns none.
  TextRange copyOfCell() {
    TextRange copy;
    calls_.make([&] { return cell_->Clone(copy.GetAddressOf()); });
    return copy;
  }

  /// Returns the text of a range, nullopt if it is truncated or longer than requested.
  std::optional<std::u16string> textOf(const TextRange& range) {
    UniqueBstr text;
    calls_.make([&] { return range->GetText(kMaxText, text.out()); });
    if (text.view().size() >= kMaxText) return std::nullopt;
    return std::u16string(text.view());
  }

  /// Returns the rectangle of a range that contains the point.
  std::optional<ScreenBox> boxOf(const TextRange& range) {
    UniqueDoubleArray rectangles;
    calls_.make([&] { return range->GetBoundingRectangles(rectangles.out()); });
    return boxUnder(rectangles.values(), point_);
  }

  ScreenPoint point_;
  UiaCalls& calls_;
  TextRange cell_;
};

}  // namespace

void UiaCalls::checkTime() const {
  if (now_() - start_ > kUiaQuestionTime - kUiaCallTime) throw NoAnswer(Outcome::kOutOfTime);
}

void UiaCalls::checkResult(HRESULT result) {
  if (result == UIA_E_TIMEOUT) throw NoAnswer(Outcome::kOutOfTime);
  if (FAILED(result)) throw NoAnswer(Outcome::kNone);
}

ComPtr<IUIAutomationTextPattern> textPatternAt(IUIAutomation& client, const Question& question,
                                               UiaCalls& calls) {
  return ElementWalk(client, question, calls).textPattern();
}

std::optional<Word> wordUnder(IUIAutomationTextPattern& pattern, ScreenPoint point,
                              UiaCalls& calls) {
  return TextAtPoint(point, calls).wordIn(pattern);
}

}  // namespace nhw32
