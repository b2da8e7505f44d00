#include <gtest/gtest.h>
#include <windows.h>

// Coordinates of the screen are wanted, whatever the resolution.
int main(int argc, char** argv) {
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
