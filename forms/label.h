#pragma once

#include "forms/widget.h"

namespace forms {

/// A line of text that cannot have the focus.
class Label : public Widget {
 public:
  Label(Form& form, const std::u16string& caption, const WidgetBox& box);
};

}  // namespace forms
