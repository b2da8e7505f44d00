#pragma once

#include <windows.h>

#include <array>

#include "tests/support/window/scoped_import.h"

extern "C" decltype(&SystemParametersInfoW) __imp_SystemParametersInfoW;

namespace support {

/// Other system colours while it lives, for all windows, which are told (WM_SYSCOLORCHANGE). Wine
/// makes new brushes for them (GetSysColorBrush), also when they are set back.
class SystemColors {
 public:
  struct Color {
    int index;
    COLORREF value;
  };
  template <std::size_t Count>
  explicit SystemColors(const std::array<Color, Count>& colors) : count_(Count) {
    std::array<COLORREF, Count> values{};
    for (std::size_t i = 0; i < Count; ++i) {
      indexes_.at(i) = colors.at(i).index;
      before_.at(i) = GetSysColor(colors.at(i).index);
      values.at(i) = colors.at(i).value;
    }
    SetSysColors(static_cast<int>(count_), indexes_.data(), values.data());
  }
  ~SystemColors() { SetSysColors(static_cast<int>(count_), indexes_.data(), before_.data()); }
  SystemColors(const SystemColors&) = delete;
  SystemColors& operator=(const SystemColors&) = delete;

 private:
  static constexpr std::size_t kMost = 16;
  std::size_t count_;
  std::array<int, kMost> indexes_{};
  std::array<COLORREF, kMost> before_{};
};

/// The system with a high-contrast theme of light texts on black while it lives. The colours of a
/// selection stay: another test compares their brush with that of a class registered before.
class HighContrast {
 public:
  HighContrast() : colors_(kColors), import_(__imp_SystemParametersInfoW, &ask) {}

 private:
  static BOOL WINAPI ask(UINT action, UINT parameter, void* data, UINT flags) {
    if (action != SPI_GETHIGHCONTRAST) return system()(action, parameter, data, flags);
    static_cast<HIGHCONTRASTW*>(data)->dwFlags = HCF_HIGHCONTRASTON | HCF_AVAILABLE;
    return TRUE;
  }

  /// The system's own function: the import, which is shared, leads to ask().
  static decltype(&SystemParametersInfoW) system() {
    return reinterpret_cast<decltype(&SystemParametersInfoW)>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"user32"), "SystemParametersInfoW")));
  }

  static constexpr std::array<SystemColors::Color, 10> kColors = {{
      {COLOR_WINDOW, RGB(0, 0, 0)},
      {COLOR_WINDOWTEXT, RGB(255, 255, 255)},
      {COLOR_BTNFACE, RGB(0, 0, 0)},
      {COLOR_BTNTEXT, RGB(255, 255, 255)},
      {COLOR_INFOBK, RGB(0, 0, 0)},
      {COLOR_INFOTEXT, RGB(255, 255, 255)},
      {COLOR_GRAYTEXT, RGB(63, 242, 63)},
      {COLOR_BTNSHADOW, RGB(128, 128, 128)},
      {COLOR_BTNHIGHLIGHT, RGB(192, 192, 192)},
      {COLOR_3DDKSHADOW, RGB(255, 255, 255)},
  }};

  SystemColors colors_;
  ScopedImport<decltype(&SystemParametersInfoW)> import_;
};

}  // namespace support
