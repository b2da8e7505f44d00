#include "capture/frm_screen_word_meaning.h"

#include <stdexcept>

#include "app/state.h"
#include "capture/nhw32/nhw32.h"
#include "capture/screen_word.h"
#include "forms/loaded_forms.h"
#include "text/query_text.h"
#include "win32/monitor.h"

// The popup is loaded hidden, at the pointer's monitor, so that it has that monitor's DPI before it
// gets a text. showMeaning looks the word up, writes the text, computes size and place from the
// lengths of the text alone (capture/popup.h) and shows the window there.
//
// Two timers close it. Timer1 looks at nothing but how far the pointer has gone. The other one is
// for what happens under a pointer that rests: by the time a user has scrolled or typed, or another
// program has come to the front, the word that the popup explains is somewhere else, or gone.
namespace {

/// Deliberate: unlike the quick lookup window's, in both respects.
constexpr data::LookupOptions kRules{.lambdaUpperKey = true, .chineseMeaningFindsBounds = true};

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmScreenWordMeaning";
  design.caption = u"Form2";  // Deliberate: the given one, which nobody sees
  design.frame = forms::Frame::kBorderless;
  design.width = 3345;
  design.height = 1320;
  design.neverActive = true;
  design.shadow = true;
  design.background = COLOR_INFOBK;
  // Its size is computed for texts of 9 points.
  design.fixedTexts = true;
  return design;
}

}  // namespace

frmScreenWordMeaning::frmScreenWordMeaning() : Form(design()), lookup_(user::IdxWords, kRules) {
  txtOut.setFont({u"宋体", 9});
  Timer1.onTimer = [this] { Timer1_Timer(); };
  watchTimer.onTimer = [this] { watchTimer_Timer(); };
}

void frmScreenWordMeaning::Form_Load() {
  GetCursorPos(&StartPos);
  // Moved wholly onto the pointer's monitor while it is hidden: a window has the DPI of the monitor
  // that most of it is on.
  const RECT monitor = win32::monitorAt(StartPos).bounds;
  SetWindowPos(handle(), nullptr, monitor.left, monitor.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  watch_.emplace(wordPlace_.emplace(handle(), StartPos).look());
  // Deliberate: the timer is enabled already. The events that are handled here may be a tick that
  // unloads this form; the caller looks.
  Timer1.setEnabled(true);
  forms::doEvents();
  if (!isUnloading()) watchTimer.setEnabled(true);
}

void frmScreenWordMeaning::Form_Unload() {
  watchTimer.setEnabled(false);
  wordPlace_.reset();
}

void frmScreenWordMeaning::Timer1_Timer() {
  GetCursorPos(&CurPos);
  if (!capture::hasMovedAway(StartPos.x, StartPos.y, CurPos.x, CurPos.y)) return;
  // Deliberate: capture runs again, whatever stopped it meanwhile.
  ScreenWord::StartCapture();
  Timer1.setEnabled(false);
  unload();
}

// The same closing, with two differences. A key may have brought the user to a box or a dialog of
// ours, which holds capture off for as long as it lasts; and the pointer is still where it was, so
// that another popup would open over the work at once.
void frmScreenWordMeaning::watchTimer_Timer() {
  const capture::PopupSight sight = wordPlace_->look();
  if (!watch_->look(sight)) return;
  if (!ScreenWord::HeldOff) ScreenWord::StartCapture();
  Timer1.setEnabled(false);
  nhw32::leaveAlone({sight.x, sight.y});
  ScreenWord::strScreenWord.clear();
  unload();
}

void frmScreenWordMeaning::getBound(std::u16string_view word, data::DataControl& control) {
  lookup_.getBound(word, control);
}

std::u16string frmScreenWordMeaning::findword(std::u16string_view EorC,
                                              std::u16string_view word) try {
  return lookup_.findword(EorC, word, Adodc1);
} catch (const std::exception&) {
  return {};
}

std::u16string frmScreenWordMeaning::showMeaning(std::u16string& word,
                                                 data::DataControl& control) try {
  // Deliberate: the popup's own control, whichever `control` is.
  Adodc1.setConnectionString(user::ConnectionString);
  // Deliberate: in the caller's variable, and in the headword that is shown.
  user::escapeQuote(word);
  lookUp(word, control);
  if (control.recordset().empty()) {
    if (word.empty()) throw std::length_error("an empty word has no last character");
    // Deliberate: whatever the last character is, a plural s or not; quotes that are doubled
    // already are doubled again; and the headword that is shown stays whole.
    std::u16string shorter = word.substr(0, word.size() - 1);
    lookUp(user::escapeQuote(shorter), control);
  }
  const auto text = capture::popupText(word, data::readMeanings(control.recordset()));
  write(text);
  place(text);
  return text.body;
} catch (const std::exception&) {
  control.recordset().close();
  return {};
}

void frmScreenWordMeaning::lookUp(std::u16string_view escapedWord, data::DataControl& control) {
  control.setRecordSource(findword(user::getEorC(escapedWord), escapedWord));
  control.refresh();
}

void frmScreenWordMeaning::write(const capture::PopupText& text) {
  const std::u16string_view body = text.body;
  const auto head = static_cast<std::size_t>(text.headLength);
  txtOut.setRuns(
      {{body.substr(0, head), user::kHeadwordColor}, {body.substr(head), user::kMeaningColor}});
}

void frmScreenWordMeaning::place(const capture::PopupText& text) {
  const auto size = capture::popupSize(text.headLength, text.meaningLength);
  const win32::Monitor monitor = win32::monitorAt(StartPos);
  const auto place = capture::popupPlace(StartPos.x, StartPos.y, size,
                                         {monitor.bounds.left, monitor.bounds.right, monitor.dpi});
  placed_ = true;
  SetWindowPos(handle(), HWND_TOPMOST, place.left, place.top, place.width, place.height,
               SWP_SHOWWINDOW);
  txtOut.move({0, 0, size.width, size.height});
}

LRESULT frmScreenWordMeaning::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Once placed it keeps the size for the pointer's monitor, even if it reaches into another.
  if (message == WM_DPICHANGED && placed_) return 0;
  if (message == WM_INPUT && wordPlace_) wordPlace_->noteMouse(lParam);
  return Form::handleMessage(message, wParam, lParam);
}
