#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

#include "capture/nhw32/text_provider.h"

namespace nhw32 {

/// Where the thread that arms capture and the worker that asks windows meet. One question is in
/// work and at most one waits: the newest. An answer counts only while its question is the one that
/// is armed; then it is announced to the host, once.
///
/// arm, disarm, withdraw, armed and word belong to the arming thread, take and deliver to the
/// worker; none but take waits.
class RequestDesk {
 public:
  /// Tells a host that a word is there, without waiting for it; false where it cannot be told.
  /// Called with the desk locked, so that nothing is announced once disarm has returned.
  using Announce = std::function<bool(WindowId host)>;

  explicit RequestDesk(Announce announce) : announce_(std::move(announce)) {}

  /// Asks anew, or adopts the question in work where it is the same and no other was armed since:
  /// a window slower than the rhythm of arming is heard that way.
  void arm(const Question& question, WindowId host);

  /// Makes an answer to what was armed before impossible. Returns the host to which a word was
  /// announced since then: if the announcement is still on its way, take it back and withdraw; if
  /// not, the host is about to fetch the word, which stays until the next call.
  std::optional<WindowId> disarm();

  /// Drops the word whose announcement was taken back.
  void withdraw();

  /// Whether a question stands: armed and not disarmed since, answered or not.
  [[nodiscard]] bool armed() const;

  /// The announced word.
  [[nodiscard]] std::optional<Word> word() const;

  /// Waits for the next question; none once the desk is closed. Its answer is due at deliver.
  std::optional<Question> take();
  void deliver(const Answer& answer);

  /// Sends the worker away as soon as it has delivered.
  void close();
  /// Keeps a worker that was sent away and has not left yet; false where it has.
  bool reopen();

 private:
  enum class State { idle, armed, announced, fetched };

  const Announce announce_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  State state_ = State::idle;
  WindowId host_ = 0;
  std::optional<Question> waiting_;
  std::optional<Question> inWork_;
  bool inWorkCounts_ = false;  ///< the question in work is the one that is armed
  bool inWorkMayBeAdopted_ = false;
  bool open_ = true;
  bool workerLeft_ = false;
  Word word_;
};

}  // namespace nhw32
