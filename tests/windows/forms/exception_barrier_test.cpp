#include <stdexcept>

#include "forms/button.h"
#include "forms/exception_barrier.h"
#include "forms/message_box.h"
#include "forms/timer.h"
#include "tests/support/window/other_program.h"
#include "tests/support/window/plain_window.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class ExceptionBarrier : public WindowTest {};

/// A form whose box fails on every change.
class FailingForm : public FormA {
 public:
  FailingForm() {
    first.onChange = [] { throw std::runtime_error("数据库已损坏"); };
  }
};

TEST_F(ExceptionBarrier, AnUncaughtErrorIsShownWithItsOwnDescription) {
  auto& form = opened<FailingForm>();
  form.first.setText(u"x");
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, u"数据库已损坏");
  EXPECT_EQ(seen[0].title, u"");
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[0].owner, form.handle());
}

TEST_F(ExceptionBarrier, PassesUncaughtErrorsToTheErrorHandlerAndDropsThoseThatItCauses) {
  static int reports;
  reports = 0;
  forms::setErrorHandler([](const std::exception_ptr&) {
    ++reports;
    forms::guard([] { throw std::runtime_error("while reporting"); });
  });
  forms::guard([] { throw std::runtime_error("x"); });
  forms::setErrorHandler(forms::showErrorBox);
  EXPECT_EQ(reports, 1);
  EXPECT_TRUE(boxes.take().empty());
}

TEST_F(ExceptionBarrier, TheLongestDescriptionFitsTheScreen) {
  auto& form = opened<FormA>();
  for (const std::string& unit : {std::string("x"), std::string("W"), std::string("词")}) {
    RECT box{};
    RECT text{};
    boxes.whileUp([&](HWND window) {
      box = rectOf(window);
      text = rectOf(GetDlgItem(window, 65535));
    });
    form.first.onChange = [&] {
      std::string description = "first\n";
      for (int i = 0; i < 5'000; ++i) description += unit;
      throw std::runtime_error(description + "\nlast");
    };
    form.first.setText(u"x");
    const auto seen = boxes.take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_TRUE(seen[0].text.starts_with(u"first\n"));
    EXPECT_TRUE(seen[0].text.ends_with(u"\nlast"));
    EXPECT_LE(box.right - box.left, GetSystemMetrics(SM_CXSCREEN)) << unit;
    EXPECT_LE(box.bottom - box.top, GetSystemMetrics(SM_CYSCREEN)) << unit;
    EXPECT_LE(text.right, box.right) << unit;
  }
}

TEST_F(ExceptionBarrier, TheProgramGoesOnWithItsDataIntact) {
  auto& form = opened<FailingForm>();
  form.first.setText(u"kept");
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_EQ(form.first.text(), u"kept");
  EXPECT_EQ(forms::ScopedHandler::depth(), 0);
  form.first.setText(u"again");
  EXPECT_EQ(boxes.take().size(), 1U);
}

TEST_F(ExceptionBarrier, OneBoxAtATimeWhateverElseFails) {
  auto& form = opened<FailingForm>();
  forms::Timer timer(form, 10, true);
  int ticks = 0;
  timer.onTimer = [&] {
    ++ticks;
    throw std::runtime_error("tick");
  };
  boxes.whileUp([&](HWND) {
    form.first.setText(u"second error");
    eventually([&] { return ticks >= 3; });
    int count = 0;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM found) {
          wchar_t name[16] = L"";
          GetClassNameW(window, name, 16);
          if (lstrcmpW(name, L"#32770") == 0) ++*reinterpret_cast<int*>(found);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    EXPECT_EQ(count, 1);
    timer.setEnabled(false);
  });
  form.first.setText(u"x");
  passTime(50);
  EXPECT_GE(ticks, 3);
  EXPECT_EQ(boxes.take().size(), 1U);
}

TEST_F(ExceptionBarrier, AnErrorInATimerReachesIt) {
  auto& form = opened<FormA>();
  forms::Timer timer(form, 10, true);
  timer.onTimer = [&] {
    timer.setEnabled(false);
    throw std::overflow_error("Overflow");
  };
  ASSERT_TRUE(eventually([&] { return boxes.count() == 1; }));
  EXPECT_EQ(boxes.take()[0].text, u"Overflow");
}

TEST_F(ExceptionBarrier, AThrownValueThatIsNoExceptionIsDescribed) {
  auto& form = opened<FormA>();
  form.first.onChange = [] { throw 42; };
  form.first.setText(u"x");
  ASSERT_EQ(boxes.count(), 1U);
  EXPECT_FALSE(boxes.take()[0].text.empty());
}

TEST_F(ExceptionBarrier, WithoutAnActiveWindowTheBoxComesAllTheSame) {
  auto& form = opened<FormA>();
  OtherProgram other;
  other.activate();
  ASSERT_TRUE(eventually([] { return GetActiveWindow() == nullptr; }));
  form.first.onChange = [] { throw std::runtime_error("behind"); };
  form.first.setText(u"x");
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(IsWindowEnabled(form.handle()));
}

using MessageBoxTest = ExceptionBarrier;

TEST_F(MessageBoxTest, HoldsEveryWindowOfTheProgram) {
  auto& owner = opened<FormA>();
  auto& other = forms::form<FormB>();
  other.show();
  awaitActive(other);
  owner.show();
  awaitActive(owner);
  bool held = false;
  boxes.whileUp([&](HWND) {
    held = IsWindowEnabled(owner.handle()) == FALSE && IsWindowEnabled(other.handle()) == FALSE;
  });
  forms::showMessage(u"查询条件不为空！", forms::MessageIcon::kExclamation);
  EXPECT_TRUE(held);
  EXPECT_TRUE(IsWindowEnabled(owner.handle()));
  EXPECT_TRUE(IsWindowEnabled(other.handle()));
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].owner, owner.handle());
}

// An input method shows its windows on our thread.
TEST_F(MessageBoxTest, LetsAWindowAloneThatIsNoneOfOurs) {
  opened<FormA>();
  const PlainWindow candidates(plainClass(L"Test.Candidates"), {900, 700, 1100, 740});
  bool enabled = false;
  boxes.whileUp([&](HWND) { enabled = IsWindowEnabled(candidates.handle()) != FALSE; });
  forms::showMessage(u"…", forms::MessageIcon::kNone);
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(enabled);
}

TEST_F(MessageBoxTest, LeavesAWindowDisabledThatWasSo) {
  opened<FormA>();
  auto& other = opened<FormB>();
  forms::form<FormA>().show();
  awaitActive(forms::form<FormA>());
  EnableWindow(other.handle(), FALSE);
  forms::showMessage(u"…", forms::MessageIcon::kNone);
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_FALSE(IsWindowEnabled(other.handle()));
  EnableWindow(other.handle(), TRUE);
}

TEST_F(MessageBoxTest, ShowsTextTitleAndIconAsAsked) {
  opened<FormA>();
  forms::showMessage(u"一", forms::MessageIcon::kCritical);
  forms::showMessage(u"二", forms::MessageIcon::kExclamation);
  forms::showMessage(u"三", forms::MessageIcon::kInformation);
  forms::showMessage(u"四", forms::MessageIcon::kNone, u"Lexilo");
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 4U);
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[1].icon, Icon::kWarning);
  EXPECT_EQ(seen[2].icon, Icon::kInformation);
  EXPECT_EQ(seen[3].icon, Icon::kNone);
  EXPECT_EQ(seen[0].title, u"");
  EXPECT_EQ(seen[3].title, u"Lexilo");
  EXPECT_EQ(seen[1].text, u"二");
}

TEST_F(MessageBoxTest, StandsAboveOurTopmostWindows) {
  plan<'A'>().design.topmost = true;
  opened<FormA>();
  bool above = false;
  boxes.whileUp([&](HWND box) { above = isTopmost(box); });
  forms::showMessage(u"…", forms::MessageIcon::kNone);
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(above);
}

TEST_F(MessageBoxTest, ClosesByTheKeyboard) {
  auto& form = opened<FormA>();
  boxes.leaveNextAlone();
  const ModalPoller user([] {
    HWND box = MessageBoxes::current();
    if (box == nullptr || GetForegroundWindow() != box) return false;
    input::key(VK_RETURN);
    return true;
  });
  forms::showMessage(u"…", forms::MessageIcon::kNone);
  EXPECT_TRUE(user.done());
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(eventually([&] { return GetFocus() == form.first.handle(); }));
}

}  // namespace
}  // namespace support
