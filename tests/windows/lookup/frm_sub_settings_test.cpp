#include <filesystem>

#include "settings/settings_file.h"
#include "tests/support/window/frm_sub_test.h"
#include "tests/support/window/unwritable_settings.h"

namespace support {
namespace {

namespace stored = support::settings;

class FrmSubSettings : public FrmSubTest {
 protected:
  static void expectSizes(int width, int height, int list) {
    EXPECT_EQ(sub().width(), width);
    EXPECT_EQ(sub().height(), height);
    EXPECT_EQ(sub().TreeView1.width(), list);
  }
  /// Opens the window with what `prepare` stores, which is to have these sizes then.
  template <class Prepare>
  void openAs(Prepare prepare, int width, int height, int list) {
    openSized(prepare, width, height);
    expectSizes(width, height, list);
  }
  static void expectStored(const wchar_t* width, const wchar_t* height, const wchar_t* list) {
    EXPECT_EQ(stored::read(L"WindowWidth"), width);
    EXPECT_EQ(stored::read(L"WindowHeight"), height);
    EXPECT_EQ(stored::read(L"TreeWidth"), list);
  }
  struct Stored {
    const wchar_t* width;
    const wchar_t* height;
    const wchar_t* list;
  };
  static void store(const Stored& sizes) {
    stored::write(L"WindowWidth", sizes.width);
    stored::write(L"WindowHeight", sizes.height);
    stored::write(L"TreeWidth", sizes.list);
  }
  static void close() {
    sub().unload();
    forms::doEvents();
  }
  /// Closes it, with the focus in its box, while its sizes cannot be written: the window goes, and
  /// capture runs again.
  void expectClosesInSilence() {
    ASSERT_FALSE(captureRuns());
    PostMessageW(sub().handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSub>(); }));
    EXPECT_TRUE(captureRuns());
    EXPECT_TRUE(always([this] { return boxes.count() == 0; }, 60));
  }
  void openAs(const Stored& stored, int width, int height, int list) {
    openAs([&] { store(stored); }, width, height, list);
  }
  /// What a value that cannot be used leads to: a message, the design size, good values at the end.
  void expectRefused(const Stored& stored) {
    openAs(
        [&] {
          static_cast<void>(boxes.take());
          store(stored);
        },
        3500, 3200, 2000);
    const auto seen = boxes.take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].icon, Icon::kError);
    EXPECT_EQ(seen[0].title, u"");
    EXPECT_EQ(list(), expectedList(u"a"));
    close();
    expectStored(L"3500", L"3200", L"2000");
    open();
    EXPECT_EQ(boxes.count(), 0U);
  }
};

TEST_F(FrmSubSettings, WithoutThemItHasItsDefaults) {
  openAs([] {}, 3500, 3200, 2000);
}

TEST_F(FrmSubSettings, StoredSizesAreUsed) {
  openAs({L"6005", L"5003", L"2107"}, 6005, 5003, 2107);
  EXPECT_EQ(sub().txtOut.left(), 2157);
}

TEST_F(FrmSubSettings, EachKeyStandsByItself) {
  openAs([] { stored::write(L"TreeWidth", L"1700"); }, 3500, 3200, 1700);
}

TEST_F(FrmSubSettings, TooSmallOnesSnap) { openAs({L"3000", L"2500", L"1600"}, 3500, 2800, 1600); }

TEST_F(FrmSubSettings, ClosingStoresThem) {
  resize(open(), 7001, 5502);
  sub().TreeView1.setWidth(2222);
  injected::click(centreOf(sub().cmdExit));
  ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSub>(); }));
  expectStored(L"7001", L"5502", L"2222");
}

TEST_F(FrmSubSettings, TheCloseBoxStoresThemToo) {
  resize(open(), 7001, 5502);
  PostMessageW(sub().handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
  ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSub>(); }));
  expectStored(L"7001", L"5502", L"2000");
}

TEST_F(FrmSubSettings, TheEndOfTheSessionStoresThemToo) {
  resize(open(), 7001, 5502);
  SendMessageW(sub().handle(), WM_ENDSESSION, TRUE, 0);
  expectStored(L"7001", L"5502", L"2000");
}

TEST_F(FrmSubSettings, OpeningAndClosingChangesNoSize) {
  openAs({L"6005", L"5003", L"2107"}, 6005, 5003, 2107);
  close();
  expectStored(L"6005", L"5003", L"2107");
}

TEST_F(FrmSubSettings, BlanksAroundAValueDoNotMatter) {
  openAs({L"\"  6000 \"", L"   5000", L"2100"}, 6000, 5000, 2100);
}

TEST_F(FrmSubSettings, AValueThatIsThePathItselfIsAbsent) {
  const std::u16string path = user::settingsFile();
  openAs({std::wstring(path.begin(), path.end()).c_str(), L"5000", L"2100"}, 3500, 5000, 2100);
}

TEST_F(FrmSubSettings, AnEmptyOrBlankValueIsAbsent) {
  openAs({L"", L"\"   \"", L"2100"}, 3500, 3200, 2100);
}

TEST_F(FrmSubSettings, AValueThatIsNoNumberIsRefused) { expectRefused({L"abc", L"5000", L"2100"}); }

TEST_F(FrmSubSettings, AValueAbove32767IsRefused) { expectRefused({L"6000", L"5000", L"40000"}); }

TEST_F(FrmSubSettings, ANegativeValueIsRefused) { expectRefused({L"6000", L"-5", L"2100"}); }

TEST_F(FrmSubSettings, AListThatLeavesThePaneNoRoomIsRefused) {
  expectRefused({L"5000", L"4000", L"4800"});
}

TEST_F(FrmSubSettings, AListThatANarrowedWindowHasNoRoomForIsStoredSoThatItOpensAgain) {
  openAs({L"9000", L"5000", L"5000"}, 9000, 5000, 5000);
  resize(sub(), 3500, 5000);
  expectSizes(3500, 5000, 5000);
  close();
  expectStored(L"3500", L"5000", L"1650");
  openAs({L"3500", L"5000", L"1650"}, 3500, 5000, 1650);
  EXPECT_EQ(boxes.count(), 0U);
}

TEST_F(FrmSubSettings, ClosedWhileMinimisedItKeepsItsRestoredSizes) {
  openAs({L"6000", L"5000", L"2100"}, 6000, 5000, 2100);
  ShowWindow(sub().handle(), SW_MINIMIZE);
  ASSERT_TRUE(always([] { return sub().isMinimised(); }, 100));
  close();
  expectStored(L"6000", L"5000", L"2100");
}

TEST_F(FrmSubSettings, AFileThatCannotBeWrittenGivesWayToOneOfTheUsersOwn) {
  const UnwritableSettings held;
  resize(open(), 7005, 5505);
  close();
  EXPECT_EQ(boxes.count(), 0U);
  const std::u16string own = user::settingsFile();
  EXPECT_NE(own, user::systemDirectory() + u"\\system.ini");
  EXPECT_EQ(user::getINIProfileString(u"SystemSetting", u"WindowWidth", u"", own), u"7005");
  open();
  expectSizes(7005, 5505, 2000);
  close();
  DeleteFileW(win32::wide(own));
}

TEST_F(FrmSubSettings, AFileThatWasLockedMeanwhileIsClosedWithInSilence) {
  openAs({L"6005", L"5003", L"2107"}, 6005, 5003, 2107);
  resize(sub(), 7005, 5505);
  {
    const UnwritableSettings held;
    expectClosesInSilence();
  }
  expectStored(L"6005", L"5003", L"2107");
}

TEST_F(FrmSubSettings, AFolderThatIsGoneMeanwhileIsClosedWithInSilence) {
  const UnwritableSettings held;
  open();
  const std::filesystem::path own(user::settingsFile());
  ASSERT_NE(own.u16string(), user::systemDirectory() + u"\\system.ini");
  resize(sub(), 7005, 5505);
  std::filesystem::remove_all(own.parent_path());
  ASSERT_FALSE(std::filesystem::exists(own.parent_path()));
  expectClosesInSilence();
  EXPECT_FALSE(std::filesystem::exists(own));
  // The next time it is as it was without any.
  open();
  expectSizes(3500, 3200, 2000);
  close();
  EXPECT_TRUE(std::filesystem::exists(own));
  std::filesystem::remove(own);
}

}  // namespace
}  // namespace support
