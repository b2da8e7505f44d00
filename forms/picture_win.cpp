#include "forms/picture.h"

#include <map>

namespace forms {

struct Picture::Drawings {
  int resource = 0;
  std::map<int, win32::OwnedIcon> bySize;
};

Picture::Picture(int iconResource) : drawings_(std::make_shared<Drawings>()) {
  drawings_->resource = iconResource;
}

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
