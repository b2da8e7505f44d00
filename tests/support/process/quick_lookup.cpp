#include "tests/support/process/quick_lookup.h"

#include "tests/support/process/controls.h"
#include "tests/support/process/input.h"
#include "tests/support/process/text.h"

namespace support {
namespace {

WindowQuery windowOf(const Process& process) {
  return {.process = process.id(), .className = L"Lexilo.frmSub", .title = {}};
}

}  // namespace

QuickLookup::QuickLookup(HWND window)
    : window_(window),
      input_(waitForChild(window_, L"Edit")),
      list_(waitForChild(window_, L"SysTreeView32")),
      pane_(waitForChild(window_, L"RICHEDIT50W")),
      exitButton_(waitForChild(window_, L"Button")) {}

QuickLookup::QuickLookup(const Process& process) : QuickLookup(waitForWindow(windowOf(process))) {
  waitFor("the quick lookup window to come to the front",
          [&] { return GetForegroundWindow() == window_; });
  passTime(kReactionTime);
}

HWND QuickLookup::find(const Process& process) { return findWindow(windowOf(process)); }

RECT QuickLookup::splitter() const {
  // Of the two static controls it is the one beside the list.
  for (HWND child : childrenOf(window_, L"Static")) {
    if (rectOf(child).top == rectOf(list_).top) return rectOf(child);
  }
  throw Failure("the quick lookup window has no splitter");
}

std::vector<std::wstring> QuickLookup::words() const { return treeTexts(list_); }

std::wstring QuickLookup::meaning() const { return textOf(pane_); }

std::wstring QuickLookup::typed() const { return textOf(input_); }

std::wstring QuickLookup::headword() const {
  const std::wstring text = meaning();
  const std::wstring line = text.substr(0, text.find(L'\r'));
  return line.starts_with(L' ') ? line.substr(1) : line;
}

void QuickLookup::type(const std::wstring& text) const { typeInto(input_, text); }

void QuickLookup::lookUp(const std::wstring& text, const std::wstring& headword) const {
  type(text);
  waitForHeadword(headword);
}

void QuickLookup::waitForHeadword(const std::wstring& headword) const {
  waitFor("the meaning of " + utf8(headword), [&] { return this->headword() == headword; });
}

void QuickLookup::clickWord(int index) const {
  const auto node = waitFor("a place to click", [&] { return treeNodeRect(list_, index); });
  input::click(centreOf(node.value()));
}

void QuickLookup::close() const {
  clickButton(exitButton_);
  waitUntilGone(window_);
}

}  // namespace support
