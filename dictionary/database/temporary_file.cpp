// Putting in place: the journal of the former database, if a killed writer left one, must not meet
// the new file: the engine would roll it back into it. It must not be deleted before the new file
// is there either, or the former one would be left damaged. So it is moved aside, the new file is
// renamed, and only then is the journal deleted; on failure it is moved back. A build that is
// killed between the first two steps leaves the journal under its other name ("….old-journal").

#include "dictionary/database/temporary_file.h"

#include <array>
#include <system_error>

#include "dictionary/console.h"

namespace dictionary {
namespace {

/// Endings of the files that SQLite keeps beside a database and that a killed writer leaves there.
constexpr std::array kCompanions = {"-journal", "-wal", "-shm"};

std::filesystem::path with(std::filesystem::path path, const char* ending) {
  path += ending;
  return path;
}

[[noreturn]] void fail(const std::filesystem::path& target, const std::error_code& error) {
  throw Failure("cannot replace " + displayName(target) + ": " + error.message());
}

/// Renames the companions of the database `target` while it exists. The destructor deletes them
/// after setReplaced(), otherwise it restores their names. The constructor throws Failure.
class ScopedCompanionsAside {
 public:
  explicit ScopedCompanionsAside(const std::filesystem::path& target)
      : target_(target), aside_(with(target, ".old")) {
    for (const char* ending : kCompanions) {
      if (const std::error_code error = move(target_, aside_, ending)) {
        putBack();
        fail(target, error);
      }
    }
  }
  ScopedCompanionsAside(const ScopedCompanionsAside&) = delete;
  ScopedCompanionsAside& operator=(const ScopedCompanionsAside&) = delete;
  ~ScopedCompanionsAside() { replaced_ ? remove() : putBack(); }

  void setReplaced() { replaced_ = true; }

 private:
  /// Renames one companion if it exists.
  static std::error_code move(const std::filesystem::path& from, const std::filesystem::path& to,
                              const char* ending) {
    std::error_code error;
    if (!std::filesystem::exists(with(from, ending), error)) return {};
    std::filesystem::rename(with(from, ending), with(to, ending), error);
    return error;
  }

  void putBack() const {
    for (const char* ending : kCompanions) move(aside_, target_, ending);
  }

  void remove() const {
    for (const char* ending : kCompanions) {
      std::error_code ignored;
      std::filesystem::remove(with(aside_, ending), ignored);
    }
  }

  std::filesystem::path target_;
  std::filesystem::path aside_;
  bool replaced_ = false;
};

}  // namespace

TemporaryFile::TemporaryFile(const std::filesystem::path& target) : path_(target) {
  path_ += ".new";
}

TemporaryFile::~TemporaryFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

void TemporaryFile::replace(const std::filesystem::path& target) const {
  ScopedCompanionsAside companions(target);
  std::error_code error;
  std::filesystem::rename(path_, target, error);
  if (error) fail(target, error);
  companions.setReplaced();
}

}  // namespace dictionary
