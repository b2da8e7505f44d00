#include "tests/support/process/dictionary_windows.h"

#include <commctrl.h>

#include <algorithm>

#include "tests/support/process/controls.h"
#include "tests/support/process/input.h"
#include "tests/support/process/text.h"

namespace support {
namespace {

std::wstring selectedText(HWND tree) {
  const auto selected = treeSelection(tree);
  return selected ? treeTexts(tree).at(static_cast<std::size_t>(*selected)) : std::wstring();
}

void clickNode(HWND tree, const std::wstring& text) {
  const auto texts = treeTexts(tree);
  const auto found = std::ranges::find(texts, text);
  if (found == texts.end()) throw Failure("there is no node " + utf8(text));
  const auto index = static_cast<int>(found - texts.begin());
  if (!treeNodeRect(tree, index)) {
    auto item = send(tree, TVM_GETNEXTITEM, TVGN_ROOT);
    for (int i = 0; i < index; ++i) item = send(tree, TVM_GETNEXTITEM, TVGN_NEXT, item);
    send(tree, TVM_ENSUREVISIBLE, 0, item);
  }
  actUntil(
      "the node " + utf8(text),
      [&] {
        const auto rect = waitFor("a node to click", [&] { return treeNodeRect(tree, index); });
        input::click(centreOf(rect.value()));
      },
      [&] { return selectedText(tree) == text; });
}

void closeWindow(HWND window) {
  PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
  waitUntilGone(window);
}

/// The trees of a window from left to right.
std::vector<HWND> treesOf(HWND window) {
  waitForChild(window, L"SysTreeView32");
  auto trees = childrenOf(window, L"SysTreeView32");
  std::ranges::sort(trees, {}, [](HWND tree) { return rectOf(tree).left; });
  return trees;
}

/// The text boxes of a window from top to bottom.
std::vector<HWND> boxesOf(HWND window) {
  waitForChild(window, L"Edit");
  auto boxes = childrenOf(window, L"Edit");
  std::ranges::sort(boxes, {}, [](HWND box) { return rectOf(box).top; });
  return boxes;
}

HWND opened(const Lexilo& lexilo, ToolbarButton button, const std::wstring& form) {
  lexilo.click(button);
  return waitForForm(lexilo.process(), form);
}

}  // namespace

HWND findForm(const Process& program, const std::wstring& form) {
  return findWindow({.process = program.id(), .className = L"Lexilo." + form, .title = {}});
}

HWND waitForForm(const Process& program, const std::wstring& form) {
  HWND window = waitFor(utf8(form), [&] { return findForm(program, form); });
  waitFor(utf8(form) + " to come to the front", [&] { return GetForegroundWindow() == window; });
  passTime(kReactionTime);
  return window;
}

HWND buttonOf(HWND window, const std::wstring& caption) {
  for (HWND button : childrenOf(window, L"Button")) {
    if (textOf(button) == caption && IsWindowVisible(button) != FALSE) return button;
  }
  throw Failure("there is no button " + utf8(caption));
}

MultiQuery::MultiQuery(const Lexilo& lexilo)
    : window_(opened(lexilo, ToolbarButton::kMultiFunction, L"frmMain")),
      input_(waitForChild(window_, L"Edit")),
      dictionaries_(treesOf(window_).front()),
      results_(treesOf(window_).back()) {}

std::vector<std::wstring> MultiQuery::names() const { return treeTexts(dictionaries_); }

std::wstring MultiQuery::chosen() const { return selectedText(dictionaries_); }

std::vector<std::wstring> MultiQuery::lines() const { return treeTexts(results_); }

void MultiQuery::choose(const std::wstring& name) const { clickNode(dictionaries_, name); }

void MultiQuery::click(const std::wstring& caption) const {
  clickButton(buttonOf(window_, caption));
}

void MultiQuery::search(const std::wstring& text, const std::wstring& caption) const {
  typeInto(input_, text);
  click(caption);
}

void MultiQuery::searchFor(const std::wstring& text, const std::wstring& caption,
                           const std::wstring& first) const {
  search(text, caption);
  waitForFirstLine(first);
}

void MultiQuery::waitForFirstLine(const std::wstring& first) const {
  waitFor("a first line that begins with " + utf8(first), [&] {
    const auto shown = lines();
    return !shown.empty() && shown.front().starts_with(first);
  });
}

void MultiQuery::close() const { closeWindow(window_); }

SpecialQuery::SpecialQuery(const Process& program, const MultiQuery& owner) {
  owner.click(L"特殊");
  window_ = waitForForm(program, L"frmSpc");
  const auto boxes = boxesOf(window_);
  english_ = boxes.at(0);
  chinese_ = boxes.at(1);
}

void SpecialQuery::fill(const std::wstring& english, const std::wstring& chinese) const {
  if (!english.empty()) typeInto(english_, english);
  if (!chinese.empty()) typeInto(chinese_, chinese);
}

void SpecialQuery::ask(const std::wstring& english, const std::wstring& chinese) const {
  fill(english, chinese);
  clickButton(buttonOf(window_, L"确定"));
}

void SpecialQuery::cancel() const {
  clickButton(buttonOf(window_, L"取消"));
  waitUntilGone(window_);
}

DictionarySettings::DictionarySettings(const Lexilo& lexilo)
    : window_(opened(lexilo, ToolbarButton::kDictionarySettings, L"frmdictSetting")),
      list_(treesOf(window_).front()) {}

std::vector<std::wstring> DictionarySettings::names() const { return treeTexts(list_); }

std::wstring DictionarySettings::chosen() const { return selectedText(list_); }

void DictionarySettings::choose(const std::wstring& name) const { clickNode(list_, name); }

void DictionarySettings::close() const { closeWindow(window_); }

}  // namespace support
