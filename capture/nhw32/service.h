#pragma once

#include <windows.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

#include "capture/nhw32/request_desk.h"

namespace nhw32 {

/// Makes the way in which a worker asks; called on the worker's own thread.
using ProviderFactory = std::function<std::unique_ptr<TextProvider>()>;

/// What stands behind the operations of nhw32.h, with any way to ask.
class Service {
 public:
  explicit Service(ProviderFactory factory);
  ~Service() { stop(); }
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;

  void start();
  void stop();
  void arm(HWND host, POINT point);
  void disarm();
  /// Whether a question stands: armed and not disarmed since.
  [[nodiscard]] bool armed() const;
  /// The announced word, if there is one and the user has not turned to another window since it was
  /// asked for: a slow answer must not turn up over what is read by then.
  [[nodiscard]] std::optional<Word> word() const;

  /// Threads at work, those included that were sent away and are still waiting for a window.
  [[nodiscard]] int workers() const { return *workers_; }

 private:
  /// Starts the worker with the first question; until then its stack takes no memory. false where
  /// there is no thread to be had.
  bool ensureWorker();
  void startWorker();

  ProviderFactory factory_;
  std::shared_ptr<std::atomic<int>> workers_ = std::make_shared<std::atomic<int>>(0);
  std::shared_ptr<RequestDesk> desk_;  ///< shared with the worker, which may outlive us; or null
  HWND foreground_ = nullptr;          ///< when the question was armed
  bool started_ = false;
};

/// The one behind the operations of nhw32.h.
Service& service();

}  // namespace nhw32
