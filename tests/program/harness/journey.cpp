#include "tests/program/harness/journey.h"

#include <string>

#include "tests/program/harness/screen.h"

namespace harness {

void Journey::TearDown() {
  if (!HasFailure()) return;
  const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
  saveScreenshot(std::string("build/shots/failed-") + test->test_suite_name() + "." + test->name() +
                 ".png");
}

}  // namespace harness
