#include "capture/nhw32/controls/remote_memory.h"

#include "capture/nhw32/reader.h"

namespace nhw32 {
namespace {

HANDLE openProgramOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return OpenProcess(
      PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE | PROCESS_QUERY_LIMITED_INFORMATION,
      FALSE, process);
}

}  // namespace

RemoteMemory::RemoteMemory(HWND window, std::size_t size) : process_(openProgramOf(window)) {
  if (!process_) throw NoAnswer(Outcome::kRefused);
  address_ = static_cast<std::byte*>(
      VirtualAllocEx(process_.get(), nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
  if (address_ == nullptr) throw NoAnswer(Outcome::kRefused);
}

RemoteMemory::~RemoteMemory() {
  if (address_ != nullptr) VirtualFreeEx(process_.get(), address_, 0, MEM_RELEASE);
}

std::uint64_t RemoteMemory::address(std::size_t offset) const {
  return reinterpret_cast<std::uint64_t>(address_ + offset);
}

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

}  // namespace nhw32
