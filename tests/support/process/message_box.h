#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/process/process.h"

namespace support {

/// A message box of another program.
struct ShownMessage {
  HWND window = nullptr;
  std::wstring title;
  std::wstring text;
  bool criticalIcon = false;          ///< shows the icon of errors
  std::vector<std::wstring> buttons;  ///< captions, from left to right

  /// Clicks the first button and waits until the box is gone.
  void answer() const;
};

/// The message box that a program shows now, if any.
std::optional<ShownMessage> findMessageBox(const Process& program);

/// Waits for one.
ShownMessage waitForMessageBox(const Process& program, DWORD milliseconds = kDefaultTimeout);

}  // namespace support
