#pragma once

#include <windows.h>

#include <functional>
#include <stdexcept>
#include <string>

/// Waiting for what is about to happen: by looking again and again, never by sleeping for luck. All
/// functions are for any thread; milliseconds throughout.
namespace support {

/// Something that should have happened did not, or a call to the system failed.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::string& what);

  /// Sets what is called whenever one is made, while the programs that it is about still run.
  static void onFailure(std::function<void()> handler);
};

/// How long a test waits for anything unless it says otherwise.
inline constexpr DWORD kDefaultTimeout = 10'000;

/// How long a quick user takes to see that something has appeared.
inline constexpr DWORD kReactionTime = 200;

/// Time between two looks.
inline constexpr DWORD kBetweenLooks = 5;

/// How the calling thread lets `milliseconds` pass between two looks. The first look follows a step
/// of 0 ms. A step sleeps unless the thread sets another one.
using WaitStep = void (*)(DWORD milliseconds);
void waitStep(DWORD milliseconds);
/// Sets the calling thread's step and returns the one before. Tests whose windows belong to their
/// own process handle messages; null sleeps.
WaitStep setWaitStep(WaitStep step);

/// While it lives, the calling thread sleeps while it waits: messages stay in its queue.
class ScopedSleepingWaits {
 public:
  ScopedSleepingWaits() : before_(setWaitStep(nullptr)) {}
  ~ScopedSleepingWaits() { setWaitStep(before_); }
  ScopedSleepingWaits(const ScopedSleepingWaits&) = delete;
  ScopedSleepingWaits& operator=(const ScopedSleepingWaits&) = delete;

 private:
  WaitStep before_;
};

/// Looks until `look` returns true (or something that is not null); at least once. Returns what it
/// returned last, which is false (null) when `milliseconds` have passed.
template <class Look>
auto eventually(Look look, DWORD milliseconds = kDefaultTimeout) {
  const ULONGLONG deadline = GetTickCount64() + milliseconds;
  for (waitStep(0);; waitStep(kBetweenLooks)) {
    auto seen = look();
    if (seen || GetTickCount64() >= deadline) return seen;
  }
}

/// Whether `look` returns false whenever looked at within `milliseconds`: for what must not happen.
template <class Look>
bool never(Look look, DWORD milliseconds) {
  return !eventually(look, milliseconds);
}

/// Whether `look` returns true whenever looked at within `milliseconds`.
template <class Look>
bool always(Look look, DWORD milliseconds) {
  return never([&] { return !look(); }, milliseconds);
}

/// Looks until `look` has returned true for `lasting` ms without a break. Returns false if it did
/// not begin to within `milliseconds`.
template <class Look>
bool settles(Look look, DWORD lasting, DWORD milliseconds) {
  const ULONGLONG deadline = GetTickCount64() + milliseconds;
  while (eventually(look, milliseconds)) {
    if (always(look, lasting)) return true;
    const ULONGLONG now = GetTickCount64();
    if (now >= deadline) return false;
    milliseconds = static_cast<DWORD>(deadline - now);
  }
  return false;
}

/// Lets time pass, in which nothing is looked for.
inline void passTime(DWORD milliseconds) {
  eventually([] { return false; }, milliseconds);
}

/// The same as eventually(), but throws Failure naming `what` when the time has passed.
template <class Look>
auto waitFor(const std::string& what, Look look, DWORD milliseconds = kDefaultTimeout) {
  auto seen = eventually(look, milliseconds);
  if (!seen) throw Failure("waited " + std::to_string(milliseconds) + " ms in vain for: " + what);
  return seen;
}

/// Reports in the log ("[ONCE MORE ]") that an act of a user is repeated. The test runner counts
/// these lines, and more than a handful in a run are a failure.
void reportRetry(const std::string& what);

/// When actUntil() acts again.
struct Retries {
  int most = 5;         ///< times that it acts, at most
  DWORD after = 2'000;  ///< it acts again when `look` was false for so long
  DWORD lasting = 0;    ///< what is looked for has to stay for so long; a window manager may answer
                        ///< a window's earlier place, size or activation late
};

/// Acts until `look` returns true, as a user does who sees that nothing came of it: a busy display
/// may lose a click. Each repetition is reported. Throws Failure naming `what` after the last one.
template <class Act, class Look>
void actUntil(const std::string& what, Act act, Look look, Retries retries = {}) {
  const auto seen = [&](DWORD milliseconds) {
    return settles(look, retries.lasting, milliseconds);
  };
  act();
  for (int acts = 1; acts < retries.most; ++acts) {
    if (seen(retries.after)) return;
    reportRetry(what);
    act();
  }
  if (!seen(kDefaultTimeout)) throw Failure("acted in vain for: " + what);
}

/// For what a window manager may answer late.
inline constexpr Retries kLastingWindow{.most = 10, .after = 1'000, .lasting = 30};

/// The same where the test goes on with another window. On a busy machine it may be told a moment
/// later that the first one was shown, moved or activated.
inline constexpr Retries kUntilLeftAlone{.most = 10, .after = 2'000, .lasting = 200};

/// Brings a top-level window to the front until `look` is true for `lasting` ms: a window manager
/// that still answers an earlier window may bring that one to the front meanwhile.
template <class Look>
void bringToFront(HWND window, Look look, DWORD lasting) {
  if (settles(look, lasting, lasting)) return;
  actUntil("a window to come to the front", [=] { SetForegroundWindow(window); }, look,
           {.most = 10, .after = 1'000, .lasting = lasting});
}

}  // namespace support
