#include "settings/settings_file.h"
#include "tests/windows/support/frm_sub_test.h"
#include "tests/windows/support/unwritable_settings.h"

namespace wintest {
namespace {

namespace stored = harness::settings;

class FrmSubSettings : public FrmSubTest {
 protected:
  static void expectSizes(int width, int height, int list) {
    EXPECT_EQ(sub().width(), width);
    EXPECT_EQ(sub().height(), height);
    EXPECT_EQ(sub().TreeView1.width(), list);
  }
  static void expectStored(const wchar_t* width, const wchar_t* height, const wchar_t* list) {
    EXPECT_EQ(stored::read(L"WindowWidth"), width);
    EXPECT_EQ(stored::read(L"WindowHeight"), height);
    EXPECT_EQ(stored::read(L"TreeWidth"), list);
  }
  static void store(const wchar_t* width, const wchar_t* height, const wchar_t* list) {
    stored::write(L"WindowWidth", width);
    stored::write(L"WindowHeight", height);
    stored::write(L"TreeWidth", list);
  }
  static void close() {
    sub().unload();
    forms::doEvents();
  }
  /// What a value that cannot be used leads to: a message, the design size, good values at the end.
  void expectRefused() {
    open();
    const auto seen = boxes.take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].icon, Icon::error);
    EXPECT_EQ(seen[0].title, u"");
    expectSizes(3500, 3200, 2000);
    EXPECT_EQ(list(), expectedList(u"a"));
    close();
    expectStored(L"3500", L"3200", L"2000");
    open();
    EXPECT_EQ(boxes.count(), 0U);
  }
};

TEST_F(FrmSubSettings, WithoutThemItHasItsDefaults) {
  open();
  expectSizes(3500, 3200, 2000);
}

TEST_F(FrmSubSettings, StoredSizesAreUsed) {
  store(L"6005", L"5003", L"2107");
  open();
  expectSizes(6005, 5003, 2107);
  EXPECT_EQ(sub().txtOut.left(), 2157);
}

TEST_F(FrmSubSettings, EachKeyStandsByItself) {
  stored::write(L"TreeWidth", L"1700");
  open();
  expectSizes(3500, 3200, 1700);
}

TEST_F(FrmSubSettings, TooSmallOnesSnap) {
  store(L"3000", L"2500", L"1600");
  open();
  expectSizes(3500, 2800, 1600);
}

TEST_F(FrmSubSettings, ClosingStoresThem) {
  open().setSize(7001, 5502);
  sub().TreeView1.setWidth(2222);
  input::click(centreOf(sub().cmdExit));
  ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSub>(); }));
  expectStored(L"7001", L"5502", L"2222");
}

TEST_F(FrmSubSettings, TheCloseBoxStoresThemToo) {
  open().setSize(7001, 5502);
  PostMessageW(sub().handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
  ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSub>(); }));
  expectStored(L"7001", L"5502", L"2000");
}

TEST_F(FrmSubSettings, TheEndOfTheSessionStoresThemToo) {
  open().setSize(7001, 5502);
  SendMessageW(sub().handle(), WM_ENDSESSION, TRUE, 0);
  expectStored(L"7001", L"5502", L"2000");
}

TEST_F(FrmSubSettings, OpeningAndClosingChangesNoSize) {
  store(L"6005", L"5003", L"2107");
  for (int i = 0; i < 3; ++i) {
    open();
    close();
    expectStored(L"6005", L"5003", L"2107");
  }
}

TEST_F(FrmSubSettings, BlanksAroundAValueDoNotMatter) {
  store(L"\"  6000 \"", L"   5000", L"2100");
  open();
  expectSizes(6000, 5000, 2100);
}

TEST_F(FrmSubSettings, AValueThatIsThePathItselfIsAbsent) {
  const std::u16string path = user::settingsFile();
  store(std::wstring(path.begin(), path.end()).c_str(), L"5000", L"2100");
  open();
  expectSizes(3500, 5000, 2100);
}

TEST_F(FrmSubSettings, AnEmptyOrBlankValueIsAbsent) {
  store(L"", L"\"   \"", L"2100");
  open();
  expectSizes(3500, 3200, 2100);
}

TEST_F(FrmSubSettings, AValueThatIsNoNumberIsRefused) {
  store(L"abc", L"5000", L"2100");
  expectRefused();
}

TEST_F(FrmSubSettings, AValueAbove32767IsRefused) {
  store(L"6000", L"5000", L"40000");
  expectRefused();
}

TEST_F(FrmSubSettings, ANegativeValueIsRefused) {
  store(L"6000", L"-5", L"2100");
  expectRefused();
}

TEST_F(FrmSubSettings, AListThatLeavesThePaneNoRoomIsRefused) {
  store(L"5000", L"4000", L"4800");
  expectRefused();
}

TEST_F(FrmSubSettings, AListThatANarrowedWindowHasNoRoomForIsStoredSoThatItOpensAgain) {
  store(L"9000", L"5000", L"5000");
  open();
  expectSizes(9000, 5000, 5000);
  sub().setSize(3500, 5000);
  expectSizes(3500, 5000, 5000);
  close();
  expectStored(L"3500", L"5000", L"1650");
  open();
  EXPECT_EQ(boxes.count(), 0U);
  expectSizes(3500, 5000, 1650);
}

TEST_F(FrmSubSettings, ClosedWhileMinimisedItKeepsItsRestoredSizes) {
  store(L"6000", L"5000", L"2100");
  open();
  ShowWindow(sub().handle(), SW_MINIMIZE);
  ASSERT_TRUE(allAlong([] { return sub().isMinimised(); }, 100));
  close();
  expectStored(L"6000", L"5000", L"2100");
}

TEST_F(FrmSubSettings, AFileThatCannotBeWrittenGivesWayToOneOfTheUsersOwn) {
  const UnwritableSettings held;
  open().setSize(7005, 5505);
  close();
  EXPECT_EQ(boxes.count(), 0U);
  const std::u16string own = user::settingsFile();
  EXPECT_NE(own, user::systemDirectory() + u"\\system.ini");
  EXPECT_EQ(user::getINIProfileString(u"SystemSetting", u"WindowWidth", u"", own), u"7005");
  open();
  expectSizes(7005, 5505, 2000);
  close();
  DeleteFileW(forms::wide(own));
}

}  // namespace
}  // namespace wintest
