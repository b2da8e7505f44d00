#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/policy.h"
#include "capture/nhw32/router.h"
#include "capture/nhw32/service.h"
#include "tests/support/data/plain_readings.h"
#include "tests/support/process/find.h"
#include "tests/support/process/process.h"
#include "tests/support/wait.h"
#include "tests/support/window/counted_service.h"
#include "tests/support/window/hooked_text_window.h"
#include "tests/support/window/latency_recorder.h"
#include "tests/support/window/mixed_page.h"
#include "tests/support/window/system_editor.h"
#include "tests/support/window/text_geometry.h"
#include "tests/support/window/word_host.h"

namespace support {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

template <class Action>
microseconds timeOf(Action action) {
  const auto begin = steady_clock::now();
  action();
  return std::chrono::duration_cast<microseconds>(steady_clock::now() - begin);
}

std::string ansi(const std::u16string& text) {
  std::string bytes(512, '\0');
  bytes.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_ACP, 0, reinterpret_cast<const wchar_t*>(text.data()),
                          static_cast<int>(text.size()), bytes.data(), 512, nullptr, nullptr)));
  return bytes;
}

/// Words of other programs.
class Nhw32Programs : public ::testing::TestWithParam<SystemEditor::Kind> {
 protected:
  static MixedPageDesign design(std::size_t length) {
    return {.length = length,
            .lineEnd = GetParam() == SystemEditor::Kind::kNotepad ? u"\r\n" : u"\r"};
  }
};

INSTANTIATE_TEST_SUITE_P(OfTheSystem, Nhw32Programs,
                         ::testing::Values(SystemEditor::Kind::kNotepad,
                                           SystemEditor::Kind::kWordPad),
                         [](const auto& kind) {
                           return kind.param == SystemEditor::Kind::kNotepad ? "Notepad"
                                                                             : "WordPad";
                         });

TEST_P(Nhw32Programs, TheServiceTellsTheWordAtTwoHundredPlaces) {
  const MixedPage page = makeMixedPage(design(4000));
  const SystemEditor program(GetParam(), page.text);
  nhw32::SetNHW32();
  WordHost host;
  int compared = 0;
  for (const TextPoint& place : visibleTextPoints(program.control(), 200)) {
    // What is no word is asked for directly: nothing would tell when to stop waiting for it.
    const std::u16string& word = page.words[place.position];
    if (word.empty()) {
      EXPECT_EQ(plainWord(answerTo(questionAt(program.control(), place.point)).word.readings), u"");
    } else {
      ASSERT_EQ(host.wordAt(place.point), ansi(word)) << "at character " << place.position;
    }
    ++compared;
  }
  EXPECT_EQ(compared, 200);
  nhw32::ResetNHW32();
}

TEST_P(Nhw32Programs, TellsTheWordsOfALongTextQuickly) {
  const MixedPage page = makeMixedPage(design(400'000));
  const SystemEditor program(GetParam(), page.text);
  for (const int line : {0, 3'000, 6'000}) {
    send(program.control(), EM_LINESCROLL, 0, line);
    std::vector<microseconds> times;
    for (const TextPoint& place : visibleTextPoints(program.control(), 40)) {
      nhw32::Answer answer;
      times.push_back(
          timeOf([&] { answer = answerTo(questionAt(program.control(), place.point)); }));
      ASSERT_EQ(plainWord(answer.word.readings), page.words[place.position])
          << "at character " << place.position;
    }
    ASSERT_EQ(times.size(), 40U);
    std::ranges::sort(times);
    // Of the quickest: the others tell how busy the machine is.
    EXPECT_LE(times[4], milliseconds(50));
    RecordProperty("median_microseconds_at_line_" + std::to_string(line),
                   static_cast<int>(times[20].count()));
  }
}

TEST_P(Nhw32Programs, AStoppedProgramHoldsNobodyUpAndLivesOn) {
  const SystemEditor program(GetParam(), u"patient words");
  const nhw32::Question question = questionAbout(program.control(), 3);
  const POINT point{question.point.x, question.point.y};
  ASSERT_EQ(plainWord(answerTo(question).word.readings), u"patient");
  WordHost host;
  nhw32::SetNHW32();
  {
    const SuspendedProcess stopped(program.mark());
    LatencyRecorder probing;
    CountedService counted;
    for (int probe = 0; probe < nhw32::Backoff::kMaxTimeouts; ++probe) {
      probing.measure([&] { counted.probe(host.window(), point); });
      waitFor("the question to end", [&] { return counted.answers() > probe; });
    }
    EXPECT_FALSE(probing.wait());
    RecordProperty("longest_probe_microseconds", static_cast<int>(probing.longest().count()));
    EXPECT_TRUE(host.words().empty());
    LatencyRecorder restarting;
    for (int round = 0; round < 200; ++round) {
      restarting.measure([&] {
        nhw32::ResetNHW32();
        nhw32::SetNHW32();
        host.probe(point);
      });
    }
    EXPECT_FALSE(restarting.wait());
    EXPECT_LE(nhw32::service().workers(), 2);
    nhw32::ResetNHW32();
    EXPECT_TRUE(eventually([] { return nhw32::service().workers() == 0; }));
  }
  // It has all our late messages before it and answers them now.
  waitFor("the program to answer again", [&] {
    return plainWord(nhw32::makeWindowReader()->wordAt(question).word.readings) == u"patient";
  });
  EXPECT_TRUE(program.process().running());
  EXPECT_EQ(textOf(program.control()), L"patient words");
}

/// Takes from everyone the right to open a program, as one of higher integrity withholds it.
void forbidOpening(HANDLE process) {
  ACL nobody{};
  SECURITY_DESCRIPTOR descriptor{};
  ASSERT_TRUE(InitializeAcl(&nobody, sizeof nobody, ACL_REVISION));
  ASSERT_TRUE(InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION));
  ASSERT_TRUE(SetSecurityDescriptorDacl(&descriptor, TRUE, &nobody, FALSE));
  ASSERT_TRUE(SetKernelObjectSecurity(process, DACL_SECURITY_INFORMATION, &descriptor));
}

TEST(Nhw32Refusal, AProgramThatMayNotBeOpenedGivesNoWordOfItsRichEditControl) {
  const SystemEditor program(SystemEditor::Kind::kWordPad, u"guarded words");
  const nhw32::Question question = questionAbout(program.control(), 3);
  ASSERT_EQ(plainWord(answerTo(question).word.readings), u"guarded");
  forbidOpening(program.process().handle());
  EXPECT_EQ(answerTo(question).outcome, nhw32::Outcome::kRefused);
}

TEST_P(Nhw32Programs, AProgramThatDiesGivesNoWord) {
  const SystemEditor program(GetParam(), u"mortal words");
  const nhw32::Question question = questionAbout(program.control(), 3);
  ASSERT_EQ(plainWord(answerTo(question).word.readings), u"mortal");
  program.process().kill();
  EXPECT_EQ(answerTo(question).outcome, nhw32::Outcome::kNone);
}

}  // namespace
}  // namespace support
