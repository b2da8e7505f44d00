#pragma once

#include <windows.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

/// The standard controls of another program: what they show, and a user's hands on them.
namespace support {

/// The texts of a flat tree's nodes, from top to bottom.
std::vector<std::wstring> treeTexts(HWND tree);

/// The number of its selected node, from 0.
std::optional<int> treeSelection(HWND tree);

/// Where node `index` stands on the screen; nothing where it is scrolled out of sight.
std::optional<RECT> treeNodeRect(HWND tree, int index);

/// The selection of a text box or rich text box: first character and the one after the last, in
/// the control's own count.
struct Selection {
  LONG first = 0;
  LONG end = 0;
  bool operator==(const Selection&) const = default;
};
Selection selectionOf(HWND box);

/// Selects characters of a rich text box, as the control counts them, without user's input.
void selectRichText(HWND pane, Selection selection);

/// The colours of a rich text box's characters, one for each that the control counts.
std::vector<COLORREF> richTextColours(HWND pane);

/// Where a character of a text box stands, in screen pixels: its top left corner.
POINT editPosition(HWND edit, LONG character);

/// Where a character of a rich text box stands, in screen pixels: the left end of its upper edge.
POINT richTextPosition(HWND pane, LONG character);

/// Presses a button with the mouse and waits, as a user does, until it looks pressed; a press that
/// is lost while windows change places is repeated. The mouse stays down. Returns the time from the
/// press until the button was seen to be down.
std::chrono::duration<double, std::milli> pressButton(HWND button);

/// Presses a button and lets go.
void clickButton(HWND button);

/// Clicks into a text box of any program until it has the keyboard.
void takeKeyboard(HWND box);

/// Clicks into a text box, replaces what it holds by typing, and waits until it stands there.
void typeInto(HWND box, const std::wstring& text);

}  // namespace support
