#pragma once

#include <gtest/gtest.h>

#include <cstdio>

#ifndef _WIN32
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace support {

/// Runs `check` as a user without privileges: root, who may write everywhere, hands it to a child
/// process of the user nobody. Whether `check` ran to its end and none of its expectations failed.
template <typename Check>
bool passesUnprivileged(Check check) {
#ifndef _WIN32
  constexpr unsigned int kNobody = 65534;
  if (geteuid() == 0) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
      int code = 2;
      if (setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0) {
        try {
          check();
          code = testing::Test::HasFailure() ? 1 : 0;
        } catch (const std::exception& error) {
          std::printf("%s\n", error.what());
        }
      }
      std::fflush(nullptr);
      _exit(code);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
  }
#endif
  check();
  return !testing::Test::HasFailure();
}

}  // namespace support
