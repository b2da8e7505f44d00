#pragma once

#include <windows.h>

#include <initializer_list>
#include <string_view>

/// The user's hands. The mouse's events come from below Wine, through the display and its window
/// manager; the keyboard's are the system's own, so that any character can be typed, unless a
/// function says otherwise.
namespace support::input {

/// Moves the pointer and waits until it is there.
void moveTo(POINT point);

void click(POINT point);

/// Presses the left button at `point`; lets go of it wherever the pointer is.
void press(POINT point);
void release();

void doubleClick(POINT point);
void rightClick(POINT point);

/// Presses at `from`, moves to `to` in `steps` moves, and lets go there.
void drag(POINT from, POINT to, int steps = 10);

/// Presses and lets go of a key while `modifiers` are held.
void key(WORD virtualKey, std::initializer_list<WORD> modifiers = {});

/// Presses keys of the display's own keyboard, by their names there ("Return", "a"), one after the
/// other: the window manager decides which window hears them.
void pressOnDisplay(std::initializer_list<const char*> keys);

/// Types a text, whatever its characters, into whatever has the keyboard.
void type(std::wstring_view text);

}  // namespace support::input
