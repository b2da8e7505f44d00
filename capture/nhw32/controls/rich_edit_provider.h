#pragma once

#include "capture/nhw32/text_provider.h"

namespace nhw32 {

/// Asks rich edit controls by their messages, whose structures lie in the control's own program.
class RichEditProvider : public TextProvider {
 public:
  Answer wordAt(const Question& question) override;
};

}  // namespace nhw32
