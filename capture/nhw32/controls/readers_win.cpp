#include "capture/nhw32/controls/readers.h"

#include <windows.h>

#include <richedit.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>

#include "capture/nhw32/controls/control_layout.h"
#include "capture/nhw32/controls/target_window.h"
#include "capture/nhw32/controls/text_geometry.h"
#include "win32/win32.h"

// A question about a control takes four steps (readControl): convert the point to the target's
// client pixels, let wordUnder find the word and its box in the control's text, check that the
// window has not changed meanwhile, convert the box back to screen pixels.
//
// ControlText is what both kinds of control have in common. Windows marshals the messages of
// edit controls across processes, with the buffers that they point to. It does not marshal those of
// rich edit controls: they take the address of a structure in the control's own process, so
// RichEditText keeps its structures in RemoteMemory.
namespace nhw32 {
namespace {

/// Edit controls return -1 for a position that does not exist; a 32-bit program's -1 arrives
/// without sign extension.
bool isNone(LRESULT answer) { return static_cast<std::int32_t>(answer) == -1; }

/// The text of an edit control. Positions and lines are returned in 16 bits by some messages; see
/// expandLow16.
class EditText : public ControlText {
 public:
  explicit EditText(const TargetWindow& target)
      : target_(target), multiline_((target.style() & ES_MULTILINE) != 0) {}

  std::optional<std::size_t> positionNear(ClientPoint point) override {
    const LRESULT packed = target_.ask(EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y));
    if (isNone(packed)) return std::nullopt;
    // The first visible line; in a single line the first visible character.
    const std::size_t visible = number(target_.ask(EM_GETFIRSTVISIBLELINE));
    if (!multiline_) return expandLow16(visible, LOWORD(packed));
    const auto start = startOf(expandLow16(visible, HIWORD(packed)));
    // In a longer line the low 16 bits do not identify a character.
    constexpr std::size_t kMaxLine = 0xFFFF;
    if (!start || number(target_.ask(EM_LINELENGTH, *start)) > kMaxLine) return std::nullopt;
    return expandLow16(*start, LOWORD(packed));
  }

  /// Reads from the beginning: EM_GETLINE, which would copy less, is not safe across processes.
  TextPart textAround(std::size_t position) override {
    const std::size_t capacity = position + kReach + 1;  // with the NUL
    auto buffer = std::make_unique<wchar_t[]>(capacity);
    const auto length = number(askInto(WM_GETTEXT, capacity, buffer));
    return {{buffer.get(), buffer.get() + std::min(length, capacity - 1)}, 0};
  }

  std::optional<ClientPoint> cornerOf(std::size_t position) override {
    const LRESULT packed = target_.ask(EM_POSFROMCHAR, position);
    if (isNone(packed)) return std::nullopt;
    return ClientPoint{static_cast<std::int16_t>(LOWORD(packed)),
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

/// Offsets in the remote memory: the structure that a message takes, of which none has more than 64
/// bytes, and the text that EM_GETTEXTRANGE writes.
constexpr std::size_t kStructure = 0;
constexpr std::size_t kText = 64;
/// Characters that textAround reads at most.
constexpr std::size_t kMaxText = 2 * kReach;
/// In UTF-8, the widest ANSI code page, a code unit takes up to three bytes.
constexpr std::size_t kTextSize = 3 * (kMaxText + 1);
constexpr std::size_t kMemory = kText + kTextSize;

constexpr UINT kUtf16 = 1200;  ///< code page identifier

/// The text of a rich edit control.
class RichEditText : public ControlText {
 public:
  RichEditText(const TargetWindow& target, KeptMemory& memory)
      : target_(target), memory_(memory.in(target.handle(), kMemory)) {}

  std::optional<std::size_t> positionNear(ClientPoint point) override {
    put(POINTL{point.x, point.y});
    return number(ask(EM_CHARFROMPOS, 0, parameter()));
  }

  TextPart textAround(std::size_t position) override {
    const std::size_t begin = position > kReach ? position - kReach : 0;
    const std::size_t end = std::min(position + kReach, length());
    if (begin >= end) return {};
    const auto bitness = memory_.inProgramOf32Bits() ? Bitness::kBits32 : Bitness::kBits64;
    auto bytes = textRangeBytes(bitness, static_cast<std::int32_t>(begin),
                                static_cast<std::int32_t>(end), memory_.address(kText));
    bytes.resize(kMemory, kUnwritten);
    memory_.write(kStructure, bytes.data(), bytes.size());
    const std::size_t count = number(ask(EM_GETTEXTRANGE, 0, parameter()));
    return {textOf(count), begin};
  }

  std::optional<ClientPoint> cornerOf(std::size_t position) override {
    // For a position past the end, the control may leave the structure as it is.
    constexpr POINTL kUntouched{std::numeric_limits<LONG>::min(), 0};
    put(kUntouched);
    ask(EM_POSFROMCHAR, memory_.address(kStructure), static_cast<LPARAM>(position));
    POINTL corner{};
    memory_.read(kStructure, &corner, sizeof corner);
    if (corner.x == kUntouched.x) return std::nullopt;
    return ClientPoint{static_cast<int>(corner.x), static_cast<int>(corner.y)};
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

  /// The length in characters, with line ends counted as positions count them.
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
  RemoteMemory& memory_;
};

/// Reads a control; `textOf` returns its text.
template <class TextOf>
std::optional<Word> readControl(const Question& question, TextOf textOf) {
  const TargetWindow target(question.window);
  const HWND window = target.handle();
  if (!target.visible() || target.isPassword()) return std::nullopt;
  const WindowScale scale = scaleOf(window);
  const ScopedTargetAwareness awareness(window);
  const TargetPoint asked = toTarget(scale, question.point);
  const ClientPoint point = toClient(window, asked);
  if (!inClientArea(window, point)) return std::nullopt;
  auto text = textOf(target);
  auto word = wordUnder(text, point);
  // The window may have been closed, moved or resized meanwhile.
  if (!word || !target.visible() || toClient(window, asked) != point ||
      !inClientArea(window, point)) {
    return std::nullopt;
  }
  return Word{std::move(word->readings),
              toScreen(scale, fromClient(window, inClientArea(window, word->box)))};
}

}  // namespace

bool hasLines(WindowId window) { return TargetWindow(window).ask(EM_GETLINECOUNT) > 0; }

std::optional<Word> editWordAt(const Question& question) {
  return readControl(question, [](const TargetWindow& target) { return EditText(target); });
}

std::optional<Word> richEditWordAt(const Question& question, KeptMemory& memory) {
  return readControl(
      question, [&memory](const TargetWindow& target) { return RichEditText(target, memory); });
}

}  // namespace nhw32
