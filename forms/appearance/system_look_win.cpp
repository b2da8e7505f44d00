#include "forms/appearance/system_look.h"

#include <cstdlib>

#include "forms/appearance/contrast.h"
#include "forms/appearance/text_size.h"

namespace forms {

NONCLIENTMETRICSW windowMetrics(int dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                             static_cast<UINT>(dpi));
  return metrics;
}

double textScale(const NONCLIENTMETRICSW& metrics, int dpi) {
  return textScale(static_cast<int>(std::abs(metrics.lfMessageFont.lfHeight)), dpi);
}

bool isHighContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != FALSE &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

COLORREF systemBackgroundFor(std::span<const std::uint32_t> texts, int index) {
  return backgroundFor(texts, GetSysColor(index), isHighContrast());
}

}  // namespace forms
