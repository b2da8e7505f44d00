#include "capture/frm_screen_word_meaning.h"

#include <stdexcept>

#include "app/state.h"
#include "capture/screen_word.h"
#include "forms/loaded_forms.h"
#include "text/query_text.h"
#include "win32/monitor.h"

namespace {

constexpr data::LookupOptions kRules{.lambdaUpperKey = true, .chineseMeaningFindsBounds = true};

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmScreenWordMeaning";
  design.caption = u"Form2";
  design.frame = forms::Frame::kBorderless;
  design.width = 3345;
  design.height = 1320;
  design.neverActive = true;
  design.shadow = true;
  design.background = COLOR_INFOBK;
  return design;
}

}  // namespace

frmScreenWordMeaning::frmScreenWordMeaning() : Form(design()), lookup_(user::IdxWords, kRules) {
  txtOut.setFont({u"宋体", 9});
  Timer1.onTimer = [this] { Timer1_Timer(); };
}

void frmScreenWordMeaning::Form_Load() {
  GetCursorPos(&StartPos);
  // Wholly onto the pointer's monitor while it is hidden: its fonts and sizes are those of the one
  // on which most of it lies.
  const RECT monitor = win32::monitorAt(StartPos).bounds;
  SetWindowPos(handle(), nullptr, monitor.left, monitor.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  Timer1.setEnabled(true);
  forms::doEvents();
}

void frmScreenWordMeaning::Timer1_Timer() {
  GetCursorPos(&CurPos);
  if (!capture::hasMovedAway(StartPos.x, StartPos.y, CurPos.x, CurPos.y)) return;
  ScreenWord::StartCapture();
  Timer1.setEnabled(false);
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
  Adodc1.setConnectionString(user::ConnectionString);
  user::escapeQuote(word);
  lookUp(word, control);
  if (control.recordset().empty()) {
    if (word.empty()) throw std::length_error("an empty word has no last character");
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
  // Once placed it keeps the size of the pointer's monitor, also where it reaches into another.
  if (message == WM_DPICHANGED && placed_) return 0;
  return Form::handleMessage(message, wParam, lParam);
}
