#include "forms/tree_view.h"

#include <algorithm>
#include <cstring>

#include "forms/appearance/contrast.h"
#include "forms/appearance/system_look.h"
#include "forms/clipboard.h"
#include "forms/geometry.h"

// Who chose a node? The control reports every change of the selection in the same way
// (TVN_SELCHANGED). A choice of the user's is a click on a node (NM_CLICK, also on the one that is
// selected), Enter, or a change that the control itself calls one by keyboard; a selection set from
// code, or made by the control when it gets the focus, is none.
//
// Why rows are drawn here: the control keeps a width for each item, within which it draws the
// item's text, and no document says when it measures an item again whose text it asks for. So it is
// told that its rows are drawn already (NM_CUSTOMDRAW, CDRF_SKIPDEFAULT), and its own tool tips,
// which depend on that width as well, are switched off (TVS_NOTOOLTIPS).
namespace forms {
namespace {

/// Between a node's picture and its text, in twips.
constexpr int kTextMargin = 30;

/// ExtTextOut takes no more.
constexpr std::size_t kMaxDrawn = 8192;

struct RowColors {
  int text;
  int background;
};

/// The colours of a row, as indexes of system colours. Without the focus the selected row looks
/// like a button, unless that cannot be told from the other rows, as in high-contrast themes.
RowColors colorsOf(bool selected, bool highlighted) {
  if (!selected) return {COLOR_WINDOWTEXT, COLOR_WINDOW};
  if (highlighted || isHighContrast() ||
      !isSeenOn(GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_WINDOW))) {
    return {COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT};
  }
  return {COLOR_BTNTEXT, COLOR_BTNFACE};
}

}  // namespace

TreeView::TreeView(WidgetHost& form, const WidgetBox& box) : TreeView(form, box, TVS_NOHSCROLL) {}

TreeView::TreeView(WidgetHost& form, const WidgetBox& box, DWORD scrolling)
    : Widget(form,
             {WC_TREEVIEWW,
              TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP | TVS_FULLROWSELECT | TVS_NOTOOLTIPS |
                  WS_TABSTOP | scrolling,
              WS_EX_CLIENTEDGE},
             box),
      showsCutTexts_((scrolling & TVS_NOHSCROLL) != 0) {
  onKeyDown[VK_RETURN] = [this] { raiseChoice(); };
  recolor();
}

// The colour of the rows, which are drawn here. By itself the control takes the system's, but not
// every version of it notices that this has changed while no tree view was open.
void TreeView::recolor() {
  send(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(GetSysColor(COLOR_WINDOW)));
}

void TreeView::add(const std::u16string& text) {
  nodes_.push_back({nullptr, text});
  nodes_.back().item = insert(nodes_.size(), TVI_LAST);
}

// The control asks for the text during the insertion, before the item's handle is known here:
// giveText then takes the node that is being inserted.
HTREEITEM TreeView::insert(std::size_t number, HTREEITEM after) {
  TVINSERTSTRUCTW insert{};
  insert.hParent = TVI_ROOT;
  insert.hInsertAfter = after;
  insert.item.mask = TVIF_TEXT;
  insert.item.pszText = LPSTR_TEXTCALLBACKW;
  inserting_ = number;
  const LRESULT item = send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert));
  inserting_ = 0;
  return reinterpret_cast<HTREEITEM>(item);
}

// The new item is inserted and selected before the old one is deleted, so that the control does not
// select a neighbour meanwhile.
void TreeView::measureAgain(std::size_t number) {
  const HTREEITEM old = nodes_.at(number - 1).item;
  const bool wasSelected = selected() == number;
  const HTREEITEM item = insert(number, number == 1 ? TVI_FIRST : nodes_[number - 2].item);
  nodes_[number - 1].item = item;
  if (wasSelected) send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
  send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(old));
}

void TreeView::remove(std::size_t number) {
  const HTREEITEM item = nodes_.at(number - 1).item;
  nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(number) - 1);
  send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
}

void TreeView::clear() {
  forgetCutText();
  nodes_.clear();
  send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
}

void TreeView::setText(std::size_t number, const std::u16string& text) {
  nodes_.at(number - 1).text = text;
}

const std::u16string& TreeView::text(std::size_t number) const {
  return nodes_.at(number - 1).text;
}

void TreeView::select(std::size_t number) {
  const auto item = reinterpret_cast<LPARAM>(nodes_.at(number - 1).item);
  send(TVM_SELECTITEM, TVGN_CARET, item);
  send(TVM_ENSUREVISIBLE, 0, item);
}

std::size_t TreeView::selected() const {
  return numberOf(reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, TVGN_CARET)));
}

void TreeView::scrollToBeginning() {
  send(WM_VSCROLL, SB_TOP);
  // Not every system's control knows SB_LEFT.
  send(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0));
}

void TreeView::setPicture(const Picture& picture) {
  picture_ = picture;
  showPicture();
}

void TreeView::showPicture() {
  const int size = toPixels(kPictureTwips, form().dpi());
  win32::OwnedImageList made(ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, 1, 0));
  if (HICON icon = picture_.icon(size)) ImageList_AddIcon(made.get(), icon);
  send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(made.get()));
  pictures_ = std::move(made);
}

void TreeView::rescale() {
  Widget::rescale();
  if (picture_ != Picture{}) showPicture();
}

void TreeView::chooseOnlyExpressly() {
  highlightChooses_ = false;
  onKeyDown[VK_SPACE] = [this] { raiseChoice(); };
}

void TreeView::raiseChoice() const {
  if (const std::size_t node = selected(); node != 0) onNodeClick.raise(node);
}

void TreeView::refresh() {
  forgetCutText();
  RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE);
}

std::size_t TreeView::numberOf(HTREEITEM item) const {
  if (item == nullptr) return 0;
  const auto found =
      std::find_if(nodes_.begin(), nodes_.end(), [&](const Node& n) { return n.item == item; });
  return found == nodes_.end() ? 0 : static_cast<std::size_t>(found - nodes_.begin()) + 1;
}

LRESULT TreeView::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  constexpr WPARAM kCtrlC = 3;
  const bool ctrlInsert =
      message == WM_KEYDOWN && wParam == VK_INSERT && GetKeyState(VK_CONTROL) < 0;
  if (ctrlInsert || (message == WM_CHAR && wParam == kCtrlC)) {
    copy();
    return 0;
  }
  const LRESULT result = Widget::handleMessage(message, wParam, lParam);
  if (message == WM_MOUSEMOVE && showsCutTexts_)
    showCutText({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  return result;
}

// A node without a text is none for the user.
void TreeView::copy() const {
  const std::size_t node = selected();
  if (node != 0 && !text(node).empty()) setClipboardText(form().handle(), text(node));
}

LRESULT TreeView::notify(const NMHDR& header) {
  switch (header.code) {
    case TVN_GETDISPINFOW:
      giveText(const_cast<NMTVDISPINFOW&>(reinterpret_cast<const NMTVDISPINFOW&>(header)));
      break;
    case NM_CLICK:
      return clicked() ? TRUE : FALSE;
    case TVN_SELCHANGEDW: {
      const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
      redrawRow(change.itemOld.hItem);
      redrawRow(change.itemNew.hItem);
      if (change.action == TVC_BYKEYBOARD && highlightChooses_) {
        if (const auto node = numberOf(change.itemNew.hItem); node != 0) onNodeClick.raise(node);
      }
      break;
    }
    case static_cast<UINT>(NM_SETFOCUS):
    case static_cast<UINT>(NM_KILLFOCUS):
      redrawRow(reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, TVGN_CARET)));
      break;
    case static_cast<UINT>(NM_CUSTOMDRAW):
      return customDraw(reinterpret_cast<const NMTVCUSTOMDRAW&>(header).nmcd);
    default:
      break;
  }
  return 0;
}

LRESULT TreeView::customDraw(const NMCUSTOMDRAW& drawing) const {
  if (drawing.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (drawing.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  drawRow(drawing);
  return CDRF_SKIPDEFAULT;
}

// The control says where a row lies and where its text begins; how far the text reaches is the
// client area's affair.
void TreeView::drawRow(const NMCUSTOMDRAW& drawing) const {
  const auto item = reinterpret_cast<HTREEITEM>(drawing.dwItemSpec);
  const std::size_t number = numberOf(item);
  RECT place{};
  if (number == 0 || !placeOf(item, place)) return;
  const RECT row = rowAt(place);
  const bool selected = (drawing.uItemState & CDIS_SELECTED) != 0;
  const bool focused = GetFocus() == handle();
  const RowColors colors = colorsOf(selected, focused || keepsHighlight_);
  HDC dc = drawing.hdc;
  SetTextColor(dc, GetSysColor(colors.text));
  SetBkColor(dc, GetSysColor(colors.background));
  const HGDIOBJ before = SelectObject(dc, font());
  drawText(dc, row, place.left, text(number));
  SelectObject(dc, before);
  if (pictures_) {
    const int size = toPixels(kPictureTwips, form().dpi());
    ImageList_Draw(pictures_.get(), 0, dc, place.left - size, (row.top + row.bottom - size) / 2,
                   ILD_TRANSPARENT);
  }
  const bool cuesHidden = (send(WM_QUERYUISTATE) & UISF_HIDEFOCUS) != 0;
  if (selected && focused && !cuesHidden) DrawFocusRect(dc, &row);
}

void TreeView::drawText(HDC dc, const RECT& row, int left, std::u16string_view text) const {
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  const int top = row.top + ((row.bottom - row.top - metrics.tmHeight) / 2);
  ExtTextOutW(dc, left + toPixels(kTextMargin, form().dpi()), top, ETO_OPAQUE | ETO_CLIPPED, &row,
              reinterpret_cast<const wchar_t*>(text.data()),
              static_cast<UINT>(std::min(text.size(), kMaxDrawn)), nullptr);
}

// TVM_GETITEMRECT takes the item in the rectangle's own memory. It fails for an item out of sight.
bool TreeView::placeOf(HTREEITEM item, RECT& place) const {
  std::memcpy(&place, &item, sizeof item);
  return send(TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place)) != 0;
}

// The whole height of the item, of which the place of its text may be less.
RECT TreeView::rowAt(const RECT& place) const {
  RECT row{};
  GetClientRect(handle(), &row);
  row.top = place.top;
  row.bottom = place.top + static_cast<LONG>(send(TVM_GETITEMHEIGHT));
  return row;
}

// Where the look of a row changes, the control has its own rectangle of the item painted, which
// need not be all that is drawn here.
void TreeView::redrawRow(HTREEITEM item) const {
  RECT place{};
  if (item == nullptr || !placeOf(item, place)) return;
  const RECT row = rowAt(place);
  InvalidateRect(handle(), &row, FALSE);
}

bool TreeView::isCut(std::size_t number) const {
  const Node& node = nodes_.at(number - 1);
  RECT place{};
  RECT client{};
  if (!placeOf(node.item, place)) return false;
  GetClientRect(handle(), &client);
  HDC dc = GetDC(handle());
  const HGDIOBJ before = SelectObject(dc, font());
  SIZE size{};
  GetTextExtentPoint32W(dc, win32::wide(node.text), static_cast<int>(node.text.size()), &size);
  SelectObject(dc, before);
  ReleaseDC(handle(), dc);
  return place.left + toPixels(kTextMargin, form().dpi()) + size.cx > client.right;
}

// The tool tip is the whole control's, with the text of the row that the mouse is on.
void TreeView::showCutText(POINT point) {
  const std::size_t number = numberOf(hitTest(point).hItem);
  if (number == nodeUnderMouse_) return;
  forgetCutText();
  nodeUnderMouse_ = number;
  if (number == 0 || !isCut(number)) return;
  form().setToolTip(*this, text(number));
  cutTextIsShown_ = true;
}

void TreeView::forgetCutText() {
  nodeUnderMouse_ = 0;
  if (std::exchange(cutTextIsShown_, false)) form().setToolTip(*this, {});
}

void TreeView::giveText(NMTVDISPINFOW& info) const {
  if ((info.item.mask & TVIF_TEXT) == 0 || info.item.cchTextMax <= 0) return;
  const std::size_t known = numberOf(info.item.hItem);
  const std::size_t number = known == 0 ? inserting_ : known;
  if (number == 0) {
    info.item.pszText[0] = L'\0';  // the buffer is not empty by itself
    return;
  }
  const std::u16string& text = nodes_[number - 1].text;
  if (text.size() < static_cast<std::size_t>(info.item.cchTextMax)) {
    std::copy_n(text.c_str(), text.size() + 1, info.item.pszText);
  } else {
    // Longer than the control's own buffer: it takes ours.
    info.item.pszText = const_cast<wchar_t*>(win32::wide(text));
  }
}

TVHITTESTINFO TreeView::hitTest(POINT point) const {
  TVHITTESTINFO hit{};
  hit.pt = point;
  send(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  return hit;
}

// Returns whether a node was chosen: the control is not to select it again then, since the handler
// may have selected another node or changed the list.
bool TreeView::clicked() {
  const DWORD position = GetMessagePos();
  POINT point{GET_X_LPARAM(position), GET_Y_LPARAM(position)};
  ScreenToClient(handle(), &point);
  const TVHITTESTINFO hit = hitTest(point);
  constexpr UINT kOnRow = TVHT_ONITEM | TVHT_ONITEMRIGHT | TVHT_ONITEMINDENT;
  const std::size_t number = numberOf(hit.hItem);
  if (number == 0 || (hit.flags & kOnRow) == 0) return false;
  // The notification may come before the control selects the node itself.
  send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(hit.hItem));
  if (selected() == number) onNodeClick.raise(number);
  return true;
}

}  // namespace forms
