#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/wait.h"

/// Finding windows and asking about them.
namespace support {

/// What a window may be found by; what is not given does not matter.
struct WindowQuery {
  DWORD process = 0;
  std::wstring className;
  std::optional<std::wstring> title;
  bool visible = true;
};

/// The topmost window that fits, or null.
HWND findWindow(const WindowQuery& query);

/// Waits until there is one.
HWND waitForWindow(const WindowQuery& query, DWORD milliseconds = kDefaultTimeout);

/// Waits until a window is gone or hidden.
void waitUntilGone(HWND window);

/// All windows inside `parent` of a class (without regard to case; empty: of any), children of
/// children included, in Z order.
std::vector<HWND> childrenOf(HWND parent, const std::wstring& className = L"");

/// Waits for a visible child of that class and returns the first.
HWND waitForChild(HWND parent, const std::wstring& className);

/// The one visible child of that class. Throws Failure if there is none or more than one.
HWND onlyChild(HWND parent, const std::wstring& className);

std::wstring classOf(HWND window);
std::wstring textOf(HWND window);  ///< by WM_GETTEXT, so controls of other programs answer too

RECT rectOf(HWND window);        ///< outer rectangle, screen pixels
RECT clientRectOf(HWND window);  ///< client area, screen pixels
POINT centreOf(const RECT& rect);
SIZE sizeOf(const RECT& rect);

bool isTopmost(HWND window);

/// Moves and resizes a window, outer frame included, and waits until it is there.
void placeWindow(HWND window, const RECT& rect);

/// The control that has the keyboard in the thread of `window`.
HWND focusIn(HWND window);

/// Has a window and all that is in it painted anew, and waits until that is done.
void repaint(HWND window);

/// SendMessage that throws Failure where the window does not answer within five seconds.
LRESULT send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

}  // namespace support
