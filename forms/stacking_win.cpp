#include "forms/stacking.h"

#include <dwmapi.h>

#include <algorithm>
#include <utility>

#include "forms/dispatcher.h"
#include "forms/focus.h"

// The windows of this thread that were added are kept in a list; everything else is read from the
// system when it is needed. Decisions are pure functions of placement.h. Corrections happen at
// three moments: in WM_WINDOWPOSCHANGING (adjustPlacement), after a floating window has moved in
// the Z order (raiseWhatIsAbove), and from the message loop after anything else (updateStacking).
namespace forms {
namespace {

/// A window that takes part.
struct StackedWindow {
  HWND handle = nullptr;
  Rank rank = Rank::kWindow;
  bool raisedForNow = false;  ///< an ordinary window that is topmost while it is active
};

std::vector<StackedWindow>& stackedWindows() {
  static std::vector<StackedWindow> windows;
  return windows;
}

StackedWindow* find(HWND window) {
  const auto found = std::ranges::find(stackedWindows(), window, &StackedWindow::handle);
  return found == stackedWindows().end() ? nullptr : &*found;
}

Rank rankOf(HWND window) {
  const StackedWindow* known = find(window);
  return known == nullptr ? Rank::kNotice : known->rank;
}

constexpr UINT kOrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

void putBehind(HWND window, HWND other) { SetWindowPos(window, other, 0, 0, 0, 0, kOrderOnly); }

bool isTopmost(HWND window) {
  return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

bool isOnThisThread(HWND window) {
  return GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

bool isShown(HWND window) { return IsWindowVisible(window) != FALSE && IsIconic(window) == FALSE; }

PixelBox placeOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return {rect.left, rect.top, rect.right, rect.bottom};
}

/// Whether this thread shows a menu, its own or a control's.
bool isMenuOpen() {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(GetCurrentThreadId(), &info);
  return (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

/// Whether a message box or a menu is open, above which no window is raised.
bool isRaisingHeld() { return isFocusHeld() || isMenuOpen(); }

/// Whether a user can see a window where nothing covers it. The shell keeps some of its own windows
/// "visible" without showing them (cloaked).
bool canBeSeen(HWND window) {
  if (IsWindowVisible(window) == FALSE ||
      MonitorFromWindow(window, MONITOR_DEFAULTTONULL) == nullptr) {
    return false;
  }
  // Not linked: a file of this name in the program's own folder would be loaded instead.
  static auto* attributeOf = win32::systemFunction<decltype(DwmGetWindowAttribute)>(
      L"dwmapi.dll", "DwmGetWindowAttribute");
  DWORD cloaked = 0;
  if (attributeOf != nullptr) attributeOf(window, DWMWA_CLOAKED, &cloaked, sizeof cloaked);
  return cloaked == 0;
}

/// The window itself, or the one at the end of the chain of its owners.
HWND rootOwner(HWND window) {
  while (HWND owner = GetWindow(window, GW_OWNER)) window = owner;
  return window;
}

/// The topmost windows that concern one of ours, as raised() takes them.
struct Stack {
  std::vector<HWND> windows;
  std::vector<std::optional<Rank>> ranks;
  std::optional<std::size_t> self;
};

/// Windows that `self` owns are left out: the system itself keeps them above it.
Stack stackAround(HWND self) {
  // From the top down to the first window that is seen and not topmost. Other programs move windows
  // meanwhile: Windows documents that GetWindow in a loop may then not end.
  constexpr int kMaxSteps = 1'000;
  Stack stack;
  HWND window = GetTopWindow(nullptr);
  for (int step = 0; step < kMaxSteps && window != nullptr; ++step) {
    HWND next = GetWindow(window, GW_HWNDNEXT);
    const bool ours = isOnThisThread(window);
    if (canBeSeen(window) && (!ours || isOurs(window))) {
      if (!isTopmost(window)) break;
      if (window == self) stack.self = stack.windows.size();
      if (!ours || window == self || rootOwner(window) != self) {
        stack.windows.push_back(window);
        stack.ranks.push_back(ours ? std::optional(rankOf(window)) : std::nullopt);
      }
    }
    window = next;
  }
  return stack;
}

bool isCoveredByFloating(HWND window) {
  return std::ranges::any_of(
      placesKeptOnTop(Rank::kFloating, Rank::kFloating),
      [place = placeOf(window)](const PixelBox& floating) { return meet(floating, place); });
}

/// Whether `window`, or a dialog that it owns, would be covered.
bool wouldBeCovered(HWND window) {
  return std::ranges::any_of(stackedWindows(), [window](const StackedWindow& other) {
    const bool dialog = GetWindow(other.handle, GW_OWNER) == window && isShown(other.handle);
    return (other.handle == window || dialog) && isCoveredByFloating(other.handle);
  });
}

void raise(StackedWindow& window) {
  window.raisedForNow = true;
  HWND handle = window.handle;
  putBehind(handle, HWND_TOPMOST);
  raiseWhatIsAbove(handle);
}

/// Returns the visible topmost windows that `owner` owns and that were not added: its message box,
/// its tool tip.
std::vector<HWND> boxesOf(HWND owner) {
  std::vector<HWND> boxes = win32::threadWindows();
  std::erase_if(boxes, [=](HWND window) {
    return window == owner || rootOwner(window) != owner || IsWindowVisible(window) == FALSE ||
           !isTopmost(window) || find(window) != nullptr;
  });
  return boxes;
}

/// Whether a window is the desktop: the one that all others lie on (in the foreground while no
/// other window is, which happens under Wine), or one of the shell's that shows its icons.
bool isDesktop(HWND window) {
  wchar_t name[16] = L"";
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  const std::wstring_view className = name;
  return window == GetDesktopWindow() || window == GetShellWindow() || className == L"Progman" ||
         className == L"WorkerW";
}

/// Returns the window below which one goes when another, `front`, has taken its place. The desktop
/// lies below all others anyway, and a dialog is not parted from the window that it belongs to.
HWND belowWhich(HWND front) {
  for (HWND owner = GetWindow(front, GW_OWNER); owner != nullptr && IsWindowVisible(owner) != FALSE;
       owner = GetWindow(front, GW_OWNER)) {
    front = owner;
  }
  return isTopmost(front) || isDesktop(front) ? HWND_NOTOPMOST : front;
}

/// Runs updateStacking once more in 20 ms, at most 50 times in a row: no window may be in the
/// foreground for as long as the session is locked. `again` false ends the row.
void updateSoon(bool again) {
  constexpr UINT kInterval = 20;  // ms
  constexpr int kMaxTries = 50;
  static UINT_PTR timer = 0;
  static int tries = 0;
  if (!again) tries = 0;
  if (!again || timer != 0 || ++tries > kMaxTries) return;
  timer = Dispatcher::instance().startTimer(kInterval, [] {
    Dispatcher::instance().stopTimer(std::exchange(timer, 0));
    updateStacking();
  });
}

void lower(StackedWindow& window, bool isActive) {
  HWND front = GetForegroundWindow();
  const bool frontIsOurs = front != nullptr && rootOwner(front) == window.handle;
  // No other window has taken its place yet, so it is not known below which one it goes.
  const bool unknown = !isActive && (front == nullptr || frontIsOurs);
  updateSoon(unknown);
  if (unknown) return;
  window.raisedForNow = false;
  HWND handle = window.handle;
  // SetWindowPos takes owned windows along; a message box has to stay where it can be seen.
  const std::vector<HWND> boxes = boxesOf(handle);
  putBehind(handle, frontIsOurs ? HWND_NOTOPMOST : belowWhich(front));
  for (HWND box : boxes) putBehind(box, HWND_TOPMOST);
}

/// Whether the system is not Windows itself, but runs on one whose window manager raises windows
/// without telling.
bool hasForeignWindowManager() {
  static const bool wine =
      GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  return wine;
}

/// Hides the tool tip of `owner`, if it shows one.
void hideToolTip(HWND owner) {
  for (HWND box : boxesOf(owner)) {
    wchar_t name[32] = L"";
    GetClassNameW(box, name, static_cast<int>(std::size(name)));
    if (std::wstring_view(name) == TOOLTIPS_CLASSW) SendMessageW(box, TTM_POP, 0, 0);
  }
}

void raiseBarsAbove(HWND floating) {
  // A copy: the messages that this sends may add and remove windows.
  for (const auto& [bar, rank, raisedForNow] : std::vector(stackedWindows())) {
    if (rank != Rank::kBar || !isShown(bar) || !meet(placeOf(bar), placeOf(floating)) ||
        isRaisingHeld()) {
      continue;
    }
    // A bar that Wine takes for the topmost is not raised in the X11 order unless it was below
    // before; a tool tip of its own above it would keep it from the top.
    hideToolTip(bar);
    putBehind(bar, floating);
    bringToTop(bar);
  }
}

bool& isPosted() {
  static bool posted = false;
  return posted;
}

/// Returns the window below which `window`, a topmost one, goes when it is brought to the top: the
/// lowest of our topmost windows that rank higher. HWND_TOPMOST if there is none, or if it lies
/// below a window of another program; nullopt if `window` is in its place already.
std::optional<HWND> insertAfter(HWND window) {
  const Stack stack = stackAround(window);
  const Raise raise = raised(stack.ranks, stack.self, rankOf(window));
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

}  // namespace

void addToStack(HWND window, Rank rank) { stackedWindows().push_back({window, rank}); }

void removeFromStack(HWND window) {
  std::erase_if(stackedWindows(), [=](const StackedWindow& one) { return one.handle == window; });
}

bool isOurs(HWND window) {
  if (find(window) != nullptr) return true;
  constexpr std::wstring_view kDialog = L"#32770";
  constexpr std::wstring_view kMenu = L"#32768";
  wchar_t name[32] = L"";
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return name == kDialog || name == kMenu || std::wstring_view(name) == TOOLTIPS_CLASSW;
}

void bringToTop(HWND window) {
  if (isRaisingHeld()) return;
  // Without SWP_NOACTIVATE, which adjustPlacement adds.
  SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void adjustPlacement(HWND window, WINDOWPOS& position) {
  const Rank rank = rankOf(window);
  const bool staysOnTop = rank == Rank::kBar || rank == Rank::kFloating;
  const bool reordered = (position.flags & SWP_NOZORDER) == 0;
  const bool raisedAboveAll = reordered && position.hwndInsertAfter == HWND_TOPMOST;
  if (rank == Rank::kNotice || (staysOnTop && raisedAboveAll)) position.flags |= SWP_NOACTIVATE;
  if (!staysOnTop) return;
  // The system itself uses HWND_TOP when the user activates the window.
  if (!raisedAboveAll && !(reordered && position.hwndInsertAfter == HWND_TOP)) return;
  if (const auto after = insertAfter(window)) {
    position.hwndInsertAfter = *after;
  } else {
    position.flags |= SWP_NOZORDER;
  }
}

void raiseWhatIsAbove(HWND window) {
  const Rank own = rankOf(window);
  const Stack stack = stackAround(window);
  std::vector<std::pair<Rank, HWND>> higher;
  bool below = false;
  for (std::size_t i = 0; i < stack.windows.size(); ++i) {
    if (!stack.ranks[i] || *stack.ranks[i] <= own) continue;
    higher.emplace_back(*stack.ranks[i], stack.windows[i]);
    below = below || (stack.self && i > *stack.self);
  }
  if (!below) return;
  std::ranges::stable_sort(higher, std::greater(), &std::pair<Rank, HWND>::first);
  HWND after = HWND_TOPMOST;
  for (const auto& [rank, one] : higher) putBehind(one, std::exchange(after, one));
}

std::vector<PixelBox> placesKeptOnTop(Rank lowest, Rank highest) {
  std::vector<PixelBox> places;
  for (const StackedWindow& window : stackedWindows()) {
    if (isTopmost(window.handle) && window.rank >= lowest && window.rank <= highest &&
        isShown(window.handle)) {
      places.push_back(placeOf(window.handle));
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

void postBarsToTop() {
  Dispatcher::instance().post([] {
    // A copy: the messages that this sends may add and remove windows.
    for (const auto& [bar, rank, raisedForNow] : std::vector(stackedWindows())) {
      if (rank == Rank::kBar && isShown(bar)) bringToTop(bar);
    }
  });
}

void barsMayBeCovered(HWND window) {
  if (rankOf(window) != Rank::kFloating || !hasForeignWindowManager()) return;
  // Long enough for the window manager to act on the click.
  constexpr UINT kDelay = 100;  // ms
  static UINT_PTR timer = 0;
  if (timer != 0) Dispatcher::instance().stopTimer(timer);
  timer = Dispatcher::instance().startTimer(kDelay, [window] {
    Dispatcher::instance().stopTimer(std::exchange(timer, 0));
    if (find(window) != nullptr && isShown(window)) raiseBarsAbove(window);
  });
}

void updateStacking() {
  HWND active = GetActiveWindow();
  // A copy, and looked up again: the messages that this sends may add and remove windows.
  for (const auto [handle, rank, was] : std::vector(stackedWindows())) {
    StackedWindow* window = find(handle);
    if (window == nullptr) continue;
    if (rank == Rank::kFloating && isShown(handle)) raiseWhatIsAbove(handle);
    if (rank != Rank::kWindow || GetWindow(handle, GW_OWNER) != nullptr) continue;
    const bool isActive = active != nullptr && rootOwner(active) == handle;
    const bool wanted = isActive && isShown(handle) && wouldBeCovered(handle);
    if (wanted && window->raisedForNow) {
      raiseWhatIsAbove(handle);
    } else if (wanted) {
      raise(*window);
    } else if (window->raisedForNow) {
      lower(*window, isActive);
    }
  }
}

}  // namespace forms
