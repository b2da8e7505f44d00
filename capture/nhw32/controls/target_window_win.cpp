#include "capture/nhw32/controls/target_window.h"

#include <algorithm>
#include <utility>

#include "capture/nhw32/policy.h"

// Nothing here may hang with the target: messages are sent with a time limit, and the other
// functions of Windows that are called return without the help of the target's thread.
namespace nhw32 {
namespace {

template <class Box>
Box boxOf(const RECT& rect) {
  return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
          static_cast<int>(rect.bottom)};
}

RECT outerRectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

RECT clientRectOf(HWND window) {
  RECT rect{};
  GetClientRect(window, &rect);
  return rect;
}

/// Opens the window's process with the rights that RemoteMemory needs; null if that is refused.
HANDLE openProgramOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return OpenProcess(
      PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE | PROCESS_QUERY_LIMITED_INFORMATION,
      FALSE, process);
}

}  // namespace

TargetWindow::TargetWindow(WindowId window, Clock clock)
    : window_(reinterpret_cast<HWND>(window)),
      clock_(std::move(clock)),
      deadline_(clock_() + kQuestionTime) {}

DWORD TargetWindow::style() const {
  return static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE));
}

bool TargetWindow::isOurs() const {
  DWORD process = 0;
  GetWindowThreadProcessId(window_, &process);
  return process == GetCurrentProcessId();
}

LRESULT TargetWindow::ask(UINT message, WPARAM wParam, LPARAM lParam) const {
  // What is left of the question's time limits the message too; rounded up, so that it is not 0.
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline_ - clock_());
  if (left.count() <= 0) throw NoAnswer(Outcome::kOutOfTime);
  const auto time = static_cast<UINT>(std::min(left, kMessageTime).count());
  DWORD_PTR answer = 0;
  // SendMessageTimeout leaves the last error as it is for a window that counts as hung.
  SetLastError(0);
  // SMTO_BLOCK: messages that other threads send to this one wait until this call returns.
  if (SendMessageTimeoutW(window_, message, wParam, lParam, SMTO_ABORTIFHUNG | SMTO_BLOCK, time,
                          &answer) == 0) {
    throw NoAnswer(outcomeOfSendTimeout(GetLastError()));
  }
  return static_cast<LRESULT>(answer);
}

// The style is not enough: EM_SETPASSWORDCHAR hides the text of a control that was created without
// it.
bool TargetWindow::isPassword() const {
  return (style() & ES_PASSWORD) != 0 || ask(EM_GETPASSWORDCHAR) != 0;
}

RemoteMemory::RemoteMemory(HWND window, std::size_t size) : process_(openProgramOf(window)) {
  if (!process_) throw NoAnswer(Outcome::kRefused);
  address_ = static_cast<std::byte*>(
      VirtualAllocEx(process_.get(), nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
  if (address_ == nullptr) throw NoAnswer(Outcome::kRefused);
}

// Memory of a process that has ended is gone already; the call fails then, which does not matter.
RemoteMemory::~RemoteMemory() {
  if (address_ != nullptr) VirtualFreeEx(process_.get(), address_, 0, MEM_RELEASE);
}

std::uint64_t RemoteMemory::address(std::size_t offset) const {
  return reinterpret_cast<std::uint64_t>(address_ + offset);
}

// This program is a 64-bit one, so WOW64 is the only other case.
bool RemoteMemory::inProgramOf32Bits() const {
  BOOL wow64 = FALSE;
  if (IsWow64Process(process_.get(), &wow64) == FALSE) throw NoAnswer(Outcome::kRefused);
  return wow64 != FALSE;
}

void RemoteMemory::write(std::size_t offset, const void* from, std::size_t size) const {
  if (WriteProcessMemory(process_.get(), address_ + offset, from, size, nullptr) == FALSE) {
    throw NoAnswer(Outcome::kRefused);
  }
}

void RemoteMemory::read(std::size_t offset, void* to, std::size_t size) const {
  if (ReadProcessMemory(process_.get(), address_ + offset, to, size, nullptr) == FALSE) {
    throw NoAnswer(Outcome::kRefused);
  }
}

// While a handle to the process is open, no other one gets its identifier (PROCESS_INFORMATION).
bool RemoteMemory::isIn(HWND window) const {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return address_ != nullptr && process == GetProcessId(process_.get());
}

RemoteMemory& KeptMemory::in(HWND window, std::size_t size) {
  if (!memory_ || !memory_->isIn(window)) {
    memory_.reset();  // first, for the other program's sake
    memory_.emplace(window, size);
  }
  return *memory_;
}

WindowScale scaleOf(HWND window) {
  // First as this thread sees the window, then as its own process does.
  WindowScale scale{.onScreen = boxOf<ScreenBox>(outerRectOf(window)), .forTarget = {}};
  const ScopedTargetAwareness awareness(window);
  scale.forTarget = boxOf<TargetBox>(outerRectOf(window));
  return scale;
}

ClientPoint toClient(HWND window, TargetPoint point) {
  POINT client{point.x, point.y};
  ScreenToClient(window, &client);
  return {static_cast<int>(client.x), static_cast<int>(client.y)};
}

TargetBox fromClient(HWND window, const ClientBox& box) {
  POINT origin{0, 0};
  ClientToScreen(window, &origin);
  const int x = static_cast<int>(origin.x);
  const int y = static_cast<int>(origin.y);
  return {box.left + x, box.top + y, box.right + x, box.bottom + y};
}

bool inClientArea(HWND window, ClientPoint point) {
  const RECT client = clientRectOf(window);
  return PtInRect(&client, POINT{point.x, point.y}) != FALSE;
}

ClientBox inClientArea(HWND window, const ClientBox& box) {
  const auto client = boxOf<ClientBox>(clientRectOf(window));
  return {std::max(box.left, client.left), std::max(box.top, client.top),
          std::min(box.right, client.right), std::min(box.bottom, client.bottom)};
}

int dpiOf(HWND window) { return static_cast<int>(GetDpiForWindow(window)); }

// Does not need the target's thread to answer: the system keeps the caret's rectangle.
std::optional<ClientBox> caretIn(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  if (GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) == FALSE ||
      info.hwndCaret != window || info.rcCaret.bottom <= info.rcCaret.top) {
    return std::nullopt;
  }
  return boxOf<ClientBox>(info.rcCaret);
}

}  // namespace nhw32
