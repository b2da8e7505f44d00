#pragma once

#include <span>
#include <string>

#include "win32/win32.h"

/// Screen word capture: what drives the screen-text service, and the switches that every other
/// window of the program calls. User-interface thread only. Implemented beside the form that it
/// drives, in frm_screen_word_win.cpp.
namespace ScreenWord {

/// The last word that the service reported, trimmed; "" if none is pending. Set by WindowProc,
/// taken by frmScreenWord::Timer1, dropped by the next probe.
inline std::u16string strScreenWord;
/// The number of the message "BL_HASSTRING", by which the service reports a word.
inline UINT MsgHasString = 0;
/// The window that the service notifies: frmScreenWord.
inline HWND hScreenWordWnd = nullptr;
/// The procedure of that window before it was subclassed by SetWindowLongPtrA.
inline WNDPROC OldWndProc = nullptr;
/// Whether capture is stopped by other than an open popup: a box or dialog of ours, the menu, the
/// toolbar's switch. Set by StopCapture, cleared by StartCapture; the hand-over leaves it as it is.
inline bool HeldOff = false;

/// The subclass procedure of frmScreenWord: takes the words that MsgHasString reports and returns
/// 0; passes every other message to OldWndProc. Throws nothing.
LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Returns what becomes pending of a reported word: the text before the first NUL, converted from
/// the ANSI code page, without blanks around it. Throws std::length_error if there is no NUL.
std::u16string pendingWord(std::span<const char> buffer);

/// Probes the window under `point` (screen pixels): if its class is one of text windows, cancels
/// the question that is armed, flashes the strip over the window and arms the service at the point.
/// Throws std::overflow_error for a point beyond 16 bits; the earlier question is cancelled then.
void CatchWordAt(const POINT& point);

/// Starts the three timers of frmScreenWord, loading it if it is not loaded. Idempotent.
/// Deliberate: whatever the toolbar's capture button shows; every window that pauses capture starts
/// it again.
void StartCapture();

/// Stops the three timers of frmScreenWord, loading it if it is not loaded. What is armed stays
/// armed, and a word that is pending is handed over when capture runs again. Idempotent.
void StopCapture();

}  // namespace ScreenWord
