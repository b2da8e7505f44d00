#pragma once

#include <windows.h>

#include <chrono>
#include <exception>
#include <functional>
#include <optional>
#include <string>

#include "capture/nhw32/controls/coordinates.h"
#include "capture/nhw32/controls/text_geometry.h"
#include "capture/nhw32/reader.h"

namespace nhw32 {

/// Thrown if a window gives no usable answer. Never leaves a reader.
class NoAnswer : public std::exception {
 public:
  explicit NoAnswer(Outcome outcome) : outcome_(outcome) {}
  [[nodiscard]] Outcome outcome() const { return outcome_; }
  [[nodiscard]] const char* what() const noexcept override { return "the window gives no answer"; }

 private:
  Outcome outcome_;
};

/// A window of any process that is asked by messages, within a time limit that starts when this
/// object is made. Used by the worker thread.
class TargetWindow {
 public:
  /// Maximum time of one message, and of all messages together. The message of hasLines is sent by
  /// an object of its own and has its own time.
  static constexpr std::chrono::milliseconds kMessageTime{50};
  static constexpr std::chrono::milliseconds kQuestionTime{150};

  explicit TargetWindow(WindowId window);

  [[nodiscard]] HWND handle() const { return window_; }
  [[nodiscard]] bool visible() const { return IsWindowVisible(window_) != FALSE; }
  [[nodiscard]] DWORD style() const;
  /// Returns whether the window belongs to our own process.
  [[nodiscard]] bool isOurs() const;

  /// Sends a message and returns its result. Throws NoAnswer if the window is hung, has gone, is
  /// protected from us (UIPI) or does not answer in time.
  [[nodiscard]] LRESULT ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  /// Throws NoAnswer if the control is a password field. Reads nothing else.
  void refusePasswords() const;

 private:
  HWND window_;
  std::chrono::steady_clock::time_point deadline_;
};

/// Returns the window's class name.
std::u16string classNameOf(HWND window);
/// Returns the system class from which the window's class was derived if Windows knows it,
/// otherwise the class name.
std::u16string realClassOf(HWND window);

ScreenBox boxOf(const RECT& rect);

/// Gives this thread the DPI awareness of a window's process until the end of the scope:
/// coordinates are then the target's pixels.
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

/// Returns the window's rectangle in physical pixels and in those of its process. The thread must
/// be per-monitor aware.
WindowScale scaleOf(HWND window);

/// Converts a screen point in the target's pixels to a point of its client area, and a box of the
/// client area to the screen. Both under ScopedTargetAwareness.
ScreenPoint toClient(HWND window, ScreenPoint point);
ScreenBox fromClient(HWND window, const ScreenBox& box);

/// Returns whether a client point is inside the window's client area. Under ScopedTargetAwareness.
bool inClientArea(HWND window, ScreenPoint clientPoint);

/// Returns a client box clipped to the client area. Under ScopedTargetAwareness.
ScreenBox inClientArea(HWND window, const ScreenBox& box);

/// Returns the DPI that the window's process sees: 96 if it is not DPI aware.
int dpiOf(HWND window);

/// Returns the caret's rectangle in client pixels if the caret is in this window and not empty,
/// otherwise nullopt. Under ScopedTargetAwareness.
std::optional<ScreenBox> caretIn(HWND window);

/// Returns whether a window supports EM_GETLINECOUNT as text controls do; a window whose class name
/// merely resembles one does not. Throws NoAnswer.
bool hasLines(WindowId window);

/// Answers a question about a text control: checks that the window is visible and no password
/// field, converts the point to the target's client pixels, calls `read`, checks that the window
/// was not moved or hidden meanwhile, and converts the word's box to physical screen pixels,
/// clipped to the client area. `read` runs under ScopedTargetAwareness; a NoAnswer from it becomes
/// the outcome.
Answer answerOfControl(const Question& question,
                       const std::function<std::optional<PlacedWord>(
                           const TargetWindow& target, ScreenPoint clientPoint)>& read);

}  // namespace nhw32
