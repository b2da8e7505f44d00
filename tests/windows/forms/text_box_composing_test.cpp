// Input methods: the messages that one sends, and what the system's own makes of a composed text.
#include <imm.h>

#include "forms/text_box.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class TextBoxComposing : public WindowTest {
 protected:
  static forms::TextBox& box() { return forms::form<FormA>().first; }

  TextBoxComposing() {
    opened<FormA>();
    box().setFocus();
    box().onChange = [this] { changes.push_back(box().text()); };
  }

  static void begin() { SendMessageW(box().handle(), WM_IME_STARTCOMPOSITION, 0, 0); }
  static void end() { SendMessageW(box().handle(), WM_IME_ENDCOMPOSITION, 0, 0); }
  /// What versions of the control do that show in their text what is being composed.
  static void showInText(const wchar_t* text) {
    SendMessageW(box().handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
  }

  /// The texts that the box held at its changes.
  std::vector<std::u16string> changes;
};

TEST_F(TextBoxComposing, WhatIsBeingComposedIsNoChange) {
  begin();
  showInText(L"shu");
  EXPECT_TRUE(changes.empty());
  box().selectAll();
  showInText(L"数据");
  EXPECT_TRUE(changes.empty());
  end();
  EXPECT_EQ(changes, std::vector<std::u16string>{u"数据"});
  input::type(L"x");
  EXPECT_TRUE(eventually([this] { return changes.size() == 2; }));
}

TEST_F(TextBoxComposing, ACancelledCompositionIsNoChange) {
  box().setText(u"data");
  changes.clear();
  begin();
  showInText(L"shu");
  SendMessageW(box().handle(), EM_UNDO, 0, 0);
  ASSERT_EQ(box().text(), u"data");
  end();
  EXPECT_TRUE(changes.empty());
}

TEST_F(TextBoxComposing, LosingTheFocusEndsIt) {
  begin();
  showInText(L"shu");
  forms::form<FormA>().second.setFocus();
  EXPECT_EQ(changes, std::vector<std::u16string>{u"shu"});
  box().setText(u"data");
  EXPECT_EQ(changes.size(), 2U);
}

/// The input context of the box while the test uses it.
class Context {
 public:
  explicit Context(HWND window) : window_(window), context_(ImmGetContext(window)) {}
  ~Context() { ImmReleaseContext(window_, context_); }
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;
  [[nodiscard]] HIMC get() const { return context_; }

 private:
  HWND window_;
  HIMC context_;
};

TEST_F(TextBoxComposing, ACommittedPhraseIsOneChange) {
  const Context context(box().handle());
  ASSERT_NE(context.get(), nullptr);
  std::wstring reading = L"shuju";
  ASSERT_TRUE(ImmSetCompositionStringW(context.get(), SCS_SETSTR, reading.data(),
                                       static_cast<DWORD>(reading.size() * sizeof(wchar_t)),
                                       nullptr, 0));
  forms::doEvents();
  EXPECT_TRUE(changes.empty());
  std::wstring phrase = L"数据库";
  ASSERT_TRUE(ImmSetCompositionStringW(context.get(), SCS_SETSTR, phrase.data(),
                                       static_cast<DWORD>(phrase.size() * sizeof(wchar_t)), nullptr,
                                       0));
  forms::doEvents();
  EXPECT_TRUE(changes.empty());
  ASSERT_TRUE(ImmNotifyIME(context.get(), NI_COMPOSITIONSTR, CPS_COMPLETE, 0));
  EXPECT_TRUE(eventually([] { return box().text() == u"数据库"; }));
  passTime(40);
  EXPECT_EQ(changes, std::vector<std::u16string>{u"数据库"});
}

TEST_F(TextBoxComposing, CharactersOfAnInputMethodArriveEachByItself) {
  SendMessageW(box().handle(), WM_IME_CHAR, L'数', 1);
  SendMessageW(box().handle(), WM_IME_CHAR, L'据', 1);
  EXPECT_TRUE(eventually([] { return box().text() == u"数据"; }));
  EXPECT_EQ(changes.back(), u"数据");
}

}  // namespace
}  // namespace support
