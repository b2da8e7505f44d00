#pragma once

#include <string>

#include "tests/support/wait.h"
#include "win32/handles.h"

namespace support {

/// A program that a test started. It is ended, if need be by force, when the test lets go of it.
class Process {
 public:
  /// Starts `program` (a path) in `directory` (empty: the current one).
  explicit Process(const std::wstring& program, const std::wstring& arguments = L"",
                   const std::wstring& directory = L"");
  Process(Process&&) noexcept = default;
  Process& operator=(Process&&) = delete;
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process();

  [[nodiscard]] DWORD id() const { return id_; }
  [[nodiscard]] HANDLE handle() const { return process_.get(); }
  [[nodiscard]] bool running() const;

  /// Waits for the program to end by itself and returns its exit code.
  DWORD waitForExit(DWORD milliseconds = kDefaultTimeout) const;

  /// Waits until the program has made its windows and is waiting for input.
  void waitForInputIdle() const;

  /// Ends it by force and waits for that.
  void kill() const;

 private:
  DWORD id_ = 0;
  win32::OwnedKernelObject process_;
};

/// The process that a window belongs to.
DWORD processOf(HWND window);

/// Runs a command of the machine below Wine ("xdotool key Return") by its shell and waits until it
/// is done. Throws Failure where it does not end with success.
void runBelow(const std::string& command);

/// Suspends another program until the end of the scope.
class SuspendedProcess {
 public:
  /// Stops the one program whose command line contains `mark`. Throws Failure where not exactly one
  /// does.
  explicit SuspendedProcess(const std::string& mark);
  ~SuspendedProcess();
  SuspendedProcess(const SuspendedProcess&) = delete;
  SuspendedProcess& operator=(const SuspendedProcess&) = delete;

 private:
  std::string mark_;
};

}  // namespace support
