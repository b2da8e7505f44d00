// Whatever is typed into a box of the search windows: no more than a message comes of it.
#include "tests/support/data/hostile_texts.h"

#include "query/frm_spc.h"
#include "tests/support/window/frm_sub_test.h"
#include "tests/support/window/query_test.h"

namespace support {
namespace {

/// When a user takes a window for frozen, in milliseconds.
constexpr ULONGLONG kFrozen = 5'000;

/// Milliseconds of processor time that this process has used: what a search takes of it is about
/// the time that a user waits whose machine has nothing else to do.
ULONGLONG processorTime() {
  FILETIME created{};
  FILETIME exited{};
  FILETIME kernel{};
  FILETIME user{};
  GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernel, &user);
  const auto ticks = [](const FILETIME& time) {
    return (static_cast<ULONGLONG>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
  };
  constexpr ULONGLONG kTicksInMillisecond = 10'000;
  return (ticks(kernel) + ticks(user)) / kTicksInMillisecond;
}

/// Gives every text to `type`, which must be done with it in time.
template <class Type>
void typeEach(const std::vector<std::u16string>& texts, Type type) {
  for (const std::u16string& text : texts) {
    SCOPED_TRACE(text::toUtf8(text.substr(0, 120)));
    const ULONGLONG start = processorTime();
    type(text);
    EXPECT_LT(processorTime() - start, kFrozen);
  }
}

class FrmHostileTexts : public QueryTest {
 protected:
  FrmHostileTexts() : before_(readFile(besideProgram())) { open(); }

  /// No box stays, nothing is changed, and the next search finds what it always finds.
  void expectIntact() {
    static_cast<void>(boxes.take());
    EXPECT_EQ(MessageBoxes::current(), nullptr);
    EXPECT_EQ(readFile(besideProgram()), before_);
    easy(u"liver");
    EXPECT_EQ(lines(), (Texts{u"liver          肝"}));
  }

  static void special(const std::u16string& english, const std::u16string& chinese) {
    press(form().cmdSpc);
    forms::form<frmSpc>().txtE.setText(english);
    forms::form<frmSpc>().txtC.setText(chinese);
    press(forms::form<frmSpc>().cmdOK);
    if (forms::isLoaded<frmSpc>()) forms::form<frmSpc>().unload();
  }

 private:
  std::string before_;
};

TEST_F(FrmHostileTexts, InTheInputBox) {
  bool isEasy = false;
  typeEach(hostileTexts(), [&](const std::u16string& text) {
    isEasy = !isEasy;
    isEasy ? easy(text) : complex(text);
  });
  expectIntact();
}

TEST_F(FrmHostileTexts, InTheEnglishBoxOfTheSpecialSearch) {
  typeEach(briefHostileTexts(), [](const std::u16string& text) { special(text, u"心"); });
  expectIntact();
}

TEST_F(FrmHostileTexts, InTheChineseBoxOfTheSpecialSearch) {
  typeEach(briefHostileTexts(), [](const std::u16string& text) { special(u"e", text); });
  expectIntact();
}

TEST_F(FrmHostileTexts, CostlyOnesInTheEnglishBoxOfTheSpecialSearch) {
  typeEach(costlyTexts(), [](const std::u16string& text) { special(text, u"心"); });
  expectIntact();
}

TEST_F(FrmHostileTexts, CostlyOnesInTheChineseBoxOfTheSpecialSearch) {
  typeEach(costlyTexts(), [](const std::u16string& text) { special(u"e", text); });
  expectIntact();
}

// Once into an empty list, once over the lines that are there.
TEST_F(FrmHostileTexts, TheLongestLinesThatThereCanBe) {
  constexpr std::size_t kLong = 29'000;
  const std::u16string text =
      u"zzz' union all select '" + std::u16string(kLong, u'x') + u"'||word,meaning from comp --";
  typeEach({text, text}, [&](const std::u16string& typed) {
    special(typed, u"心");
    UpdateWindow(form().TreeView2.handle());
    ASSERT_EQ(form().TreeView2.count(), 200U);
    EXPECT_GT(form().TreeView2.text(200).size(), kLong);
  });
  EXPECT_EQ(boxes.count(), 0U);
  expectIntact();
}

TEST_F(FrmHostileTexts, ASearchWithoutEndEndsInOneBox) {
  typeEach({endlessTexts().front()}, [](const std::u16string& text) { special(text, u"心"); });
  EXPECT_EQ(boxes.count(), 1U);
  expectIntact();
}

class FrmSubHostileTexts : public FrmSubTest {};

TEST_F(FrmSubHostileTexts, InTheInputBox) {
  const std::string before = readFile(besideProgram());
  frmSub& form = open();
  form.beep = [] {};
  typeEach(hostileTexts(), [&](const std::u16string& text) {
    form.txtInput.setText(text);
    EXPECT_EQ(boxes.count(), 0U);
    static_cast<void>(boxes.take());
  });
  EXPECT_EQ(readFile(besideProgram()), before);
  form.txtInput.setText(u"data");
  ASSERT_FALSE(list().empty());
  EXPECT_EQ(list()[0], u"data");
}

}  // namespace
}  // namespace support
