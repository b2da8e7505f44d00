#include "forms/dispatcher.h"

#include "forms/exception_barrier.h"
#include "win32/win32.h"

// A message-only window: DispatchMessage reaches it from any message loop of the thread. Posted
// messages come before input in the queue, timer messages after it. A tick copies its handler,
// which may stop the timer and so destroy the original.
namespace forms {
namespace {

constexpr wchar_t kClassName[] = L"Lexilo.Dispatcher";
constexpr UINT kRunPosted = WM_APP;

}  // namespace

Dispatcher& Dispatcher::instance() {
  static Dispatcher dispatcher;
  return dispatcher;
}

Dispatcher::Dispatcher() {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = windowProc;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kClassName;
  RegisterClassExW(&windowClass);
  window_ = CreateWindowExW(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                            windowClass.hInstance, nullptr);
  if (window_ == nullptr) {
    win32::throwLastError();
  }
}

Dispatcher::~Dispatcher() { DestroyWindow(window_); }

LRESULT CALLBACK Dispatcher::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kRunPosted) {
    guard([] { instance().runPosted(); });
    return 0;
  }
  if (message == WM_TIMER) {
    guard([=] { instance().tick(wParam); });
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

bool Dispatcher::post(std::function<void()> work) {
  posted_.push_back(std::move(work));
  return PostMessageW(window_, kRunPosted, 0, 0) != FALSE;
}

void Dispatcher::runPosted() {
  // Work that is posted by this work waits for the next message.
  for (std::size_t due = posted_.size(); due > 0 && !posted_.empty(); --due) {
    const auto work = std::move(posted_.front());
    posted_.pop_front();
    guard(work);
  }
}

UINT_PTR Dispatcher::startTimer(UINT milliseconds, std::function<void()> tick) {
  const UINT_PTR id = ++lastTimer_;
  if (SetTimer(window_, id, milliseconds, nullptr) == 0) win32::throwLastError();
  timers_.emplace(id, std::move(tick));
  return id;
}

void Dispatcher::stopTimer(UINT_PTR id) {
  if (timers_.erase(id) > 0) KillTimer(window_, id);
}

void Dispatcher::tick(UINT_PTR id) {
  // A tick may still be queued when its timer was stopped, and may stop the timer it came from.
  const auto found = timers_.find(id);
  if (found == timers_.end()) return;
  const auto handler = found->second;
  guard(handler);
}

}  // namespace forms
