#pragma once

#include "forms/widget.h"

/// Widgets on the system's STATIC control; they cannot have the focus.
namespace forms {

/// A line of text. "&" is shown as it is. Raises the mouse events.
class Label : public Widget {
 public:
  /// `box` in twips of the form's client area; throws like Widget.
  Label(Form& form, const std::u16string& caption, const WidgetBox& box);
};

/// A horizontal etched line between two groups of widgets.
class Separator : public Widget {
 public:
  /// `box` in twips of the form's client area; throws like Widget.
  Separator(Form& form, const WidgetBox& box);
};

}  // namespace forms
