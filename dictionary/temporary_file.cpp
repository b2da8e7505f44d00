#include "dictionary/temporary_file.h"

#include <system_error>

#include "dictionary/failure.h"
#include "dictionary/paths.h"

namespace dictionary {

TemporaryFile::TemporaryFile(const std::filesystem::path& target) : path_(target) {
  path_ += ".new";
}

TemporaryFile::~TemporaryFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

void TemporaryFile::replace(const std::filesystem::path& target) const {
  std::error_code error;
  std::filesystem::rename(path_, target, error);
  if (error) throw Failure("cannot replace " + displayName(target) + ": " + error.message());
}

}  // namespace dictionary
