#pragma once

#include <windows.h>

namespace support {

/// Replaces a function of the system that this program imports, while it lives, for all callers in
/// the program (its import table is shared by all of the test's code). `slot` is the import's
/// entry:
///
///     extern "C" decltype(&MessageBeep) __imp_MessageBeep;
template <class Function>
class ScopedImport {
 public:
  ScopedImport(Function& slot, Function replacement) : slot_(slot), original_(slot) {
    put(replacement);
  }
  ~ScopedImport() { put(original_); }
  ScopedImport(const ScopedImport&) = delete;
  ScopedImport& operator=(const ScopedImport&) = delete;

 private:
  void put(Function function) const {
    DWORD protection = 0;
    VirtualProtect(&slot_, sizeof(Function), PAGE_READWRITE, &protection);
    slot_ = function;
    VirtualProtect(&slot_, sizeof(Function), protection, &protection);
  }

  Function& slot_;
  Function original_;
};

}  // namespace support
