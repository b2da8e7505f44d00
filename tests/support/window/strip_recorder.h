#pragma once

#include <windows.h>

#include <vector>

namespace support {

/// Writes down every place that the probe strip takes, shown or not, while it lives.
class StripRecorder {
 public:
  struct Place {
    RECT rect{};
    bool shown = false;
    bool topmost = false;
    bool tookFocus = false;
  };

  StripRecorder();
  ~StripRecorder();
  StripRecorder(const StripRecorder&) = delete;
  StripRecorder& operator=(const StripRecorder&) = delete;

  [[nodiscard]] static const std::vector<Place>& places();

 private:
  HHOOK hook_;
};

}  // namespace support
