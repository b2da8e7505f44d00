#pragma once

#include <vector>

#include "forms/graphics.h"
#include "forms/widget.h"
#include "win32/handles.h"

namespace forms {

/// A flat list of nodes, numbered from 1. It keeps the nodes' texts itself and lets the control ask
/// for them (LPSTR_TEXTCALLBACK): new texts cost one repaint, however many they are. It draws its
/// rows itself, so that a new text is drawn as far as the view is wide, whatever width the control
/// has measured for the item. A view that does not scroll sideways shows a text that is cut there
/// in a tool tip. Ctrl+C and Ctrl+Insert copy the text of the selected node to the clipboard.
/// Functions that take a number throw std::out_of_range if there is no such node.
class TreeView : public Widget {
 public:
  /// `box` in twips of the form's client area. Throws like Widget.
  TreeView(WidgetHost& form, const WidgetBox& box);

  [[nodiscard]] std::size_t count() const { return nodes_.size(); }
  /// Adds a node at the end.
  void add(const std::u16string& text);
  /// Removes a node; those after it are numbered anew.
  void remove(std::size_t number);
  void clear();
  /// Changes a node's text; shown with the next repaint (see refresh).
  virtual void setText(std::size_t number, const std::u16string& text);
  [[nodiscard]] const std::u16string& text(std::size_t number) const;

  /// Selects a node from code, which is no choice of the user's, and brings it into view.
  void select(std::size_t number);
  /// Number of the selected node; 0 for none.
  [[nodiscard]] std::size_t selected() const;
  /// Scrolls back to the first node and its beginning; the selection stays where it is.
  void scrollToBeginning();

  /// Shows `picture` before every node, at kPictureTwips.
  void setPicture(const Picture& picture);

  /// From now on the selected node is highlighted even while the focus is elsewhere.
  void keepHighlight() { keepsHighlight_ = true; }

  /// From now on moving the highlight with the keys chooses nothing: a click, Enter and Space do.
  void chooseOnlyExpressly();

  /// Invalidates all of the control, for texts that were changed.
  void refresh();

  /// The user chose a node: a click on it (the selected one included), the highlight moved to it
  /// with the keys, or Enter on it.
  Event<std::size_t> onNodeClick;

  LRESULT notify(const NMHDR& header) override;
  void rescale() override;
  void recolor() final;

 protected:
  /// `scrolling` is the style that says in which directions the view scrolls.
  TreeView(WidgetHost& form, const WidgetBox& box, DWORD scrolling);

  /// Fills `row` (pixels) with the colours that are set in `dc` and draws `text` there, from `left`
  /// on.
  virtual void drawText(HDC dc, const RECT& row, int left, std::u16string_view text) const;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  [[nodiscard]] std::size_t numberOf(HTREEITEM item) const;
  /// Has the control measure a node's text again. It measures an item's text only once, when the
  /// item is inserted, so the node gets a new item; number, text and selection stay.
  void measureAgain(std::size_t number);

 private:
  struct Node {
    HTREEITEM item = nullptr;
    std::u16string text;
  };
  HTREEITEM insert(std::size_t number, HTREEITEM after);
  void giveText(NMTVDISPINFOW& info) const;
  LRESULT customDraw(const NMCUSTOMDRAW& drawing) const;
  void drawRow(const NMCUSTOMDRAW& drawing) const;
  [[nodiscard]] bool placeOf(HTREEITEM item, RECT& place) const;
  [[nodiscard]] RECT rowAt(const RECT& place) const;
  void redrawRow(HTREEITEM item) const;
  [[nodiscard]] HFONT font() const { return reinterpret_cast<HFONT>(send(WM_GETFONT)); }
  [[nodiscard]] TVHITTESTINFO hitTest(POINT point) const;
  [[nodiscard]] bool isCut(std::size_t number) const;
  void showCutText(POINT point);
  void forgetCutText();
  bool clicked();
  void copy() const;
  void raiseChoice() const;
  void showPicture();

  std::vector<Node> nodes_;
  std::size_t inserting_ = 0;  // the control asks for its text before its handle is known
  bool showsCutTexts_;
  std::size_t nodeUnderMouse_ = 0;  // as showCutText last saw it
  bool cutTextIsShown_ = false;
  bool highlightChooses_ = true;
  bool keepsHighlight_ = false;
  Picture picture_;
  win32::OwnedImageList pictures_;
};

}  // namespace forms
