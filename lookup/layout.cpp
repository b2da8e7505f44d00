#include "lookup/layout.h"

#include <algorithm>

namespace lookup {
namespace {

constexpr int kMargin = 30;
constexpr int kTop = 600;  // of list, splitter and pane
constexpr int kSplitterWidth = 20;
constexpr int kBelowTop = 1000;  // the window's height less theirs: the row above and the frame
constexpr int kNarrowestDrop = 1600;

}  // namespace

Size snapSize(Size size) {
  return {size.width < 3600 ? 3500 : size.width, size.height < 2900 ? 2800 : size.height};
}

// From left to right: margin, list, splitter, pane, and 150 twips: a margin and the frame.
Layout layOut(Size window, int listWidth) {
  const int height = window.height - kBelowTop;
  Layout layout;
  layout.inputLeft = 750;
  layout.inputWidth = window.width - 1750;
  layout.exitLeft = window.width - 900;
  layout.listLeft = kMargin;
  layout.listTop = kTop;
  layout.listHeight = height;
  layout.splitter = {listWidth + kMargin, kTop, kSplitterWidth, height};
  layout.pane = {listWidth + kMargin + kSplitterWidth, kTop, window.width - listWidth - 200,
                 height};
  return layout;
}

// A window too small for its list snaps first, which may make the room.
bool leavesRoomForPane(Size window, int listWidth) {
  return layOut(snapSize(window), listWidth).pane.width > 0;
}

// A drop at 0 asks for no more than the list has, and is limited like any other.
int widthToKeep(Size size, int listWidth) {
  if (leavesRoomForPane(size, listWidth)) return listWidth;
  return widthAfterDropOnPane(snapSize(size).width, listWidth, 0);
}

int widthAfterDropOnList(int x) { return x < kNarrowestDrop ? kNarrowestDrop : x - kMargin; }

int widthAfterDropOnPane(int windowWidth, int listWidth, int x) {
  // Integer division: the limit is rounded down.
  const int limit = windowWidth < 7700 ? (windowWidth - 3500) / 3 + 1650 : 3000;
  return std::min(listWidth + x, limit);
}

}  // namespace lookup
