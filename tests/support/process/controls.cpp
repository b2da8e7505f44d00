#include "tests/support/process/controls.h"

#include <commctrl.h>
#include <richedit.h>
#include <algorithm>
#include <cstdint>

#include "tests/support/process/find.h"
#include "tests/support/process/input.h"
#include "tests/support/process/remote_memory.h"
#include "tests/support/process/text.h"
#include "tests/support/wait.h"

namespace support {
namespace {

/// No headword is near this long.
constexpr int kMaxText = 512;

HTREEITEM nextItem(HWND tree, WPARAM relation, HTREEITEM from) {
  return reinterpret_cast<HTREEITEM>(
      send(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(from)));
}

std::vector<HTREEITEM> treeItems(HWND tree) {
  std::vector<HTREEITEM> items;
  for (HTREEITEM item = nextItem(tree, TVGN_ROOT, nullptr); item != nullptr;
       item = nextItem(tree, TVGN_NEXT, item)) {
    items.push_back(item);
  }
  return items;
}

std::wstring itemText(HWND tree, HTREEITEM item, const RemoteMemory& memory) {
  TVITEMW question{};
  question.mask = TVIF_TEXT | TVIF_HANDLE;
  question.hItem = item;
  question.pszText = static_cast<wchar_t*>(memory.at(sizeof question));
  question.cchTextMax = kMaxText;
  memory.put(question);
  send(tree, TVM_GETITEMW, 0, memory.parameter());
  // The control may have put the address of a text of its own in place of ours.
  const auto answer = memory.get<TVITEMW>();
  if (answer.pszText != question.pszText) throw Failure("a node's text lies elsewhere");
  std::wstring text(kMaxText, L'\0');
  memory.read(text.data(), text.size() * sizeof(wchar_t), sizeof question);
  text.resize(text.find(L'\0'));
  return text;
}

}  // namespace

std::vector<std::wstring> treeTexts(HWND tree) {
  const RemoteMemory memory(tree, sizeof(TVITEMW) + (kMaxText * sizeof(wchar_t)));
  std::vector<std::wstring> texts;
  for (HTREEITEM item : treeItems(tree)) texts.push_back(itemText(tree, item, memory));
  return texts;
}

std::optional<int> treeSelection(HWND tree) {
  HTREEITEM selected = nextItem(tree, TVGN_CARET, nullptr);
  if (selected == nullptr) return std::nullopt;
  const std::vector<HTREEITEM> items = treeItems(tree);
  const auto place = std::ranges::find(items, selected);
  if (place == items.end()) return std::nullopt;
  return static_cast<int>(place - items.begin());
}

std::optional<RECT> treeNodeRect(HWND tree, int index) {
  const std::vector<HTREEITEM> items = treeItems(tree);
  if (index < 0 || static_cast<std::size_t>(index) >= items.size()) return std::nullopt;
  // The rectangle's memory holds the node's handle when the question is asked.
  const RemoteMemory memory(tree, sizeof(RECT));
  memory.put(reinterpret_cast<std::uintptr_t>(items[static_cast<std::size_t>(index)]));
  if (send(tree, TVM_GETITEMRECT, TRUE, memory.parameter()) == 0) return std::nullopt;
  auto rect = memory.get<RECT>();
  MapWindowPoints(tree, nullptr, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

Selection selectionOf(HWND box) {
  // The system carries these two across by itself.
  DWORD first = 0;
  DWORD end = 0;
  send(box, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
  return {static_cast<LONG>(first), static_cast<LONG>(end)};
}

void selectRichText(HWND pane, Selection selection) {
  const RemoteMemory memory(pane, sizeof(CHARRANGE));
  memory.put(CHARRANGE{selection.first, selection.end});
  send(pane, EM_EXSETSEL, 0, memory.parameter());
}

std::vector<COLORREF> richTextColours(HWND pane) {
  const Selection before = selectionOf(pane);
  const RemoteMemory question(pane, sizeof(GETTEXTLENGTHEX));
  question.put(GETTEXTLENGTHEX{GTL_NUMCHARS, 1200});
  const LRESULT length = send(pane, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(question.at()));
  const RemoteMemory answer(pane, sizeof(CHARFORMAT2W));
  std::vector<COLORREF> colours;
  for (LONG i = 0; i < length; ++i) {
    selectRichText(pane, {i, i + 1});
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    answer.put(format);
    send(pane, EM_GETCHARFORMAT, SCF_SELECTION, answer.parameter());
    colours.push_back(answer.get<CHARFORMAT2W>().crTextColor);
  }
  selectRichText(pane, before);
  return colours;
}

POINT editPosition(HWND edit, LONG character) {
  const LRESULT place = send(edit, EM_POSFROMCHAR, static_cast<WPARAM>(character));
  POINT point{static_cast<SHORT>(LOWORD(place)), static_cast<SHORT>(HIWORD(place))};
  ClientToScreen(edit, &point);
  return point;
}

POINT richTextPosition(HWND pane, LONG character) {
  const RemoteMemory memory(pane, sizeof(POINTL));
  send(pane, EM_POSFROMCHAR, reinterpret_cast<WPARAM>(memory.at()), character);
  const auto place = memory.get<POINTL>();
  POINT point{place.x, place.y};
  ClientToScreen(pane, &point);
  return point;
}

std::chrono::duration<double, std::milli> pressButton(HWND button) {
  std::chrono::steady_clock::time_point pressed;
  bool again = false;
  actUntil(
      "a button to go down",
      [&] {
        if (std::exchange(again, true)) input::release();
        input::press(centreOf(rectOf(button)));
        pressed = std::chrono::steady_clock::now();
      },
      [&] { return (send(button, BM_GETSTATE) & BST_PUSHED) != 0; }, {.most = 10});
  return std::chrono::steady_clock::now() - pressed;
}

void clickButton(HWND button) {
  pressButton(button);
  input::release();
}

void takeKeyboard(HWND box) {
  HWND window = GetAncestor(box, GA_ROOT);
  actUntil(
      "a text box to get the keyboard", [&] { input::click(centreOf(clientRectOf(box))); },
      [&] { return GetForegroundWindow() == window && focusIn(window) == box; });
}

void typeInto(HWND box, const std::wstring& text) {
  takeKeyboard(box);
  input::key(VK_END);
  input::key(VK_HOME, {VK_SHIFT});
  input::key(VK_DELETE);
  waitFor("the text box to be empty", [&] { return textOf(box).empty(); });
  input::type(text);
  waitFor("the typed text " + utf8(text), [&] { return textOf(box) == text; });
}

}  // namespace support
