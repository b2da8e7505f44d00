#include "forms/static_controls.h"

namespace forms {

// SS_NOTIFY lets the mouse events through: without it STATIC answers HTTRANSPARENT.
Label::Label(Form& form, const std::u16string& caption, const WidgetBox& box)
    : Widget(form, {L"STATIC", SS_LEFT | SS_NOTIFY | SS_NOPREFIX, 0}, box, caption) {}

Separator::Separator(Form& form, const WidgetBox& box)
    : Widget(form, {L"STATIC", SS_ETCHEDHORZ, 0}, box) {}

}  // namespace forms
