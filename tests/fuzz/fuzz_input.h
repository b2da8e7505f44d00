#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// What libFuzzer calls with every input; each target defines it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Reports the input as a finding unless the rule holds for it.
inline void require(bool holds) {
  if (!holds) {
    std::abort();
  }
}

/// The bytes of an input, which a target takes line by line.
class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size) : rest_(asText(data, size)) {}

  /// The bytes up to the next line feed, which is skipped; all that is left if there is none.
  std::string_view line() {
    const std::string_view line = rest_.substr(0, rest_.find('\n'));
    rest_.remove_prefix(line.size() == rest_.size() ? line.size() : line.size() + 1);
    return line;
  }

  /// All bytes not yet taken.
  [[nodiscard]] std::string_view rest() const { return rest_; }

 private:
  static std::string_view asText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
  }

  std::string_view rest_;
};
