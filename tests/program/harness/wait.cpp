#include "tests/program/harness/wait.h"

#include <iostream>

namespace harness {

void tellOnceMore(const std::string& what) {
  std::cout << "[ONCE MORE ] " << what << '\n' << std::flush;
}

}  // namespace harness
