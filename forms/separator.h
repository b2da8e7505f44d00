#pragma once

#include "forms/widget.h"

namespace forms {

/// A line between two groups of widgets.
class Separator : public Widget {
 public:
  Separator(Form& form, const WidgetBox& box);
};

}  // namespace forms
