#include "tests/support/process/browser.h"

#include "tests/support/process/find.h"
#include "tests/support/process/process.h"
#include "tests/support/process/text.h"

namespace support {

Browser::Browser() : window_(waitForWindow({.className = L"IEFrame", .title = {}})) {}

Browser::~Browser() {
  const win32::OwnedKernelObject process(
      OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, processOf(window_)));
  TerminateProcess(process.get(), 0);
  WaitForSingleObject(process.get(), kDefaultTimeout);
}

void Browser::waitForAddress(const std::wstring& address) const {
  HWND bar = waitForChild(window_, L"Edit");
  std::wstring shown;
  try {
    waitFor("the address", [&] { return (shown = textOf(bar)) == address; });
  } catch (const Failure&) {
    throw Failure("the browser shows " + utf8(shown) + " and not " + utf8(address));
  }
}

}  // namespace support
