#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "capture/nhw32/reader.h"

/// Which reader is used for a window, what a failed message means, and when a window is left alone.
/// Portable; nothing here calls a window. For the worker thread.
namespace nhw32 {

/// The kinds of reader: by the messages of edit controls, by those of rich edit controls, by UI
/// Automation.
enum class ReaderKind { kEdit, kRichEdit, kUia };

/// Returns the reader for a window by its class name and its real class name (RealGetWindowClass:
/// the system class that the window's class was derived from; may be empty).
/// - kEdit: the real class or the class is Edit or a Visual Basic text box (ASCII
/// case-insensitive).
/// - kRichEdit: the class name contains "RichEdit", in this case if it contains "Edit", otherwise
/// in
///   any: a window is probed for "Edit" in this case, and is read as it was before the others were.
/// - kUia: everything else. EM_CHARFROMPOS takes a packed point in edit controls but an address in
///   rich edit controls, which crash on a packed point; so a class whose name only resembles an
///   edit control is never sent edit messages.
ReaderKind readerKindFor(std::u16string_view className, std::u16string_view realClassName);

/// Maps GetLastError() after SendMessageTimeout returned 0 to an outcome. ERROR_TIMEOUT is
/// kOutOfTime; so is 0, which the function leaves for a window that counts as hung. Any other error
/// is kRefused.
Outcome outcomeOfSendTimeout(std::uint32_t lastError);

/// Exponential back-off for windows that do not answer in time. After kMaxTimeouts timeouts in a
/// row a window is left alone for kMinDelay, and for twice as long after each further timeout, at
/// most kMaxDelay, or kMaxUiaDelay after a timeout of UI Automation. An answer in time resets the
/// count; a refusal changes nothing. Without it, a program that hangs for a moment at each message
/// would be held up ten times a second while the pointer rests over it. Not thread-safe.
class Backoff {
 public:
  using Time = std::chrono::steady_clock::time_point;

  /// A few, since a program that is merely busy may miss one or two.
  static constexpr int kMaxTimeouts = 3;
  static constexpr std::chrono::seconds kMinDelay{5};
  static constexpr std::chrono::minutes kMaxDelay{5};
  /// Short, since a question takes many calls: a program may be busy without being stuck.
  static constexpr std::chrono::seconds kMaxUiaDelay{10};
  /// Bounds the memory; the window noted least recently is forgotten first.
  static constexpr std::size_t kMaxWindows = 64;

  /// Returns whether `window` may be asked now.
  [[nodiscard]] bool mayAsk(WindowId window, Time now) const;
  /// Records how asking `window` ended.
  void note(WindowId window, Outcome outcome, Time now);

 private:
  struct Record {
    WindowId window = 0;
    int timeouts = 0;
    std::chrono::seconds delay{0};
    Time until{};
  };

  std::vector<Record> records_;  ///< least recently noted first
};

/// Passes questions on to another reader, except for windows that are backed off, which it answers
/// with Outcome::kNone.
class BackoffReader : public WordReader {
 public:
  explicit BackoffReader(std::unique_ptr<WordReader> reader,
                         Clock clock = std::chrono::steady_clock::now)
      : reader_(std::move(reader)), clock_(std::move(clock)) {}

  Answer wordAt(const Question& question) override;
  void rest() override { reader_->rest(); }

 private:
  std::unique_ptr<WordReader> reader_;
  Clock clock_;
  Backoff backoff_;
};

}  // namespace nhw32
