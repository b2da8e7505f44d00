#include "forms/clipboard.h"
#include "forms/text_box.h"
#include "tests/support/process/clipboard.h"
#include "tests/support/window/clipboard_holder.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class TextBoxPaste : public WindowTest {
 protected:
  static forms::TextBox& box() { return forms::form<FormA>().first; }

  TextBoxPaste() {
    opened<FormA>();
    box().setFocus();
    box().onChange = [this] { changes.push_back(box().text()); };
  }
  static void paste() { SendMessageW(box().handle(), WM_PASTE, 0, 0); }

  /// The texts that the box held at its changes.
  std::vector<std::u16string> changes;
};

TEST_F(TextBoxPaste, ALineEndBecomesABlank) {
  for (const auto& [copied, pasted] :
       std::initializer_list<std::pair<const wchar_t*, const char16_t*>>{
           {L"data\r\nbank", u"data bank"},
           {L"\r\ndata", u" data"},
           {L"data\nof\rbanks\r\n", u"data of banks "},
           {L"data\tbank", u"data\tbank"}}) {
    SetWindowTextW(box().handle(), L"");
    changes.clear();
    setClipboardText(copied);
    paste();
    EXPECT_EQ(box().text(), pasted);
    EXPECT_EQ(changes, std::vector<std::u16string>{pasted});
  }
}

TEST_F(TextBoxPaste, TheKeysPaste) {
  setClipboardText(L"a\r\nb");
  input::key('V', {VK_CONTROL});
  EXPECT_TRUE(eventually([] { return box().text() == u"a b"; }));
  input::key(VK_INSERT, {VK_SHIFT});
  EXPECT_TRUE(eventually([] { return box().text() == u"a ba b"; }));
  EXPECT_EQ(changes.size(), 2U);
}

TEST_F(TextBoxPaste, ReplacesTheSelectionAndCanBeTakenBack) {
  box().setText(u"one two three");
  SendMessageW(box().handle(), EM_SETSEL, 4, 7);
  setClipboardText(L"2\r\n2");
  paste();
  EXPECT_EQ(box().text(), u"one 2 2 three");
  SendMessageW(box().handle(), EM_UNDO, 0, 0);
  EXPECT_EQ(box().text(), u"one two three");
}

TEST_F(TextBoxPaste, OnlyWhatReplacesTheWholeTextIsCleaned) {
  std::vector<std::u16string> given;
  box().cleanPasted = [&](std::u16string_view pasted) {
    given.emplace_back(pasted);
    return std::u16string(u"clean");
  };
  setClipboardText(L"un\r\nclean");
  paste();
  EXPECT_EQ(box().text(), u"clean");
  paste();
  EXPECT_EQ(box().text(), u"cleanun clean");
  SendMessageW(box().handle(), EM_SETSEL, 0, 5);
  paste();
  EXPECT_EQ(box().text(), u"un cleanun clean");
  box().selectAll();
  paste();
  EXPECT_EQ(box().text(), u"clean");
  EXPECT_EQ(given, (std::vector<std::u16string>{u"un clean", u"un clean"}));
  box().selectAll();
  input::type(L"(typed).");
  EXPECT_TRUE(eventually([] { return box().text() == u"(typed)."; }));
}

TEST_F(TextBoxPaste, WithoutATextNothingHappens) {
  box().setText(u"before");
  box().selectAll();
  changes.clear();
  ASSERT_TRUE(OpenClipboard(box().form().handle()));
  EmptyClipboard();
  CloseClipboard();
  paste();
  const UINT other = RegisterClipboardFormatW(L"Lexilo test format");
  ASSERT_TRUE(OpenClipboard(box().form().handle()));
  EmptyClipboard();
  SetClipboardData(other, GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 16));
  CloseClipboard();
  paste();
  setClipboardText(L"");
  paste();
  EXPECT_EQ(box().text(), u"before");
  EXPECT_TRUE(changes.empty());
  EXPECT_EQ(boxes.count(), 0U);
}

TEST_F(TextBoxPaste, WhileAnotherProgramHoldsTheClipboardNothingHappens) {
  setClipboardText(L"text");
  {
    const ClipboardHolder holder(500);
    paste();
    EXPECT_EQ(box().text(), u"");
  }
  EXPECT_EQ(boxes.count(), 0U);
  {
    const ClipboardHolder holder(40);
    paste();
  }
  EXPECT_EQ(box().text(), u"text");
}

TEST_F(TextBoxPaste, TakesALongTextAsFarAsItMayBeTyped) {
  SendMessageW(box().handle(), EM_SETLIMITTEXT, 5, 0);
  setClipboardText(L"数据数据\xD83D\xDE42");
  paste();
  EXPECT_EQ(box().text(), u"数据数据");
  SendMessageW(box().handle(), EM_SETLIMITTEXT, 0, 0);
  setClipboardText(std::wstring(200'000, L'a'));
  box().selectAll();
  paste();
  EXPECT_GE(box().text().size(), 30'000U);
  EXPECT_EQ(boxes.count(), 0U);
}

/// A form with a note, which is read only.
class NoteForm : public FormA {
 public:
  forms::TextBox note{*this, {150, 1000, 3000, 900}, forms::TextBox::Look::kNote};
};

TEST_F(TextBoxPaste, ANoteTakesNothingAndSelectsAll) {
  auto& note = opened<NoteForm>().note;
  note.setText(u"one\r\ntwo");
  note.setFocus();
  setClipboardText(L"text");
  SendMessageW(note.handle(), WM_PASTE, 0, 0);
  EXPECT_EQ(note.text(), u"one\r\ntwo");
  input::key('A', {VK_CONTROL});
  EXPECT_TRUE(
      eventually([&] { return SendMessageW(note.handle(), EM_GETSEL, 0, 0) == MAKELONG(0, 8); }));
}

}  // namespace
}  // namespace support
