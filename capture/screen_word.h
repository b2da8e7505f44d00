#pragma once

/// Screen word capture: the switches that every other window of the program calls.
namespace ScreenWord {

/// Starts the three timers of frmScreenWord, loading it where it is not loaded. Idempotent.
void StartCapture();

/// Stops the three timers of frmScreenWord, loading it where it is not loaded. Idempotent.
void StopCapture();

}  // namespace ScreenWord
