#include "capture/screen_word.h"

#include <array>

#include "capture/frm_screen.h"
#include "capture/frm_screen_word.h"
#include "capture/nhw32/nhw32.h"
#include "capture/probe_rules.h"
#include "forms/geometry.h"
#include "forms/registry.h"
#include "text/strings.h"
#include "win32/win32.h"

namespace ScreenWord {
namespace {

/// Characters that the service writes at most, beside its NUL.
constexpr std::size_t kMostText = 100;

/// Room for a class name, of which at most 63 characters are read.
constexpr std::size_t kClassNameRoom = 100;
constexpr int kClassNameCount = 64;

void disarm() { nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0); }

void takeWord() {
  disarm();
  std::array<char, kMostText + 1> buffer{};
  RECT wordPlace{};
  nhw32::BL_GetText32(buffer.data(), kMostText, &wordPlace);
  strScreenWord = pendingWord(buffer);
}

/// Covers a window with the strip while it lives, however the probe ends.
class Covered {
 public:
  explicit Covered(const capture::Rectangle& place) { strip_.cover(place); }
  ~Covered() { strip_.uncover(); }
  Covered(const Covered&) = delete;
  Covered& operator=(const Covered&) = delete;

 private:
  frmScreen& strip_ = forms::single<frmScreen>();
};

void setCapture(bool enabled) {
  auto& host = forms::single<frmScreenWord>();
  host.timScreenWord1.setEnabled(enabled);
  host.timScreenWord2.setEnabled(enabled);
  host.Timer1.setEnabled(enabled);
}

}  // namespace

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != MsgHasString) return CallWindowProcA(OldWndProc, window, message, wParam, lParam);
  try {
    takeWord();
  } catch (const std::exception&) {
    // What was pending stays so until the next probe, which asks again.
  }
  return 0;
}

std::u16string pendingWord(std::span<const char> buffer) {
  return std::u16string(text::trimBlanks(win32::fromAnsi(capture::reportedText(buffer))));
}

void CatchWordAt(const POINT& point) {
  HWND window = WindowFromPoint(point);
  std::array<char, kClassNameRoom> name{};
  GetClassNameA(window, name.data(), kClassNameCount);
  if (!capture::isProbed({name.data(), name.size()})) return;
  RECT place{};
  GetWindowRect(window, &place);
  const auto strip = capture::stripPlace(point.x, point.y, place.left, place.right);
  disarm();
  const Covered covered(strip);
  nhw32::BL_SetFlag32(nhw32::kArm, hScreenWordWnd, forms::toInt16(point.x),
                      forms::toInt16(point.y));
}

void StartCapture() { setCapture(true); }

void StopCapture() { setCapture(false); }

}  // namespace ScreenWord
