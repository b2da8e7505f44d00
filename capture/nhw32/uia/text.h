#pragma once

// Classic COM only: no IInspectable. The name is that of wrl/client.h.
#define __WRL_CLASSIC_COM__  // NOLINT(bugprone-reserved-identifier)

#include <windows.h>

#include <wrl/client.h>

#include <chrono>
#include <optional>

#include "capture/nhw32/reader.h"
#include "capture/nhw32/uia/uia_interfaces.h"

/// Reading the text of an element by UI Automation.
namespace nhw32 {

using Microsoft::WRL::ComPtr;

/// Maximum time of one question to UI Automation. Longer than for a control, since a question takes
/// some twenty calls.
inline constexpr std::chrono::milliseconds kUiaQuestionTime{500};
/// Maximum time of one call; the client is given it as its limit.
inline constexpr std::chrono::milliseconds kUiaCallTime{200};

/// Makes the calls of one question, which starts when this object is made.
class UiaCalls {
 public:
  /// Keeps `now` by reference.
  explicit UiaCalls(const Clock& now) : now_(now), start_(now()) {}

  /// Makes a call, which returns an HRESULT. Throws NoAnswer(kOutOfTime) if the call times out, or,
  /// without making it, if it could end later than kUiaQuestionTime after the start. Throws
  /// NoAnswer(kNone) if it fails otherwise.
  template <class Call>
  void make(Call call) {
    checkTime();
    checkResult(call());
  }

 private:
  void checkTime() const;
  static void checkResult(HRESULT result);

  const Clock& now_;
  std::chrono::steady_clock::time_point start_;
};

/// Returns the text pattern of the element under the question's point, or of the nearest of ten
/// ancestors that has one, otherwise null. Returns null as well if one of the elements on the way
/// is a password field or does not report whether it is, and if the text belongs neither to the
/// process nor to the top-level window of the question's window. Throws NoAnswer.
ComPtr<IUIAutomationTextPattern> textPatternAt(IUIAutomation& client, const Question& question,
                                               UiaCalls& calls);

/// Returns the word under `point` and its box, otherwise nullopt. Reads at most
/// text::kMaxReach characters on each side of the point, however long the text is. Throws NoAnswer.
std::optional<Word> wordUnder(IUIAutomationTextPattern& pattern, ScreenPoint point,
                              UiaCalls& calls);

}  // namespace nhw32
