#include "capture/nhw32/uia/automation_calls.h"

namespace nhw32 {

bool AutomationCalls::mayCall() {
  if (now_() - start_ > kQuestionLimit - kCallLimit) outOfTime_ = true;
  return !outOfTime_ && !failed_;
}

bool AutomationCalls::succeeded(HRESULT result) {
  if (result == kAutomationTimeout) outOfTime_ = true;
  failed_ = FAILED(result);
  return !failed_;
}

}  // namespace nhw32
