#include "forms/label.h"

namespace forms {

// SS_NOTIFY lets the mouse events through.
Label::Label(Form& form, const std::u16string& caption, const WidgetBox& box)
    : Widget(form, {L"STATIC", SS_LEFT | SS_NOTIFY | SS_NOPREFIX, 0}, box, caption) {}

}  // namespace forms
