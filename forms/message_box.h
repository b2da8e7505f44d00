#pragma once

#include <exception>
#include <string>

namespace forms {

enum class MessageIcon { kNone, kCritical, kExclamation, kInformation };

/// Shows a modal message box with an OK button and returns when it is closed. It is owned by our
/// active window, disables all windows of the program, and raises no focus events; timers go on.
/// `title` may be empty. User-interface thread only.
void showMessage(const std::u16string& text, MessageIcon icon, const std::u16string& title = {});

/// The program's handler of uncaught errors: a message box with the error's description, the
/// critical icon and no title. For setErrorHandler.
void showErrorBox(const std::exception_ptr& error);

}  // namespace forms
