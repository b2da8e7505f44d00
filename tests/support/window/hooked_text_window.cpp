#include "tests/support/window/hooked_text_window.h"

#include <commctrl.h>

#include <cstdint>

#include "capture/nhw32/policy.h"
#include "capture/nhw32/reader.h"
#include "capture/nhw32/router.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"
#include "tests/support/wait.h"

namespace support {
namespace {

constexpr POINT kPlace{300, 200};

LRESULT CALLBACK hookProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                          DWORD_PTR hook) {
  const auto& function = *reinterpret_cast<const HookedTextWindow::Hook*>(hook);
  if (const auto answer = function(window, message, wParam, lParam)) return *answer;
  return DefSubclassProc(window, message, wParam, lParam);
}

bool isRich(HWND control) { return classOf(control).starts_with(L"RichEdit"); }

}  // namespace

HookedTextWindow::HookedTextWindow(Design design, const std::u16string& text)
    : design_(std::move(design)),
      window_(
          {.controlClass = design_.className,
           .controlStyle = design_.style,
           .place = {kPlace.x, kPlace.y, kPlace.x + design_.size.cx, kPlace.y + design_.size.cy},
           .prepare = [this](HWND control) { prepare(control); }}) {
  setText(text);
}

HookedTextWindow::~HookedTextWindow() {
  window_.close();
  // Its thread may wait for an answer from ours while it goes.
  eventually([this] { return IsWindow(window()) == FALSE; });
}

void HookedTextWindow::prepare(HWND control) const {
  SendMessageW(control, EM_LIMITTEXT, 4'000'000, 0);
  if (design_.font != nullptr) {
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(design_.font), FALSE);
  }
  if (design_.hook) {
    SetWindowSubclass(control, hookProc, 1, reinterpret_cast<DWORD_PTR>(&design_.hook));
  }
}

void HookedTextWindow::setText(const std::u16string& text) const {
  SendMessageW(control(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::optional<POINT> characterCorner(HWND control, std::size_t position) {
  if (isRich(control)) return richTextPosition(control, static_cast<LONG>(position));
  const LRESULT packed = send(control, EM_POSFROMCHAR, position);
  if (static_cast<std::int32_t>(packed) == -1) return std::nullopt;
  POINT corner{static_cast<std::int16_t>(LOWORD(packed)),
               static_cast<std::int16_t>(HIWORD(packed))};
  ClientToScreen(control, &corner);
  return corner;
}

std::optional<RECT> characterCell(HWND control, std::size_t position) {
  constexpr LONG kLowestLine = 11;
  const auto corner = characterCorner(control, position);
  const auto next = characterCorner(control, position + 1);
  if (!corner || !next || next->y != corner->y || next->x <= corner->x) return std::nullopt;
  const RECT cell{corner->x, corner->y, next->x, corner->y + kLowestLine};
  const RECT client = clientRectOf(control);
  if (cell.left < client.left || cell.top < client.top || cell.right > client.right ||
      cell.bottom > client.bottom) {
    return std::nullopt;
  }
  return cell;
}

nhw32::Answer answerTo(const nhw32::Question& question) {
  constexpr DWORD kBetweenQuestions = 100;  // ms
  for (int tries = 1;; ++tries) {
    // A new one, which backs off from no window yet.
    const nhw32::Answer answer = nhw32::makeWindowReader()->wordAt(question);
    if (answer.outcome != nhw32::Outcome::kOutOfTime || tries == 20) return answer;
    // A program that is merely busy may miss a few, as the service takes into account.
    if (tries == nhw32::Backoff::kMaxTimeouts) reportRetry("a question that had no answer in time");
    passTime(kBetweenQuestions);
  }
}

nhw32::Question questionAt(HWND control, POINT point) {
  return {reinterpret_cast<nhw32::WindowId>(control),
          {static_cast<int>(point.x), static_cast<int>(point.y)}};
}

nhw32::Question questionAbout(HWND control, std::size_t position) {
  const auto cell = characterCell(control, position);
  if (!cell) throw Failure("character " + std::to_string(position) + " is not in sight");
  return questionAt(control, centreOf(*cell));
}

}  // namespace support
