#pragma once

#include <windows.h>

#include <string>

#include "tests/support/process/process.h"

namespace support {

/// A program of the system's with a text, above all other windows.
class SystemEditor {
 public:
  enum class Kind { kNotepad, kWordPad };

  SystemEditor(Kind kind, const std::u16string& text);
  ~SystemEditor();
  SystemEditor(const SystemEditor&) = delete;
  SystemEditor& operator=(const SystemEditor&) = delete;

  [[nodiscard]] HWND control() const { return control_; }
  [[nodiscard]] const Process& process() const { return process_; }
  void setText(const std::u16string& text) const;

  /// A part of its command line that no other program's contains.
  [[nodiscard]] const std::string& mark() const { return mark_; }

 private:
  std::string mark_;
  Process process_;
  HWND window_;
  HWND control_;
};

}  // namespace support
