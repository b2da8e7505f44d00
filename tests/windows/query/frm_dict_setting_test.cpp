#include "query/frm_dict_setting.h"

#include "tests/support/data/file_layer.h"
#include "tests/support/window/query_test.h"

namespace support {
namespace {

class FrmDictSetting : public QueryTest {
 protected:
  static frmdictSetting& settings() { return forms::form<frmdictSetting>(); }

  frmdictSetting& openSettings() {
    auto& window = opened<frmdictSetting>();
    EXPECT_TRUE(eventually([&] { return GetFocus() == window.TreeView2.handle(); }));
    return window;
  }
  static void choose(int node) { injected::click(nodePoint(settings().TreeView2, node)); }

  /// Which rows of [Index] are flagged, as a number: 1 for id 1, 10 for id 2 ...
  static std::int64_t flags() {
    return stored(
        "select sum(case id when 1 then 1 when 2 then 10 when 3 then 100 else 1000 end)"
        " from [Index] where [default]=1");
  }
  static bool flagsBecome(std::int64_t expected) {
    return eventually([=] { return flags() == expected; });
  }

  /// Waits until the list has the focus, maybe again, and node `number` is highlighted there; 0: no
  /// node.
  static bool highlights(std::size_t number) {
    const forms::TreeView& list = settings().TreeView2;
    return eventually([&] { return GetFocus() == list.handle() && list.selected() == number; }) &&
           always([&] { return list.selected() == number; }, 60);
  }

  /// Moves the default from 医学, node 3, to `node` on a disk that fills up between the writing of
  /// the two rows, and expects that to be told.
  void moveWithTheDiskFillingUpBetweenBothRows(int node) {
    int changes = 0;
    openSettings();
    {
      const FileLayer counting([&] {
        ++changes;
        return SQLITE_OK;
      });
      choose(node);
      ASSERT_TRUE(eventually([&] { return flags() != 1 && stored(kDefaults) == 1; }));
    }
    settings().unload();
    store("update [Index] set [default]=(id=1)");
    openSettings();
    // Each of the two rows takes half of them.
    const FileLayer full(
        [left = changes / 2]() mutable { return left-- > 0 ? SQLITE_OK : SQLITE_FULL; });
    choose(node);
    expectDatabaseBox(kDiskFull, u"database or disk is full");
  }
  static constexpr const char* kDefaults = "select count(*) from [Index] where [default]=1";

  static constexpr const char16_t* kDiskFull = u"磁盘已满，无法写入词典文件：";
  static constexpr const char16_t* kInUse = u"词典文件正被其他程序占用：";
  static constexpr const char16_t* kIncomplete = u"词典文件不完整：";
  static constexpr const char16_t* kNotWritable = u"无法写入词典文件：";

  /// Expects that a click on node 1 fails, which is told, and that nothing has changed: node
  /// `shown` is highlighted, 0 for none.
  void expectFailure(const std::u16string& problem, const std::u16string& engineText,
                     std::size_t shown = 3) {
    choose(1);
    expectDatabaseBox(problem, engineText);
    EXPECT_TRUE(highlights(shown));
    EXPECT_EQ(nodeTexts(settings().TreeView2).size(), 4U);
  }
};

TEST_F(FrmDictSetting, ListsAllDictionariesTheHiddenOnesToo) {
  frmdictSetting& window = openSettings();
  EXPECT_EQ(nodeTexts(window.TreeView2), (Texts{u"化学", u"计算机", u"医学", u"隐藏"}));
  EXPECT_EQ(window.TreeView2.selected(), 3U);
  EXPECT_EQ(window.Adodc1.recordSource(), u"select * from [index] order by Cname");
}

TEST_F(FrmDictSetting, EveryNodeHasThePicture) {
  const forms::TreeView& list = openSettings().TreeView2;
  EXPECT_EQ(list.count(), 4U);
  expectFirstPictureAtEveryNode(list);
}

TEST_F(FrmDictSetting, ShowsItsCaptionAndItsHint) {
  frmdictSetting& window = openSettings();
  wchar_t caption[64] = L"";
  GetWindowTextW(window.handle(), caption, 64);
  EXPECT_STREQ(caption, L"字典设置");
  EXPECT_EQ(window.Text3.text(), u"   选择默认查词词典，在多功能查询窗体启动时将直接选择该词典。");
  window.Text3.setFocus();
  input::type(L"x");
  passTime(40);
  EXPECT_EQ(window.Text3.text().front(), u' ');
}

TEST_F(FrmDictSetting, AClickMovesTheDefault) {
  openSettings();
  choose(1);
  EXPECT_TRUE(flagsBecome(10));
  choose(4);
  EXPECT_TRUE(flagsBecome(1000));
  EXPECT_EQ(settings().TreeView2.selected(), 4U);
}

// The engine leaves a file alone whose content stays the same, but asks for the right to write.
TEST_F(FrmDictSetting, AClickOnTheDefaultWritesAgain) {
  openSettings();
  {
    Writer other(besideProgram());
    other.run("begin immediate");
    choose(3);
    expectDatabaseBox(kInUse, u"database is locked");
    other.run("rollback");
  }
  const POINT point = nodePoint(settings().TreeView2, 3);
  injected::click({point.x + 12, point.y});
  passTime(60);
  EXPECT_EQ(flags(), 1);
}

TEST_F(FrmDictSetting, MovingTheHighlightWritesNothing) {
  openSettings();
  int changes = 0;
  {
    const FileLayer layer([&] {
      ++changes;
      return SQLITE_OK;
    });
    for (const WORD key : std::initializer_list<WORD>{VK_UP, VK_HOME, VK_DOWN, VK_END})
      input::key(key);
    ASSERT_TRUE(eventually([] { return settings().TreeView2.selected() == 4; }));
    injected::rightClick(nodePoint(settings().TreeView2, 1));
    passTime(60);
    input::key(VK_ESCAPE);
    ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmdictSetting>(); }));
  }
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(flags(), 1);
}

TEST_F(FrmDictSetting, SpaceAndEnterWrite) {
  openSettings();
  input::key(VK_HOME);
  ASSERT_TRUE(eventually([] { return settings().TreeView2.selected() == 1; }));
  input::key(VK_SPACE);
  EXPECT_TRUE(flagsBecome(10));
  input::key(VK_DOWN);
  ASSERT_TRUE(eventually([] { return settings().TreeView2.selected() == 2; }));
  input::key(VK_RETURN);
  EXPECT_TRUE(flagsBecome(100));
}

TEST_F(FrmDictSetting, SeveralDefaultsAreReducedByTheFirstClick) {
  store("update [Index] set [default]=1 where id in (2,4)");
  openSettings();
  EXPECT_EQ(settings().TreeView2.selected(), 4U);
  choose(2);
  EXPECT_TRUE(flagsBecome(100));
}

TEST_F(FrmDictSetting, ClosingItFillsTheQueryWindowAnew) {
  open();
  openSettings();
  choose(2);
  ASSERT_TRUE(flagsBecome(100));
  EXPECT_EQ(form().selectedTable(), u"med");
  settings().unload();
  EXPECT_EQ(form().selectedTable(), u"comp");
  EXPECT_EQ(form().TreeView1.selected(), 2U);
}

TEST_F(FrmDictSetting, AHiddenDefaultMakesTheQueryWindowTakeTheFirst) {
  open();
  openSettings();
  choose(4);
  ASSERT_TRUE(flagsBecome(1000));
  settings().unload();
  EXPECT_EQ(form().selectedTable(), u"chem");
}

TEST_F(FrmDictSetting, ClosingItOpensNoQueryWindow) {
  openSettings();
  settings().unload();
  EXPECT_FALSE(forms::isLoaded<frmMain>());
  EXPECT_FALSE(user::MainOpen);
}

TEST_F(FrmDictSetting, AFailingQueryWindowIsAnUncaughtError) {
  open();
  openSettings();
  store("drop table [Index]");
  settings().unload();
  expectDatabaseBox(kIncomplete, u"no such table: Index");
  EXPECT_FALSE(forms::isLoaded<frmdictSetting>());
  EXPECT_EQ(form().TreeView1.count(), 3U);
}

TEST_F(FrmDictSetting, WithoutACatalogueTheFileIsToldToBeIncomplete) {
  store("drop table [Index]");
  forms::form<frmdictSetting>();
  expectDatabaseBox(kIncomplete, u"no such table: index");
  opened<frmdictSetting>();
  EXPECT_EQ(settings().TreeView2.count(), 0U);
}

TEST_F(FrmDictSetting, AFileThatMayNotBeWrittenIsTold) {
  openSettings();
  // Permissions do not bind every user; a handle that lets nobody else write does.
  HANDLE file = CreateFileW(besideProgram().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(file, INVALID_HANDLE_VALUE);
  expectFailure(kNotWritable, u"attempt to write a readonly database");
  CloseHandle(file);
  EXPECT_EQ(flags(), 1);
  choose(2);
  EXPECT_TRUE(flagsBecome(100));
}

TEST_F(FrmDictSetting, AFileThatOthersHoldIsToldWithinSeconds) {
  openSettings();
  {
    Writer other(besideProgram());
    other.run("begin immediate");
    const ULONGLONG start = GetTickCount64();
    expectFailure(kInUse, u"database is locked");
    EXPECT_LT(GetTickCount64() - start, 3'000U);
    other.run("rollback");
  }
  EXPECT_EQ(flags(), 1);
}

TEST_F(FrmDictSetting, AFullDiskIsTold) {
  openSettings();
  {
    const FileLayer full([] { return SQLITE_FULL; });
    expectFailure(kDiskFull, u"database or disk is full");
  }
  EXPECT_EQ(flags(), 1);
  choose(2);
  EXPECT_TRUE(flagsBecome(100));
}

TEST_F(FrmDictSetting, AfterADiskThatFilledUpBetweenBothRowsTheNextClickRepairs) {
  moveWithTheDiskFillingUpBetweenBothRows(1);
  EXPECT_EQ(flags(), 11);
  EXPECT_TRUE(highlights(3));
  choose(2);
  EXPECT_TRUE(flagsBecome(100));
}

// Down the list the former default is reset first: none is left.
TEST_F(FrmDictSetting, AfterADiskThatFilledUpBeforeTheNewDefaultNoneIsHighlighted) {
  moveWithTheDiskFillingUpBetweenBothRows(4);
  EXPECT_EQ(stored(kDefaults), 0);
  EXPECT_TRUE(highlights(0));
  choose(2);
  EXPECT_TRUE(flagsBecome(100));
  EXPECT_TRUE(highlights(2));
}

TEST_F(FrmDictSetting, WithoutADefaultNoneIsHighlightedAfterAFailureEither) {
  store("update [Index] set [default]=0");
  openSettings();
  EXPECT_TRUE(highlights(0));
  HANDLE file = CreateFileW(besideProgram().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(file, INVALID_HANDLE_VALUE);
  expectFailure(kNotWritable, u"attempt to write a readonly database", 0);
  CloseHandle(file);
  EXPECT_EQ(stored(kDefaults), 0);
}

TEST_F(FrmDictSetting, WithoutADefaultTheKeysEnterTheListAtItsEnds) {
  store("update [Index] set [default]=0");
  openSettings();
  ASSERT_TRUE(highlights(0));
  input::key(VK_SPACE);
  input::key(VK_END);
  EXPECT_TRUE(highlights(4));
  settings().unload();
  for (const WORD key : std::initializer_list<WORD>{VK_DOWN, VK_UP, VK_HOME}) {
    openSettings();
    ASSERT_TRUE(highlights(0));
    input::key(key);
    EXPECT_TRUE(highlights(1));
    settings().unload();
  }
  EXPECT_EQ(stored(kDefaults), 0);
}

TEST_F(FrmDictSetting, CaptureRestsFromItsActivationToItsEnd) {
  ScreenWord::StartCapture();
  openSettings();
  EXPECT_TRUE(rests());
  ScreenWord::StartCapture();
  open().TreeView1.setFocus();
  ASSERT_TRUE(runs());
  openSettings();
  EXPECT_TRUE(rests());
  settings().unload();
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmDictSetting, TabReachesTheHintAndLeavesIt) {
  frmdictSetting& window = openSettings();
  input::key(VK_TAB);
  ASSERT_TRUE(eventually([&] { return GetFocus() == window.Text3.handle(); }));
  input::key(VK_TAB);
  EXPECT_TRUE(eventually([&] { return GetFocus() == window.TreeView2.handle(); }));
}

}  // namespace
}  // namespace support
