#pragma once

#include <string>

namespace forms {

enum class MessageIcon { none, critical, exclamation, information };

/// Shows a modal box with an OK button. It is owned by our active window, holds all windows of the
/// program, and counts as no move of the focus. `title` may be empty.
void showMessage(const std::u16string& text, MessageIcon icon, const std::u16string& title = {});

}  // namespace forms
