#include "forms/widget.h"
#include "tests/support/window/query_test.h"

namespace support {
namespace {

class FrmMainLoading : public QueryTest {};

TEST_F(FrmMainLoading, ListsTheShownDictionariesWithPictures) {
  frmMain& window = open();
  EXPECT_EQ(nodeTexts(window.TreeView1), (Texts{u"化学", u"计算机", u"医学"}));
  const auto pictures = reinterpret_cast<HIMAGELIST>(
      SendMessageW(window.TreeView1.handle(), TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
  EXPECT_EQ(ImageList_GetImageCount(pictures), 1);
}

TEST_F(FrmMainLoading, EveryDictionaryHasThePicture) {
  expectFirstPictureAtEveryNode(open().TreeView1);
}

TEST_F(FrmMainLoading, SelectsTheDefaultDictionary) {
  EXPECT_EQ(open().TreeView1.selected(), 3U);
  EXPECT_EQ(form().selectedTable(), u"med");
}

TEST_F(FrmMainLoading, ShowsItsCaptionsAndHints) {
  frmMain& window = open();
  wchar_t caption[64] = L"";
  GetWindowTextW(window.handle(), caption, 64);
  EXPECT_STREQ(caption, L" 多功能查询 V1.3");
  EXPECT_EQ(window.cmdOK.toolTip(), u"普通查询");
  EXPECT_EQ(window.Command1.toolTip(), u"高级搜索");
  EXPECT_EQ(forms::windowText(window.cmdOK.handle()), u"确定");
  EXPECT_EQ(forms::windowText(window.Command1.handle()), u"高级");
  EXPECT_EQ(forms::windowText(window.cmdSpc.handle()), u"特殊");
}

TEST_F(FrmMainLoading, ItsBoxAndItsDictionariesHaveTheirHeadings) {
  frmMain& window = open();
  EXPECT_EQ(forms::windowText(window.Label2.handle()), u"输入：");
  EXPECT_TRUE(standsBeside(window.Label2, window.txtInput));
  EXPECT_EQ(forms::windowText(window.Label5.handle()), u"请选择字典：");
  EXPECT_TRUE(IsWindowVisible(window.Label5.handle()));
  const RECT heading = rectOf(window.Label5.handle());
  const RECT dictionaries = rectOf(window.TreeView1.handle());
  EXPECT_LE(heading.bottom, dictionaries.top);
  EXPECT_GE(heading.left, dictionaries.left);
  EXPECT_LT(heading.left, dictionaries.right);
  EXPECT_GE(heading.top, rectOf(window.txtInput.handle()).bottom);
}

TEST_F(FrmMainLoading, ItsBoxHasItsFont) {
  const LOGFONTW font = fontOf(open().txtInput);
  EXPECT_STREQ(font.lfFaceName, L"宋体");
  EXPECT_EQ(font.lfHeight, -MulDiv(21, form().dpi(), 144));
}

TEST_F(FrmMainLoading, TellsThatItIsOpen) {
  open();
  EXPECT_TRUE(user::MainOpen);
  form().unload();
  EXPECT_FALSE(user::MainOpen);
}

TEST_F(FrmMainLoading, WithoutADefaultItSelectsTheFirst) {
  store("update [Index] set [default]=0");
  EXPECT_EQ(open().TreeView1.selected(), 1U);
  EXPECT_EQ(form().selectedTable(), u"chem");
}

TEST_F(FrmMainLoading, AHiddenDefaultCountsAsNone) {
  store("update [Index] set [default]=(id=4)");
  EXPECT_EQ(open().TreeView1.selected(), 1U);
}

TEST_F(FrmMainLoading, OfSeveralDefaultsTheLastWins) {
  store("update [Index] set [default]=1 where id in (2,3)");
  EXPECT_EQ(open().TreeView1.selected(), 3U);
  form().unload();
  store("update [Index] set [default]=0 where id=1");
  EXPECT_EQ(open().TreeView1.selected(), 2U);
  EXPECT_EQ(form().selectedTable(), u"comp");
}

TEST_F(FrmMainLoading, WithNoDictionaryShownItSaysSoAndSearchesDoToo) {
  store("update [Index] set Isshow=0");
  forms::form<frmMain>();
  expectBox(kChoose, Icon::kWarning);
  open();
  EXPECT_EQ(nodeTexts(form().TreeView1), Texts{});
  easy(u"a");
  expectBox(kChoose, Icon::kWarning);
  complex(u"a");
  expectBox(kChoose, Icon::kWarning);
  // Of two things that are missing the text is told.
  easy(u"");
  expectBox(kNoText, Icon::kWarning);
  complex(u"");
  expectBox(kNoText, Icon::kWarning);
}

TEST_F(FrmMainLoading, FilledAgainItFollowsTheDefault) {
  open();
  store("update [Index] set [default]=(id=3)");
  form().iniTree();
  EXPECT_EQ(form().selectedTable(), u"comp");
  EXPECT_EQ(form().TreeView1.selected(), 2U);
  EXPECT_EQ(form().TreeView1.count(), 3U);
}

TEST_F(FrmMainLoading, FilledAgainWithNoneShownItKeepsItsTable) {
  open();
  store("update [Index] set Isshow=0");
  form().iniTree();
  expectBox(kChoose, Icon::kWarning);
  EXPECT_EQ(form().TreeView1.count(), 0U);
  EXPECT_EQ(form().selectedTable(), u"med");
  easy(u"liver");
  EXPECT_EQ(lines(), (Texts{u"liver          肝"}));
}

TEST_F(FrmMainLoading, WithoutACatalogueItSaysSoAndStays) {
  store("drop table [Index]");
  forms::form<frmMain>();
  expectBox(kUnexpected, Icon::kError);
  open();
  EXPECT_TRUE(user::MainOpen);
  easy(u"a");
  expectBox(kChoose, Icon::kWarning);
}

TEST_F(FrmMainLoading, WithoutADatabaseItSaysSoAndStays) {
  user::ConnectionString = u"Provider=x;Data Source=C:\\no such folder\\kk.dat;";
  forms::form<frmMain>();
  expectBox(kUnexpected, Icon::kError);
  open();
}

TEST_F(FrmMainLoading, ShowingItAgainBringsTheSameWindow) {
  frmMain& window = open();
  easy(u"liver");
  window.show();
  EXPECT_EQ(&forms::form<frmMain>(), &window);
  EXPECT_EQ(lines().size(), 1U);
}

}  // namespace
}  // namespace support
