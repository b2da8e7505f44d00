#include "capture/nhw32/silence.h"

#include <gtest/gtest.h>

namespace nhw32 {
namespace {

TEST(Silence, AWindowThatLetTheTimePassRanOutOfIt) {
  EXPECT_EQ(outcomeOfSilence(1460), Outcome::outOfTime);  // ERROR_TIMEOUT
}

TEST(Silence, SoDidOneThatIsCountedAsHung) { EXPECT_EQ(outcomeOfSilence(0), Outcome::outOfTime); }

TEST(Silence, AWindowOfHigherIntegrityAndOneThatIsGoneRefuse) {
  EXPECT_EQ(outcomeOfSilence(5), Outcome::refused);     // ERROR_ACCESS_DENIED
  EXPECT_EQ(outcomeOfSilence(1400), Outcome::refused);  // ERROR_INVALID_WINDOW_HANDLE
}

}  // namespace
}  // namespace nhw32
