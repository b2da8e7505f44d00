#include "capture/nhw32/patient_provider.h"

namespace nhw32 {

Answer PatientProvider::wordAt(const Question& question) {
  if (!patience_.mayAsk(question.window, clock_())) return {};
  Answer answer = provider_->wordAt(question);
  patience_.note(question.window, answer.outcome, clock_());
  return answer;
}

}  // namespace nhw32
