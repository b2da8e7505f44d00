#pragma once

#include <windows.h>

#include <vector>

namespace wintest {

/// Writes down every place that the probe strip takes, shown or not, while it lives.
class StripWatch {
 public:
  struct Place {
    RECT rect{};
    bool shown = false;
    bool topmost = false;
    bool tookFocus = false;
  };

  StripWatch();
  ~StripWatch();
  StripWatch(const StripWatch&) = delete;
  StripWatch& operator=(const StripWatch&) = delete;

  [[nodiscard]] static const std::vector<Place>& places();

 private:
  HHOOK hook_;
};

}  // namespace wintest
