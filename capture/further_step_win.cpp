#include "capture/further_step.h"

#include <array>

#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/service.h"
#include "capture/probe.h"
#include "forms/geometry.h"

namespace capture {
namespace {

/// By as many characters of the class name as a probe reads: no window is of both tables, or of
/// none because of that.
FurtherSight::Window kindOf(HWND window) {
  constexpr int kRoom = 64;
  std::array<char, kRoom> name{};
  const int length = GetClassNameA(window, name.data(), kRoom);
  const std::string_view className(name.data(), static_cast<std::size_t>(length));
  if (isProbed(className)) return FurtherSight::Window::kProbed;
  return furtherAs(className) ? FurtherSight::Window::kFurther : FurtherSight::Window::kOther;
}

/// Whether any key or mouse button is down, in any program; virtual-key codes are 1 to 254.
bool isInputDown() {
  for (int key = 1; key < 255; ++key) {
    if (GetAsyncKeyState(key) < 0) return true;
  }
  return false;
}

}  // namespace

void FurtherStep::look(HWND host, const POINT& point) {
  if (wanted_ == false) return;
  const HWND window = WindowFromPoint(point);
  FurtherSight sight{.kind = kindOf(window),
                     .window = reinterpret_cast<std::uintptr_t>(window),
                     .x = static_cast<int>(point.x),
                     .y = static_cast<int>(point.y),
                     .armed = nhw32::service().armed()};
  if (sight.kind == FurtherSight::Window::kFurther) {
    if (!wanted_) wanted_ = isWanted();
    if (!*wanted_) return;
    sight.inputDown = isInputDown();
  }
  const FurtherRest::Act act = rest_.look(sight, clock());
  if (act == FurtherRest::Act::kCancel && ours_) nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0);
  if (act != FurtherRest::Act::kAsk) return;
  ours_ = !isLeftAlone(programOf(window));
  if (!ours_) return;
  nhw32::BL_SetFlag32(nhw32::kArm, host, forms::toInt16(point.x), forms::toInt16(point.y));
}

}  // namespace capture
