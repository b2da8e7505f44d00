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
  std::u16string program;       ///< the file name of the window's program; "" if it is not told
  bool furtherWindows = false;  ///< the settings switch further windows on
  nhw32::Diagnosis diagnosis;   ///< classes only, of a window that Lexilo does not ask
};

/// Returns whether Lexilo asks a window of these classes, of that program, with these settings.
bool isAsked(const WhyFindings& findings);

/// Returns the report, lines that end with LF: the window's class and real class, which entry of
/// which table admits it, whether further windows are on, which reader read it, how long that took
/// and what came back. Of a password field it says that it is one, and nothing else.
std::u16string whyReport(const WhyFindings& findings);

}  // namespace capture
