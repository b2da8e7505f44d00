#include "capture/nhw32/controls/rich_edit_provider.h"

#include <windows.h>

#include <richedit.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "capture/nhw32/controls/control_question.h"
#include "capture/nhw32/controls/remote_memory.h"
#include "capture/nhw32/controls/rich_edit_layout.h"
#include "capture/nhw32/word_at.h"
#include "win32/win32.h"

namespace nhw32 {
namespace {

/// Where things lie in the memory that the control reads and writes.
constexpr std::size_t kStructure = 0;
constexpr std::size_t kText = 64;
constexpr std::size_t kMostText = 2 * (kLongestWord + 1);
/// In the code page of the greatest need (UTF-8) a code unit takes three bytes.
constexpr std::size_t kTextSize = 3 * (kMostText + 1);
constexpr std::size_t kMemory = kText + kTextSize;

constexpr UINT kUtf16 = 1200;  ///< its number among the code pages

class RichEditText : public ControlText {
 public:
  explicit RichEditText(const TargetWindow& target)
      : target_(target), memory_(target.handle(), kMemory) {}

  std::size_t positionNear(ScreenPoint point) override {
    put(POINTL{point.x, point.y});
    return number(ask(EM_CHARFROMPOS, 0, parameter()));
  }

  TextPart textAround(std::size_t position) override {
    const std::size_t reach = kLongestWord + 1;
    const std::size_t begin = position > reach ? position - reach : 0;
    const std::size_t end = std::min(position + reach, length());
    if (begin >= end) return {};
    const auto bitness = memory_.inProgramOf32Bits() ? Bitness::bits32 : Bitness::bits64;
    auto bytes = textRangeBytes(bitness, static_cast<std::int32_t>(begin),
                                static_cast<std::int32_t>(end), memory_.address(kText));
    bytes.resize(kMemory, kUnwritten);
    memory_.write(kStructure, bytes.data(), bytes.size());
    const std::size_t count = number(ask(EM_GETTEXTRANGE, 0, parameter()));
    return {textOf(count), begin};
  }

  std::optional<ScreenPoint> cornerOf(std::size_t position) override {
    constexpr POINTL kUntouched{std::numeric_limits<LONG>::min(), 0};
    put(kUntouched);
    ask(EM_POSFROMCHAR, memory_.address(kStructure), static_cast<LPARAM>(position));
    POINTL corner{};
    memory_.read(kStructure, &corner, sizeof corner);
    if (corner.x == kUntouched.x) return std::nullopt;
    return ScreenPoint{static_cast<int>(corner.x), static_cast<int>(corner.y)};
  }

  std::size_t lineOf(std::size_t position) override {
    return number(ask(EM_EXLINEFROMCHAR, 0, static_cast<LPARAM>(position)));
  }

  std::optional<std::size_t> startOf(std::size_t line) override {
    const auto start = static_cast<std::int32_t>(ask(EM_LINEINDEX, line, 0));
    return start < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(start));
  }

  [[nodiscard]] bool linesAreAlike() const override { return false; }

  /// The caret tells of the line that it stands on, and of no other.
  std::optional<int> bottomOfLastLine(int top) override {
    const auto caret = caretIn(target_.handle());
    return caret && caret->top >= top ? std::optional(caret->bottom) : std::nullopt;
  }

  [[nodiscard]] int dpi() const override { return dpiOf(target_.handle()); }

 private:
  /// Whatever a control that ran out of time was told to read or write, it may do so later.
  LRESULT ask(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
      return target_.ask(message, wParam, lParam);
    } catch (const NoAnswer& silence) {
      if (silence.outcome() == Outcome::outOfTime) memory_.abandon();
      throw;
    }
  }

  std::size_t length() {
    put(GETTEXTLENGTHEX{GTL_NUMCHARS | GTL_PRECISE, kUtf16});
    return number(ask(EM_GETTEXTLENGTHEX, memory_.address(kStructure), 0));
  }

  /// The text that the control wrote, `count` characters or bytes of it.
  std::u16string textOf(std::size_t count) {
    if (count == 0) return {};
    std::array<std::byte, kTextSize> written{};
    memory_.read(kText, written.data(), written.size());
    if (isWideText(written, count)) {
      std::u16string text(count, u'\0');
      std::memcpy(text.data(), written.data(), count * sizeof(char16_t));
      return text;
    }
    const auto* const bytes = reinterpret_cast<const char*>(written.data());
    const auto* const end = std::find(bytes, bytes + written.size(), '\0');
    return win32::fromAnsi({bytes, end});
  }

  template <class Structure>
  void put(const Structure& structure) {
    memory_.write(kStructure, &structure, sizeof structure);
  }

  [[nodiscard]] LPARAM parameter() const {
    return static_cast<LPARAM>(memory_.address(kStructure));
  }

  /// A position or count. Negative ones are refusals.
  static std::size_t number(LRESULT answer) {
    const auto value = static_cast<std::int32_t>(answer);
    if (value < 0) throw NoAnswer(Outcome::none);
    return static_cast<std::size_t>(value);
  }

  const TargetWindow& target_;
  RemoteMemory memory_;
};

}  // namespace

Answer RichEditProvider::wordAt(const Question& question) {
  return answerOfControlAs<RichEditText>(question);
}

}  // namespace nhw32
