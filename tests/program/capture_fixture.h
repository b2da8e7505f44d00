#pragma once

#include <gtest/gtest.h>

#include "tests/support/process/controls.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/meaning_popup.h"
#include "tests/support/process/system_programs.h"

namespace support {

/// Where the programs whose words are read stand.
inline constexpr RECT kPage{40, 120, 840, 720};

/// Lexilo with capture on, and the pointer away from all texts.
class Capture : public ::testing::Test {
 protected:
  Capture() {
    input::moveTo(kAwayFromTexts);
    lexilo.waitUntilSeen();
  }

  /// Rests the pointer on a character of Notepad's text.
  static void restOn(const Notepad& notepad, LONG character) {
    const POINT place = editPosition(notepad.edit(), character);
    input::moveTo({place.x + 3, place.y + 6});
  }

  /// Whether Lexilo has probed any window since it was started. The first probe shows its strip,
  /// which from then on stays shown beside the screen.
  [[nodiscard]] bool hasProbed() const {
    return findWindow(
               {.process = lexilo.process().id(), .className = L"Lexilo.frmScreen", .title = {}}) !=
           nullptr;
  }

  const Lexilo lexilo{AppFolder::withFullDictionary()};
  const MeaningPopup popup{lexilo.process()};
};

}  // namespace support
