#pragma once

#include "forms/geometry.h"

/// Where the widgets of the quick lookup window go. All lengths in twips of the window's DPI; sizes
/// of windows are outer sizes as Form::width counts them. All functions are pure. The numbers are
/// the window's design.
namespace lookup {

/// Outer size of the window.
struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

using Box = forms::WidgetBox;

/// Returns the size that a window of `size` snaps to: a width below 3600 becomes 3500, a height
/// below 2900 becomes 2800. Deliberate: each limit is 100 above the size that it leads to, so a
/// window that is dragged below a limit jumps.
Size snapSize(Size size);

/// Places of the widgets that follow the window, for its size (snapped) and the list's width. What
/// has only a left edge here keeps its other lengths. The list's width is the user's.
struct Layout {
  int inputLeft = 0;
  int inputWidth = 0;
  int exitLeft = 0;
  int listLeft = 0;
  int listTop = 0;
  int listHeight = 0;
  Box splitter;
  Box pane;
};
Layout layOut(Size window, int listWidth);

/// Returns whether a list of `listWidth` leaves room for the splitter and some of the pane, in a
/// window of that size after snapping.
bool leavesRoomForPane(Size window, int listWidth);

/// Returns the list width to keep for the next opening of a window of `size`: `listWidth`, or, if
/// the list leaves the pane no room, the widest that a drop on the pane allows.
int widthToKeep(Size size, int listWidth);

/// Returns the list width after the splitter is dropped on the list, `x` from the list's left edge:
/// 1600 if `x` is less than that, otherwise `x` - 30. Deliberate: a drop between 1600 and 1629 thus
/// gives a width just under 1600.
int widthAfterDropOnList(int x);

/// Returns the list width after the splitter is dropped on the pane, `x` from the pane's left edge:
/// wider by `x`, at most 1650 plus a third of what the window is wider than 3500, and at most 3000
/// from a window width of 7700 on. Deliberate: the limit falls there, from 3049 to 3000; and `x` is
/// counted from the pane, not from the splitter.
int widthAfterDropOnPane(int windowWidth, int listWidth, int x);

}  // namespace lookup
