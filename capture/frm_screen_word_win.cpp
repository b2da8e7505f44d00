#include "capture/frm_screen_word.h"

#include <array>
#include <stdexcept>

#include "app/state.h"
#include "capture/frm_screen_word_meaning.h"
#include "capture/nhw32/nhw32.h"
#include "capture/screen_word.h"
#include "forms/geometry.h"
#include "forms/loaded_forms.h"
#include "text/strings.h"
#include "win32/win32.h"

// The capture cycle. All of it runs on the user-interface thread, except for the service's worker.
//
//     every 100 ms  timScreenWord1: CatchWordAt arms the service at the pointer
//                   then FurtherStep does, where no probe does and the settings want it
//     any time      the service posts "BL_HASSTRING"; WindowProc puts the word in strScreenWord
//     every 5 ms    Timer1: a pending English word goes to the popup, and all timers stop
//     then          the popup closes when the pointer moves, or when it has outlived its word, and
//                   starts the timers again
//
// A word is pending until the next probe only: one that comes late is not for the point any more.
namespace {

constexpr COLORREF kStripColor = RGB(0, 0, 255);

/// Left and top off the desktop, in twips. Deliberate: two places, one where the strip is loaded
/// and one where it goes after each probe.
constexpr int kFarAway = -10000;
constexpr int kAway = -1000;

forms::FormDesign stripDesign() {
  forms::FormDesign design;
  design.name = u"frmScreen";
  design.caption = u"Form2";  // Deliberate: the given one, which nobody sees
  design.frame = forms::Frame::kBorderless;
  design.neverActive = true;
  return design;
}

forms::FormDesign hostDesign() {
  forms::FormDesign design;
  design.name = u"frmScreenWord";
  design.caption = u"Form2";  // Deliberate: the given one, which nobody sees
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

/// Returns the loaded popup. While it loads it handles events, and unloads itself if the pointer
/// moves away; it is then loaded again. The caller stops capture next, and only the closing of a
/// loaded popup starts it again. Throws std::runtime_error if the pointer keeps moving.
frmScreenWordMeaning& loadedPopup() {
  constexpr int kMaxTries = 10;  // an arbitrary bound, so that the tick ends
  for (int tries = 0; tries < kMaxTries; ++tries) {
    auto& popup = forms::form<frmScreenWordMeaning>();
    if (forms::isLoaded<frmScreenWordMeaning>()) return popup;
  }
  throw std::runtime_error("the pointer does not rest");
}

}  // namespace

frmScreen::frmScreen() : Form(stripDesign()) {}

void frmScreen::Form_Load() { setPosition(kFarAway, kFarAway); }

void frmScreen::cover(const capture::Rectangle& place) {
  // Not activated: neverActive forms add SWP_NOACTIVATE.
  SetWindowPos(handle(), HWND_TOPMOST, place.left, place.top, place.width, place.height,
               SWP_SHOWWINDOW);
}

void frmScreen::uncover() {
  setPosition(kAway, kAway);
  // Another monitor may be arranged above or left of the primary one.
  RECT place{};
  GetWindowRect(handle(), &place);
  if (MonitorFromRect(&place, MONITOR_DEFAULTTONULL) != nullptr) hide();
}

LRESULT frmScreen::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND: {
      HDC context = reinterpret_cast<HDC>(wParam);
      RECT client{};
      GetClientRect(handle(), &client);
      SetDCBrushColor(context, kStripColor);
      FillRect(context, &client, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
      return TRUE;
    }
    case WM_DPICHANGED:
      // Its size follows from the window that it covers, in pixels of any resolution.
      return 0;
    default:
      return Form::handleMessage(message, wParam, lParam);
  }
}

frmScreenWord::frmScreenWord() : Form(hostDesign()), headwords(user::IdxWords) {
  timScreenWord1.onTimer = [this] { timScreenWord1_Timer(); };
  Timer1.onTimer = [this] { Timer1_Timer(); };
  // The toolbar shows the host for a moment at start-up, which loads it: left of and above all
  // monitors, so that it is not seen.
  const int left = forms::toTwips(GetSystemMetrics(SM_XVIRTUALSCREEN), dpi());
  const int top = forms::toTwips(GetSystemMetrics(SM_YVIRTUALSCREEN), dpi());
  setPosition(left - width(), top - height());
}

void frmScreenWord::Form_Load() {
  ScreenWord::HeldOff = false;  // its timers are enabled
  Adodc1.setConnectionString(user::ConnectionString);
  headwords.setConnectionString(user::ConnectionString);
  nhw32::setIsHeadword([this](std::u16string_view word) { return headwords.has(word); });
  ScreenWord::hScreenWordWnd = handle();
  ScreenWord::MsgHasString = RegisterWindowMessageA(nhw32::kMessageName);
  ScreenWord::OldWndProc =
      reinterpret_cast<WNDPROC>(setProcedure(handle(), ScreenWord::WindowProc));
  nhw32::SetNHW32();
}

// In this order: no probe may arm the service again, and no message of it may come, once the
// procedure that handles it is gone.
void frmScreenWord::Form_Unload() {
  timScreenWord1.setEnabled(false);
  nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0);
  setProcedure(handle(), ScreenWord::OldWndProc);
  nhw32::ResetNHW32();
  nhw32::setIsHeadword(nullptr);
}

void frmScreenWord::timScreenWord1_Timer() try {
  // The popup handles events while it loads, ticks of this timer among them. A probe then would arm
  // the service again, and its word, arriving after StopCapture, would open another popup as soon
  // as this one closes.
  if (handingOver_) return;
  catchWord();
  // Deliberate: SetNHW32 after each probe, although it does nothing while the service runs.
  nhw32::SetNHW32();
  ScreenWord::strScreenWord.clear();
  further.look(ScreenWord::hScreenWordWnd, pointerPlace());
} catch (const std::exception&) {
  // The probe ends where it failed, before the steps that follow; the next one comes in 100 ms.
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
    const bool heldOff = ScreenWord::HeldOff;
    ScreenWord::StopCapture();
    ScreenWord::HeldOff = heldOff;
  } catch (const std::exception&) {
    // No popup, and no message: the user is at work in another program. Capture goes on, since only
    // a popup would start it again.
  }
  handingOver_ = false;
}

namespace ScreenWord {
namespace {

/// The most bytes that the service is to write, without its NUL.
constexpr std::size_t kMaxText = 100;

/// Deliberate: the buffer is larger than the count that is passed, so that at most 63 characters of
/// a class name are read. The NULs after the name do no harm, since isProbed searches for parts.
constexpr std::size_t kClassNameRoom = 100;
constexpr int kClassNameCount = 64;

void disarm() { nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0); }

void takeWord() {
  // Before the word is fetched: called while its message is handled, it leaves the word in place.
  disarm();
  std::array<char, kMaxText + 1> buffer{};
  // Deliberate: received and not used; the popup opens at the pointer.
  RECT wordPlace{};
  nhw32::BL_GetText32(buffer.data(), kMaxText, &wordPlace);
  strScreenWord = pendingWord(buffer);
}

/// Covers a part of the screen with the strip until the end of the scope, also by an exception.
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
  HeldOff = !enabled;
}

}  // namespace

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != MsgHasString) return CallWindowProcA(OldWndProc, window, message, wParam, lParam);
  try {
    takeWord();
  } catch (const std::exception&) {
    // What was pending stays pending until the next probe, which asks again.
  }
  // Deliberate: the message is not passed on to the form.
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
  // Deliberate: the strip, which makes the window redraw its text. Our service needs no redrawing,
  // but the strip is a part of every probe.
  // The coordinates are converted only now: a point beyond 16 bits throws, and has cancelled the
  // earlier question by then.
  const ScopedStrip covered(strip);
  nhw32::BL_SetFlag32(nhw32::kArm, hScreenWordWnd, forms::toInt16(point.x),
                      forms::toInt16(point.y));
}

void StartCapture() { setCapture(true); }

void StopCapture() { setCapture(false); }

}  // namespace ScreenWord
