#pragma once

#include <windows.h>

#include <string>

#include "tests/program/harness/failure.h"

/// Waiting for what another program is about to do: by looking, never by sleeping for luck.
namespace harness {

/// How long a test waits for anything unless it says otherwise, in milliseconds.
inline constexpr DWORD kPatience = 10'000;

/// How long a quick user takes to see that something has appeared, in milliseconds.
inline constexpr DWORD kReactionTime = 200;

/// Calls `look` until what it returns is true (or not null), and returns that. Throws Failure
/// naming `what` when `milliseconds` have passed.
template <class Look>
auto waitFor(const std::string& what, Look look, DWORD milliseconds = kPatience) {
  const ULONGLONG deadline = GetTickCount64() + milliseconds;
  while (true) {
    if (auto seen = look()) return seen;
    if (GetTickCount64() >= deadline) {
      throw Failure("waited " + std::to_string(milliseconds) + " ms in vain for: " + what);
    }
    Sleep(5);
  }
}

/// Whether `look` stays false for `milliseconds`: for what must not happen.
template <class Look>
bool neverWithin(DWORD milliseconds, Look look) {
  const ULONGLONG deadline = GetTickCount64() + milliseconds;
  while (GetTickCount64() < deadline) {
    if (look()) return false;
    Sleep(5);
  }
  return true;
}

/// Says in the log that something was done once more, so that what never works at once is seen.
void tellOnceMore(const std::string& what);

/// Acts until `look` is true, as a user does who sees that nothing came of it: once more every two
/// seconds, for busy displays lose what hands do. Throws Failure naming `what` after five times.
template <class Act, class Look>
void actUntil(const std::string& what, Act act, Look look) {
  constexpr int kTries = 5;
  constexpr DWORD kOnceMore = 2'000;
  act();
  for (int tries = 1; tries < kTries && neverWithin(kOnceMore, look); ++tries) {
    tellOnceMore(what);
    act();
  }
  waitFor(what, look);
}

}  // namespace harness
