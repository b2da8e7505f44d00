#include "tests/support/window/window_test.h"

#include "tests/support/window/open_menu.h"
#include "text/utf.h"

namespace support {
namespace {

BOOL CALLBACK collectForm(HWND window, LPARAM forms) {
  if (forms::Form* form = forms::Form::of(window)) {
    reinterpret_cast<std::vector<forms::Form*>*>(forms)->push_back(form);
  }
  return TRUE;
}

std::vector<forms::Form*> loadedForms() {
  std::vector<forms::Form*> found;
  EnumThreadWindows(GetCurrentThreadId(), collectForm, reinterpret_cast<LPARAM>(&found));
  return found;
}

/// Ends a menu that has been open for longer than any test takes over it.
bool endForgottenMenu(ULONGLONG& since) {
  if (openMenu() == nullptr) {
    since = 0;
    return false;
  }
  if (since == 0) since = GetTickCount64();
  constexpr DWORD kForgotten = 5'000;
  if (GetTickCount64() - since < kForgotten) return false;
  since = 0;
  ADD_FAILURE() << "a menu stayed open";
  EndMenu();
  return false;
}

}  // namespace

void unloadAll() {
  for (std::vector<forms::Form*> found = loadedForms(); !found.empty(); found = loadedForms()) {
    found.front()->unload();
  }
  forms::doEvents();
  // Their objects too: one that is kept keeps its database open.
  forms::LoadedForms::instance().purge();
}

WindowTest::WindowTest()
    : menuGuard_([since = ULONGLONG{0}]() mutable { return endForgottenMenu(since); }) {
  plan<'A'>() = {plainDesign('A'), {}, {}, {}, {}};
  plan<'B'>() = {plainDesign('B'), {}, {}, {}, {}};
  plan<'C'>() = {plainDesign('C'), {}, {}, {}, {}};
  injected::moveTo(kNowhere);
  events().clear();
}

WindowTest::~WindowTest() { unloadAll(); }

void WindowTest::TearDown() {
  unloadAll();
  for (const SeenBox& box : boxes.take()) {
    ADD_FAILURE() << "unexpected message box: " << text::toUtf8(box.text);
  }
}

void WindowTest::awaitActive(const forms::Form& form) {
  const auto active = [&] { return GetForegroundWindow() == form.handle(); };
  constexpr DWORD kByItself = 1'000;
  constexpr DWORD kLasting = 50;
  eventually(active, kByItself);
  bringToFront(form.handle(), active, kLasting);
}

void WindowTest::resize(forms::Form& form, int width, int height) {
  const auto size = [&] { return std::pair{form.width(), form.height()}; };
  std::pair<int, int> given;
  actUntil(
      "a form in its new size",
      [&] {
        form.setSize(width, height);
        given = size();
      },
      [&] { return size() == given; }, kLastingWindow);
}

}  // namespace support
