#include "forms/stacking.h"

#include <algorithm>
#include <utility>

#include "forms/dispatcher.h"
#include "forms/focus.h"
#include "forms/form.h"
#include "forms/registry.h"

namespace forms {
namespace {

constexpr UINT kOrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

bool isTopmost(HWND window) {
  return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

bool isShown(const Form& form) {
  return IsWindowVisible(form.handle()) != FALSE && !form.isMinimised();
}

/// The window itself, or the one at the end of the chain of its owners.
HWND rootOwner(HWND window) {
  while (HWND owner = GetWindow(window, GW_OWNER)) window = owner;
  return window;
}

Rank rankOf(HWND window) {
  const Form* form = Form::of(window);
  return form == nullptr ? Rank::notice : form->rank();
}

/// Our topmost windows that a user can see, beside those of one form.
struct Neighbours {
  std::vector<HWND> windows;  ///< from the top of the Z order down
  std::vector<Rank> ranks;
  std::size_t aboveOthers = 0;   ///< how many lie above all windows of other programs
  std::size_t aboveForm = 0;     ///< how many lie above the form
  bool othersAboveForm = false;  ///< whether a window of another program lies above the form
};

/// Windows that `form` owns are left out: the system itself keeps them above it.
Neighbours neighboursOf(const Form& form) {
  // GetWindow in a loop may go round in circles when windows are moved meanwhile.
  constexpr int kMaxSteps = 1'000;
  Neighbours own;
  bool othersSeen = false;
  bool formSeen = false;
  HWND window = GetTopWindow(nullptr);
  for (int step = 0; step < kMaxSteps && window != nullptr && isTopmost(window); ++step) {
    const bool ours = GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
    const bool seen = IsWindowVisible(window) != FALSE &&
                      MonitorFromWindow(window, MONITOR_DEFAULTTONULL) != nullptr;
    if (seen && ours && rootOwner(window) != form.handle()) {
      own.windows.push_back(window);
      own.ranks.push_back(rankOf(window));
      if (!othersSeen) ++own.aboveOthers;
      if (!formSeen) ++own.aboveForm;
    }
    othersSeen = othersSeen || (seen && !ours);
    formSeen = formSeen || window == form.handle();
    own.othersAboveForm = own.othersAboveForm || (othersSeen && !formSeen);
    window = GetWindow(window, GW_HWNDNEXT);
  }
  return own;
}

bool isCoveredByFloating(const Form& form) {
  return std::ranges::any_of(placesKeptOnTop(Rank::floating, Rank::floating),
                             [&](const PixelBox& place) { return meet(place, form.place()); });
}

/// Whether `form`, or a form that it owns, would be covered.
bool wouldBeCovered(const Form& form) {
  const std::vector<Form*> owned = Registry::instance().ownedBy(form);
  return isCoveredByFloating(form) || std::ranges::any_of(owned, [](const Form* dialog) {
           return isShown(*dialog) && isCoveredByFloating(*dialog);
         });
}

std::vector<Form*> barsShown() {
  std::vector<Form*> bars = Registry::instance().all();
  std::erase_if(bars,
                [](const Form* form) { return form->rank() != Rank::bar || !isShown(*form); });
  return bars;
}

void raise(const Form& form) {
  SetWindowPos(form.handle(), HWND_TOPMOST, 0, 0, 0, 0, kOrderOnly);
  for (Form* bar : barsShown()) bar->bringToTop();
}

void raiseBarsAbove(const Form& floating) {
  for (Form* bar : barsShown()) {
    if (!meet(bar->place(), floating.place()) || isFocusHeld()) continue;
    // Having been below, the bar goes to the top in fact, as long as no tool tip of its own keeps
    // it from being the topmost.
    bar->hideToolTip();
    SetWindowPos(bar->handle(), floating.handle(), 0, 0, 0, 0, kOrderOnly);
    bar->bringToTop();
  }
}

/// Settles once more in a moment.
void settleSoon() {
  constexpr UINT kMoment = 20;  // ms
  static UINT_PTR timer = 0;
  if (timer != 0) return;
  timer = Dispatcher::instance().startTimer(kMoment, [] {
    Dispatcher::instance().stopTimer(std::exchange(timer, 0));
    settleStacking();
  });
}

void lower(const Form& form, bool isActive) {
  HWND front = GetForegroundWindow();
  const bool frontIsOurs = front != nullptr && rootOwner(front) == form.handle();
  if (!isActive && (front == nullptr || frontIsOurs)) {
    // Nobody has taken its place yet; behind whom it goes is not known.
    settleSoon();
    return;
  }
  SetWindowPos(form.handle(), HWND_NOTOPMOST, 0, 0, 0, 0, kOrderOnly);
  // That is above all other ordinary windows, the one that took its place included.
  if (!frontIsOurs && !isTopmost(front)) {
    SetWindowPos(form.handle(), front, 0, 0, 0, 0, kOrderOnly);
  }
}

bool& isPosted() {
  static bool posted = false;
  return posted;
}

}  // namespace

std::optional<HWND> insertAfter(const Form& form) {
  const Neighbours own = neighboursOf(form);
  const auto lowest = lowestAbove(own.ranks, form.rank());
  const std::size_t keptAbove = lowest ? *lowest + 1 : 0;
  if (isTopmost(form.handle()) && own.aboveForm == keptAbove && !own.othersAboveForm) {
    return std::nullopt;
  }
  return lowest && *lowest < own.aboveOthers ? own.windows[*lowest] : HWND_TOPMOST;
}

void raiseWhatIsAbove(const Form& form) {
  const Neighbours own = neighboursOf(form);
  for (std::size_t i = own.windows.size(); i > own.aboveForm; --i) {
    if (own.ranks[i - 1] <= form.rank()) continue;
    SetWindowPos(own.windows[i - 1], HWND_TOPMOST, 0, 0, 0, 0, kOrderOnly);
  }
}

std::vector<PixelBox> placesKeptOnTop(Rank lowest, Rank highest) {
  std::vector<PixelBox> places;
  for (const Form* form : Registry::instance().all()) {
    const Rank rank = form->rank();
    if (isTopmost(form->handle()) && rank >= lowest && rank <= highest && isShown(*form)) {
      places.push_back(form->place());
    }
  }
  return places;
}

void stackingMayHaveChanged() {
  if (isPosted()) return;
  isPosted() = Dispatcher::instance().post([] {
    isPosted() = false;
    settleStacking();
  });
}

void barsMayBeCovered(const Form& form) {
  if (form.rank() != Rank::floating) return;
  // Once the window manager has had the time for it.
  constexpr UINT kItsTime = 100;  // ms
  static UINT_PTR timer = 0;
  if (timer != 0) Dispatcher::instance().stopTimer(timer);
  timer = Dispatcher::instance().startTimer(kItsTime, [window = form.handle()] {
    Dispatcher::instance().stopTimer(std::exchange(timer, 0));
    if (const Form* floating = Form::of(window); floating != nullptr && isShown(*floating)) {
      raiseBarsAbove(*floating);
    }
  });
}

void settleStacking() {
  HWND active = GetActiveWindow();
  for (const Form* form : Registry::instance().all()) {
    if (form->rank() == Rank::floating && isShown(*form)) raiseWhatIsAbove(*form);
    if (form->rank() != Rank::window || GetWindow(form->handle(), GW_OWNER) != nullptr) continue;
    const bool isActive = active != nullptr && rootOwner(active) == form->handle();
    const bool wanted = isActive && isShown(*form) && wouldBeCovered(*form);
    if (wanted == isTopmost(form->handle())) continue;
    if (wanted) {
      raise(*form);
    } else {
      lower(*form, isActive);
    }
  }
}

}  // namespace forms
