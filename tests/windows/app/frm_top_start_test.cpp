#include "capture/screen_word.h"
#include "tests/support/window/frm_top_test.h"
#include "tests/support/window/other_program.h"
#include "tests/support/window/scoped_import.h"
#include "win32/program.h"

extern "C" decltype(&GetSystemDirectoryA) __imp_GetSystemDirectoryA;

namespace support {
namespace {

class FrmTopStart : public FrmTopTest {};

TEST_F(FrmTopStart, LeavesTheProgramReady) {
  frmTop& form = top();
  EXPECT_TRUE(IsWindowVisible(form.handle()));
  EXPECT_FALSE(user::MainOpen);
  EXPECT_EQ(user::ConnectionString, u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" +
                                        win32::applicationFolder() +
                                        u"\\kk.dat;Persist Security Info=False");
  EXPECT_EQ(user::BrowserPath, u"C:\\Program Files\\Internet Explorer\\IEXPLORE.EXE");
  EXPECT_EQ(form.height(), 375);
  EXPECT_EQ(form.foreColor(), RGB(0, 0, 255));
  EXPECT_EQ(form.Timer1.interval(), 10);
  expectCaptureShown(true);
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmTopStart, LoadsTheIndexOnlyWithTheFirstTick) {
  frmTop& form = top();
  EXPECT_TRUE(user::IdxWords.empty());
  EXPECT_TRUE(form.Timer1.enabled());
  ASSERT_TRUE(eventually([] { return !user::IdxWords.empty(); }));
  EXPECT_FALSE(form.Timer1.enabled());
}

TEST_F(FrmTopStart, TheIndexIsThatOfTheDatabase) {
  start();
  const auto rows = sampleDictionary().ordered(&SampleDictionary::Pair::english);
  ASSERT_EQ(user::IdxWords.size(), (rows.size() / 100) + 1);
  EXPECT_EQ(user::IdxWords[0], u"");
  for (std::size_t slot = 1; slot < user::IdxWords.size(); ++slot) {
    EXPECT_EQ(user::IdxWords[slot], text::toLower(rows[(slot * 100) - 1].english));
  }
}

TEST_F(FrmTopStart, BothDataControlsReachTheDatabase) {
  frmTop& form = top();
  for (data::DataControl* control : {&form.Adodc1, &form.Adodc2}) {
    control->setRecordSource(u"select word from edictidx order by word");
    control->refresh();
    EXPECT_FALSE(control->recordset().empty());
  }
}

TEST_F(FrmTopStart, TheIndexIsInLowerCase) {
  const OtherDictionary other(
      "create table edictidx (word text);"
      "insert into edictidx values ('Alpha'),('BETA'),('gamma ÉÀ')");
  start();
  EXPECT_EQ(user::IdxWords, (data::IndexWords{u"", u"alpha", u"beta", u"gamma éà"}));
  unloadAll();
}

TEST_F(FrmTopStart, AnEmptyIndexHasOnlySlotZero) {
  const OtherDictionary other("create table edictidx (word text)");
  start();
  EXPECT_EQ(user::IdxWords, data::IndexWords{u""});
  unloadAll();
}

TEST_F(FrmTopStart, AnIndexBeyond16BitsIsAnUncaughtError) {
  const OtherDictionary other(
      "create table edictidx (word text);"
      "with recursive n(i) as (select 1 union all select i+1 from n where i<32768)"
      "insert into edictidx select 'w'||i from n");
  frmTop& form = top();
  ASSERT_TRUE(eventually([this] { return boxes.count() == 1; }));
  const auto seen = boxes.take();
  EXPECT_FALSE(seen[0].text.empty());
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[0].title, u"");
  EXPECT_TRUE(user::IdxWords.empty());
  // The error ends the tick before its last step, and no later tick loads the index again.
  EXPECT_TRUE(form.Timer1.enabled());
  EXPECT_TRUE(always([this] { return boxes.count() == 0; }, 60));
  EXPECT_TRUE(user::IdxWords.empty());
  unloadAll();
}

TEST_F(FrmTopStart, TheLargestIndexIsLoaded) {
  const OtherDictionary other(
      "create table edictidx (word text);"
      "with recursive n(i) as (select 1 union all select i+1 from n where i<32767)"
      "insert into edictidx select 'w'||i from n");
  start();
  EXPECT_EQ(user::IdxWords.size(), 32'768U);
  unloadAll();
}

TEST_F(FrmTopStart, AMissingDatabaseIsToldOnceAndTheToolbarStays) {
  const OtherDictionary none("");
  frmTop& form = top();
  ASSERT_TRUE(eventually([this] { return boxes.count() == 1; }));
  const auto seen = boxes.take();
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[0].title, u"");
  EXPECT_EQ(seen[0].text,
            u"找不到词典文件，或者无法打开它：\n" + win32::applicationFolder() +
                u"\\kk.dat\n请确认这个文件与程序在同一文件夹中，并且没有被其他程序占用。"
                u"如果它不见了，请重新解压或重新安装 Lexilo。"
                u"\n\nunable to open database file");
  EXPECT_TRUE(IsWindowVisible(form.handle()));
  EXPECT_TRUE(always([this] { return boxes.count() == 0; }, 60));
  EXPECT_FALSE(std::filesystem::exists(besideProgram()));
  unloadAll();
}

TEST_F(FrmTopStart, LosingTheFocusBeforeTheFirstTickLoadsTheIndexAndStopsTheTimer) {
  frmTop& form = top();
  ASSERT_TRUE(user::IdxWords.empty());
  form.raiseLostFocus();
  EXPECT_GT(user::IdxWords.size(), 1U);
  EXPECT_FALSE(form.Timer1.enabled());
}

TEST_F(FrmTopStart, AClickOnTheGripBeforeTheFirstTickLoadsTheIndexAndStopsTheTimer) {
  frmTop& form = top();
  ASSERT_TRUE(user::IdxWords.empty());
  // Input that waits while the program starts is handled before the timer's message.
  SendMessageW(form.Image1.handle(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
  EXPECT_TRUE(user::IdxWords.empty());
  SendMessageW(form.Image1.handle(), WM_LBUTTONUP, 0, 0);
  EXPECT_GT(user::IdxWords.size(), 1U);
  EXPECT_FALSE(form.Timer1.enabled());
  EXPECT_TRUE(always([&] { return !form.Timer1.enabled(); }, 40));
}

TEST_F(FrmTopStart, AnIndexThatCannotBeReadThenIsToldOnceAndCaptureRuns) {
  const OtherDictionary none("");
  frmTop& form = top();
  ScreenWord::StopCapture();
  form.raiseLostFocus();
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_FALSE(form.Timer1.enabled());
  EXPECT_TRUE(captureRuns());
  EXPECT_TRUE(always([this] { return boxes.count() == 0; }, 60));
  unloadAll();
}

TEST_F(FrmTopStart, LosingTheFocusAtOnceDoesNotCostTheIndex) {
  OtherProgram other;
  top();
  SetForegroundWindow(other.window());
  EXPECT_TRUE(eventually([] { return user::IdxWords.size() > 1; }));
}

TEST_F(FrmTopStart, StandsBelowTheTopNearTheRightEdge) {
  frmTop& form = start();
  const int screenWidth = GetSystemMetrics(SM_CXSCREEN) * 15;
  EXPECT_EQ(form.top(), form.height());
  const RECT rect = rectOf(form.handle());
  EXPECT_EQ(rect.left, forms::toPixels(screenWidth - form.width() - 1300, 96));
  EXPECT_EQ(rect.top, 25);
  EXPECT_EQ(rect.bottom - rect.top, 25);
  EXPECT_EQ(rect.right - rect.left, forms::toPixels(form.width(), 96));
}

TEST_F(FrmTopStart, TheHostOfCaptureIsLoadedAndHidden) {
  start();
  EXPECT_TRUE(forms::isLoaded<frmScreenWord>());
  EXPECT_FALSE(IsWindowVisible(host().handle()));
  EXPECT_EQ(host().timScreenWord1.interval(), 100);
  EXPECT_EQ(host().timScreenWord2.interval(), 60'000);
  EXPECT_EQ(host().Timer1.interval(), 5);
  EXPECT_TRUE(isToolWindow(host().handle()));
  EXPECT_TRUE(refusesActivation(host().handle()));
}

TEST_F(FrmTopStart, KeepsTheFocusThroughIt) {
  frmTop& form = start();
  EXPECT_TRUE(always([&] { return GetActiveWindow() == form.handle(); }, 60));
}

TEST_F(FrmTopStart, AnErrorOnTheWayIsToldAndWhatWasDoneStays) {
  // A window of the host's class that cannot be made.
  UnregisterClassW(L"Lexilo.frmScreenWord", GetModuleHandleW(nullptr));
  WNDCLASSW refusing{};
  refusing.lpfnWndProc = [](HWND, UINT, WPARAM, LPARAM) -> LRESULT {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return 0;
  };
  refusing.hInstance = GetModuleHandleW(nullptr);
  refusing.lpszClassName = L"Lexilo.frmScreenWord";
  ASSERT_NE(RegisterClassW(&refusing), 0);
  frmTop& form = top();
  const auto seen = boxes.take();
  UnregisterClassW(L"Lexilo.frmScreenWord", GetModuleHandleW(nullptr));
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_FALSE(seen[0].text.empty());
  EXPECT_EQ(seen[0].icon, Icon::kNone);
  EXPECT_EQ(seen[0].title, u"Lexilo");
  EXPECT_TRUE(IsWindowVisible(form.handle()));
  EXPECT_FALSE(user::BrowserPath.empty());
  EXPECT_EQ(form.cmdMouse.picture(), form.cmdMouseYes.picture());
}

TEST_F(FrmTopStart, AnErrorSkipsTheStepsAfterIt) {
  ScreenWord::StopCapture();  // loads the host, so that capture could be started
  ASSERT_FALSE(captureRuns());
  {
    const ScopedImport<decltype(&GetSystemDirectoryA)> import(
        __imp_GetSystemDirectoryA,
        [](LPSTR, UINT) -> UINT { throw std::runtime_error("no system directory"); });
    top();
  }
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].title, u"Lexilo");
  // The toolbar was shown, with the picture of capture that is off; nothing else was done.
  EXPECT_TRUE(IsWindowVisible(top().handle()));
  EXPECT_EQ(top().cmdMouse.picture(), top().cmdMouseNot.picture());
  EXPECT_TRUE(user::BrowserPath.empty());
  EXPECT_FALSE(captureRuns());
}

}  // namespace
}  // namespace support
