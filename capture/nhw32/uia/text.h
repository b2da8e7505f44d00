#pragma once

// Classic COM only: no IInspectable.
#define __WRL_CLASSIC_COM__

#include <windows.h>

#include <wrl/client.h>

#include <chrono>
#include <optional>

#include "capture/nhw32/reader.h"
#include "capture/nhw32/uia/uia_interfaces.h"

/// Reading the text of an element by UI Automation.
namespace nhw32 {

using Microsoft::WRL::ComPtr;

/// Maximum time of one question to UI Automation.
inline constexpr std::chrono::milliseconds kUiaQuestionTime{500};
/// Maximum time of one call, which the client is told.
inline constexpr std::chrono::milliseconds kUiaCallTime{200};

/// Makes the calls of one question. After a call has failed, or if a further call could end later
/// than kUiaQuestionTime after this object was made, no more calls are made.
class UiaCalls {
 public:
  explicit UiaCalls(const Clock& now) : now_(now), start_(now()) {}

  /// Makes a call unless the question has ended; returns whether it was made and succeeded. `call`
  /// returns an HRESULT.
  template <class Call>
  bool make(Call call) {
    return mayCall() && succeeded(call());
  }

  /// Returns whether the question ended by a timeout.
  [[nodiscard]] bool outOfTime() const { return outOfTime_; }

 private:
  bool mayCall();
  bool succeeded(HRESULT result);

  const Clock& now_;
  std::chrono::steady_clock::time_point start_;
  bool failed_ = false;
  bool outOfTime_ = false;
};

/// Returns the text pattern of the element under the question's point, or of the nearest of ten
/// ancestors that has one. Returns null if one of the elements on the way is a password field or
/// does not report whether it is, and if the text belongs neither to the process nor to the
/// top-level window of the question's window.
ComPtr<IUIAutomationTextPattern> textPatternAt(IUIAutomation& client, const Question& question,
                                               UiaCalls& calls);

/// Returns the word under `point` (physical screen pixels) and its box. Reads at most some hundred
/// characters around the point, however long the text is.
std::optional<Word> wordUnder(IUIAutomationTextPattern& pattern, ScreenPoint point,
                              UiaCalls& calls);

}  // namespace nhw32
