#pragma once

#include <windows.h>

#include <string>

#include "tests/program/harness/process.h"

namespace wintest {

/// A program of the system's with a text, above all other windows.
class TextProgram {
 public:
  enum class Kind { kNotepad, kWordPad };

  TextProgram(Kind kind, const std::u16string& text);
  ~TextProgram();
  TextProgram(const TextProgram&) = delete;
  TextProgram& operator=(const TextProgram&) = delete;

  [[nodiscard]] HWND control() const { return control_; }
  [[nodiscard]] const harness::Process& process() const { return process_; }
  void setText(const std::u16string& text) const;

  /// A part of its command line that no other program's contains.
  [[nodiscard]] const std::string& mark() const { return mark_; }

 private:
  std::string mark_;
  harness::Process process_;
  HWND window_;
  HWND control_;
};

}  // namespace wintest
