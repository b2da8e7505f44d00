#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

/// What the standard controls of another program show.
namespace support {

/// The texts of a flat tree's nodes, from top to bottom.
std::vector<std::wstring> treeTexts(HWND tree);

/// The number of its selected node, from 0.
std::optional<int> treeSelection(HWND tree);

/// Where node `index` stands on the screen; nothing where it is scrolled out of sight.
std::optional<RECT> treeNodeRect(HWND tree, int index);

/// The selection of a text box or rich text box: first character and the one behind the last, in
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

}  // namespace support
