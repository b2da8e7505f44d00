#include "tests/support/window/word_host.h"

#include <array>
#include <cstdint>

#include "capture/nhw32/nhw32.h"
#include "tests/support/wait.h"

namespace support {
namespace {

constexpr wchar_t kClassName[] = L"WordHost";

}  // namespace

WordHost::WordHost() {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = windowProc;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kClassName;
  RegisterClassW(&windowClass);
  window_ = CreateWindowExW(0, kClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                            windowClass.hInstance, nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

WordHost::~WordHost() { DestroyWindow(window_); }

LRESULT CALLBACK WordHost::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != RegisterWindowMessageA(nhw32::kMessageName)) {
    return DefWindowProcW(window, message, wParam, lParam);
  }
  reinterpret_cast<WordHost*>(GetWindowLongPtrW(window, GWLP_USERDATA))->receive();
  return 0;
}

void WordHost::receive() {
  nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0);
  std::array<char, 101> buffer{};
  buffer.fill('#');
  nhw32::BL_GetText32(buffer.data(), 100, &rect_);
  words_.emplace_back(buffer.data());
}

void WordHost::probe(POINT point) const {
  nhw32::BL_SetFlag32(nhw32::kDisarm, nullptr, 0, 0);
  nhw32::BL_SetFlag32(nhw32::kArm, window_, static_cast<std::int16_t>(point.x),
                      static_cast<std::int16_t>(point.y));
}

std::string WordHost::wordAt(POINT point) {
  constexpr DWORD kProbeTime = 100;
  std::string word = "(none)";
  for (int probes = 0; probes < 50 && word == "(none)"; ++probes) {
    probe(point);
    nhw32::SetNHW32();
    word = nextWord(kProbeTime);
  }
  return word;
}

std::string WordHost::nextWord(DWORD milliseconds) {
  if (!eventually([this] { return words_.size() > seen_; }, milliseconds)) return "(none)";
  return words_[seen_++];
}

}  // namespace support
