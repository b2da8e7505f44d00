#include <gtest/gtest.h>
#include <richedit.h>

#include <atomic>
#include <memory>

#include "capture/nhw32/router.h"
#include "tests/support/data/plain_readings.h"
#include "tests/support/process/find.h"
#include "tests/support/wait.h"
#include "tests/support/window/counted_service.h"
#include "tests/support/window/hooked_text_window.h"
#include "tests/support/window/system_editor.h"
#include "tests/support/window/word_host.h"

namespace support {
namespace {

/// A control that did not answer in time keeps its memory, so the test begins anew.
struct OutOfTime {};

/// A reader whose questions are answered in time.
struct Asked {
  std::u16string wordAt(const nhw32::Question& question) const {
    const nhw32::Answer answer = reader->wordAt(question);
    if (answer.outcome == nhw32::Outcome::kOutOfTime) throw OutOfTime();
    return plainWord(answer.word.readings);
  }

  std::unique_ptr<nhw32::WordReader> reader = nhw32::makeWindowReader();
};

/// Runs a test with a reader of its own, again where the machine was too busy.
template <class Test>
void inTime(Test test) {
  for (int tries = 1; tries <= 20; ++tries) {
    try {
      Asked asked;
      test(asked);
      return;
    } catch (const OutOfTime&) {
      reportRetry("a question that had no answer in time");
    }
  }
  FAIL() << "no answer in time";
}

/// The memory that the service takes from programs with rich edit controls: taken with the first
/// question, the same in the next ones, and given back.
class Nhw32KeptMemory : public ::testing::Test {
 protected:
  nhw32::Question at(std::size_t position) const {
    return questionAbout(target_.control(), position);
  }

  /// The place that the last question named in the program of the control.
  [[nodiscard]] LPARAM last() const { return last_; }
  /// Whether memory is allocated there.
  [[nodiscard]] bool isThere() const {
    MEMORY_BASIC_INFORMATION memory{};
    VirtualQuery(reinterpret_cast<const void*>(last_.load()), &memory, sizeof memory);
    return memory.State == MEM_COMMIT;
  }

 private:
  std::atomic<LPARAM> last_ = 0;
  HookedTextWindow target_{{.className = L"RichEdit20W",
                            .hook =
                                [this](HWND, UINT message, WPARAM, LPARAM place) {
                                  if (message == EM_GETTEXTRANGE) last_ = place;
                                  return std::optional<LRESULT>();
                                }},
                           u"first second third"};
};

TEST_F(Nhw32KeptMemory, IsTheSameForAllQuestionsAndEndsWithTheReader) {
  inTime([&](Asked& asked) {
    EXPECT_EQ(asked.wordAt(at(2)), u"first");
    const LPARAM place = last();
    EXPECT_TRUE(isThere());
    EXPECT_EQ(asked.wordAt(at(8)), u"second");
    EXPECT_EQ(last(), place);
    EXPECT_TRUE(isThere());
    asked.reader.reset();
    EXPECT_FALSE(isThere());
  });
}

TEST_F(Nhw32KeptMemory, IsGivenBackAtRestAndTakenAgain) {
  inTime([&](Asked& asked) {
    EXPECT_EQ(asked.wordAt(at(2)), u"first");
    asked.reader->rest();
    EXPECT_FALSE(isThere());
    EXPECT_EQ(asked.wordAt(at(8)), u"second");
    EXPECT_TRUE(isThere());
  });
}

TEST_F(Nhw32KeptMemory, IsGivenBackWhenAnotherProgramIsAsked) {
  const SystemEditor other(SystemEditor::Kind::kWordPad, u"elsewhere");
  inTime([&](Asked& asked) {
    EXPECT_EQ(asked.wordAt(at(2)), u"first");
    EXPECT_EQ(asked.wordAt(questionAbout(other.control(), 3)), u"elsewhere");
    EXPECT_FALSE(isThere());
    EXPECT_EQ(asked.wordAt(at(8)), u"second");
  });
}

TEST_F(Nhw32KeptMemory, IsGivenBackWhenAControlThatNeedsNoneIsAsked) {
  const HookedTextWindow other({}, u"elsewhere");
  inTime([&](Asked& asked) {
    EXPECT_EQ(asked.wordAt(at(2)), u"first");
    EXPECT_EQ(asked.wordAt(questionAbout(other.control(), 3)), u"elsewhere");
    EXPECT_FALSE(isThere());
  });
}

TEST_F(Nhw32KeptMemory, IsGivenBackByTheServiceAWhileAfterTheLastQuestion) {
  const WordHost host;
  CountedService counted;
  const auto place = at(2).point;
  counted.probe(host.window(), {place.x, place.y});
  waitFor("the answer", [&] { return counted.answers() == 1; });
  EXPECT_TRUE(isThere());
  waitFor("the rest", [&] { return !isThere(); });
  counted.probe(host.window(), {place.x, place.y});
  waitFor("the next answer", [&] { return counted.answers() == 2; });
  EXPECT_TRUE(isThere());
}

}  // namespace
}  // namespace support
