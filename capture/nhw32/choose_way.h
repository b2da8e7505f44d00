#pragma once

#include <string_view>

namespace nhw32 {

/// The ways to ask a window for its words.
enum class Way { edit, richEdit, automation };

/// The way for windows of a class. `realClass` is that of the system's from which the class was
/// derived, or its own name again, as RealGetWindowClass tells it. By messages are asked what is
/// an edit control by its real class, its name or as a text box of Visual Basic (in any case), and
/// what contains "RichEdit" in its name (case matters); by UI Automation all others, those
/// included that only sound like an edit control: a rich edit control under such a name would take
/// the point in an edit control's message for an address and bring its program down.
Way wayFor(std::u16string_view className, std::u16string_view realClass);

}  // namespace nhw32
