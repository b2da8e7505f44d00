#pragma once

namespace bench {

/// Times the searches of the multi-dictionary window in the largest subject dictionary of a full
/// kk.dat, each beside its yardsticks, and prints them with their aims: by beginning and by part in
/// both languages, and by two fragments. `file` is the path in UTF-8.
void timeSearches(const char* file);

}  // namespace bench
