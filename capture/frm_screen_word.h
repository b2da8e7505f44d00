#pragma once

#include "data/data_control.h"
#include "forms/form.h"
#include "forms/timer.h"

/// The hidden host of word capture: it owns the timers of the capture cycle and is never seen.
class frmScreenWord : public forms::Form {
 public:
  frmScreenWord();

  forms::Timer Timer1{*this, 5, true};
  forms::Timer timScreenWord1{*this, 100, true};
  /// Switched with the others; it has no tick.
  forms::Timer timScreenWord2{*this, 60000, true};
  data::DataControl Adodc1;

 private:
  void Form_Load() override;
};
