#pragma once

#include <windows.h>

#include <cstdint>

#include "text/readings.h"

/// The screen-text service: finds the word under a point of the screen, in any program. These
/// functions are all that word capture knows of it. To be called by the thread that owns the host
/// window only; no function throws or waits for another process.
namespace nhw32 {

/// Values of BL_SetFlag32's flag; the numbers are part of the interface.
inline constexpr std::uint32_t kArm = 1000;
inline constexpr std::uint32_t kDisarm = 1002;

/// RegisterWindowMessage name of the message that announces a word.
inline constexpr char kMessageName[] = "BL_HASSTRING";

/// Sets the function that tells whether a text is a headword; null, as at first, counts as no for
/// every text. BL_GetText32 alone calls it, at most text::kMaxReadings times a call, and on its own
/// thread; if it throws, no further text is asked for.
void setIsHeadword(text::IsHeadword isHeadword);

/// Looks for no word at `place`, in physical pixels of the virtual screen, until the pointer was
/// seen to have left it by 6 of them along either axis, which each SetNHW32 and kArm looks for; and
/// cancels what is armed. For a place at which the user has begun to work.
void leaveAlone(POINT place);

/// Starts the service; does nothing if it is started. The worker thread is created by the first
/// kArm.
void SetNHW32();

/// Stops the service and cancels the question that is armed.
void ResetNHW32();

/// kArm: looks for the word at the point (x, y), in physical pixels of the virtual screen. Once it
/// is found, BL_HASSTRING is posted to `window`. Arming again at the same point over the same
/// window goes on with a search that is under way; any other point cancels it. Where a window has
/// just said that there is no word at the point, it is asked again at growing intervals only, up to
/// 1.6 s; and no word is found while a mouse button is down. kDisarm (the other
/// arguments are 0): cancels what was armed; a message that was posted already is removed from the
/// queue. Called by the receiver of the message, it leaves the word to be fetched. Any other flag
/// does nothing. Does nothing if the service is not started.
void BL_SetFlag32(std::uint32_t flag, HWND window, std::int16_t x, std::int16_t y);

/// Copies the announced word into `buffer`: of the readings of what is there, the first that is a
/// headword, otherwise the word itself (text::chooseReading). The buffer holds `size` bytes and one
/// more for the NUL; the text is in the ANSI code page and truncated at a character boundary. The
/// text is "" where
/// - no word is announced, another window has come to the foreground since it was armed, or a mouse
///   button is down;
/// - letters touch digits ("1st") and no reading is a headword;
/// - the code page lacks a character of the word.
/// `word`, which may be null, receives the rectangle of what is there in physical screen pixels,
/// also in the last two cases; all 0 in the first.
void BL_GetText32(char* buffer, std::int32_t size, RECT* word);

class Service;

/// Returns the service that these functions use; for tests.
Service& service();

}  // namespace nhw32
