#pragma once

#include "tests/support/process/input.h"

/// The user's hands on windows of the test's own process. Mouse events go straight into the
/// system's input, so that they wait in our queue when the call returns.
namespace support::injected {

/// Puts the pointer there; the system knows its place when the call returns.
void moveTo(POINT point);
void pressLeft();
void releaseLeft();
void pressRight();
void releaseRight();
void pressMiddle();
void releaseMiddle();
void click(POINT point);
void rightClick(POINT point);

}  // namespace support::injected
