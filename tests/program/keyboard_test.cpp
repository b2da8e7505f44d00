// The keyboard and the clipboard in the quick lookup window, as a user has them.
#include <gtest/gtest.h>

#include "tests/support/process/clipboard.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/system_programs.h"

namespace support {
namespace {

class Keyboard : public ::testing::Test {
 protected:
  Keyboard() { lexilo.waitUntilSeen(); }

  void waitForFocus(HWND control) const {
    waitFor("the control to get the keyboard", [&] { return focusIn(window.window()) == control; });
  }

  const Lexilo lexilo{AppFolder::withFullDictionary()};
  const QuickLookup window = lexilo.openQuickLookupAtA();
};

TEST_F(Keyboard, TheNextWordIsTypedWithoutReturningToTheBox) {
  window.lookUp(L"data");
  window.clickWord(2);
  waitForFocus(window.list());
  input::type(L"network");
  window.waitForHeadword(L"network");
  EXPECT_EQ(window.typed(), L"network");
  input::click(centreOf(clientRectOf(window.pane())));
  waitForFocus(window.pane());
  input::type(L"数据");
  window.waitForHeadword(L"数据");
  EXPECT_EQ(window.typed(), L"数据");
}

TEST_F(Keyboard, EscIsFollowedByTheNextWord) {
  window.lookUp(L"data");
  input::click(centreOf(clientRectOf(window.pane())));
  waitForFocus(window.pane());
  input::key(VK_ESCAPE);
  waitForFocus(window.input());
  input::type(L"bit");
  window.waitForHeadword(L"bit");
  EXPECT_EQ(window.typed(), L"bit");
}

TEST_F(Keyboard, BackFromAnotherProgramTheNextWordReplacesTheText) {
  window.lookUp(L"data");
  const Notepad notepad;
  notepad.place({100, 400, 600, 700});
  notepad.clickIntoText();
  const QuickLookup again = lexilo.openQuickLookup();
  waitForFocus(again.input());
  input::type(L"bit");
  again.waitForHeadword(L"bit");
  EXPECT_EQ(again.typed(), L"bit");
}

TEST_F(Keyboard, AWordIsCopiedFromTheListAndPastedWithWhatIsAroundIt) {
  setClipboardText(L"before");
  window.lookUp(L"data");
  input::key(VK_DOWN);
  waitForFocus(window.list());
  input::key('C', {VK_CONTROL});
  waitFor("the copied word", [] { return clipboardText() == L"data"; });
  input::key(VK_ESCAPE);
  waitForFocus(window.input());
  for (const auto& [copied, word] :
       std::initializer_list<std::pair<const wchar_t*, const wchar_t*>>{
           {L"network.", L"network"},
           {L"\r\n“ｄａｔａ”\t", L"data"},
           {L"café", L"cafe"},
           {L"（数据）。", L"数据"}}) {
    setClipboardText(copied);
    input::key('A', {VK_CONTROL});
    input::key('V', {VK_CONTROL});
    waitFor("the pasted word", [&] { return window.typed() == word; });
    EXPECT_EQ(window.words().front(), word);
  }
}

}  // namespace
}  // namespace support
