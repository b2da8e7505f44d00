#pragma once

#include <span>
#include <string>

#include "win32/win32.h"

/// Screen word capture: what drives the screen-text service, and the switches that every other
/// window of the program calls. Everything here is to be called on the user-interface thread. The
/// functions are beside the form that they drive, in frm_screen_word_win.cpp.
namespace ScreenWord {

/// The last word that the service reported, trimmed; "" when none is pending.
inline std::u16string strScreenWord;
/// The number of the message "BL_HASSTRING", by which the service reports a word.
inline UINT MsgHasString = 0;
/// The window that the service notifies: frmScreenWord.
inline HWND hScreenWordWnd = nullptr;
/// The procedure of that window before it was subclassed.
inline WNDPROC OldWndProc = nullptr;

/// The subclass procedure of frmScreenWord: takes reported words, passes on everything else.
LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// What becomes pending of a reported word: the text before the first NUL, in the ANSI code page,
/// without blanks around it. Throws std::length_error where there is no NUL.
std::u16string pendingWord(std::span<const char> buffer);

/// Probes the window under `point` (screen pixels): arms the service there where the window is one
/// of text. Throws std::overflow_error for a point beyond 16 bits.
void CatchWordAt(const POINT& point);

/// Starts the three timers of frmScreenWord, loading it where it is not loaded. Idempotent.
void StartCapture();

/// Stops the three timers of frmScreenWord, loading it where it is not loaded. What is armed stays
/// so, and a word that is pending is handed over when capture runs again. Idempotent.
void StopCapture();

}  // namespace ScreenWord
