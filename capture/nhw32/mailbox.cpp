#include "capture/nhw32/mailbox.h"

#include <utility>

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
  const bool announced = state_ == State::kAnnounced;
  state_ = announced ? State::kFetched : State::kIdle;
  if (!announced) word_ = {};
  return announced ? std::optional(host_) : std::nullopt;
}

void ProbeMailbox::withdraw() {
  const std::scoped_lock lock(mutex_);
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
  state_ = announce_(host_) ? State::kAnnounced : State::kIdle;
}

void ProbeMailbox::close() {
  {
    const std::scoped_lock lock(mutex_);
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
