#include "capture/screen_word.h"

#include "capture/frm_screen_word.h"
#include "forms/registry.h"

namespace ScreenWord {
namespace {

void setCapture(bool enabled) {
  auto& host = forms::single<frmScreenWord>();
  host.timScreenWord1.setEnabled(enabled);
  host.timScreenWord2.setEnabled(enabled);
  host.Timer1.setEnabled(enabled);
}

}  // namespace

void StartCapture() { setCapture(true); }

void StopCapture() { setCapture(false); }

}  // namespace ScreenWord
