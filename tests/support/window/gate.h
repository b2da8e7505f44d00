#pragma once

#include <atomic>

namespace support {

/// Holds threads up for as long as it is closed. Thread-safe. Open it before it goes: a thread that
/// is still held would read memory that is gone.
class Gate {
 public:
  Gate() = default;
  explicit Gate(bool closed) : closed_(closed) {}

  void close() { closed_ = true; }
  void open() {
    closed_ = false;
    closed_.notify_all();
  }
  [[nodiscard]] bool closed() const { return closed_; }

  /// Returns at once if the gate is open, otherwise once it is opened.
  void pass() const { closed_.wait(true); }

 private:
  std::atomic<bool> closed_ = false;
};

}  // namespace support
