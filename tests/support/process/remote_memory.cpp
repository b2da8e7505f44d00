#include "tests/support/process/remote_memory.h"

#include "tests/support/process/process.h"

namespace support {

RemoteMemory::RemoteMemory(HWND window, std::size_t size)
    : process_(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE,
                           processOf(window))) {
  if (process_.get() == nullptr) throw Failure("cannot open the process of a window");
  address_ =
      VirtualAllocEx(process_.get(), nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  if (address_ == nullptr) throw Failure("no memory in the process of a window");
}

RemoteMemory::~RemoteMemory() { VirtualFreeEx(process_.get(), address_, 0, MEM_RELEASE); }

void RemoteMemory::write(const void* from, std::size_t size, std::size_t offset) const {
  if (WriteProcessMemory(process_.get(), at(offset), from, size, nullptr) == FALSE) {
    throw Failure("cannot write into the process of a window");
  }
}

void RemoteMemory::read(void* to, std::size_t size, std::size_t offset) const {
  if (ReadProcessMemory(process_.get(), at(offset), to, size, nullptr) == FALSE) {
    throw Failure("cannot read from the process of a window");
  }
}

}  // namespace support
