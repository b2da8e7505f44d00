#pragma once

/// Puts the focus events of our windows in order. Windows sends WM_ACTIVATE to the new window
/// before WM_KILLFOCUS to the old control; here the old one always comes first: LostFocus of the
/// old widget, LostFocus of the old form, Activate of the new form, GotFocus of its widget.
/// Otherwise a dialog that pauses capture when it is activated would have it started again by the
/// input box that loses the focus to it. User-interface thread only.
namespace forms {

/// A form or a widget, which hears that the focus came or went.
class FocusTarget {
 public:
  FocusTarget() = default;
  FocusTarget(const FocusTarget&) = delete;
  FocusTarget& operator=(const FocusTarget&) = delete;
  /// A target that is destroyed hears of no loss.
  virtual ~FocusTarget();

  /// GotFocus of a widget, Activate of a form.
  virtual void raiseGotFocus() noexcept = 0;
  virtual void raiseLostFocus() noexcept = 0;
};

/// The form and the widget that have the focus; nullptr for none of ours.
struct FocusLocation {
  FocusTarget* form = nullptr;
  FocusTarget* widget = nullptr;
};

/// Sets the function that finds where Windows has put the focus. Forms do this.
void setFocusLocator(FocusLocation (*locator)());

/// Call when Windows may have moved the focus or the activation: the events are raised from the
/// message loop, before any further input.
void postFocusCheck();

/// Raises the events that are due, now.
void raisePendingFocusEvents();

/// Treats `target` as not having the focus; it hears of no loss. For a window that is closed.
void forgetFocus(const FocusTarget& target);

/// While one exists no focus event is raised: a message box is open. At its end the events that are
/// due are posted.
class ScopedFocusHold {
 public:
  ScopedFocusHold();
  ~ScopedFocusHold();
  ScopedFocusHold(const ScopedFocusHold&) = delete;
  ScopedFocusHold& operator=(const ScopedFocusHold&) = delete;
};

/// Returns whether a ScopedFocusHold exists.
bool isFocusHeld();

}  // namespace forms
