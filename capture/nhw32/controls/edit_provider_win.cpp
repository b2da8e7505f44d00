#include "capture/nhw32/controls/edit_provider.h"

#include <algorithm>
#include <memory>

#include "capture/nhw32/controls/control_question.h"
#include "capture/nhw32/controls/edit_index.h"
#include "capture/nhw32/word_at.h"

namespace nhw32 {
namespace {

/// "There is none", in the 32 bits in which edit controls say it.
bool isNone(LRESULT answer) { return static_cast<std::int32_t>(answer) == -1; }

class EditText : public ControlText {
 public:
  explicit EditText(const TargetWindow& target)
      : target_(target), multiline_((target.style() & ES_MULTILINE) != 0) {}

  std::size_t positionNear(ScreenPoint point) override {
    const LRESULT packed = target_.ask(EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y));
    if (isNone(packed)) throw NoAnswer(Outcome::none);
    // The first visible line; in a single line the first visible character.
    const std::size_t visible = number(target_.ask(EM_GETFIRSTVISIBLELINE));
    if (!multiline_) return unwrapped(visible, LOWORD(packed));
    const auto start = startOf(unwrapped(visible, HIWORD(packed)));
    // In a longer line several characters end in the same bits.
    constexpr std::size_t kLongestLine = 0xFFFF;
    if (!start || number(target_.ask(EM_LINELENGTH, *start)) > kLongestLine) {
      throw NoAnswer(Outcome::none);
    }
    return unwrapped(*start, LOWORD(packed));
  }

  /// From the beginning: EM_GETLINE, which would say less, is not safe across programs.
  TextPart textAround(std::size_t position) override {
    const std::size_t capacity = position + kLongestWord + 2;  // with the NUL
    auto buffer = std::make_unique<wchar_t[]>(capacity);
    const auto length = number(askInto(WM_GETTEXT, capacity, buffer));
    return {{buffer.get(), buffer.get() + std::min(length, capacity - 1)}, 0};
  }

  std::optional<ScreenPoint> cornerOf(std::size_t position) override {
    const LRESULT packed = target_.ask(EM_POSFROMCHAR, position);
    if (isNone(packed)) return std::nullopt;
    return ScreenPoint{static_cast<std::int16_t>(LOWORD(packed)),
                       static_cast<std::int16_t>(HIWORD(packed))};
  }

  std::size_t lineOf(std::size_t position) override {
    return multiline_ ? number(target_.ask(EM_LINEFROMCHAR, position)) : 0;
  }

  std::optional<std::size_t> startOf(std::size_t line) override {
    if (!multiline_) return line == 0 ? std::optional<std::size_t>(0) : std::nullopt;
    const LRESULT start = target_.ask(EM_LINEINDEX, line);
    return isNone(start) ? std::nullopt : std::optional(number(start));
  }

  [[nodiscard]] bool linesAreAlike() const override { return true; }

  /// A single line ends with the formatting rectangle, whose top may lie below the line's, which
  /// Windows tells as 0. The caret is as high as any line.
  std::optional<int> bottomOfLastLine(int top) override {
    if (!multiline_) {
      auto formatting = std::make_unique<RECT>();
      askInto(EM_GETRECT, 0, formatting);
      if (!IsRectEmpty(formatting.get()) && formatting->bottom > top) {
        return static_cast<int>(formatting->bottom);
      }
    }
    const auto caret = caretIn(target_.handle());
    return caret ? std::optional(top + caret->bottom - caret->top) : std::nullopt;
  }

  [[nodiscard]] int dpi() const override { return dpiOf(target_.handle()); }

 private:
  /// Sends a message whose answer the control writes into memory.
  template <class Memory>
  LRESULT askInto(UINT message, WPARAM wParam, std::unique_ptr<Memory>& memory) {
    try {
      return target_.ask(message, wParam, reinterpret_cast<LPARAM>(memory.get()));
    } catch (const NoAnswer& silence) {
      // A late control of our own program may yet write into the memory that it was given.
      if (silence.outcome() == Outcome::outOfTime && target_.isOurs()) {
        static_cast<void>(memory.release());
      }
      throw;
    }
  }

  static std::size_t number(LRESULT answer) { return static_cast<std::uint32_t>(answer); }

  const TargetWindow& target_;
  bool multiline_;
};

}  // namespace

Answer EditProvider::wordAt(const Question& question) {
  return answerOfControlAs<EditText>(question);
}

}  // namespace nhw32
