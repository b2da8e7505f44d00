#pragma once

#include "forms/widget.h"

namespace forms {

/// A plain surface for dragging with the mouse: the grip of a window, or a splitter. Captures the
/// mouse while a button is down. The form decides in onMouseDown what a press begins: it calls
/// beginDrag for a splitter, and moves its window from onMouseMove for a grip.
class DragHandle : public Widget {
 public:
  enum class Look {
    kGrip,  ///< columns of dots in the form's foreColor
    kLine,  ///< nothing; in the colour of a selection while it is dragged
  };
  /// `box` in twips of the form's client area. Throws like Widget.
  DragHandle(WidgetHost& form, Look look, const WidgetBox& box);

  /// Makes the mouse take hold up to `twips` (form's DPI) left and right of the widget too: a
  /// splitter's line is too thin to be hit. A drag that begins there goes as if it had begun at the
  /// widget's nearest pixel: follow and drop are by that distance beside the pointer.
  void setGrabMargin(int twips) { grabMargin_ = twips; }
  [[nodiscard]] bool grabs(POINT screen) const override;

  /// Starts a drag, for onMouseDown: the widget follows the pointer horizontally. Releasing the
  /// button drops it on the widget below the pointer, whose onDragDrop is raised, unless the
  /// pointer has not moved since the press.
  void beginDrag();
  /// Ends a drag without a drop.
  void cancelDrag();
  [[nodiscard]] bool isDragged() const { return dragged_; }

  /// Raised when a drag has ended, with or without a drop; put the widget back in place here.
  Event<> onDragEnded;
  /// The mouse is no longer this widget's: the button came up, or another window took it.
  Event<> onCaptureLost;

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void paint() const;
  void follow(POINT screen);
  void drop(POINT screen);

  Look look_;
  int grabMargin_ = 0;
  bool dragged_ = false;
  POINT dragStart_{};
  int besideLine_ = 0;  ///< pixels that the drag began right of the widget; negative: left of it
};

}  // namespace forms
