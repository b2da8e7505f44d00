#include "forms/separator.h"

namespace forms {

Separator::Separator(Form& form, const WidgetBox& box)
    : Widget(form, {L"STATIC", SS_ETCHEDHORZ, 0}, box) {}

}  // namespace forms
