#include "forms/focus.h"

#include "forms/dispatcher.h"
#include "forms/form.h"
#include "forms/stacking.h"
#include "forms/widget.h"

namespace forms {
namespace {

/// Where the focus rests as far as the windows have been told.
struct FocusState {
  Form* form = nullptr;
  Widget* widget = nullptr;
  int holds = 0;
  bool settling = false;
  bool posted = false;
};

FocusState& focusState() {
  static FocusState instance;
  return instance;
}

/// Brings the account one event nearer to what is; false when they agree.
bool settleOneStep(FocusState& known) {
  Form* form = Form::of(GetActiveWindow());
  Widget* widget = form == nullptr ? nullptr : form->widgetOf(GetFocus());

  if (known.widget != nullptr && known.widget != widget) {
    std::exchange(known.widget, nullptr)->onLostFocus.raise();
    return true;
  }
  if (known.form != nullptr && known.form != form) {
    std::exchange(known.form, nullptr)->raiseLostFocus();
    return true;
  }
  if (form != known.form) {
    known.form = form;
    form->raiseActivate();
    return true;
  }
  if (widget != known.widget) {
    known.widget = widget;
    widget->onGotFocus.raise();
    return true;
  }
  return false;
}

}  // namespace

void postFocusCheck() {
  FocusState& known = focusState();
  if (known.posted) return;
  known.posted = Dispatcher::instance().post([] {
    focusState().posted = false;
    raisePendingFocusEvents();
  });
}

void raisePendingFocusEvents() {
  FocusState& known = focusState();
  if (known.holds > 0 || known.settling) return;
  known.settling = true;
  // A handler may move the focus again; two that chase it between them must not hang the program.
  constexpr int kMaxEvents = 64;
  for (int events = 0; events < kMaxEvents && known.holds == 0 && settleOneStep(known); ++events) {
  }
  known.settling = false;
}

void forgetFocus(const Form& form) {
  FocusState& known = focusState();
  if (known.form == &form) known.form = nullptr;
}

void forgetFocus(const Widget& widget) {
  FocusState& known = focusState();
  if (known.widget == &widget) known.widget = nullptr;
}

bool isFocusHeld() { return focusState().holds > 0; }

ScopedFocusHold::ScopedFocusHold() { ++focusState().holds; }

ScopedFocusHold::~ScopedFocusHold() {
  --focusState().holds;
  guard([] {
    postFocusCheck();
    postStackingCheck();
  });
}

}  // namespace forms
