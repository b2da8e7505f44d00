#pragma once

#include <vector>

#include "forms/placement.h"
#include "win32/win32.h"

/// The Z order of our own top-level windows where they meet those that stay on top. Windows knows
/// two levels, ordinary and topmost; our topmost windows have ranks among them (see Rank), which
/// these functions restore whenever Windows, or another topmost program, puts a window above the
/// others. Nothing here activates a window. User-interface thread only.
namespace forms {

/// Has a top-level window of this thread take part, with its rank. It must be removed before its
/// handle becomes invalid. Message boxes, menus and tool tips, which are not added, rank as
/// notices.
void addToStack(HWND window, Rank rank);
void removeFromStack(HWND window);

/// Returns whether a window of this thread was added or is a message box, a menu or a tool tip of
/// ours. Others are let alone: input methods show theirs in the thread of the window that they
/// write to.
bool isOurs(HWND window);

/// Brings a window to the top: above all others but those of ours that rank higher. Moves, sizes
/// and activates nothing. Does nothing while a message box or a menu is open, above which nothing
/// is raised.
void bringToTop(HWND window);

/// Corrects the Z order and activation that a WM_WINDOWPOSCHANGING of an added window asks for: a
/// window brought to the top stops below those that rank higher, and is not activated by that.
void adjustPlacement(HWND window, WINDOWPOS& position);

/// Brings those topmost windows of ours to the top that rank higher than `window` and lie below it:
/// Windows puts a window that it activates above all others.
void raiseWhatIsAbove(HWND window);

/// Call when the activation, or the place or visibility of one of our windows, may have changed:
/// updateStacking follows from the message loop.
void postStackingCheck();

/// Call when one of our windows was activated: the bars are brought to the top from the message
/// loop. Another program's topmost window may have come above them, and a window that is uncovered
/// is not painted where the desktop keeps the picture of each window.
void postBarsToTop();

/// Makes an ordinary window topmost while it, or a window that it owns, is active and a floating
/// window would cover it. Makes it ordinary again afterwards, below the window of another program
/// that is active by then.
void updateStacking();

/// Call when the user has activated, maximised or clicked a window. Under Wine an X11 window
/// manager raises what the user clicks without telling Wine, in whose own Z order the bars are
/// still above a floating window: the bars that meet it are raised again after 100 ms. Does nothing
/// on Windows.
void barsMayBeCovered(HWND window);

/// Returns the places, in screen pixels, of our visible topmost windows of the ranks `lowest` to
/// `highest`: what lies there below them is covered.
std::vector<PixelBox> placesKeptOnTop(Rank lowest, Rank highest);

}  // namespace forms
