#include "capture/nhw32/service.h"

#include <system_error>
#include <thread>

#include "capture/nhw32/nhw32.h"

namespace nhw32 {
namespace {

HWND windowOf(WindowId id) { return reinterpret_cast<HWND>(id); }

WindowId idOf(HWND window) { return reinterpret_cast<WindowId>(window); }

/// Counts a thread for as long as it lives.
class Counted {
 public:
  explicit Counted(std::shared_ptr<std::atomic<int>> count) : count_(std::move(count)) {
    ++*count_;
  }
  Counted(Counted&&) noexcept = default;
  Counted& operator=(Counted&&) = delete;
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() {
    if (count_ != nullptr) --*count_;
  }

 private:
  std::shared_ptr<std::atomic<int>> count_;
};

Answer answerOf(TextProvider& provider, const Question& question) {
  try {
    return provider.wordAt(question);
  } catch (const std::exception&) {
    return {};
  }
}

/// The worker's life. It counts pixels as the screen does.
void work(RequestDesk& desk, const ProviderFactory& factory) {
  SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  const std::unique_ptr<TextProvider> provider = factory();
  while (const auto question = desk.take()) desk.deliver(answerOf(*provider, *question));
}

/// Takes the message out of the host's queue. Messages that other threads send are not let in.
bool takeBack(HWND host, UINT message) {
  MSG taken;
  return PeekMessageW(&taken, host, message, message, PM_REMOVE | PM_NOYIELD | PM_QS_POSTMESSAGE) !=
         FALSE;
}

}  // namespace

Service::Service(ProviderFactory factory) : factory_(std::move(factory)) {}

void Service::start() { started_ = true; }

bool Service::ensureWorker() {
  if (desk_ == nullptr || !desk_->reopen()) startWorker();
  return desk_ != nullptr;
}

void Service::startWorker() {
  const UINT message = RegisterWindowMessageA(kMessageName);
  desk_ = std::make_shared<RequestDesk>(
      [message](WindowId host) { return PostMessageW(windowOf(host), message, 0, 0) != FALSE; });
  try {
    std::thread([desk = desk_, factory = factory_, counted = Counted(workers_)] {
      work(*desk, factory);
    }).detach();
  } catch (const std::system_error&) {
    desk_.reset();  // no thread to be had now; the next question tries again
  }
}

void Service::stop() {
  if (!started_) return;
  disarm();
  started_ = false;
  if (desk_ != nullptr) desk_->close();
}

void Service::arm(HWND host, POINT point) {
  if (!started_ || !ensureWorker()) return;
  disarm();
  foreground_ = GetForegroundWindow();
  const HWND target = WindowFromPoint(point);
  if (target != nullptr) {
    desk_->arm({idOf(target), {static_cast<int>(point.x), static_cast<int>(point.y)}}, idOf(host));
  }
}

void Service::disarm() {
  if (!started_ || desk_ == nullptr) return;
  const auto host = desk_->disarm();
  if (host && takeBack(windowOf(*host), RegisterWindowMessageA(kMessageName))) desk_->withdraw();
}

bool Service::armed() const { return started_ && desk_ != nullptr && desk_->armed(); }

std::optional<Word> Service::word() const {
  const bool asked = started_ && desk_ != nullptr && GetForegroundWindow() == foreground_;
  return asked ? desk_->word() : std::nullopt;
}

}  // namespace nhw32
