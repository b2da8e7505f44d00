#pragma once

#include "capture/nhw32/text_provider.h"

namespace nhw32 {

/// Asks edit controls by their messages.
class EditProvider : public TextProvider {
 public:
  Answer wordAt(const Question& question) override;
};

}  // namespace nhw32
