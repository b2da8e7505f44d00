#pragma once

#include <windows.h>

#include <chrono>
#include <exception>
#include <string>

#include "capture/nhw32/controls/target_coordinates.h"

namespace nhw32 {

/// Thrown where a window gives no (usable) answer.
class NoAnswer : public std::exception {
 public:
  explicit NoAnswer(Outcome outcome) : outcome_(outcome) {}
  [[nodiscard]] Outcome outcome() const { return outcome_; }
  [[nodiscard]] const char* what() const noexcept override { return "the window gives no answer"; }

 private:
  Outcome outcome_;
};

/// A window of any program, to be asked by messages for a limited time.
class TargetWindow {
 public:
  /// How long one message may wait, and all messages together since this object was made. The one
  /// by which a control is recognised (hasLines) is sent beforehand and has its own time.
  static constexpr std::chrono::milliseconds kMessageTime{50};
  static constexpr std::chrono::milliseconds kQuestionTime{150};

  explicit TargetWindow(WindowId window);

  [[nodiscard]] HWND handle() const { return window_; }
  [[nodiscard]] bool visible() const { return IsWindowVisible(window_) != FALSE; }
  [[nodiscard]] DWORD style() const;
  /// Whether it belongs to our own program.
  [[nodiscard]] bool isOurs() const;

  /// Sends a message and returns the answer. Throws NoAnswer where there is none in time.
  [[nodiscard]] LRESULT ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  /// Throws NoAnswer where the control hides what is typed into it. Reads nothing else.
  void refusePasswords() const;

 private:
  HWND window_;
  std::chrono::steady_clock::time_point deadline_;
};

/// The window's class name.
std::u16string classNameOf(HWND window);
/// The system's class from which the window's class was derived, where the system knows; else the
/// window's class name.
std::u16string realClassOf(HWND window);

ScreenBox boxOf(const RECT& rect);

/// While it lives, this thread counts pixels as the window's program does.
class TargetAwareness {
 public:
  explicit TargetAwareness(HWND window)
      : before_(SetThreadDpiAwarenessContext(GetWindowDpiAwarenessContext(window))) {}
  ~TargetAwareness() {
    if (before_ != nullptr) SetThreadDpiAwarenessContext(before_);
  }
  TargetAwareness(const TargetAwareness&) = delete;
  TargetAwareness& operator=(const TargetAwareness&) = delete;

 private:
  DPI_AWARENESS_CONTEXT before_;
};

/// The window in the screen's pixels and in its program's; to be asked for while this thread counts
/// as the screen does.
WindowScale scaleOf(HWND window);

/// Turns a point of the screen, in the target's pixels, into one of its client area; a box the
/// other way round. Both under TargetAwareness.
ScreenPoint toClient(HWND window, ScreenPoint point);
ScreenBox fromClient(HWND window, const ScreenBox& box);

/// Whether a point lies in the window's client area. Under TargetAwareness.
bool inClientArea(HWND window, ScreenPoint clientPoint);

/// The part of a box of the client area that lies in it. Under TargetAwareness.
ScreenBox inClientArea(HWND window, const ScreenBox& box);

/// The resolution in which the window's program counts pixels: 96 where it knows of no other.
int dpiOf(HWND window);

}  // namespace nhw32
