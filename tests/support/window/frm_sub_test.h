#pragma once

#include <array>

#include "app/state.h"
#include "capture/frm_screen_word.h"
#include "lookup/frm_sub.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/settings.h"
#include "tests/support/window/capture_state.h"
#include "tests/support/window/dictionary.h"
#include "tests/support/window/window_test.h"

namespace support {

/// The quick lookup window over the made-up dictionary, without stored sizes.
class FrmSubTest : public WindowTest {
 protected:
  FrmSubTest() {
    useDictionary();
    settings::clear();
    user::QuickLookupPlace.reset();
  }
  ~FrmSubTest() override { settings::clear(); }

  static frmSub& sub() { return forms::form<frmSub>(); }

  /// Shows it and waits until its input box has the focus.
  frmSub& open() {
    auto& form = opened<frmSub>();
    EXPECT_TRUE(eventually([&] { return GetFocus() == form.txtInput.handle(); }));
    return form;
  }

  /// Stores values by `prepare` and shows the window, which is to have this size in twips then;
  /// once more where a window manager has answered an earlier one of its sizes.
  template <class Prepare>
  frmSub& openSized(Prepare prepare, int width, int height) {
    actUntil(
        "frmSub in that size",
        [&] {
          if (forms::isLoaded<frmSub>()) sub().unload();
          settings::clear();
          prepare();
          open();
        },
        [&] { return sub().width() == width && sub().height() == height; }, kLastingWindow);
    return sub();
  }

  /// What the list shows.
  static std::vector<std::u16string> list() { return nodeTexts(sub().TreeView1); }

  /// The words that the list is to show for `word`, within the window's present bounds.
  static std::vector<std::u16string> expectedList(std::u16string_view word) {
    const bool chinese = word.front() >= 256;
    auto side = chinese ? &SampleDictionary::Pair::chinese : &SampleDictionary::Pair::english;
    const auto rows = sampleDictionary().ordered(side);
    const auto [lower, upper] = sub().bounds();
    std::vector<std::u16string> words;
    for (int row = std::max(lower, 1); row <= upper && row <= static_cast<int>(rows.size());
         ++row) {
      const std::u16string& candidate = rows[static_cast<std::size_t>(row) - 1].*side;
      const bool listed = !words.empty() && text::compare(words.back(), candidate) == 0;
      if (!listed && text::compare(candidate, word) >= 0 && words.size() < 75) {
        words.push_back(candidate);
      }
    }
    return words;
  }

  /// The pane's text for an English word of the dictionary.
  static std::u16string meaningOf(const std::u16string& english) {
    std::u16string text;
    for (const auto& pair : sampleDictionary().ordered(&SampleDictionary::Pair::chinese)) {
      if (text::compare(pair.english, english) != 0) continue;
      text += text.empty() ? u" " + english + u"\r\n " : std::u16string(u"；\r\n ");
      text += pair.chinese;
    }
    return text;
  }

  /// The middle of a list entry, counted from 1, on the screen.
  static POINT entryPoint(int number) { return nodePoint(sub().TreeView1, number); }
};

}  // namespace support
