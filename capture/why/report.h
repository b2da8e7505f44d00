#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "capture/nhw32/router.h"

/// What capturewhy prints: why the popup does or does not name the word at a place. Pure.
namespace capture {

/// A window, and what asking it for the word at a place came to.
struct WhyFindings {
  nhw32::ScreenPoint point;
  std::u16string program;      ///< the file name of the window's program; "" if it is not told
  nhw32::Diagnosis diagnosis;  ///< classes only, of a window that Lexilo does not ask
};

/// Returns whether Lexilo asks a window of these classes.
bool isAsked(const nhw32::Diagnosis& diagnosis);

/// Returns the report, lines that end with LF: the window's class and real class, which entry of
/// the probe's table admits it, which reader read it, how long that took and what came back. Of a
/// password field it says that it is one, and nothing else.
std::u16string whyReport(const WhyFindings& findings);

}  // namespace capture
