#include "forms/stacking.h"

#include <dwmapi.h>

#include <algorithm>
#include <utility>

#include "forms/dispatcher.h"
#include "forms/focus.h"
#include "forms/form.h"
#include "forms/loaded_forms.h"

namespace forms {
namespace {

constexpr UINT kOrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

void putBehind(HWND window, HWND other) { SetWindowPos(window, other, 0, 0, 0, 0, kOrderOnly); }

bool isTopmost(HWND window) {
  return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

bool isOurs(HWND window) {
  return GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

bool isShown(const Form& form) {
  return IsWindowVisible(form.handle()) != FALSE && !form.isMinimised();
}

/// Whether a user can see a window where nothing covers it. The shell keeps some of its own windows
/// "visible" without showing them (cloaked).
bool canBeSeen(HWND window) {
  if (IsWindowVisible(window) == FALSE ||
      MonitorFromWindow(window, MONITOR_DEFAULTTONULL) == nullptr) {
    return false;
  }
  DWORD cloaked = 0;
  DwmGetWindowAttribute(window, DWMWA_CLOAKED, &cloaked, sizeof cloaked);
  return cloaked == 0;
}

/// The window itself, or the one at the end of the chain of its owners.
HWND rootOwner(HWND window) {
  while (HWND owner = GetWindow(window, GW_OWNER)) window = owner;
  return window;
}

Rank rankOf(HWND window) {
  const Form* form = Form::of(window);
  return form == nullptr ? Rank::kNotice : form->rank();
}

/// The topmost windows that concern a form, as raised() takes them.
struct Stack {
  std::vector<HWND> windows;
  std::vector<std::optional<Rank>> ranks;
  std::optional<std::size_t> self;
};

/// Windows that `form` owns are left out: the system itself keeps them above it.
Stack stackAround(const Form& form) {
  // GetWindow in a loop may go round in circles when windows are moved meanwhile.
  constexpr int kMaxSteps = 1'000;
  Stack stack;
  HWND window = GetTopWindow(nullptr);
  for (int step = 0; step < kMaxSteps && window != nullptr; ++step) {
    HWND next = GetWindow(window, GW_HWNDNEXT);
    if (canBeSeen(window)) {
      if (!isTopmost(window)) break;
      const bool self = window == form.handle();
      const bool ours = isOurs(window);
      if (self) stack.self = stack.windows.size();
      if (!ours || self || rootOwner(window) != form.handle()) {
        stack.windows.push_back(window);
        stack.ranks.push_back(ours ? std::optional(rankOf(window)) : std::nullopt);
      }
    }
    window = next;
  }
  return stack;
}

bool isCoveredByFloating(const Form& form) {
  return std::ranges::any_of(placesKeptOnTop(Rank::kFloating, Rank::kFloating),
                             [&](const PixelBox& place) { return meet(place, form.place()); });
}

/// Whether `form`, or a form that it owns, would be covered.
bool wouldBeCovered(const Form& form) {
  const std::vector<Form*> owned = LoadedForms::instance().ownedBy(form);
  return isCoveredByFloating(form) || std::ranges::any_of(owned, [](const Form* dialog) {
           return isShown(*dialog) && isCoveredByFloating(*dialog);
         });
}

void raise(Form& form) {
  form.setRaisedForNow(true);
  putBehind(form.handle(), HWND_TOPMOST);
  raiseWhatIsAbove(form);
}

/// The topmost windows of ours that `form` owns and that are no forms: its message box.
std::vector<HWND> boxesOf(const Form& form) {
  struct Search {
    HWND owner;
    std::vector<HWND> found;
  } search{form.handle(), {}};
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM context) {
        auto& wanted = *reinterpret_cast<Search*>(context);
        if (window != wanted.owner && rootOwner(window) == wanted.owner &&
            IsWindowVisible(window) != FALSE && isTopmost(window) && Form::of(window) == nullptr) {
          wanted.found.push_back(window);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

bool isDesktop(HWND window) {
  wchar_t name[16] = L"";
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  const std::wstring_view className = name;
  return window == GetShellWindow() || className == L"Progman" || className == L"WorkerW";
}

/// The window behind which `form` goes when another one, `front`, has taken its place. The desktop
/// lies behind all others anyway, and a dialog is not parted from the window that it belongs to.
HWND behindWhom(HWND front) {
  for (HWND owner = GetWindow(front, GW_OWNER); owner != nullptr && IsWindowVisible(owner) != FALSE;
       owner = GetWindow(front, GW_OWNER)) {
    front = owner;
  }
  return isTopmost(front) || isDesktop(front) ? HWND_NOTOPMOST : front;
}

/// Settles once more in a moment, at most some fifty times in a row: the foreground may be nobody's
/// for as long as the session is locked.
void settleSoon(bool goOn) {
  constexpr UINT kMoment = 20;  // ms
  constexpr int kMaxTries = 50;
  static UINT_PTR timer = 0;
  static int tries = 0;
  if (!goOn) tries = 0;
  if (!goOn || timer != 0 || ++tries > kMaxTries) return;
  timer = Dispatcher::instance().startTimer(kMoment, [] {
    Dispatcher::instance().stopTimer(std::exchange(timer, 0));
    updateStacking();
  });
}

void lower(Form& form, bool isActive) {
  HWND front = GetForegroundWindow();
  const bool frontIsOurs = front != nullptr && rootOwner(front) == form.handle();
  // Nobody has taken its place yet: behind whom it goes is not known.
  const bool unknown = !isActive && (front == nullptr || frontIsOurs);
  settleSoon(unknown);
  if (unknown) return;
  form.setRaisedForNow(false);
  // The system takes what it owns along; a message box has to stay where it can be seen.
  const std::vector<HWND> boxes = boxesOf(form);
  putBehind(form.handle(), frontIsOurs ? HWND_NOTOPMOST : behindWhom(front));
  for (HWND box : boxes) putBehind(box, HWND_TOPMOST);
}

/// Whether the system is not Windows itself, but runs on one whose window manager raises windows
/// without telling.
bool hasForeignWindowManager() {
  static const bool wine =
      GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  return wine;
}

void raiseBarsAbove(const Form& floating) {
  for (Form* bar : LoadedForms::instance().all()) {
    if (bar->rank() != Rank::kBar || !isShown(*bar) || !meet(bar->place(), floating.place()) ||
        Form::isRaisingHeld()) {
      continue;
    }
    // Having been below, the bar goes to the top in fact, as long as no tool tip of its own keeps
    // it from being the topmost.
    bar->hideToolTip();
    putBehind(bar->handle(), floating.handle());
    bar->bringToTop();
  }
}

bool& isPosted() {
  static bool posted = false;
  return posted;
}

}  // namespace

std::optional<HWND> insertAfter(const Form& form) {
  const Stack stack = stackAround(form);
  const Raise raise = raised(stack.ranks, stack.self, form.rank());
  switch (raise.where) {
    case Raise::Where::kStays:
      return std::nullopt;
    case Raise::Where::kBehind:
      return stack.windows[raise.behind];
    case Raise::Where::kTop:
      break;
  }
  return HWND_TOPMOST;
}

void raiseWhatIsAbove(const Form& form) {
  const Stack stack = stackAround(form);
  std::vector<std::pair<Rank, HWND>> higher;
  bool below = false;
  for (std::size_t i = 0; i < stack.windows.size(); ++i) {
    if (!stack.ranks[i] || *stack.ranks[i] <= form.rank()) continue;
    higher.emplace_back(*stack.ranks[i], stack.windows[i]);
    below = below || (stack.self && i > *stack.self);
  }
  if (!below) return;
  std::ranges::stable_sort(higher, std::greater(), &std::pair<Rank, HWND>::first);
  HWND after = HWND_TOPMOST;
  for (const auto& [rank, window] : higher) putBehind(window, std::exchange(after, window));
}

std::vector<PixelBox> placesKeptOnTop(Rank lowest, Rank highest) {
  std::vector<PixelBox> places;
  for (const Form* form : LoadedForms::instance().all()) {
    const Rank rank = form->rank();
    if (isTopmost(form->handle()) && rank >= lowest && rank <= highest && isShown(*form)) {
      places.push_back(form->place());
    }
  }
  return places;
}

void postStackingCheck() {
  if (isPosted()) return;
  isPosted() = Dispatcher::instance().post([] {
    isPosted() = false;
    updateStacking();
  });
}

void barsMayBeCovered(const Form& form) {
  if (form.rank() != Rank::kFloating || !hasForeignWindowManager()) return;
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

void updateStacking() {
  HWND active = GetActiveWindow();
  for (Form* form : LoadedForms::instance().all()) {
    if (form->rank() == Rank::kFloating && isShown(*form)) raiseWhatIsAbove(*form);
    if (form->rank() != Rank::kWindow || GetWindow(form->handle(), GW_OWNER) != nullptr) continue;
    const bool isActive = active != nullptr && rootOwner(active) == form->handle();
    const bool wanted = isActive && isShown(*form) && wouldBeCovered(*form);
    if (wanted && form->isRaisedForNow()) {
      raiseWhatIsAbove(*form);
    } else if (wanted) {
      raise(*form);
    } else if (form->isRaisedForNow()) {
      lower(*form, isActive);
    }
  }
}

}  // namespace forms
