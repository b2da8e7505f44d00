#include "capture/nhw32/uia/calls.h"

#include "capture/nhw32/uia/limits.h"
#include "capture/nhw32/uia/uia_interfaces.h"

namespace nhw32 {

void UiaCalls::checkTime() const {
  if (now_() - start_ > limit_ - kUiaCallTime) throw NoAnswer(Outcome::kUiaOutOfTime);
}

void UiaCalls::checkResult(HRESULT result) {
  if (result == UIA_E_TIMEOUT) throw NoAnswer(Outcome::kUiaOutOfTime);
  if (FAILED(result)) throw NoAnswer(Outcome::kNone);
}

}  // namespace nhw32
