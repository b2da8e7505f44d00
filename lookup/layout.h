#pragma once

#include "forms/geometry.h"

/// Where the widgets of the quick lookup window go. All lengths in twips of the window's
/// DPI; widths and heights of windows as the forms count them. All functions are pure.
namespace lookup {

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

using Box = forms::WidgetBox;

/// The size that a window of `size` snaps to: below 3600 x 2900 it becomes 3500 x 2800, each
/// direction by itself.
Size snapSize(Size size);

/// Places of the widgets that follow the window, for its size and the list's width.
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

/// Whether a list of `listWidth` leaves room for the splitter and some of the pane.
bool leavesRoomForPane(Size window, int listWidth);

/// The list width to keep for the next opening of a window of `size`: `listWidth`, or the widest
/// that a drop on the pane allows where the list leaves the pane no room.
int widthToKeep(Size size, int listWidth);

/// List width after the splitter is dropped on the list, `x` twips from the list's left edge.
int widthAfterDropOnList(int x);

/// List width after the splitter is dropped on the pane, `x` twips from the pane's left edge.
int widthAfterDropOnPane(int windowWidth, int listWidth, int x);

}  // namespace lookup
