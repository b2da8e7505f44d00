#pragma once

#include <optional>
#include <vector>

#include "forms/placement.h"
#include "win32/win32.h"

/// The order of our own windows where they meet those that stay on top. All on the user-interface
/// thread.
namespace forms {

class Form;

/// The window behind which `form`, a topmost one, goes when it is brought to the top: the lowest of
/// our topmost windows that are to stay above it. HWND_TOPMOST where there is none, or where it
/// lies below a window of another program; nullopt where the form is in its place already.
std::optional<HWND> insertAfter(const Form& form);

/// Brings those of our topmost windows to the top that are to stay above `form` and no longer do:
/// the system puts a window that it activates above all others.
void raiseWhatIsAbove(const Form& form);

/// Tells that the activation, or the place or visibility of one of our windows, may have changed;
/// updateStacking follows from the message loop.
void postStackingCheck();

/// Tells that the user has activated, maximised or clicked a form. Under Wine the X11 window
/// manager raises what the user clicks without telling Wine, in whose own Z order the bars are
/// still above a floating form: there the bars that meet it are raised again in a moment.
void barsMayBeCovered(const Form& form);

/// Makes an ordinary form topmost while it, or a window that it owns, is active and a floating form
/// lies where it would cover it. Takes it down again once that is over, behind the window of
/// another program that is active by then.
void updateStacking();

/// The places, in screen pixels, of our topmost forms of the ranks `lowest` to `highest` that can
/// be seen: what lies there below them is covered.
std::vector<PixelBox> placesKeptOnTop(Rank lowest, Rank highest);

}  // namespace forms
