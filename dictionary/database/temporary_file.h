#pragma once

#include <filesystem>

namespace dictionary {

/// The path of a file that is to replace `target`: `target` with ".new" added, in the same folder,
/// so that renaming it is one step on the same volume. Creates nothing; the destructor deletes the
/// file if it still exists. A file of that name from an earlier build is overwritten by the writer.
class TemporaryFile {
 public:
  /// Two builds of the same target at the same time are not supported.
  explicit TemporaryFile(const std::filesystem::path& target);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  /// Renames the file to `target`, replacing it, and deletes the journal of the replaced database.
  /// No connection may have either file open. Throws Failure, for example if a running program has
  /// `target` open under Windows; `target` and its journal are unchanged then.
  void replace(const std::filesystem::path& target) const;

 private:
  std::filesystem::path path_;
};

}  // namespace dictionary
