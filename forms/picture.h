#pragma once

#include <memory>

#include "win32/handles.h"

namespace forms {

/// A picture of the program's resources. Copies share one identity; its bitmaps for each size hang
/// below it. Two buttons show the same picture when their identities are equal.
class Picture {
 public:
  Picture() = default;
  explicit Picture(int iconResource);

  bool operator==(const Picture&) const = default;

  /// The picture drawn for a square of `size` pixels; nullptr for no picture.
  [[nodiscard]] HICON icon(int size) const;

 private:
  struct Drawings;
  std::shared_ptr<Drawings> drawings_;
};

}  // namespace forms
