#include "forms/clipboard.h"

#include "tests/support/process/clipboard.h"
#include "tests/support/window/clipboard_holder.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class ClipboardTest : public WindowTest {};

TEST_F(ClipboardTest, TakesATextWithWindowsLineEnds) {
  opened<FormA>();
  forms::setClipboardText(forms::form<FormA>().handle(), u"一\rtwo\n3\r\n四");
  EXPECT_EQ(clipboardText(), L"一\r\ntwo\r\n3\r\n四");
}

TEST_F(ClipboardTest, ReplacesWhatWasThere) {
  opened<FormA>();
  forms::setClipboardText(forms::form<FormA>().handle(), u"old and longer");
  forms::setClipboardText(forms::form<FormA>().handle(), u"new");
  EXPECT_EQ(clipboardText(), L"new");
  forms::setClipboardText(forms::form<FormA>().handle(), u"");
  EXPECT_EQ(clipboardText(), L"");
}

TEST_F(ClipboardTest, WaitsForOneThatIsBusyForAMoment) {
  opened<FormA>();
  {
    const ClipboardHolder holder(40);
    forms::setClipboardText(forms::form<FormA>().handle(), u"patient");
  }
  EXPECT_EQ(clipboardText(), L"patient");
}

TEST_F(ClipboardTest, GivesUpAfterATenthOfASecond) {
  opened<FormA>();
  forms::setClipboardText(forms::form<FormA>().handle(), u"before");
  {
    const ClipboardHolder holder(600);
    const ULONGLONG start = GetTickCount64();
    EXPECT_THROW(forms::setClipboardText(forms::form<FormA>().handle(), u"after"),
                 std::runtime_error);
    EXPECT_GE(GetTickCount64() - start, 90U);
    EXPECT_LT(GetTickCount64() - start, 400U);
  }
  EXPECT_EQ(clipboardText(), L"before");
}

TEST_F(ClipboardTest, GivesItsText) {
  opened<FormA>();
  HWND owner = forms::form<FormA>().handle();
  setClipboardText(L"一\r\ntwo");
  EXPECT_EQ(forms::clipboardText(owner), u"一\r\ntwo");
  setClipboardText(L"");
  EXPECT_EQ(forms::clipboardText(owner), u"");
}

TEST_F(ClipboardTest, GivesNothingWhereThereIsNoText) {
  opened<FormA>();
  HWND owner = forms::form<FormA>().handle();
  ASSERT_TRUE(OpenClipboard(owner));
  EmptyClipboard();
  CloseClipboard();
  EXPECT_EQ(forms::clipboardText(owner), std::nullopt);
  setClipboardText(L"text");
  const ClipboardHolder holder(400);
  EXPECT_EQ(forms::clipboardText(owner), std::nullopt);
}

}  // namespace
}  // namespace support
