#include "win32/monitor.h"

namespace win32 {
namespace {

Monitor describe(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  GetMonitorInfoW(monitor, &info);
  // Its page recommends GetDpiForWindow for per-monitor aware threads. There may be no window on
  // this monitor; in a process that is per-monitor aware the value is the monitor's own (same
  // page).
  UINT dpiX = 96;
  UINT dpiY = 96;
  GetDpiForMonitor(monitor, MDT_EFFECTIVE_DPI, &dpiX, &dpiY);
  return {info.rcMonitor, info.rcWork, static_cast<int>(dpiX)};
}

}  // namespace

Monitor monitorOf(HWND window) {
  return describe(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
}

Monitor monitorAt(POINT point) {
  return describe(MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST));
}

SIZE frameOf(DWORD style, DWORD exStyle, int dpi) {
  RECT rect{};
  AdjustWindowRectExForDpi(&rect, style, FALSE, exStyle, static_cast<UINT>(dpi));
  return {rect.right - rect.left, rect.bottom - rect.top};
}

}  // namespace win32
