#pragma once

/// Puts the focus events of our windows in order. The system tells the new window of its activation
/// before the old control of its loss of focus; here the old one always hears first:
/// LostFocus of the old widget, LostFocus of the old form, Activate of the new form, GotFocus of
/// its widget. So a dialog that pauses capture is not undone by the box that it left behind.
namespace forms {

class Form;
class Widget;

/// Tells that the system moved the focus or the activation; the events follow from the message
/// loop, before any further input.
void postFocusCheck();

/// Raises the events that are due, now.
void raisePendingFocusEvents();

/// Takes a window that goes away out of the account; it hears of no loss.
void forgetFocus(const Form& form);
void forgetFocus(const Widget& widget);

/// While one lives, the focus counts as resting where it was: a message box is up.
class ScopedFocusHold {
 public:
  ScopedFocusHold();
  ~ScopedFocusHold();
  ScopedFocusHold(const ScopedFocusHold&) = delete;
  ScopedFocusHold& operator=(const ScopedFocusHold&) = delete;
};

bool isFocusHeld();

}  // namespace forms
