#pragma once

#include "capture/probe.h"
#include "forms/form.h"

/// The probe strip: a band of pure blue that covers a few rows of a window for a moment, so that
/// the window draws them anew.
class frmScreen : public forms::Form {
 public:
  frmScreen();

  /// Covers `place`, above all windows and without taking the focus.
  void cover(const capture::Rectangle& place);
  /// Goes off the desktop again.
  void uncover();

 private:
  void Form_Load() override;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};
