// The keyboard in the quick lookup window: what is typed beside the box, the ways back to it,
// copying.
#include <imm.h>

#include "app/commands.h"
#include "tests/support/process/clipboard.h"
#include "tests/support/window/frm_sub_test.h"

namespace support {
namespace {

class FrmSubKeyboard : public FrmSubTest {
 protected:
  static bool holdsFocus(const forms::Widget& widget) {
    return eventually([&] { return GetFocus() == widget.handle(); });
  }
  static bool isSelected(const forms::TextBox& box) {
    return eventually([&] {
      const auto length = static_cast<WORD>(box.text().size());
      return SendMessageW(box.handle(), EM_GETSEL, 0, 0) == MAKELONG(0, length);
    });
  }
  static bool typed(const char16_t* text) {
    return eventually([=] { return sub().txtInput.text() == text; });
  }
};

TEST_F(FrmSubKeyboard, LettersInTheListReplaceTheBoxesText) {
  open().txtInput.setText(u"data");
  injected::click(entryPoint(2));
  ASSERT_TRUE(holdsFocus(sub().TreeView1));
  input::type(L"bit");
  EXPECT_TRUE(typed(u"bit"));
  EXPECT_TRUE(holdsFocus(sub().txtInput));
  EXPECT_EQ(list()[0], u"bit");
  EXPECT_FALSE(captureRuns());
}

TEST_F(FrmSubKeyboard, LettersInThePaneReplaceTheBoxesText) {
  open().txtInput.setText(u"data");
  injected::click(centreOf(sub().txtOut));
  ASSERT_TRUE(holdsFocus(sub().txtOut));
  input::type(L"数据");
  EXPECT_TRUE(typed(u"数据"));
  EXPECT_TRUE(holdsFocus(sub().txtInput));
  EXPECT_EQ(list()[0], u"数据");
}

TEST_F(FrmSubKeyboard, ABlankAndControlKeysStayWhereTheyArePressed) {
  open().txtInput.setText(u"data");
  for (forms::Widget* widget :
       std::initializer_list<forms::Widget*>{&sub().TreeView1, &sub().txtOut}) {
    widget->setFocus();
    input::type(L" ");
    input::key('A', {VK_CONTROL});
    input::key(VK_BACK, {VK_CONTROL});
    input::key(VK_HOME);
    passTime(40);
    EXPECT_EQ(sub().txtInput.text(), u"data");
    EXPECT_EQ(GetFocus(), widget->handle());
  }
}

TEST_F(FrmSubKeyboard, APhraseThatIsComposedInTheListIsLookedUpOnce) {
  open().txtInput.setText(u"data");
  sub().TreeView1.setFocus();
  std::vector<std::u16string> changes;
  sub().txtInput.onChange = [&] { changes.push_back(sub().txtInput.text()); };
  HWND list = sub().TreeView1.handle();
  const HIMC context = ImmGetContext(list);
  ASSERT_NE(context, nullptr);
  std::wstring phrase = L"数据库";
  ImmSetCompositionStringW(context, SCS_SETSTR, phrase.data(),
                           static_cast<DWORD>(phrase.size() * sizeof(wchar_t)), nullptr, 0);
  forms::doEvents();
  EXPECT_TRUE(changes.empty());
  ImmNotifyIME(context, NI_COMPOSITIONSTR, CPS_COMPLETE, 0);
  ImmReleaseContext(list, context);
  EXPECT_TRUE(typed(u"数据库"));
  passTime(40);
  EXPECT_EQ(changes, std::vector<std::u16string>{u"数据库"});
  EXPECT_TRUE(holdsFocus(sub().txtInput));
}

TEST_F(FrmSubKeyboard, CharactersThatAnInputMethodSendsToTheListStayTogether) {
  open().txtInput.setText(u"data");
  sub().TreeView1.setFocus();
  for (const wchar_t unit : {L'数', L'据'}) {
    SendMessageW(sub().TreeView1.handle(), WM_IME_CHAR, unit, 1);
  }
  EXPECT_TRUE(typed(u"数据"));
}

TEST_F(FrmSubKeyboard, EscReturnsToTheBoxAndSelectsItsText) {
  open().txtInput.setText(u"data");
  for (forms::Widget* widget : std::initializer_list<forms::Widget*>{
           &sub().TreeView1, &sub().txtOut, &sub().cmdExit, &sub().txtInput}) {
    SendMessageW(sub().txtInput.handle(), EM_SETSEL, 4, 4);
    widget->setFocus();
    input::key(VK_ESCAPE);
    EXPECT_TRUE(holdsFocus(sub().txtInput));
    EXPECT_TRUE(isSelected(sub().txtInput));
  }
  input::type(L"bit");
  EXPECT_TRUE(typed(u"bit"));
}

TEST_F(FrmSubKeyboard, EscCancelsADragOfTheSplitter) {
  open();
  const int width = sub().TreeView1.width();
  sub().TreeView1.setFocus();
  injected::moveTo(centreOf(sub().Image1));
  forms::doEvents();
  injected::pressLeft();
  ASSERT_TRUE(eventually([] { return sub().Image1.isDragged(); }));
  injected::moveTo(inWidget(sub().TreeView1, 1700, 600));
  passTime(20);
  input::key(VK_ESCAPE);
  EXPECT_TRUE(eventually([] { return !sub().Image1.isDragged(); }));
  injected::releaseLeft();
  passTime(40);
  EXPECT_EQ(sub().TreeView1.width(), width);
  EXPECT_EQ(sub().Image1.left(), width + 30);
  EXPECT_EQ(pixelBox(sub().Image1).left, forms::toPixels(width + 30, 96));
  EXPECT_EQ(GetFocus(), sub().TreeView1.handle());
}

TEST_F(FrmSubKeyboard, ActivatedAgainItsTextIsSelected) {
  open().txtInput.setText(u"data");
  SendMessageW(sub().txtInput.handle(), EM_SETSEL, 4, 4);
  opened<FormA>();
  sub().show();
  awaitActive(sub());
  EXPECT_TRUE(holdsFocus(sub().txtInput));
  EXPECT_TRUE(isSelected(sub().txtInput));
}

TEST_F(FrmSubKeyboard, AClickIntoTheBoxPutsTheCaretThere) {
  open().txtInput.setText(u"data bank");
  sub().TreeView1.setFocus();
  injected::click(inWidget(sub().txtInput, 150, 150));
  ASSERT_TRUE(holdsFocus(sub().txtInput));
  passTime(40);
  const auto selection = SendMessageW(sub().txtInput.handle(), EM_GETSEL, 0, 0);
  EXPECT_EQ(LOWORD(selection), HIWORD(selection));
}

TEST_F(FrmSubKeyboard, AskedForAgainItIsReadyToType) {
  open().txtInput.setText(u"data");
  sub().TreeView1.setFocus();
  opened<FormA>();
  app::kQuickLookup.run();
  awaitActive(sub());
  EXPECT_TRUE(holdsFocus(sub().txtInput));
  EXPECT_TRUE(isSelected(sub().txtInput));
}

TEST_F(FrmSubKeyboard, TheKeysCopyTheSelectedWord) {
  open().txtInput.setText(u"data");
  for (const WORD key : std::initializer_list<WORD>{'C', VK_INSERT}) {
    setClipboardText(L"before");
    sub().TreeView1.setFocus();
    input::key(key, {VK_CONTROL});
    EXPECT_TRUE(eventually([] { return clipboardText() == L"data"; })) << key;
  }
}

TEST_F(FrmSubKeyboard, AWordIsCleanedThatIsPastedInPlaceOfTheText) {
  frmSub& form = open();
  setClipboardText(L"\t“data.”\r\n");
  input::key('V', {VK_CONTROL});
  EXPECT_TRUE(typed(u"data"));
  EXPECT_EQ(list()[0], u"data");
  setClipboardText(L"dáta");
  form.txtInput.selectAll();
  input::key('V', {VK_CONTROL});
  EXPECT_TRUE(typed(u"data"));
  setClipboardText(L" (x)");
  input::key('V', {VK_CONTROL});
  EXPECT_TRUE(typed(u"data (x)"));
  form.txtInput.selectAll();
  input::type(L"“data.”");
  EXPECT_TRUE(typed(u"“data.”"));
}

}  // namespace
}  // namespace support
