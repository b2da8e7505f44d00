#include "capture/nhw32/controls/readers.h"

#include <windows.h>

#include <richedit.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <memory>

#include "capture/nhw32/controls/control_layout.h"
#include "capture/nhw32/controls/remote_memory.h"
#include "capture/nhw32/controls/target_window.h"
#include "capture/nhw32/controls/text_geometry.h"
#include "capture/nhw32/word_text.h"
#include "win32/win32.h"

// Windows marshals the messages of edit controls across processes, those of rich edit controls not:
// they take the address of a structure in the control's own process, so RichEditText keeps its
// structures in RemoteMemory. Both kinds of control implement ControlText, from which wordUnder
// computes the word and its box.
namespace nhw32 {
namespace {

/// Edit controls return -1 in 32 bits for a position that does not exist.
bool isNone(LRESULT answer) { return static_cast<std::int32_t>(answer) == -1; }

/// The text of an edit control.
class EditText : public ControlText {
 public:
  explicit EditText(const TargetWindow& target)
      : target_(target), multiline_((target.style() & ES_MULTILINE) != 0) {}

  std::size_t positionNear(ScreenPoint point) override {
    const LRESULT packed = target_.ask(EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y));
    if (isNone(packed)) throw NoAnswer(Outcome::kNone);
    // The first visible line; in a single line the first visible character.
    const std::size_t visible = number(target_.ask(EM_GETFIRSTVISIBLELINE));
    if (!multiline_) return expandLow16(visible, LOWORD(packed));
    const auto start = startOf(expandLow16(visible, HIWORD(packed)));
    // In a longer line the low 16 bits do not identify a character.
    constexpr std::size_t kMaxLine = 0xFFFF;
    if (!start || number(target_.ask(EM_LINELENGTH, *start)) > kMaxLine) {
      throw NoAnswer(Outcome::kNone);
    }
    return expandLow16(*start, LOWORD(packed));
  }

  /// Reads from the beginning: EM_GETLINE, which would copy less, is not safe across processes.
  TextPart textAround(std::size_t position) override {
    const std::size_t capacity = position + kMaxWord + 2;  // with the NUL
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

  /// A single line ends with the formatting rectangle. Its top is not used: it may lie below the
  /// top of the line, which Windows returns as 0. The caret is as high as any line.
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
  /// Sends a message whose result the control writes into `memory`. After a timeout in a window of
  /// our own process the memory is leaked deliberately: the control may still write into it.
  template <class Memory>
  LRESULT askInto(UINT message, WPARAM wParam, std::unique_ptr<Memory>& memory) {
    try {
      return target_.ask(message, wParam, reinterpret_cast<LPARAM>(memory.get()));
    } catch (const NoAnswer& failure) {
      if (failure.outcome() == Outcome::kOutOfTime && target_.isOurs()) {
        static_cast<void>(memory.release());
      }
      throw;
    }
  }

  static std::size_t number(LRESULT answer) { return static_cast<std::uint32_t>(answer); }

  const TargetWindow& target_;
  bool multiline_;
};

/// Offsets in the remote memory.
constexpr std::size_t kStructure = 0;
constexpr std::size_t kText = 64;
constexpr std::size_t kMaxText = 2 * (kMaxWord + 1);
/// In UTF-8, the widest ANSI code page, a code unit takes up to three bytes.
constexpr std::size_t kTextSize = 3 * (kMaxText + 1);
constexpr std::size_t kMemory = kText + kTextSize;

constexpr UINT kUtf16 = 1200;  ///< code page identifier

/// The text of a rich edit control.
class RichEditText : public ControlText {
 public:
  explicit RichEditText(const TargetWindow& target)
      : target_(target), memory_(target.handle(), kMemory) {}

  std::size_t positionNear(ScreenPoint point) override {
    put(POINTL{point.x, point.y});
    return number(ask(EM_CHARFROMPOS, 0, parameter()));
  }

  TextPart textAround(std::size_t position) override {
    const std::size_t reach = kMaxWord + 1;
    const std::size_t begin = position > reach ? position - reach : 0;
    const std::size_t end = std::min(position + reach, length());
    if (begin >= end) return {};
    const auto bitness = memory_.inProgramOf32Bits() ? Bitness::kBits32 : Bitness::kBits64;
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

  /// The caret is only used if it is on that line or a later one.
  std::optional<int> bottomOfLastLine(int top) override {
    const auto caret = caretIn(target_.handle());
    return caret && caret->top >= top ? std::optional(caret->bottom) : std::nullopt;
  }

  [[nodiscard]] int dpi() const override { return dpiOf(target_.handle()); }

 private:
  /// After a timeout the memory is left allocated: the control may still read or write it.
  LRESULT ask(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
      return target_.ask(message, wParam, lParam);
    } catch (const NoAnswer& failure) {
      if (failure.outcome() == Outcome::kOutOfTime) memory_.abandon();
      throw;
    }
  }

  std::size_t length() {
    put(GETTEXTLENGTHEX{GTL_NUMCHARS | GTL_PRECISE, kUtf16});
    return number(ask(EM_GETTEXTLENGTHEX, memory_.address(kStructure), 0));
  }

  /// Returns the text that the control wrote: `count` characters or bytes.
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

  /// Returns a position or count; throws NoAnswer for a negative one.
  static std::size_t number(LRESULT answer) {
    const auto value = static_cast<std::int32_t>(answer);
    if (value < 0) throw NoAnswer(Outcome::kNone);
    return static_cast<std::size_t>(value);
  }

  const TargetWindow& target_;
  RemoteMemory memory_;
};

/// Reads the word with a control's text `Text`, which is constructed from the TargetWindow.
template <class Text>
Answer readControl(const Question& question) {
  return answerOfControl(question, [](const TargetWindow& target, ScreenPoint clientPoint) {
    Text text(target);
    return wordUnder(text, clientPoint);
  });
}

}  // namespace

Answer editWordAt(const Question& question) { return readControl<EditText>(question); }

Answer richEditWordAt(const Question& question) { return readControl<RichEditText>(question); }

}  // namespace nhw32
