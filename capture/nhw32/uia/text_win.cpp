#include "capture/nhw32/uia/text.h"

#include <cstdint>
#include <string>
#include <utility>

#include "capture/nhw32/uia/com.h"
#include "capture/nhw32/uia/geometry.h"
#include "capture/nhw32/word_text.h"

// The word is found in two steps. ElementWalk goes from the element under the point up to the first
// one with a text pattern. TextAtPoint takes the character of that text whose rectangle contains
// the point, reads kReach characters on each side of it, and lets wordAt find the word in them.
namespace nhw32 {
namespace {

/// How far above the element under the point the text pattern is looked for.
constexpr int kMaxAncestors = 10;

HWND toHandle(WindowId window) { return reinterpret_cast<HWND>(window); }

/// Walks from the element under a point up through its ancestors.
class ElementWalk {
 public:
  ElementWalk(IUIAutomation& client, const Question& question, UiaCalls& calls)
      : client_(client), window_(toHandle(question.window)), calls_(calls) {
    const POINT point{question.point.x, question.point.y};
    if (!calls_.make(
            [&] { return client_.ElementFromPoint(point, element_.ReleaseAndGetAddressOf()); })) {
      element_.Reset();
    }
  }

  ComPtr<IUIAutomationTextPattern> textPattern() {
    bool belongs = false;
    for (int ancestors = 0; element_ && isNoPassword(); ++ancestors) {
      belongs = belongs || ofWindow();
      ComPtr<IUIAutomationTextPattern> pattern;
      if (!calls_.make([&] {
            return element_->GetCurrentPatternAs(
                UIA_TextPatternId, IID_IUIAutomationTextPattern,
                reinterpret_cast<void**>(pattern.ReleaseAndGetAddressOf()));
          })) {
        break;
      }
      if (pattern && belongs) return pattern;
      if (pattern || ancestors == kMaxAncestors || !toParent()) break;
    }
    return {};
  }

 private:
  bool isNoPassword() {
    UniqueVariant value;
    return property(UIA_IsPasswordPropertyId, value) && value.get().vt == VT_BOOL &&
           value.get().boolVal == VARIANT_FALSE;
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

  bool toParent() {
    if (!walker_ && !(calls_.make([&] {
          return client_.get_ControlViewWalker(walker_.ReleaseAndGetAddressOf());
        }) && walker_)) {
      return false;
    }
    ComPtr<IUIAutomationElement> parent;
    if (!calls_.make([&] {
          return walker_->GetParentElement(element_.Get(), parent.ReleaseAndGetAddressOf());
        })) {
      return false;
    }
    element_ = std::move(parent);
    return true;
  }

  bool property(int id, UniqueVariant& value) {
    return calls_.make([&] { return element_->GetCurrentPropertyValue(id, value.out()); });
  }

  std::optional<std::int32_t> number(int id) {
    UniqueVariant value;
    if (!property(id, value) || value.get().vt != VT_I4) return std::nullopt;
    return value.get().lVal;
  }

  IUIAutomation& client_;
  HWND window_;
  UiaCalls& calls_;
  ComPtr<IUIAutomationElement> element_;
  ComPtr<IUIAutomationTreeWalker> walker_;
};

/// Characters that are read on each side of the point: as far as a word can reach.
constexpr int kReach = static_cast<int>(kMaxWord);
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
    if (isOneCharacter(*character)) return wordAround(*character);
    // The program does not support character units; the unit is used if it is one word.
    const auto word = onlyWord(*character);
    if (word.empty()) return std::nullopt;
    return Word{std::u16string(word), *box};
  }

 private:
  /// Sets cell_ to the character under the point and returns its box. The position nearest to the
  /// point is before that character or, right of its middle, after it.
  std::optional<ScreenBox> findCell(IUIAutomationTextPattern& pattern) {
    const POINT point{point_.x, point_.y};
    if (!calls_.make(
            [&] { return pattern.RangeFromPoint(point, cell_.ReleaseAndGetAddressOf()); }) ||
        !cell_ || !calls_.make([&] { return cell_->ExpandToEnclosingUnit(TextUnit_Character); })) {
      return std::nullopt;
    }
    const auto box = boxOf(cell_);
    if (box) return box;
    int moved = 0;
    if (!calls_.make([&] { return cell_->Move(TextUnit_Character, -1, &moved); }) || moved != -1) {
      return std::nullopt;
    }
    return boxOf(cell_);
  }

  std::optional<Word> wordAround(const std::u16string& character) {
    const auto before = textBeside(TextPatternRangeEndpoint_Start);
    if (!before) return std::nullopt;
    const auto behind = textBeside(TextPatternRangeEndpoint_End);
    if (!behind) return std::nullopt;
    const std::u16string text = *before + character + *behind;
    const std::size_t begin = before->size();
    const auto place = wordAt(text, begin);
    if (!place) return std::nullopt;

    auto range = copyOfCell();
    if (!range || !moveEnd(range, TextPatternRangeEndpoint_Start, place->begin, begin) ||
        !moveEnd(range, TextPatternRangeEndpoint_End, place->end, begin + character.size())) {
      return std::nullopt;
    }
    // The text may have changed meanwhile, or its units may not be code units or pairs.
    Word word{text.substr(place->begin, place->end - place->begin), {}};
    if (textOf(range) != word.text) return std::nullopt;
    const auto box = boxOf(range);
    if (!box) return std::nullopt;
    word.box = *box;
    return word;
  }

  /// Returns the text before the start of cell_, or after its end, up to kReach characters.
  std::optional<std::u16string> textBeside(TextPatternRangeEndpoint side) {
    const bool before = side == TextPatternRangeEndpoint_Start;
    const TextPatternRangeEndpoint held =
        before ? TextPatternRangeEndpoint_End : TextPatternRangeEndpoint_Start;
    const auto range = copyOfCell();
    int moved = 0;
    if (!range ||
        !calls_.make([&] { return range->MoveEndpointByRange(held, cell_.Get(), side); }) ||
        !calls_.make([&] {
          return range->MoveEndpointByUnit(side, TextUnit_Character, before ? -kReach : kReach,
                                           &moved);
        })) {
      return std::nullopt;
    }
    if (moved == 0) return std::u16string();
    auto text = textOf(range);
    return text && !text->empty() ? std::move(text) : std::nullopt;
  }

  /// Moves an endpoint of a range by characters, from one index to another.
  bool moveEnd(const TextRange& range, TextPatternRangeEndpoint end, std::size_t to,
               std::size_t from) {
    const int count = static_cast<int>(to) - static_cast<int>(from);
    int moved = 0;
    return count == 0 || (calls_.make([&] {
             return range->MoveEndpointByUnit(end, TextUnit_Character, count, &moved);
           }) && moved == count);
  }

  TextRange copyOfCell() {
    TextRange copy;
    if (!calls_.make([&] { return cell_->Clone(copy.ReleaseAndGetAddressOf()); })) copy.Reset();
    return copy;
  }

  /// Returns the text of a range, nullopt if it is truncated or longer than requested.
  std::optional<std::u16string> textOf(const TextRange& range) {
    UniqueBstr text;
    if (!calls_.make([&] { return range->GetText(kMaxText, text.out()); }) ||
        text.view().size() >= kMaxText) {
      return std::nullopt;
    }
    return std::u16string(text.view());
  }

  /// Returns the rectangle of a range that contains the point.
  std::optional<ScreenBox> boxOf(const TextRange& range) {
    UniqueDoubleArray rectangles;
    if (!calls_.make([&] { return range->GetBoundingRectangles(rectangles.out()); })) {
      return std::nullopt;
    }
    return boxUnder(rectangles.values(), point_);
  }

  ScreenPoint point_;
  UiaCalls& calls_;
  TextRange cell_;
};

}  // namespace

bool UiaCalls::mayCall() {
  if (now_() - start_ > kUiaQuestionTime - kUiaCallTime) outOfTime_ = true;
  return !outOfTime_ && !failed_;
}

bool UiaCalls::succeeded(HRESULT result) {
  if (result == UIA_E_TIMEOUT) outOfTime_ = true;
  failed_ = FAILED(result);
  return !failed_;
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
