#pragma once

#include <windows.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "capture/nhw32/controls/coordinates.h"
#include "capture/nhw32/reader.h"
#include "win32/handles.h"

/// A window of another process as the readers of controls see it: its messages, memory in its
/// process, and its coordinates. For the worker thread. Functions on a window that has gone return
/// what Windows returns for an invalid handle, unless documented to throw.
namespace nhw32 {

/// A window of any process that is asked by messages, within a time limit that starts when this
/// object is made.
class TargetWindow {
 public:
  /// Maximum time of one message, and of all messages of this object together. Probes come every
  /// 100 ms: a window that does not answer delays the next one hardly longer than that.
  static constexpr std::chrono::milliseconds kMessageTime{50};
  static constexpr std::chrono::milliseconds kQuestionTime{150};

  explicit TargetWindow(WindowId window, Clock clock = std::chrono::steady_clock::now);

  [[nodiscard]] HWND handle() const { return window_; }
  [[nodiscard]] bool visible() const { return IsWindowVisible(window_) != FALSE; }
  [[nodiscard]] DWORD style() const;
  /// Returns whether the window belongs to our own process.
  [[nodiscard]] bool isOurs() const;

  /// Sends a message and returns its result. Throws NoAnswer(kOutOfTime) if the window is hung or
  /// does not answer in time, NoAnswer(kRefused) if it has gone or is protected from us (UIPI).
  [[nodiscard]] LRESULT ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  /// Returns whether the control is a password field. Reads nothing of its text. Throws NoAnswer.
  [[nodiscard]] bool isPassword() const;

 private:
  HWND window_;
  Clock clock_;
  std::chrono::steady_clock::time_point deadline_;
};

/// Memory allocated in the process of a window, for messages that take the address of a structure;
/// readable and writable, of `size` bytes. The destructor frees it. A function that fails throws
/// NoAnswer(kRefused): the process may be protected from us or have ended. Offsets and sizes are in
/// bytes and must lie within the memory.
class RemoteMemory {
 public:
  RemoteMemory(HWND window, std::size_t size);
  ~RemoteMemory();
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;

  /// Returns the address of byte `offset` in the other process.
  [[nodiscard]] std::uint64_t address(std::size_t offset) const;
  /// Returns whether the process is a 32-bit one, whose structures hold 32-bit addresses.
  [[nodiscard]] bool inProgramOf32Bits() const;

  /// Copies between this process and the other one.
  void write(std::size_t offset, const void* from, std::size_t size) const;
  void read(std::size_t offset, void* to, std::size_t size) const;

  /// Returns whether the memory is there, in the process of `window`.
  [[nodiscard]] bool isIn(HWND window) const;

  /// Leaves the memory allocated until the other process ends, for a control that may still use it.
  void abandon() { address_ = nullptr; }

 private:
  win32::OwnedKernelObject process_;
  std::byte* address_ = nullptr;
};

/// The memory for the messages of one question, kept for the next one as long as that is about a
/// window of the same process: the pointer that rests or moves over a program takes memory from it
/// once.
class KeptMemory {
 public:
  /// Returns memory in the process of `window`, valid until the next call of a member function.
  /// `size` is the same in all calls. Throws as the constructor of RemoteMemory does.
  RemoteMemory& in(HWND window, std::size_t size);
  void free() { memory_.reset(); }

 private:
  std::optional<RemoteMemory> memory_;
};

/// Gives this thread the DPI awareness of a window's process until the end of the scope, so that
/// functions of Windows return and take the target's pixels.
class ScopedTargetAwareness {
 public:
  explicit ScopedTargetAwareness(HWND window)
      : before_(SetThreadDpiAwarenessContext(GetWindowDpiAwarenessContext(window))) {}
  ~ScopedTargetAwareness() {
    if (before_ != nullptr) SetThreadDpiAwarenessContext(before_);
  }
  ScopedTargetAwareness(const ScopedTargetAwareness&) = delete;
  ScopedTargetAwareness& operator=(const ScopedTargetAwareness&) = delete;

 private:
  DPI_AWARENESS_CONTEXT before_;
};

/// Returns the window's rectangle in both kinds of pixels. The thread must be per-monitor DPI
/// aware.
WindowScale scaleOf(HWND window);

/// Converts between the target's screen and client pixels. Like all functions below, to be called
/// under ScopedTargetAwareness.
ClientPoint toClient(HWND window, TargetPoint point);
TargetBox fromClient(HWND window, const ClientBox& box);

/// Returns whether a point is inside the window's client area.
bool inClientArea(HWND window, ClientPoint point);

/// Returns a box clipped to the client area.
ClientBox inClientArea(HWND window, const ClientBox& box);

/// Returns the DPI in which client pixels are counted: 96 if the process is not DPI aware.
int dpiOf(HWND window);

/// Returns the caret's rectangle if the caret is in this window and not empty, otherwise nullopt.
std::optional<ClientBox> caretIn(HWND window);

}  // namespace nhw32
