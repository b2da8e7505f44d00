#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace dictionary {

/// Exit codes of kkbuild, for scripts.
enum ExitCode : int {
  kSuccess = 0,
  kFailed = 1,   ///< nothing was built, a rule is broken, or nothing was found
  kMisused = 2,  ///< unknown command or wrong number of arguments; the usage was printed
};

/// Runs one command of kkbuild:
///     build SOURCE.csv [CHINESE.js FREQUENCIES TERMS] OUTPUT   (build.h)
///     check FILE [SOURCE.csv]                                  (check/check.h)
///     lookup FILE WORD                                         (word_lookup.h)
///     coverage FILE TEXT...                                    (coverage/coverage.h)
///     coverage --chinese FILE LIST                             (coverage/chinese_coverage.h)
///     --help
/// `arguments` are in UTF-8, without the program's own name. Results go to `out`, progress and
/// messages to `err`, both in UTF-8. Never throws a std::exception: one becomes a message and
/// kFailed.
ExitCode runCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err);

}  // namespace dictionary
