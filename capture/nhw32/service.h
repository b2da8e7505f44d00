#pragma once

#include <windows.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

#include "capture/nhw32/mailbox.h"
#include "capture/nhw32/resting.h"
#include "text/readings.h"

namespace nhw32 {

/// Makes the reader of a worker; called on the worker's own thread.
using ReaderFactory = std::function<std::unique_ptr<WordReader>()>;

/// The service behind the operations of nhw32.h, with any reader. One worker thread reads the
/// words; the member functions are for the thread that owns the host window, and none of them
/// throws or waits for the worker or for another process.
class Service {
 public:
  /// `message` is the registered message that is posted to the host when a word was found.
  Service(ReaderFactory factory, UINT message);
  ~Service() { stop(); }
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;

  /// Begins to accept questions. If started already, only looks whether the pointer has left the
  /// quiet place, also where no window is asked.
  void start();
  /// Cancels everything and lets the worker end as soon as its window has answered.
  void stop();
  /// Asks for the word at `point` (physical pixels of the virtual screen). The message is posted to
  /// `host` once the word was found. Does nothing if the service is not started, and cancels only
  /// if no window is at the point, if it is at the quiet place or if a mouse button is down.
  void arm(HWND host, POINT point);
  /// Begins a quiet place (QuietPlace) at `place` and cancels what is armed.
  void leaveAlone(POINT place);
  /// Cancels the question that is armed and removes its message from the host's queue. If the
  /// message was taken from the queue already, the word stays until the next arm or disarm.
  void disarm();
  /// Returns whether a question was armed and not disarmed since.
  [[nodiscard]] bool armed() const;
  /// Returns the word that was found, or nullopt if there is none, another window has come to the
  /// foreground since the question was armed, or a mouse button is down: a late word must not
  /// appear over that window, nor beside a selection that is being dragged.
  [[nodiscard]] std::optional<Word> word() const;

  /// The function that tells which reading of a word is a headword; null at first. The service
  /// keeps it for the caller, and does not call it.
  void setIsHeadword(text::IsHeadword isHeadword) { isHeadword_ = std::move(isHeadword); }
  [[nodiscard]] const text::IsHeadword& isHeadword() const { return isHeadword_; }

  /// Returns the number of worker threads, including those that are to end but still wait for a
  /// window. For tests and measurements.
  [[nodiscard]] int workers() const { return *workers_; }

 private:
  /// Starts the worker with the first question; until then its stack takes no memory. Returns false
  /// if no thread can be created.
  bool ensureWorker();
  void startWorker();

  ReaderFactory factory_;
  UINT message_;
  std::shared_ptr<std::atomic<int>> workers_ = std::make_shared<std::atomic<int>>(0);
  /// Shared with the worker, which may outlive us; null until the first question.
  std::shared_ptr<ProbeMailbox> mailbox_;
  HWND foreground_ = nullptr;  ///< the foreground window when the question was armed
  QuietPlace quietPlace_;
  bool started_ = false;
  text::IsHeadword isHeadword_;
};

}  // namespace nhw32
