#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/window/modal_poller.h"

namespace support {

enum class Icon { kNone, kError, kWarning, kInformation, kOther };

/// What a message box said.
struct SeenBox {
  std::u16string title;
  std::u16string text;
  Icon icon = Icon::kNone;
  HWND owner = nullptr;
};

/// Reads every message box of this thread and presses its button.
class MessageBoxes {
 public:
  MessageBoxes();

  /// Runs once while the next box is up, before its button is pressed.
  void whileUp(std::function<void(HWND)> act) { whileUp_ = std::move(act); }

  /// Lets the test close the next box.
  void leaveNextAlone() { leaveNextAlone_ = true; }

  /// What was seen since the last call.
  [[nodiscard]] std::vector<SeenBox> take() { return std::exchange(seen_, {}); }
  [[nodiscard]] std::size_t count() const { return seen_.size(); }

  /// The box that is up now, or null.
  static HWND current();

 private:
  bool look();

  HWND answered_ = nullptr;
  bool leaveNextAlone_ = false;
  std::vector<SeenBox> seen_;
  std::function<void(HWND)> whileUp_;
  ModalPoller watcher_;
};

}  // namespace support
