#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// What UI Automation may be asked, and for how long. Portable.
namespace nhw32 {

/// Maximum time of one question. Longer than for a control, since a question takes some fifteen
/// calls, some thirty in a console.
inline constexpr std::chrono::milliseconds kUiaQuestionTime{500};
/// Maximum time of one call; the client is given it as its limit.
inline constexpr std::chrono::milliseconds kUiaCallTime{200};
/// Maximum time of the first question to a process, and of its connecting: a program may load its
/// part of UI Automation, and build the tree of its elements, only when it is asked for the first
/// time. It is the system's own limit for connecting.
inline constexpr std::chrono::milliseconds kUiaFirstQuestionTime{2000};

/// Returns whether a window of this class is a console's (case-sensitive, by containment, as the
/// windows that are probed are chosen).
bool isConsole(std::u16string_view className);

/// Returns whether a console may be asked on this build of Windows. Before Windows 11 22H2 a
/// console may end, and the programs in it with it, when ranges of its text are moved.
bool mayAskConsoles(std::uint32_t build);

/// Remembers which processes have been asked. Not thread-safe.
class Contacts {
 public:
  /// Bounds the memory; the process that was met first is forgotten first.
  static constexpr std::size_t kMaxProcesses = 64;

  /// Returns whether `process` is met for the first time, and remembers it.
  bool isFirst(std::uint32_t process);

 private:
  std::vector<std::uint32_t> met_;
};

/// Delays further attempts after a failure. Not thread-safe.
class Retry {
 public:
  using Time = std::chrono::steady_clock::time_point;

  explicit Retry(std::chrono::milliseconds pause) : pause_(pause) {}

  /// Returns whether an attempt may be made: none failed yet, or `pause` has passed since.
  [[nodiscard]] bool due(Time now) const { return !failed_ || now - *failed_ >= pause_; }
  void failed(Time now) { failed_ = now; }

 private:
  std::chrono::milliseconds pause_;
  std::optional<Time> failed_;
};

}  // namespace nhw32
