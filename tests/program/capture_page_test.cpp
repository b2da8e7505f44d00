// Words of whole pages, one after the other.
#include <algorithm>
#include <functional>
#include <random>

#include "tests/program/capture_fixture.h"
#include "tests/support/process/english_page.h"
#include "tests/support/process/system_programs.h"
#include "tests/support/process/text.h"

namespace support {
namespace {

/// Rests the pointer on 200 words of a page and counts those whose popup names them.
int wordsRead(const MeaningPopup& popup, const EnglishPage& page, const RECT& visible,
              const std::function<POINT(LONG)>& position, const std::function<LONG(int)>& count) {
  std::minstd_rand random(7);
  int read = 0;
  for (int tried = 0; tried < 200;) {
    const auto& [start, word] = page.words()[random() % page.words().size()];
    const int inside = static_cast<int>(random() % word.size());
    if (word[static_cast<std::size_t>(inside)] == L'-') continue;
    const POINT place = position(count(start + inside));
    const POINT point{place.x + 3, place.y + 6};
    if (!PtInRect(&visible, point) || WindowFromPoint(point) == nullptr) continue;
    ++tried;
    input::moveTo(point);
    try {
      (void)popup.waitFor(word);
      ++read;
    } catch (const Failure& failure) {
      ADD_FAILURE() << failure.what() << " at character " << start + inside
                    << ", shown: " << utf8(popup.text());
    }
    // Away, or the next word could be read from a popup that is still up.
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
  return read;
}

TEST_F(Capture, TwoHundredWordsOfAPageInNotepad) {
  const Notepad notepad;
  notepad.place(kPage);
  const EnglishPage page(1, 60, 70);
  notepad.setText(page.text());
  RECT visible = clientRectOf(notepad.edit());
  InflateRect(&visible, -10, -20);
  EXPECT_EQ(wordsRead(
                popup, page, visible, [&](LONG at) { return editPosition(notepad.edit(), at); },
                [](int at) { return static_cast<LONG>(at); }),
            200);
}

TEST_F(Capture, TwoHundredWordsOfAPageInWordPad) {
  const WordPad wordPad;
  wordPad.place(kPage);
  const EnglishPage page(2, 60, 70);
  wordPad.setText(page.text());
  RECT visible = clientRectOf(wordPad.edit());
  InflateRect(&visible, -10, -20);
  // The control counts a line's end once.
  const auto count = [&](int at) {
    const auto end = page.text().begin() + at;
    return static_cast<LONG>(at - std::count(page.text().begin(), end, L'\r'));
  };
  EXPECT_EQ(wordsRead(
                popup, page, visible, [&](LONG at) { return richTextPosition(wordPad.edit(), at); },
                count),
            200);
}

TEST_F(Capture, AWordDeepInALongTextIsRead) {
  const Notepad notepad;
  notepad.place(kPage);
  const EnglishPage page(3, 5000, 75);
  ASSERT_GT(page.text().size(), 380'000U);
  notepad.setText(page.text());
  for (const std::size_t number : {page.words().size() / 2, page.words().size() - 30}) {
    const auto& [start, word] = page.words()[number];
    send(notepad.edit(), EM_SETSEL, static_cast<WPARAM>(start), start);
    send(notepad.edit(), EM_SCROLLCARET);
    restOn(notepad, start);
    (void)popup.waitFor(word);
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
}

}  // namespace
}  // namespace support
