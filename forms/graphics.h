#pragma once

#include <memory>
#include <string>

#include "win32/handles.h"

/// Fonts and pictures of widgets, independent of the resolution. User-interface thread only.
namespace forms {

/// A face and a size. An empty face is the system's font for messages, at its own size.
struct Font {
  std::u16string face;
  double points = 9;
  bool fixedPitch = false;  ///< if the face is missing, Windows takes one of fixed pitch
};

/// Returns the system's description of `font` for a monitor of `dpi`. A font with a face is scaled
/// to `textDpi` instead, which is larger where the user has made texts larger; the system's own
/// font is larger then anyway.
LOGFONTW describe(const Font& font, int dpi, int textDpi);

/// Creates a font object. Throws std::runtime_error if Windows cannot create it.
win32::OwnedFont makeFont(const LOGFONTW& description);
/// The same for `font` at `dpi`.
win32::OwnedFont makeFont(const Font& font, int dpi);

/// An icon of the program's resources, drawn once for each size that is asked for. Copies share one
/// identity: two buttons show the same picture if the identities are equal, not if the drawings
/// are.
class Picture {
 public:
  /// No picture.
  Picture() = default;
  explicit Picture(int iconResource);

  /// Compares identities.
  bool operator==(const Picture&) const = default;

  /// Returns the picture drawn for a square of `size` pixels; nullptr for no picture, or if there
  /// is no such resource. Valid as long as a copy of the picture exists.
  [[nodiscard]] HICON icon(int size) const;

 private:
  struct Drawings;
  std::shared_ptr<Drawings> drawings_;
};

}  // namespace forms
