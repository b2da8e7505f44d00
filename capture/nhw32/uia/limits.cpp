#include "capture/nhw32/uia/limits.h"

#include <algorithm>

namespace nhw32 {
namespace {

/// Windows 11 22H2.
constexpr std::uint32_t kFirstSafeBuild = 22621;

}  // namespace

bool isConsole(std::u16string_view className) {
  return className.find(u"ConsoleWindowClass") != std::u16string_view::npos;
}

bool mayAskConsoles(std::uint32_t build) { return build >= kFirstSafeBuild; }

bool Contacts::isFirst(std::uint32_t process) {
  if (std::ranges::find(met_, process) != met_.end()) return false;
  if (met_.size() == kMaxProcesses) met_.erase(met_.begin());
  met_.push_back(process);
  return true;
}

}  // namespace nhw32
