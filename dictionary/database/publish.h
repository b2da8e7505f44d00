#pragma once

#include <filesystem>
#include <ostream>

#include "dictionary/console.h"
#include "dictionary/database/writer.h"

namespace dictionary {

/// The path of a file beside `target` that is to replace it. Creates nothing; the destructor
/// deletes the file if it is still there.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& target);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  /// Renames the file to `target`, replacing it, and deletes the journal of the replaced database.
  /// Throws Failure; `target` and its journal are unchanged then.
  void replace(const std::filesystem::path& target) const;

 private:
  std::filesystem::path path_;
};

/// Writes the content to a temporary file beside `target`, checks it by every rule, and renames it
/// to `target`. Broken rules go to `log`, the steps to `progress`. Throws Failure, also if a rule
/// is broken; the target is unchanged then.
void publishDatabase(const DatabaseContent& content, const std::filesystem::path& target,
                     std::ostream& log, Progress& progress);

}  // namespace dictionary
