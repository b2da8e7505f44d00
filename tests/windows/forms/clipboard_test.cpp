#include "forms/clipboard.h"

#include "tests/program/harness/clipboard.h"
#include "tests/windows/support/clipboard_holder.h"
#include "tests/windows/support/window_test.h"

namespace wintest {
namespace {

class ClipboardTest : public WindowTest {};

TEST_F(ClipboardTest, TakesATextWithWindowsLineEnds) {
  opened<FormA>();
  forms::setClipboardText(forms::form<FormA>().handle(), u"一\rtwo\n3\r\n四");
  EXPECT_EQ(harness::clipboardText(), L"一\r\ntwo\r\n3\r\n四");
}

TEST_F(ClipboardTest, ReplacesWhatWasThere) {
  opened<FormA>();
  forms::setClipboardText(forms::form<FormA>().handle(), u"old and longer");
  forms::setClipboardText(forms::form<FormA>().handle(), u"new");
  EXPECT_EQ(harness::clipboardText(), L"new");
  forms::setClipboardText(forms::form<FormA>().handle(), u"");
  EXPECT_EQ(harness::clipboardText(), L"");
}

TEST_F(ClipboardTest, WaitsForOneThatIsBusyForAMoment) {
  opened<FormA>();
  {
    const ClipboardHolder holder(40);
    forms::setClipboardText(forms::form<FormA>().handle(), u"patient");
  }
  EXPECT_EQ(harness::clipboardText(), L"patient");
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
  EXPECT_EQ(harness::clipboardText(), L"before");
}

}  // namespace
}  // namespace wintest
