#pragma once

#include "app/state.h"
#include "capture/frm_screen_word.h"
#include "capture/frm_screen_word_meaning.h"
#include "capture/nhw32/nhw32.h"
#include "capture/screen_word.h"
#include "tests/support/window/capture_state.h"
#include "tests/support/window/dictionary.h"
#include "tests/support/window/plain_window.h"
#include "tests/support/window/window_pos_recorders.h"
#include "tests/support/window/window_test.h"

namespace support {

/// The capture cycle over the made-up dictionary, resting to begin with, and the pointer where no
/// test has a window.
class CaptureTest : public WindowTest {
 protected:
  CaptureTest() {
    useDictionary();
    injected::moveTo(kNowhere);
    ScreenWord::StopCapture();
    nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0);
    nhw32::SetNHW32();  // sees that the pointer has left the place of an earlier popup
    ScreenWord::strScreenWord.clear();
  }

  static frmScreenWord& host() { return forms::form<frmScreenWord>(); }
  static frmScreenWordMeaning& popup() { return forms::form<frmScreenWordMeaning>(); }
  static bool popupIsUp() {
    return forms::isLoaded<frmScreenWordMeaning>() && IsWindowVisible(popup().handle()) != FALSE;
  }

  /// Where the word at `index` of an edit control's text stands on the screen.
  static POINT wordPoint(HWND edit, int index) {
    const auto place = SendMessageW(edit, EM_POSFROMCHAR, static_cast<WPARAM>(index), 0);
    POINT point{static_cast<SHORT>(LOWORD(place)) + 4, static_cast<SHORT>(HIWORD(place)) + 6};
    ClientToScreen(edit, &point);
    return point;
  }
};

}  // namespace support
