#include "tests/program/harness/failure.h"

#include <utility>

namespace harness {
namespace {

std::function<void()>& installed() {
  static std::function<void()> instance;
  return instance;
}

}  // namespace

Failure::Failure(const std::string& what) : std::runtime_error(what) {
  if (installed()) installed()();
}

void Failure::setWitness(std::function<void()> witness) { installed() = std::move(witness); }

}  // namespace harness
