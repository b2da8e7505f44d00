#pragma once

#include <functional>

#include "data/data_control.h"
#include "forms/form.h"
#include "forms/timer.h"

/// The hidden host of word capture: its timers probe the place under the pointer and hand the words
/// that are found to the popup. It is never seen.
class frmScreenWord : public forms::Form {
 public:
  frmScreenWord();

  forms::Timer Timer1{*this, 5, true};
  forms::Timer timScreenWord1{*this, 100, true};
  /// Switched with the others; it has no tick.
  forms::Timer timScreenWord2{*this, 60000, true};
  data::DataControl Adodc1;

  /// Tells where the pointer is, in screen pixels.
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
