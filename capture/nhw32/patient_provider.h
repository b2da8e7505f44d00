#pragma once

#include <memory>

#include "capture/nhw32/clock.h"
#include "capture/nhw32/patience.h"
#include "capture/nhw32/text_provider.h"

namespace nhw32 {

/// Asks by another provider, but not the windows that keep running out of time.
class PatientProvider : public TextProvider {
 public:
  explicit PatientProvider(std::unique_ptr<TextProvider> provider,
                           Clock clock = std::chrono::steady_clock::now)
      : provider_(std::move(provider)), clock_(std::move(clock)) {}

  Answer wordAt(const Question& question) override;

 private:
  std::unique_ptr<TextProvider> provider_;
  Clock clock_;
  Patience patience_;
};

}  // namespace nhw32
