#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

#include "capture/nhw32/reader.h"

namespace nhw32 {

/// A single-slot mailbox between the thread that arms capture and the worker that asks windows. At
/// most one question is being worked on and at most one waits; a newer question replaces the one
/// that waits. An answer is used only if its question is the one that is armed; the word is then
/// announced to the host, once.
///
/// Thread-safe. arm, disarm, withdraw, armed, word, close and reopen are for the arming thread,
/// waitFor, take and deliver for one worker. Only waitFor and take block.
class ProbeMailbox {
 public:
  /// Notifies a host that a word is there; returns false if the host cannot be notified. Must not
  /// block. Called with the mailbox locked, so that nothing is announced after disarm has returned.
  using Announce = std::function<bool(WindowId host)>;

  explicit ProbeMailbox(Announce announce) : announce_(std::move(announce)) {}

  /// Arms `question` for `host` and drops the word of an earlier one. If the worker is at the same
  /// question and no other was armed since, that work is adopted: otherwise a window slower than
  /// the interval of arming would never be answered.
  void arm(const Question& question, WindowId host);

  /// Cancels the question that is armed. Returns the host if its word was already announced: the
  /// caller then removes the message from the host's queue and calls withdraw(), or, if it is
  /// called by the handler of that message, reads word(), which stays until the next call.
  std::optional<WindowId> disarm();

  /// Drops the word after its announcement was removed from the host's queue.
  void withdraw();

  /// Returns whether a question was armed and not disarmed since, answered or not.
  [[nodiscard]] bool armed() const;

  /// Returns the announced word, otherwise nullopt.
  [[nodiscard]] std::optional<Word> word() const;

  /// Blocks until there is a question or the mailbox is closed, at most `time`; returns whether one
  /// of them is so.
  bool waitFor(std::chrono::milliseconds time);
  /// Blocks until there is a question and returns it; returns nullopt once the mailbox is closed.
  /// Each question is to be followed by one call of deliver.
  std::optional<Question> take();
  /// Delivers the answer to the question that take returned last. Announces its word if the
  /// question is still armed; drops the answer otherwise.
  void deliver(const Answer& answer);

  /// Cancels everything and makes the worker's next take return nullopt.
  void close();
  /// Undoes close() if the worker has not seen it yet; returns false if the worker has left.
  bool reopen();

 private:
  enum class State { kIdle, kArmed, kAnnounced, kFetched };

  const Announce announce_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  State state_ = State::kIdle;
  WindowId host_ = 0;
  std::optional<Question> waiting_;
  std::optional<Question> inWork_;
  bool inWorkCounts_ = false;        ///< the question in work is the one that is armed
  bool inWorkMayBeAdopted_ = false;  ///< and no other question was armed since it was taken
  bool open_ = true;
  bool workerLeft_ = false;
  Word word_;
};

}  // namespace nhw32
