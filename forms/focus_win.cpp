#include "forms/focus.h"

#include <utility>

#include "forms/dispatcher.h"
#include "forms/exception_barrier.h"

// The focus that the windows have heard of is compared with the one that Windows has, one event at
// a time: a handler may move the focus, and what is due next depends on where it is then.
namespace forms {
namespace {

struct FocusState {
  FocusLocation (*locate)() = nullptr;
  FocusLocation heard;  // the last events said that it is here
  int holds = 0;
  bool raising = false;
  bool posted = false;
};

FocusState& focusState() {
  static FocusState instance;
  return instance;
}

/// Raises the next event that is due. Returns false if there is none.
bool raiseNextEvent(FocusState& state) {
  const FocusLocation now = state.locate();
  FocusLocation& heard = state.heard;
  if (heard.widget != nullptr && heard.widget != now.widget) {
    std::exchange(heard.widget, nullptr)->raiseLostFocus();
    return true;
  }
  if (heard.form != nullptr && heard.form != now.form) {
    std::exchange(heard.form, nullptr)->raiseLostFocus();
    return true;
  }
  if (now.form != heard.form) {
    heard.form = now.form;
    now.form->raiseGotFocus();
    return true;
  }
  if (now.widget != heard.widget) {
    heard.widget = now.widget;
    now.widget->raiseGotFocus();
    return true;
  }
  return false;
}

}  // namespace

FocusTarget::~FocusTarget() { forgetFocus(*this); }

void setFocusLocator(FocusLocation (*locator)()) { focusState().locate = locator; }

void postFocusCheck() {
  FocusState& state = focusState();
  if (state.posted) return;
  state.posted = Dispatcher::instance().post([] {
    focusState().posted = false;
    raisePendingFocusEvents();
  });
}

void raisePendingFocusEvents() {
  FocusState& state = focusState();
  if (state.holds > 0 || state.raising || state.locate == nullptr) return;
  state.raising = true;
  // Two handlers that each take the focus back must not hang the program. One move of the focus is
  // four events at most.
  constexpr int kMaxEvents = 64;
  for (int events = 0; events < kMaxEvents && state.holds == 0 && raiseNextEvent(state); ++events) {
  }
  state.raising = false;
}

void forgetFocus(const FocusTarget& target) {
  FocusLocation& heard = focusState().heard;
  if (heard.form == &target) heard.form = nullptr;
  if (heard.widget == &target) heard.widget = nullptr;
}

bool isFocusHeld() { return focusState().holds > 0; }

ScopedFocusHold::ScopedFocusHold() { ++focusState().holds; }

ScopedFocusHold::~ScopedFocusHold() {
  --focusState().holds;
  guard([] { postFocusCheck(); });
}

}  // namespace forms
