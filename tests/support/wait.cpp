#include "tests/support/wait.h"

#include <iostream>
#include <utility>

namespace support {
namespace {

std::function<void()>& failureHandler() {
  static std::function<void()> handler;
  return handler;
}

void sleepStep(DWORD milliseconds) {
  if (milliseconds > 0) Sleep(milliseconds);
}

thread_local WaitStep threadStep = sleepStep;

}  // namespace

Failure::Failure(const std::string& what) : std::runtime_error(what) {
  if (failureHandler()) failureHandler()();
}

void Failure::onFailure(std::function<void()> handler) { failureHandler() = std::move(handler); }

void waitStep(DWORD milliseconds) { threadStep(milliseconds); }

WaitStep setWaitStep(WaitStep step) {
  return std::exchange(threadStep, step == nullptr ? sleepStep : step);
}

void reportRetry(const std::string& what) {
  std::cout << "[ONCE MORE ] " << what << '\n' << std::flush;
}

}  // namespace support
