#include "tests/support/process/process.h"

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>

#include "tests/support/process/text.h"
#include "tests/support/wait.h"

namespace support {
namespace {

/// A new process and its thread. A program of the machine below Wine has no handles.
PROCESS_INFORMATION create(const std::wstring& program, std::wstring commandLine,
                           const std::wstring& directory) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION information{};
  if (CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     directory.empty() ? nullptr : directory.c_str(), &startup,
                     &information) == 0) {
    throw Failure("cannot start " + utf8(program) + ": error " + std::to_string(GetLastError()));
  }
  return information;
}

/// A path of Wine's as the machine below names it; only drive Z: has one.
std::string pathBelow(const std::filesystem::path& path) {
  std::string text = utf8(path.generic_wstring());
  if (text.size() < 2 || (text[0] != 'Z' && text[0] != 'z')) {
    throw Failure("no path below Wine: " + text);
  }
  return text.substr(2);
}

/// Sends a signal to the one process below Wine whose command line contains `mark`.
void signalTo(const std::string& mark, const std::string& signal) {
  // The first letter in brackets: otherwise the shell would find itself.
  const std::string pattern = "[" + mark.substr(0, 1) + "]" + mark.substr(1);
  runBelow("set --; for f in /proc/[0-9]*/cmdline; do grep -qs '" + pattern +
           "' $f && set -- $@ $(basename $(dirname $f)); done; test $# -eq 1 && kill -" + signal +
           " $1");
}

}  // namespace

Process::Process(const std::wstring& program, const std::wstring& arguments,
                 const std::wstring& directory) {
  const PROCESS_INFORMATION information =
      create(program, L"\"" + program + L"\" " + arguments, directory);
  id_ = information.dwProcessId;
  process_ = win32::OwnedKernelObject(information.hProcess);
  const win32::OwnedKernelObject thread(information.hThread);
}

Process::~Process() {
  if (process_.get() != nullptr && running()) {
    TerminateProcess(process_.get(), 1);
    WaitForSingleObject(process_.get(), kDefaultTimeout);
  }
}

bool Process::running() const { return WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT; }

DWORD Process::waitForExit(DWORD milliseconds) const {
  if (WaitForSingleObject(process_.get(), milliseconds) != WAIT_OBJECT_0) {
    throw Failure("the program still runs after " + std::to_string(milliseconds) + " ms");
  }
  DWORD code = 0;
  GetExitCodeProcess(process_.get(), &code);
  return code;
}

void Process::waitForInputIdle() const { ::WaitForInputIdle(process_.get(), kDefaultTimeout); }

void Process::kill() const {
  TerminateProcess(process_.get(), 1);
  waitForExit();
}

DWORD processOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

void runBelow(const std::string& command) {
  static std::atomic<int> runs = 0;
  // No process id: tests may be running in another prefix, where the same ids are given.
  static const std::string mark = std::to_string(std::random_device{}());
  // Nobody can wait for a process below Wine, so it leaves its exit status in a file.
  const std::filesystem::path answer =
      std::filesystem::absolute("build/results/below-" + mark + "-" + std::to_string(++runs));
  std::filesystem::create_directories(answer.parent_path());
  const std::string file = pathBelow(answer);
  const std::string script = command + "; echo $? >" + file + ".part; mv " + file + ".part " + file;
  create(L"Z:\\bin\\sh", L"/bin/sh -c \"" + wide(script) + L"\"", L"");
  waitFor(
      "the end of: " + command, [&] { return std::filesystem::exists(answer); }, 20'000);
  int status = -1;
  std::ifstream(answer) >> status;
  std::filesystem::remove(answer);
  if (status != 0) throw Failure("status " + std::to_string(status) + " from: " + command);
}

SuspendedProcess::SuspendedProcess(const std::string& mark) : mark_(mark) {
  signalTo(mark_, "STOP");
}

SuspendedProcess::~SuspendedProcess() {
  try {
    signalTo(mark_, "CONT");
  } catch (const Failure& failure) {
    std::fprintf(stderr, "a stopped program stays so: %s\n", failure.what());
  }
}

}  // namespace support
