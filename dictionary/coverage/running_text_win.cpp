// Debian has no libxml2 for the cross-compiler, and coverage is measured where the dictionary is
// built: elsewhere.

#include "dictionary/console.h"
#include "dictionary/coverage/running_text.h"

namespace dictionary {

std::u16string readRunningText(const std::filesystem::path& path) {
  throw Failure("kkbuild for Windows cannot read texts such as " + displayName(path));
}

}  // namespace dictionary
