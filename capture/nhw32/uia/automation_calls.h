#pragma once

#include <chrono>

#include "capture/nhw32/clock.h"
#include "capture/nhw32/uia/automation_interfaces.h"

namespace nhw32 {

/// The longest that one question to UI Automation takes.
inline constexpr std::chrono::milliseconds kQuestionLimit{500};
/// The longest that one call of it takes; the client is told so.
inline constexpr std::chrono::milliseconds kCallLimit{200};

/// Makes the calls of one question, and none that could end after the question's time. A call that
/// fails ends the question: what is asked has gone, or does not do what it should.
class AutomationCalls {
 public:
  explicit AutomationCalls(const Clock& now) : now_(now), start_(now()) {}

  /// Makes a call, unless the question has ended, and says whether it succeeded.
  template <class Call>
  bool make(Call call) {
    return mayCall() && succeeded(call());
  }

  [[nodiscard]] bool outOfTime() const { return outOfTime_; }

 private:
  bool mayCall();
  bool succeeded(HRESULT result);

  const Clock& now_;
  std::chrono::steady_clock::time_point start_;
  bool failed_ = false;
  bool outOfTime_ = false;
};

}  // namespace nhw32
