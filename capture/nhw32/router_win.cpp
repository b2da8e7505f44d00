#include "capture/nhw32/router.h"

#include "capture/nhw32/choose_way.h"
#include "capture/nhw32/controls/control_question.h"
#include "capture/nhw32/controls/edit_provider.h"
#include "capture/nhw32/controls/rich_edit_provider.h"
#include "capture/nhw32/patient_provider.h"
#include "capture/nhw32/uia/automation_provider.h"

namespace nhw32 {
namespace {

class Router : public TextProvider {
 public:
  Answer wordAt(const Question& question) override try {
    return providerFor(question.window).wordAt(question);
  } catch (const NoAnswer& silence) {
    return {.outcome = silence.outcome(), .word = {}};
  }

 private:
  TextProvider& providerFor(WindowId window) {
    auto* const handle = reinterpret_cast<HWND>(window);
    const Way way = wayFor(classNameOf(handle), realClassOf(handle));
    if (way == Way::automation || !hasLines(window)) return *automation_;
    if (way == Way::richEdit) return richEdit_;
    return edit_;
  }

  EditProvider edit_;
  RichEditProvider richEdit_;
  std::unique_ptr<TextProvider> automation_ = makeAutomationProvider();
};

}  // namespace

std::unique_ptr<TextProvider> makeRouter() {
  return std::make_unique<PatientProvider>(std::make_unique<Router>());
}

}  // namespace nhw32
