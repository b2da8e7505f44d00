#pragma once

#include "forms/widget.h"

namespace forms {

/// A plain surface for dragging with the mouse: the grip of a window, or a splitter.
class DragHandle : public Widget {
 public:
  enum class Look { kGrip, kLine };
  DragHandle(WidgetHost& form, Look look, const WidgetBox& box);

  /// Makes the mouse take hold up to `twips` (form's DPI) left and right of the widget too: a
  /// splitter's line is too thin to be hit.
  void setGrabMargin(int twips) { grabMargin_ = twips; }
  [[nodiscard]] bool grabs(POINT screen) const override;

  /// Starts a drag: the widget follows the pointer horizontally. Releasing the
  /// button drops it on the widget below the pointer, whose onDragDrop is raised.
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
};

}  // namespace forms
