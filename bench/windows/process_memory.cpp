#include "bench/windows/process_memory.h"

#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/process/text.h"
#include "tests/support/wait.h"

namespace bench {
namespace fs = std::filesystem;
namespace {

constexpr wchar_t kProcesses[] = L"Z:\\proc";

/// Whether a process, named by its folder in /proc, has mapped a file (its path below Wine). Other
/// users' processes do not let us look; they count as having not.
bool hasMapped(const fs::path& process, const std::string& file) {
  std::ifstream maps(process / "maps");
  for (std::string line; std::getline(maps, line);) {
    if (line.ends_with(" " + file)) return true;
  }
  return false;
}

std::vector<fs::path> processesThatMapped(const std::string& file) {
  std::vector<fs::path> found;
  for (const fs::directory_entry& entry : fs::directory_iterator(kProcesses)) {
    const std::wstring name = entry.path().filename().wstring();
    const bool isProcess = name.find_first_not_of(L"0123456789") == std::wstring::npos;
    if (isProcess && hasMapped(entry.path(), file)) found.push_back(entry.path());
  }
  return found;
}

}  // namespace

// Wine gives programs numbers of its own, so the process is found by what it runs: Wine maps the
// beginning of a program file.
ProcessBelow::ProcessBelow(const fs::path& program) {
  const std::string file = support::utf8(program.generic_wstring()).substr(sizeof "Z:" - 1);
  const std::vector<fs::path> found = processesThatMapped(file);
  if (found.size() != 1) {
    throw support::Failure(std::to_string(found.size()) + " processes run " + file +
                           ", not the one that was started");
  }
  folder_ = found.front();
}

Memory ProcessBelow::memory() const {
  std::ifstream rollup(folder_ / "smaps_rollup");
  std::map<std::string, double> kilobytes;
  for (std::string line; std::getline(rollup, line);) {
    std::istringstream fields(line);
    std::string name;
    double value = 0;
    if (fields >> name >> value) kilobytes[name] = value;
  }
  if (kilobytes["Rss:"] <= 0) {
    throw support::Failure("no memory in " + support::utf8(folder_.wstring()));
  }
  return {.resident = kilobytes["Rss:"],
          .proportional = kilobytes["Pss:"],
          .own = kilobytes["Private_Clean:"] + kilobytes["Private_Dirty:"]};
}

Memory ProcessBelow::settledMemory() const {
  constexpr DWORD kLongEnough = 500;  // ms without a change worth the name
  constexpr double kChange = 64;      // KiB
  Memory last = memory();
  support::waitFor("a process to settle", [&] {
    return support::never(
        [&] {
          const Memory before = std::exchange(last, memory());
          return std::abs(last.resident - before.resident) >= kChange;
        },
        kLongEnough);
  });
  return last;
}

}  // namespace bench
