#include "dictionary/database/install.h"

#include "dictionary/check/check.h"
#include "dictionary/console.h"
#include "dictionary/database/temporary_file.h"

namespace dictionary {

void installDatabase(const DatabaseContent& content, const std::filesystem::path& target,
                     std::ostream& log, Progress& progress) {
  const TemporaryFile temporary(target);
  writeDatabase(content, temporary.path());
  progress.report("database written");
  const CheckResult check = checkDatabase(temporary.path());
  if (!check.findings.empty()) {
    check.findings.print(log);
    throw Failure("the new database breaks the rules above; " + displayName(target) +
                  " stays as it was");
  }
  progress.report("database checked");
  temporary.replace(target);
  progress.report(displayName(target) + " is ready");
}

}  // namespace dictionary
