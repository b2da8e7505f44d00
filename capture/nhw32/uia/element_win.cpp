#include "capture/nhw32/uia/element.h"

#include <cstdint>
#include <string>
#include <utility>

#include "capture/nhw32/uia/geometry.h"
#include "capture/nhw32/uia/limits.h"
#include "text/word_ranges.h"

// Every call may go to another process and is made by UiaCalls, which ends the question by NoAnswer
// at the first one that fails. What a provider returns is not relied on: a call that succeeds may
// leave its result null or unchanged.
namespace nhw32 {
namespace {

/// How far above the element under the point a text pattern is looked for. Documents of browsers
/// and office programs have theirs a few elements above the text.
constexpr int kMaxAncestors = 10;

HWND toHandle(WindowId window) { return reinterpret_cast<HWND>(window); }

/// The properties and the pattern of an element that were prefetched with it.
class Prefetched {
 public:
  Prefetched(IUIAutomationElement& element, UiaCalls& calls) : element_(element), calls_(calls) {}

  [[nodiscard]] std::optional<bool> flag(int id) const {
    UniqueVariant value;
    read(id, value);
    if (value.get().vt != VT_BOOL) return std::nullopt;
    return value.get().boolVal != VARIANT_FALSE;
  }

  [[nodiscard]] std::optional<std::int32_t> number(int id) const {
    UniqueVariant value;
    read(id, value);
    if (value.get().vt != VT_I4) return std::nullopt;
    return value.get().lVal;
  }

  [[nodiscard]] ComPtr<IUIAutomationTextPattern> textPattern() const {
    ComPtr<IUIAutomationTextPattern> pattern;
    calls_.make([&] {
      return element_.GetCachedPatternAs(UIA_TextPatternId, IID_IUIAutomationTextPattern,
                                         reinterpret_cast<void**>(pattern.GetAddressOf()));
    });
    return pattern;
  }

 private:
  void read(int id, UniqueVariant& value) const {
    calls_.make([&] { return element_.GetCachedPropertyValue(id, value.out()); });
  }

  IUIAutomationElement& element_;
  UiaCalls& calls_;
};

/// Walks from the element under a point up through its ancestors.
class ElementWalk {
 public:
  ElementWalk(PreparedClient& client, const Question& question, UiaCalls& calls)
      : client_(client), window_(toHandle(question.window)), calls_(calls) {
    const POINT point{question.point.x, question.point.y};
    calls_.make([&] {
      return client_.automation().ElementFromPointBuildCache(point, client_.prefetch(),
                                                             element_.GetAddressOf());
    });
    // The limit is for every request for an element (put_ConnectionTimeout): its parents, too.
    client_.limitConnecting(kUiaCallTime);
  }

  /// A text that is found is kept until an element of the window is met: the text of a console is
  /// an element of another process than its window, whose own element is the text's parent.
  TextHolder find() {
    const ComPtr<IUIAutomationElement> first = element_;
    ComPtr<IUIAutomationTextPattern> text;
    bool belongs = false;
    for (int ancestors = 0; element_; ++ancestors) {
      const Prefetched element(*element_.Get(), calls_);
      if (element.flag(UIA_IsPasswordPropertyId) != false) return {};
      belongs = belongs || isOfWindow(element);
      if (!text) text = element.textPattern();
      if (text && belongs) return {.text = std::move(text), .item = {}};
      if (ancestors == kMaxAncestors) break;
      toParent();
    }
    if (!belongs || !isItem(*first.Get())) return {};
    return {.text = {}, .item = first};
  }

 private:
  /// The point may hit a window of another process above the one that was asked for.
  bool isOfWindow(const Prefetched& element) {
    const auto handle = element.number(UIA_NativeWindowHandlePropertyId);
    const HWND window = toHandle(static_cast<std::uint32_t>(handle.value_or(0)));
    // Above everything, so it is no sign of the window, whatever process it is said to be of.
    if (window == GetDesktopWindow()) return false;
    DWORD process = 0;
    if (GetWindowThreadProcessId(window_, &process) == 0) return false;
    const auto elementProcess = element.number(UIA_ProcessIdPropertyId);
    if (elementProcess && static_cast<DWORD>(*elementProcess) == process) return true;
    const HWND root = window == nullptr ? nullptr : GetAncestor(window, GA_ROOT);
    return root != nullptr && root == GetAncestor(window_, GA_ROOT);
  }

  bool isItem(IUIAutomationElement& element) {
    const auto type = Prefetched(element, calls_).number(UIA_ControlTypePropertyId);
    return type == kDataItemControlType || type == kHeaderItemControlType ||
           type == kHyperlinkControlType;
  }

  /// Moves to the parent, null above the root.
  void toParent() {
    ComPtr<IUIAutomationElement> parent;
    calls_.make([&] {
      return client_.walker().GetParentElementBuildCache(element_.Get(), client_.prefetch(),
                                                         parent.GetAddressOf());
    });
    element_ = std::move(parent);
  }

  PreparedClient& client_;
  HWND window_;
  UiaCalls& calls_;
  ComPtr<IUIAutomationElement> element_;
};

}  // namespace

TextHolder textHolderAt(PreparedClient& client, const Question& question, UiaCalls& calls) {
  return ElementWalk(client, question, calls).find();
}

// What a cell shows is its value, and its name may be its place ("A1"); what a link shows is its
// name, and its value an address. Neither is prefetched, since it may be long.
std::optional<Word> wordOfItem(IUIAutomationElement& item, ScreenPoint point, UiaCalls& calls) {
  const Prefetched known(item, calls);
  const bool hasValue = known.number(UIA_ControlTypePropertyId) == kDataItemControlType &&
                        known.flag(UIA_IsValuePatternAvailablePropertyId) == true;
  UniqueVariant shown;
  calls.make([&] {
    return item.GetCurrentPropertyValue(hasValue ? UIA_ValueValuePropertyId : UIA_NamePropertyId,
                                        shown.out());
  });
  if (shown.get().vt != VT_BSTR) return std::nullopt;
  const BSTR text = shown.get().bstrVal;
  auto readings = onlyWord(
      {reinterpret_cast<const char16_t*>(text), static_cast<std::size_t>(SysStringLen(text))});
  if (!readings) return std::nullopt;

  UniqueVariant place;
  calls.make(
      [&] { return item.GetCurrentPropertyValue(UIA_BoundingRectanglePropertyId, place.out()); });
  UniqueDoubleArray rectangle(place.releaseDoubles());
  const auto box = boxUnder(rectangle.values(), point);
  if (!box) return std::nullopt;
  return Word{std::move(*readings), *box};
}

}  // namespace nhw32
