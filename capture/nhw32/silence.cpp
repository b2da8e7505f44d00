#include "capture/nhw32/silence.h"

namespace nhw32 {
namespace {

// The system's numbers (winerror.h), which the tests on other systems know nothing of.
constexpr std::uint32_t kNoError = 0;
constexpr std::uint32_t kTimeout = 1460;

}  // namespace

Outcome outcomeOfSilence(std::uint32_t lastError) {
  return lastError == kTimeout || lastError == kNoError ? Outcome::outOfTime : Outcome::refused;
}

}  // namespace nhw32
