#pragma once

#include <windows.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <utility>

#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/router.h"
#include "capture/nhw32/service.h"
#include "tests/support/wait.h"

namespace support {

/// A service of the test's own with the program's reader, which counts the answers, so that a test
/// can wait for the end of a question that no word comes of.
class CountedService {
 public:
  /// `clock` is called on the worker's thread.
  explicit CountedService(const nhw32::Clock& clock = std::chrono::steady_clock::now)
      : service_([=, answers = answers_] { return std::make_unique<Reader>(answers, clock); },
                 RegisterWindowMessageA(nhw32::kMessageName)) {
    service_.start();
  }
  ~CountedService() {
    service_.stop();
    eventually([this] { return service_.workers() == 0; });
  }
  CountedService(const CountedService&) = delete;
  CountedService& operator=(const CountedService&) = delete;

  [[nodiscard]] nhw32::Service& service() { return service_; }
  [[nodiscard]] int answers() const { return *answers_; }

  /// Disarms what was armed and arms the point, as every probe does.
  void probe(HWND host, POINT point) {
    service_.disarm();
    service_.arm(host, point);
  }

 private:
  class Reader : public nhw32::WordReader {
   public:
    Reader(std::shared_ptr<std::atomic<int>> answers, const nhw32::Clock& clock)
        : reader_(nhw32::makeWindowReader(clock)), answers_(std::move(answers)) {}

    nhw32::Answer wordAt(const nhw32::Question& question) override {
      nhw32::Answer answer = reader_->wordAt(question);
      ++*answers_;
      return answer;
    }
    void rest() override { reader_->rest(); }

   private:
    std::unique_ptr<nhw32::WordReader> reader_;
    std::shared_ptr<std::atomic<int>> answers_;
  };

  /// Shared with the worker, which may outlive us.
  std::shared_ptr<std::atomic<int>> answers_ = std::make_shared<std::atomic<int>>(0);
  nhw32::Service service_;
};

}  // namespace support
