#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace dictionary {

/// Exit codes of kkbuild.
enum ExitCode : int {
  kSuccess = 0,
  kFailed = 1,  ///< nothing was built, a rule is broken, or nothing was found
  kMisused = 2,
};

/// Runs one command of kkbuild. `arguments` are in UTF-8, without the program's own name. Results
/// go to `out`, progress and messages to `err`. A std::exception becomes a message
/// and kFailed.
ExitCode runCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err);

}  // namespace dictionary
