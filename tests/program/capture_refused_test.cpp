// Places where pointing must not open anything.
#include "tests/program/capture_fixture.h"
#include "tests/support/process/text.h"
#include "tests/support/process/text_window.h"

namespace support {
namespace {

TEST_F(Capture, OneLetterAndChineseOpenNothing) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"A 数据库 database");
  restOn(notepad, 0);
  EXPECT_TRUE(popup.staysAway(400));
  restOn(notepad, 3);
  EXPECT_TRUE(popup.staysAway(400));
  restOn(notepad, 7);
  (void)popup.waitFor(L"database");
}

TEST_F(Capture, BlanksMarginsAndPlacesBelowTheTextOpenNothing) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"database          kernel\r\n\r\nnetwork");
  restOn(notepad, 13);
  EXPECT_TRUE(popup.staysAway(350));
  const POINT end = editPosition(notepad.edit(), 23);
  input::moveTo({end.x + 60, end.y + 6});
  EXPECT_TRUE(popup.staysAway(350));
  const POINT last = editPosition(notepad.edit(), 28);
  input::moveTo({last.x + 3, last.y + 80});
  EXPECT_TRUE(popup.staysAway(350));
  input::moveTo({last.x + 3, last.y - 10});
  EXPECT_TRUE(popup.staysAway(350));
  restOn(notepad, 30);
  (void)popup.waitFor(L"network");
}

TEST_F(Capture, NeitherLabelsNorButtonsNorListsAreProbed) {
  for (const wchar_t* kind :
       {L"Static", L"Button", L"ListBox", L"SysListView32", L"SysTreeView32", L"ComboLBox"}) {
    const TextWindow window(kind, 0, {300, 300, 500, 330}, L"database");
    input::moveTo({310, 310});
    EXPECT_TRUE(popup.staysAway(350)) << utf8(kind);
    EXPECT_FALSE(hasProbed()) << utf8(kind);
    input::moveTo(kAwayFromTexts);
  }
  const TextWindow text(L"Edit", 0, {300, 300, 500, 330}, L"database");
  input::moveTo({310, 308});
  (void)popup.waitFor(L"database");
  EXPECT_TRUE(hasProbed());
}

TEST_F(Capture, APasswordIsNeverRead) {
  const TextWindow hidden(L"Edit", ES_PASSWORD, {300, 300, 500, 330}, L"database");
  input::moveTo({305, 308});
  EXPECT_TRUE(popup.staysAway(500));
  const TextWindow open(L"Edit", 0, {300, 400, 500, 430}, L"database");
  input::moveTo({310, 408});
  (void)popup.waitFor(L"database");
}

TEST_F(Capture, AMenuIsNotProbed) {
  const Notepad notepad;
  notepad.place(kPage);
  input::click({kPage.left + 20, kPage.top + 35});
  HWND menu = waitForWindow({.className = L"#32768", .title = {}});
  const RECT rect = rectOf(menu);
  input::moveTo({rect.left + 30, rect.top + 12});
  EXPECT_TRUE(popup.staysAway(400));
  EXPECT_FALSE(hasProbed());
  input::key(VK_ESCAPE);
  input::key(VK_ESCAPE);
  // Below it lies the text.
  waitFor("a probe", [&] { return hasProbed(); });
}

}  // namespace
}  // namespace support
