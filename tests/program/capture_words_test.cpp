// Which of the readings of what is under the pointer the popup shows.
#include <string>
#include <string_view>
#include <utility>

#include "tests/program/capture_fixture.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/system_programs.h"
#include "tests/support/process/text.h"
#include "tests/support/wait.h"

namespace support {
namespace {

constexpr std::wstring_view kText =
    L"The man's table's well-known caf\u00E9 isn\u2019t far, e.g. in Z\u00FCrich or the U.S. "
    L"state\r\n"
    L"of affairs. Click-and-drag it, hasn't the CO9 (associ-\r\n"
    L"ated) MP3 3rd part na\u00EFve TCP/IP words? \u201CTaken\u201D by we're.";

class CaptureWords : public Capture {
 protected:
  CaptureWords() {
    notepad_.place(kPage);
    notepad_.setText(std::wstring(kText));
  }

  /// What the popup says with the pointer on the character at `offset` of `part`: its headline is
  /// `word`.
  [[nodiscard]] std::wstring shownOn(std::wstring_view part, std::size_t offset,
                                     const std::wstring& word) const {
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
    restOn(notepad_, static_cast<LONG>(kText.find(part) + offset));
    return popup.waitFor(word);
  }

  const Notepad notepad_;
};

TEST_F(CaptureWords, TheReadingThatIsAHeadwordIsShown) {
  for (const auto& [part, offset, word] : {std::tuple(L"man's", 1, L"man"),
                                           {L"table's", 2, L"table"},
                                           {L"well-known", 7, L"well-known"},
                                           {L"caf", 1, L"cafe"},
                                           {L"isn", 1, L"isn''t"},
                                           {L"e.g.", 0, L"e.g."},
                                           {L"Z\u00FCrich", 3, L"Zurich"},
                                           {L"U.S.", 2, L"U.S."},
                                           {L"affairs", 2, L"affairs"},
                                           {L"and-drag", 6, L"drag"},
                                           {L"hasn't", 3, L"hasn''t"},

                                           {L"associ-", 2, L"associated"},
                                           {L"ated)", 1, L"associated"},
                                           {L"MP3", 0, L"MP3"},
                                           {L"na\u00EFve", 4, L"naive"},
                                           {L"TCP/IP", 4, L"TCP/IP"},
                                           {L"3rd", 1, L"3rd"},
                                           {L"Taken", 2, L"Taken"},
                                           {L"we're", 1, L"we''re"}}) {
    const std::wstring shown = shownOn(part, static_cast<std::size_t>(offset), word);
    EXPECT_EQ(shown.find(L"没找到"), shown.npos) << utf8(shown);
  }
}

TEST_F(CaptureWords, AFormIsShownWithTheMeaningOfItsWord) {
  const std::wstring taken = shownOn(L"Taken", 1, L"Taken");
  EXPECT_NE(taken.find(L"take的过去分词"), taken.npos) << utf8(taken);
  EXPECT_NE(taken.find(L"拿"), taken.npos) << utf8(taken);
  saveScreenshot("build/shots/popup-form.png");
}

TEST_F(CaptureWords, LettersThatTouchADigitAreNoWord) {
  restOn(notepad_, static_cast<LONG>(kText.find(L"CO9")));
  EXPECT_TRUE(popup.staysAway(1'000));
}

TEST_F(CaptureWords, APossessiveEndingIsLeftOut) {
  const std::wstring man = shownOn(L"man's", 4, L"man");
  EXPECT_NE(man.find(L"男人"), man.npos) << utf8(man);
  saveScreenshot("build/shots/popup-possessive.png");
}

}  // namespace
}  // namespace support
