#include "capture/frm_screen_word.h"

#include <array>
#include <stdexcept>

#include "app/state.h"
#include "capture/frm_screen.h"
#include "capture/frm_screen_word_meaning.h"
#include "capture/nhw32/nhw32.h"
#include "capture/probe.h"
#include "capture/screen_word.h"
#include "forms/geometry.h"
#include "forms/loaded_forms.h"
#include "text/strings.h"
#include "win32/win32.h"

namespace {

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmScreenWord";
  design.caption = u"Form2";
  design.frame = forms::Frame::kBorderless;
  design.width = 2940;
  design.height = 1695;
  design.neverActive = true;
  design.background = COLOR_HIGHLIGHT;
  return design;
}

LONG_PTR setProcedure(HWND window, WNDPROC procedure) {
  return SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

/// The popup, loaded. It handles events while it loads, and goes again where the pointer moves away
/// meanwhile: then it is loaded once more, since it takes a popup to end the StopCapture that
/// follows. Throws std::runtime_error where the pointer keeps moving for too long.
frmScreenWordMeaning& loadedPopup() {
  constexpr int kMaxTries = 10;
  for (int tries = 0; tries < kMaxTries; ++tries) {
    auto& popup = forms::form<frmScreenWordMeaning>();
    if (forms::isLoaded<frmScreenWordMeaning>()) return popup;
  }
  throw std::runtime_error("the pointer does not rest");
}

}  // namespace

frmScreenWord::frmScreenWord() : Form(design()) {
  timScreenWord1.onTimer = [this] { timScreenWord1_Timer(); };
  Timer1.onTimer = [this] { Timer1_Timer(); };
  // The host is shown for a moment at start-up: left of and above all monitors.
  const int left = forms::toTwips(GetSystemMetrics(SM_XVIRTUALSCREEN), dpi());
  const int top = forms::toTwips(GetSystemMetrics(SM_YVIRTUALSCREEN), dpi());
  setPosition(left - width(), top - height());
}

void frmScreenWord::Form_Load() {
  Adodc1.setConnectionString(user::ConnectionString);
  ScreenWord::hScreenWordWnd = handle();
  ScreenWord::MsgHasString = RegisterWindowMessageA(nhw32::kMessageName);
  ScreenWord::OldWndProc =
      reinterpret_cast<WNDPROC>(setProcedure(handle(), ScreenWord::WindowProc));
  nhw32::SetNHW32();
}

void frmScreenWord::Form_Unload() {
  timScreenWord1.setEnabled(false);
  nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0);
  setProcedure(handle(), ScreenWord::OldWndProc);
  nhw32::ResetNHW32();
}

void frmScreenWord::timScreenWord1_Timer() try {
  // The popup handles events while it loads, ticks of this timer among them. A probe then would arm
  // the service again, and its word, arriving after StopCapture, would open another popup as soon
  // as this one closes.
  if (handingOver_) return;
  catchWord();
  // Deliberate: set up anew after each probe.
  nhw32::SetNHW32();
  ScreenWord::strScreenWord.clear();
} catch (const std::exception&) {
  // The probe ends silently where it failed; the next one comes in a moment.
}

void frmScreenWord::catchWord() {
  ScreenWord::CatchWordAt(pointerPlace());
  timScreenWord2.setEnabled(false);
}

void frmScreenWord::Timer1_Timer() {
  // While the popup loads, a tick would hand the same word over once more.
  if (handingOver_ || !capture::opensPopup(ScreenWord::strScreenWord)) return;
  handingOver_ = true;
  try {
    std::u16string word = ScreenWord::GetFirstWord(ScreenWord::strScreenWord);
    auto& popup = loadedPopup();
    popup.showMeaning(word, popup.Adodc1);
    ScreenWord::strScreenWord.clear();
    ScreenWord::StopCapture();
  } catch (const std::exception&) {
    // No popup then, and nothing to trouble the user with in the middle of other work. Capture goes
    // on: only a popup starts it again.
  }
  handingOver_ = false;
}

namespace ScreenWord {
namespace {

/// Characters that the service writes at most, beside its NUL.
constexpr std::size_t kMaxText = 100;

/// Room for a class name, of which at most 63 characters are read.
constexpr std::size_t kClassNameRoom = 100;
constexpr int kClassNameCount = 64;

void disarm() { nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0); }

void takeWord() {
  disarm();
  std::array<char, kMaxText + 1> buffer{};
  RECT wordPlace{};
  nhw32::BL_GetText32(buffer.data(), kMaxText, &wordPlace);
  strScreenWord = pendingWord(buffer);
}

/// Covers a window with the strip while it lives, however the probe ends.
class ScopedStrip {
 public:
  explicit ScopedStrip(const capture::Rectangle& place) { strip_.cover(place); }
  ~ScopedStrip() { strip_.uncover(); }
  ScopedStrip(const ScopedStrip&) = delete;
  ScopedStrip& operator=(const ScopedStrip&) = delete;

 private:
  frmScreen& strip_ = forms::form<frmScreen>();
};

void setCapture(bool enabled) {
  auto& host = forms::form<frmScreenWord>();
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
  const ScopedStrip covered(strip);
  nhw32::BL_SetFlag32(nhw32::kArm, hScreenWordWnd, forms::toInt16(point.x),
                      forms::toInt16(point.y));
}

void StartCapture() { setCapture(true); }

void StopCapture() { setCapture(false); }

}  // namespace ScreenWord
