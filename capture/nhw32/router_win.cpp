#include "capture/nhw32/reader.h"

#include "capture/nhw32/controls/readers.h"
#include "capture/nhw32/controls/target_window.h"
#include "capture/nhw32/policy.h"
#include "capture/nhw32/uia/client.h"

namespace nhw32 {
namespace {

/// Chooses the reader by the window's class. A window that has the class name of a text control but
/// no lines is no text control, and is read by UI Automation.
class WindowReader : public WordReader {
 public:
  Answer wordAt(const Question& question) override try {
    auto* const window = reinterpret_cast<HWND>(question.window);
    switch (readerKindFor(classNameOf(window), realClassOf(window))) {
      case ReaderKind::kEdit:
        if (hasLines(question.window)) return editWordAt(question);
        break;
      case ReaderKind::kRichEdit:
        if (hasLines(question.window)) return richEditWordAt(question);
        break;
      case ReaderKind::kUia:
        break;
    }
    return uia_->wordAt(question);
  } catch (const NoAnswer& failure) {
    return {.outcome = failure.outcome(), .word = {}};
  }

 private:
  std::unique_ptr<WordReader> uia_ = makeUiaReader();
};

}  // namespace

std::unique_ptr<WordReader> makeWindowReader() {
  return std::make_unique<BackoffReader>(std::make_unique<WindowReader>());
}

}  // namespace nhw32
