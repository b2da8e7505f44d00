#pragma once

#include <gtest/gtest.h>

#include "capture/frm_screen_word.h"
#include "forms/loaded_forms.h"

namespace support {

/// Whether capture runs, read from its timers. Every probe switches the third one off, so that it
/// may rest while the others run, but not the other way round.
inline bool captureRuns() {
  const auto& host = forms::form<frmScreenWord>();
  EXPECT_EQ(host.Timer1.enabled(), host.timScreenWord1.enabled());
  EXPECT_TRUE(host.Timer1.enabled() || !host.timScreenWord2.enabled());
  return host.Timer1.enabled();
}

}  // namespace support
