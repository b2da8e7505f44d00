#include "forms/graphics.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "forms/appearance/system_look.h"
#include "win32/win32.h"

namespace forms {
namespace {

/// A negative height is that of the letters, as points count, without the line's leading.
LOGFONTW namedFont(const Font& font, int dpi) {
  constexpr double kPointsPerInch = 72;
  LOGFONTW description{};
  description.lfHeight = -static_cast<LONG>(std::lround(font.points * dpi / kPointsPerInch));
  description.lfWeight = FW_NORMAL;
  description.lfCharSet = DEFAULT_CHARSET;
  if (font.fixedPitch) description.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
  const auto length = std::min(font.face.size(), std::size_t{LF_FACESIZE - 1});
  std::copy_n(font.face.begin(), length, description.lfFaceName);
  return description;
}

}  // namespace

LOGFONTW describe(const Font& font, int dpi, int textDpi) {
  return font.face.empty() ? windowMetrics(dpi).lfMessageFont : namedFont(font, textDpi);
}

win32::OwnedFont makeFont(const Font& font, int dpi) { return makeFont(describe(font, dpi, dpi)); }

win32::OwnedFont makeFont(const LOGFONTW& description) {
  win32::OwnedFont made(CreateFontIndirectW(&description));
  if (!made) win32::throwLastError();
  return made;
}

struct Picture::Drawings {
  int resource = 0;
  std::map<int, win32::OwnedIcon> bySize;
};

Picture::Picture(int iconResource) : drawings_(std::make_shared<Drawings>()) {
  drawings_->resource = iconResource;
}

// LoadImage takes the nearest size that the resource holds and scales it.
HICON Picture::icon(int size) const {
  if (drawings_ == nullptr) return nullptr;
  win32::OwnedIcon& icon = drawings_->bySize[size];
  if (!icon) {
    icon = win32::OwnedIcon(static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr),
                                                          MAKEINTRESOURCEW(drawings_->resource),
                                                          IMAGE_ICON, size, size, 0)));
  }
  return icon.get();
}

}  // namespace forms
