#pragma once

#include <windows.h>

#include <cstdint>

/// The screen-text service: finds the word under a point of the screen, in any program. To be
/// called by the thread that owns the host window only; no function throws or waits for another
/// process.
namespace nhw32 {

/// Values of BL_SetFlag32's flag.
inline constexpr std::uint32_t kArm = 1000;
inline constexpr std::uint32_t kDisarm = 1002;

/// RegisterWindowMessage name of the message that announces a word.
inline constexpr char kMessageName[] = "BL_HASSTRING";

/// Starts the service; does nothing if it is started.
void SetNHW32();

/// Stops the service and cancels the question that is armed.
void ResetNHW32();

/// kArm: has the word at the point (x, y) looked for, in pixels of the screen as a program that is
/// aware of every monitor's resolution counts them. Once found, BL_HASSTRING is posted to `window`.
/// Arming again at the same point over the same window goes on with a search that is under way.
/// kDisarm (the other arguments are 0): no message comes for what was armed, not even one that was
/// posted already. Called by the receiver of the message, it leaves the word to be fetched.
/// Any other flag does nothing.
void BL_SetFlag32(std::uint32_t flag, HWND window, std::int16_t x, std::int16_t y);

/// Copies the announced word, "" where there is none, into `buffer`, and the word's rectangle on
/// the screen into `word` (may be null). The buffer holds `size` bytes and one more for the NUL;
/// the text is in the ANSI code page and cut to fit at a whole character.
void BL_GetText32(char* buffer, std::int32_t size, RECT* word);

class Service;

/// Returns the service that these functions use; for tests.
Service& service();

}  // namespace nhw32
