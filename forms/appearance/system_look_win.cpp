#include "forms/appearance/system_look.h"

#include <span>

#include "forms/appearance/contrast.h"

namespace forms {

bool isHighContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != FALSE &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

COLORREF systemBackgroundFor(std::initializer_list<std::uint32_t> texts, int index) {
  return backgroundFor(std::span(texts.begin(), texts.size()), GetSysColor(index),
                       isHighContrast());
}

}  // namespace forms
