#pragma once

#include <functional>

#include "capture/further_step.h"
#include "capture/probe.h"
#include "data/data_control.h"
#include "data/headword_lookup.h"
#include "forms/form.h"
#include "forms/timer.h"

/// The probe strip: a borderless band of pure blue that covers a few rows of a window for a moment,
/// so that the window draws them anew. Never takes the focus; has no taskbar button and no place in
/// Alt+Tab. Between probes it is visible, but off the desktop, so that a probe only moves it.
class frmScreen : public forms::Form {
 public:
  frmScreen();

  /// Covers `place` (screen pixels), above all windows, until uncover.
  void cover(const capture::Rectangle& place);
  /// Moves off the desktop; hides if a monitor is there as well.
  void uncover();

 private:
  void Form_Load() override;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// The hidden host of word capture: its timers probe the place under the pointer and hand the words
/// that are found to the popup. Capture exists while it is loaded, and runs while its timers are
/// enabled (ScreenWord::StartCapture and StopCapture). Errors in its ticks end the tick silently.
class frmScreenWord : public forms::Form {
 public:
  frmScreenWord();

  /// Hands over a pending word; ticks many times between two probes.
  forms::Timer Timer1{*this, 5, true};
  /// Probes the point under the pointer.
  forms::Timer timScreenWord1{*this, 100, true};
  /// Deliberate: switched with the others, and off after each probe, but without a tick.
  forms::Timer timScreenWord2{*this, 60000, true};
  /// Deliberate: connected, but not used; the popup has its own.
  data::DataControl Adodc1;
  /// Tells the service which reading of a word is a headword; by a connection of its own.
  data::KnownHeadwords headwords;
  /// Looks at the windows that no probe asks, after each probe.
  capture::FurtherStep further;

  /// Returns the pointer's position in screen pixels; tests set one of their own.
  std::function<POINT()> pointerPlace = [] {
    POINT pointer{};
    GetCursorPos(&pointer);
    return pointer;
  };

 private:
  void Form_Load() override;
  void Form_Unload() override;
  void timScreenWord1_Timer();
  void Timer1_Timer();
  void catchWord();

  bool handingOver_ = false;
};
