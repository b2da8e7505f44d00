#pragma once

#include <windows.h>

#include <initializer_list>
#include <string_view>

/// The user's hands: mouse and keyboard events as the system gets them from the devices.
namespace harness::input {

/// Moves the pointer and waits until it is there.
void moveTo(POINT point);

void pressLeft();
void releaseLeft();
void click(POINT point);
void doubleClick(POINT point);
void rightClick(POINT point);

/// Presses at `from`, moves to `to` in `steps` moves, and lets go there.
void drag(POINT from, POINT to, int steps = 10);

/// Presses and lets go of a key while `modifiers` are held.
void key(WORD virtualKey, std::initializer_list<WORD> modifiers = {});

/// Types a text, whatever its characters, into whatever has the keyboard.
void type(std::wstring_view text);

}  // namespace harness::input
