#include "capture/nhw32/mailbox.h"

#include <utility>

// A single-slot mailbox, latest wins: arming overwrites the slot (waiting_) and never queues. What
// the arming thread sees is state_:
//
//     kIdle       nothing is armed
//     kArmed      a question waits, is being worked on, or was answered without a word
//     kAnnounced  its word is in word_, and the host was notified
//     kFetched    disarmed after that; word_ stays for the host's message handler
//
// The worker cannot be interrupted while it asks a window. A question that is replaced or cancelled
// meanwhile is therefore worked on to its end, with inWorkCounts_ cleared, and deliver drops its
// answer. Adoption: if the same question is armed again while it is in work, inWorkCounts_ is set
// again and its answer is for the newest arming. That ends with the first other question, which may
// mean that the pointer left and came back over a changed window.
namespace nhw32 {

void ProbeMailbox::arm(const Question& question, WindowId host) {
  {
    const std::scoped_lock lock(mutex_);
    state_ = State::kArmed;
    host_ = host;
    word_ = {};
    inWorkMayBeAdopted_ = inWorkMayBeAdopted_ && inWork_ == question;
    inWorkCounts_ = inWorkMayBeAdopted_;
    waiting_ = inWorkCounts_ ? std::nullopt : std::optional(question);
  }
  changed_.notify_one();
}

std::optional<WindowId> ProbeMailbox::disarm() {
  const std::scoped_lock lock(mutex_);
  waiting_.reset();
  inWorkCounts_ = false;
  // kFetched too becomes kIdle: the word stays for one message handler only.
  const bool announced = state_ == State::kAnnounced;
  state_ = announced ? State::kFetched : State::kIdle;
  if (!announced) word_ = {};
  return announced ? std::optional(host_) : std::nullopt;
}

void ProbeMailbox::withdraw() {
  const std::scoped_lock lock(mutex_);
  // Another question may have been armed since; its state is not to be touched.
  if (state_ != State::kFetched) return;
  state_ = State::kIdle;
  word_ = {};
}

bool ProbeMailbox::armed() const {
  const std::scoped_lock lock(mutex_);
  return state_ == State::kArmed || state_ == State::kAnnounced;
}

std::optional<Word> ProbeMailbox::word() const {
  const std::scoped_lock lock(mutex_);
  const bool there = state_ == State::kAnnounced || state_ == State::kFetched;
  return there ? std::optional(word_) : std::nullopt;
}

bool ProbeMailbox::waitFor(std::chrono::milliseconds time) {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, time, [this] { return waiting_ || !open_; });
}

std::optional<Question> ProbeMailbox::take() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return waiting_ || !open_; });
  if (!open_) {
    workerLeft_ = true;
    return std::nullopt;
  }
  inWork_ = std::exchange(waiting_, std::nullopt);
  inWorkCounts_ = true;
  inWorkMayBeAdopted_ = true;
  return inWork_;
}

void ProbeMailbox::deliver(const Answer& answer) {
  const std::scoped_lock lock(mutex_);
  const bool counts = std::exchange(inWorkCounts_, false);
  inWork_.reset();
  inWorkMayBeAdopted_ = false;
  if (!counts || answer.outcome != Outcome::kWord) return;
  word_ = answer.word;
  // Under the lock, so that disarm cannot run between the notification and the state.
  state_ = announce_(host_) ? State::kAnnounced : State::kIdle;
}

void ProbeMailbox::close() {
  {
    const std::scoped_lock lock(mutex_);
    // The question in work is left to the worker, which sees open_ only at its next take.
    open_ = false;
    waiting_.reset();
    inWorkCounts_ = false;
    inWorkMayBeAdopted_ = false;
    state_ = State::kIdle;
    word_ = {};
  }
  changed_.notify_one();
}

bool ProbeMailbox::reopen() {
  const std::scoped_lock lock(mutex_);
  if (!workerLeft_) open_ = true;
  return open_;
}

}  // namespace nhw32
