#include "tests/support/process/suspended_process.h"

#include <cstdio>

#include "tests/support/process/process.h"
#include "tests/support/wait.h"

namespace support {
namespace {

/// Sends a signal to the one process below Wine whose command line contains `mark`.
void signalTo(const std::string& mark, const std::string& signal) {
  // The first letter in brackets: otherwise the shell would find itself.
  const std::string pattern = "[" + mark.substr(0, 1) + "]" + mark.substr(1);
  runBelow("set --; for f in /proc/[0-9]*/cmdline; do grep -qs '" + pattern +
           "' $f && set -- $@ $(basename $(dirname $f)); done; test $# -eq 1 && kill -" + signal +
           " $1");
}

}  // namespace

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
