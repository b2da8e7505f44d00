#include "forms/loaded_forms.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"
#include "tests/support/window/capture_test.h"
#include "tests/support/window/other_program.h"
#include "win32/monitor.h"

namespace support {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr POINT kPointer{300, 400};

class FrmScreenWordMeaning : public CaptureTest {
 protected:
  FrmScreenWordMeaning() { injected::moveTo(kPointer); }

  static std::u16string show(std::u16string word) {
    auto& form = popup();
    return form.showMeaning(word, form.Adodc1);
  }

  static SIZE size() {
    const RECT rect = rectOf(popup().handle());
    return {rect.right - rect.left, rect.bottom - rect.top};
  }

  static int pixels(int twips) { return forms::toPixels(twips, popup().dpi()); }
};

TEST_F(FrmScreenWordMeaning, OpensAsDesigned) {
  const auto& form = popup();
  EXPECT_EQ(form.Timer1.interval(), 20);
  EXPECT_TRUE(form.Timer1.enabled());
  EXPECT_EQ(form.width(), 3345);
  EXPECT_EQ(form.height(), 1320);
  EXPECT_EQ(size().cx, pixels(3345));
  EXPECT_EQ(size().cy, pixels(1320));
  const auto& box = form.txtOut.box();
  EXPECT_EQ(box.left, 0);
  EXPECT_EQ(box.top, 0);
  EXPECT_EQ(box.width, 3375);
  EXPECT_EQ(box.height, 1335);
  EXPECT_EQ(textOf(form.handle()), L"Form2");
  EXPECT_FALSE(IsWindowVisible(form.handle()));
}

TEST_F(FrmScreenWordMeaning, ShowsTheWordAndItsMeaningBelowThePointer) {
  EXPECT_EQ(show(u"data"), u"data\r\n数据");
  EXPECT_EQ(popup().txtOut.text(), u"data\r\n数据");
  EXPECT_TRUE(popupIsUp());
  const RECT rect = rectOf(popup().handle());
  EXPECT_EQ(rect.left, kPointer.x + 10);
  EXPECT_EQ(rect.top, kPointer.y + 10);
  EXPECT_EQ(size().cx, pixels(2500));
  EXPECT_EQ(size().cy, pixels(900));
  EXPECT_EQ(popup().txtOut.box().width, 2500);
  EXPECT_EQ(popup().txtOut.box().height, 900);
  const RECT box = rectOf(popup().txtOut.handle());
  EXPECT_EQ(box.left, rect.left);
  EXPECT_EQ(box.bottom, rect.bottom);
}

TEST_F(FrmScreenWordMeaning, OncePlacedItKeepsItsSizeWhereTheResolutionChanges) {
  show(u"data");
  const RECT before = rectOf(popup().handle());
  const RECT suggested{150, 120, 900, 700};
  SendMessageW(popup().handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  const RECT after = rectOf(popup().handle());
  EXPECT_TRUE(EqualRect(&after, &before));
  EXPECT_EQ(popup().dpi(), 96);
}

TEST_F(FrmScreenWordMeaning, TheHeadwordIsRedAndTheMeaningsAreBlue) {
  const std::u16string text = show(u"bit");
  EXPECT_EQ(text, u"bit\r\n比特；位；一点");
  std::vector<COLORREF> expected(4, kRed);
  expected.resize(text.size() - 1, kBlue);
  EXPECT_EQ(richTextColours(popup().txtOut.handle()), expected);
  EXPECT_EQ(popup().txtOut.selStart(), 0U);
  EXPECT_EQ(popup().txtOut.selLength(), 0U);
}

TEST_F(FrmScreenWordMeaning, AWordWithoutRowsIsTriedWithoutItsLastCharacter) {
  EXPECT_EQ(show(u"bits"), u"bits\r\n比特；位；一点");
  EXPECT_EQ(show(u"bitx"), u"bitx\r\n比特；位；一点");
  EXPECT_EQ(show(u"bitss"), u"bitss\r\n<没找到>");
}

TEST_F(FrmScreenWordMeaning, SaysInBlueThatNothingWasFound) {
  EXPECT_EQ(show(u"nosuchword"), u"nosuchword\r\n<没找到>");
  EXPECT_TRUE(popupIsUp());
  const auto colours = richTextColours(popup().txtOut.handle());
  EXPECT_EQ(colours.front(), kRed);
  EXPECT_EQ(colours.back(), kBlue);
}

TEST_F(FrmScreenWordMeaning, TheCallersQuotesAreDoubledAndSoAreTheHeadlines) {
  std::u16string word = u"it's";
  EXPECT_EQ(popup().showMeaning(word, popup().Adodc1), u"it''s\r\n它是");
  EXPECT_EQ(word, u"it''s");
}

TEST_F(FrmScreenWordMeaning, TheSecondTryTakesTheDoubledQuotes) {
  EXPECT_EQ(show(u"it'sx"), u"it''sx\r\n<没找到>");
}

TEST_F(FrmScreenWordMeaning, LooksAChineseWordUpInTheOtherDirection) {
  EXPECT_EQ(show(u"数据"), u"数据\r\ndata；datum");
}

TEST_F(FrmScreenWordMeaning, ItsQueriesAreTheOnesOfTheDictionary) {
  auto& form = popup();
  const auto english = form.findword(u"E", u"data");
  const auto bounds = form.bounds();
  const auto number = [](int value) {
    const std::string text = std::to_string(value);
    return std::u16string(text.begin(), text.end());
  };
  EXPECT_EQ(english,
            u"select edict.word as Word,cdict.word as Meaning from [edict],[cdict] where "
            u"edict.eid>=" +
                number(bounds.lower) + u" and edict.eid<=" + number(bounds.upper) +
                u" and edict.cid=cdict.cid and edict.word = 'data' order by cdict.word");
  form.Adodc1.setConnectionString(user::ConnectionString);
  const auto chinese = form.findword(u"C", u"数据");
  const auto rows = form.bounds();
  EXPECT_EQ(chinese,
            u"select cdict.word as Word,edict.word as Meaning from [edict],[cdict] where "
            u"cdict.cid>=" +
                number(rows.lower) + u" and cdict.cid<=" + number(rows.upper) +
                u" and edict.eid=cdict.eid and cdict.word = '数据' order by edict.word");
  EXPECT_EQ(form.findword(u"X", u"data"), u"");
}

TEST_F(FrmScreenWordMeaning, AChineseWordFindsItsBoundsAnew) {
  auto& form = popup();
  form.Adodc1.setConnectionString(user::ConnectionString);
  form.findword(u"C", u"阿阿阿");
  const auto first = form.bounds();
  form.findword(u"C", u"数据");
  EXPECT_NE(form.bounds(), first);
}

TEST_F(FrmScreenWordMeaning, AWildcardSortsAfterEveryIndexWordInTheUpperKey) {
  auto& form = popup();
  form.getBound(u"c", form.Adodc1);
  const auto plain = form.bounds();
  form.getBound(u"%", form.Adodc1);
  const auto last = static_cast<std::int32_t>(user::IdxWords.size()) - 1;
  EXPECT_EQ(form.bounds().lower, last * 100 - 200);
  EXPECT_EQ(form.bounds().upper, plain.upper);
}

TEST_F(FrmScreenWordMeaning, SeveralLinesOfMeaningsWidenAndHeightenIt) {
  const OtherDictionary crowded(
      "create table edict (eid integer primary key, word text collate lexilo, cid integer);"
      "create table cdict (cid integer primary key, word text collate lexilo, eid integer);"
      "create table edictidx (word text collate lexilo);"
      "create table cdictidx (word text collate lexilo, id integer);"
      "insert into edict values (1,'aa',1),(2,'aa',2),(3,'aa',3),(4,'aa',4);"
      "insert into cdict values (1,'一二三四五六七八九十一二三四五六七八九十',1),"
      "(2,'二二三四五六七八九十一二三四五六七八九十',2),"
      "(3,'三二三四五六七八九十一二三四五六七八九十',3),"
      "(4,'四二三四五六七八九十一二三四五六七八九十',4);"
      "insert into edictidx values ('zz'); insert into cdictidx values ('做',1)");
  useDictionary();
  const std::u16string text = show(u"aa");
  EXPECT_EQ(text.size(), 4U + 83U);
  EXPECT_EQ(size().cx, pixels(6000));
  EXPECT_EQ(size().cy, pixels(1200));
  EXPECT_EQ(popup().txtOut.box().width, 6000);
  // Its connection would keep the file from being put back.
  popup().unload();
  forms::LoadedForms::instance().purge();
}

TEST_F(FrmScreenWordMeaning, AHeadwordTooLongForItsWidthLeavesItHidden) {
  const std::u16string longest(324, u'x');
  EXPECT_EQ(show(longest + u"x"), u"");
  EXPECT_FALSE(popupIsUp());
  EXPECT_EQ(boxes.count(), 0U);
  EXPECT_NE(show(longest), u"");
  EXPECT_TRUE(popupIsUp());
}

TEST_F(FrmScreenWordMeaning, AnEmptyWordEndsSilently) {
  EXPECT_EQ(show(u""), u"");
  EXPECT_FALSE(popupIsUp());
}

TEST_F(FrmScreenWordMeaning, AMissingDatabaseEndsSilently) {
  const OtherDictionary none("");
  EXPECT_EQ(show(u"data"), u"");
  EXPECT_FALSE(popupIsUp());
  EXPECT_EQ(boxes.count(), 0U);
}

TEST_F(FrmScreenWordMeaning, WhileHiddenItLiesWhollyOnThePointersMonitor) {
  const RECT screen = win32::monitorAt(kPointer).bounds;
  injected::moveTo({screen.right - 5, screen.bottom - 5});
  const RECT rect = rectOf(popup().handle());
  RECT common{};
  EXPECT_TRUE(IntersectRect(&common, &rect, &screen));
  EXPECT_TRUE(EqualRect(&common, &rect));
}

TEST_F(FrmScreenWordMeaning, NearTheRightEdgeItEnds30PixelsBeforeIt) {
  const RECT screen = win32::monitorAt(kPointer).bounds;
  injected::moveTo({screen.right - 40, 400});
  show(u"data");
  // The last third of a pixel that the width has may go to either side.
  EXPECT_NEAR(rectOf(popup().handle()).right, screen.right - 30, 1);
}

TEST_F(FrmScreenWordMeaning, NearTheBottomItReachesBelowTheScreen) {
  const RECT screen = win32::monitorAt(kPointer).bounds;
  injected::moveTo({300, screen.bottom - 20});
  show(u"data");
  EXPECT_EQ(rectOf(popup().handle()).top, screen.bottom - 10);
}

TEST_F(FrmScreenWordMeaning, LooksLikeAToolTip) {
  show(u"data");
  HWND window = popup().handle();
  EXPECT_TRUE(isTopmost(window));
  EXPECT_TRUE(isToolWindow(window));
  EXPECT_TRUE(refusesActivation(window));
  EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & (WS_CAPTION | WS_THICKFRAME), 0);
  EXPECT_NE(GetWindowLongPtrW(popup().txtOut.handle(), GWL_STYLE) & ES_READONLY, 0);
  const LRESULT before = SendMessageW(popup().txtOut.handle(), EM_SETBKGNDCOLOR, 0, 0);
  EXPECT_EQ(static_cast<COLORREF>(before), GetSysColor(COLOR_INFOBK));
}

TEST_F(FrmScreenWordMeaning, TakesNoFocusAndNoKeys) {
  const OtherProgram other;
  other.activate();
  show(u"data");
  EXPECT_TRUE(other.isForeground());
  input::type(L"typed on");
  EXPECT_TRUE(eventually([&] { return other.text() == u"typed on"; }));
  EXPECT_TRUE(other.isForeground());
  // A click may leave the desktop in the foreground on a display of its own, never one of ours.
  injected::click({rectOf(popup().handle()).left + 20, rectOf(popup().handle()).top + 20});
  const auto oursIsNot = [] {
    return GetWindowThreadProcessId(GetForegroundWindow(), nullptr) != GetCurrentThreadId();
  };
  EXPECT_TRUE(always(oursIsNot, 200));
  for (HWND clicked : {popup().handle(), popup().txtOut.handle()}) {
    EXPECT_EQ(SendMessageW(clicked, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(popup().handle()),
                           MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)),
              MA_NOACTIVATEANDEAT);
  }
}

TEST_F(FrmScreenWordMeaning, FivePixelsAreNoMove) {
  show(u"data");
  injected::moveTo({kPointer.x + 5, kPointer.y - 5});
  EXPECT_TRUE(always([] { return popupIsUp(); }, 120));
}

TEST_F(FrmScreenWordMeaning, SixPixelsCloseItAndCaptureGoesOn) {
  for (const POINT move : {POINT{6, 0}, POINT{-6, 0}, POINT{0, 6}, POINT{0, -6}}) {
    injected::moveTo(kPointer);
    ScreenWord::StopCapture();
    show(u"data");
    injected::moveTo({kPointer.x + move.x, kPointer.y + move.y});
    EXPECT_TRUE(eventually([] { return !forms::isLoaded<frmScreenWordMeaning>(); }));
    EXPECT_TRUE(captureRuns());
  }
}

TEST_F(FrmScreenWordMeaning, MovingOntoItClosesItToo) {
  show(u"data");
  injected::moveTo({rectOf(popup().handle()).left + 20, rectOf(popup().handle()).top + 20});
  EXPECT_TRUE(eventually([] { return !forms::isLoaded<frmScreenWordMeaning>(); }));
}

}  // namespace
}  // namespace support
