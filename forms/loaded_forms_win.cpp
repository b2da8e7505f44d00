#include "forms/loaded_forms.h"

#include "forms/dispatcher.h"
#include "forms/exception_barrier.h"
#include "forms/focus.h"
#include "forms/stacking.h"

// A form is unloaded from one of its own handlers (a button that closes it), so its object must not
// be destroyed there: it is moved to a second list, which is emptied between two messages.
namespace forms {
namespace {

/// IsDialogMessage gives forms the keys of dialogs: Tab, arrows, Enter and Esc.
void dispatch(MSG& message) {
  const Form* form = Form::of(GetAncestor(message.hwnd, GA_ROOT));
  if (form == nullptr || !IsDialogMessageW(form->handle(), &message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  LoadedForms::instance().purge();
}

/// Whether the system runs a modal loop on this thread that takes input out of the queue and acts
/// on it without dispatching it (a menu, the moving or sizing of a window, a drag out of a text
/// box), or before dispatching it (a message box, with the keys of dialogs).
bool isInputTakenElsewhere() {
  if (isFocusHeld()) return true;
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(GetCurrentThreadId(), &info);
  constexpr DWORD kModal = GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE | GUI_INMOVESIZE;
  return (info.flags & kModal) != 0 ||
         (info.hwndCapture != nullptr &&
          Form::of(GetAncestor(info.hwndCapture, GA_ROOT)) == nullptr);
}

/// Removes the next message that doEvents is to handle; returns whether there was one.
bool takeMessage(MSG& message) {
  constexpr UINT kAllButInput = PM_QS_POSTMESSAGE | PM_QS_PAINT | PM_QS_SENDMESSAGE;
  const UINT kinds = isInputTakenElsewhere() ? kAllButInput : 0;
  return PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | kinds) != FALSE;
}

}  // namespace

// Forms use these two when they are destroyed; constructed first, they are destroyed after the
// forms.
LoadedForms::LoadedForms() {
  Dispatcher::instance();
  removeFromStack(nullptr);
}

LoadedForms& LoadedForms::instance() {
  static LoadedForms forms;
  return forms;
}

Form* LoadedForms::find(std::type_index type) const {
  const auto found = forms_.find(type);
  return found == forms_.end() ? nullptr : found->second.get();
}

Form& LoadedForms::add(std::type_index type, std::unique_ptr<Form> form) {
  form->onUnloaded = [this, type] { retire(type); };
  return *forms_.emplace(type, std::move(form)).first->second;
}

void LoadedForms::retire(std::type_index type) {
  const auto found = forms_.find(type);
  if (found == forms_.end()) return;
  retired_.push_back(std::move(found->second));
  forms_.erase(found);
}

void LoadedForms::purge() {
  if (ScopedHandler::depth() == 0) retired_.clear();
}

void doEvents() {
  MSG message;
  while (takeMessage(message)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    dispatch(message);
  }
}

int runMessageLoop() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) dispatch(message);
  return static_cast<int>(message.wParam);
}

}  // namespace forms
