#include "capture/nhw32/service.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <system_error>
#include <thread>
#include <utility>

// The arming thread and the worker share nothing but a ProbeMailbox. No window can be asked in a
// time that is guaranteed, so nobody ever waits for the worker: stop() closes the mailbox and
// leaves the detached thread to itself, which ends once its window has answered. If the service is
// started again before that, the mailbox is reopened and the same worker goes on; if the worker has
// left already, a new one is started with a mailbox of its own. The thread owns all that it uses
// (mailbox, factory, count), since it may outlive the service.
namespace nhw32 {
namespace {

HWND windowOf(WindowId id) { return reinterpret_cast<HWND>(id); }

WindowId idOf(HWND window) { return reinterpret_cast<WindowId>(window); }

ScreenPoint placeOf(POINT point) { return {static_cast<int>(point.x), static_cast<int>(point.y)}; }

/// Whether any button of the mouse is down, in any program. GetAsyncKeyState knows the physical
/// buttons, so that it does not matter here whether the user has exchanged left and right.
bool isButtonDown() {
  constexpr std::array kButtons{VK_LBUTTON, VK_RBUTTON, VK_MBUTTON, VK_XBUTTON1, VK_XBUTTON2};
  return std::ranges::any_of(kButtons, [](int button) { return GetAsyncKeyState(button) < 0; });
}

/// Counts a thread until the end of the scope.
class ScopedCount {
 public:
  explicit ScopedCount(std::shared_ptr<std::atomic<int>> count) : count_(std::move(count)) {
    ++*count_;
  }
  ScopedCount(ScopedCount&&) noexcept = default;
  ScopedCount& operator=(ScopedCount&&) = delete;
  ScopedCount(const ScopedCount&) = delete;
  ScopedCount& operator=(const ScopedCount&) = delete;
  ~ScopedCount() {
    if (count_ != nullptr) --*count_;
  }

 private:
  std::shared_ptr<std::atomic<int>> count_;
};

Answer answerOf(WordReader& reader, const Question& question) {
  try {
    return reader.wordAt(question);
  } catch (...) {
    return {};
  }
}

/// Returns a new reader, null if there is none to be had, for lack of memory say. An exception that
/// left the worker would end the program.
std::unique_ptr<WordReader> readerOf(const ReaderFactory& factory) {
  try {
    return factory();
  } catch (...) {
    return nullptr;
  }
}

/// The time without a question after which the reader frees what it keeps: some probes long.
constexpr std::chrono::milliseconds kRest{500};

/// Returns the next question, nullopt at the end. The reader may rest before.
std::optional<Question> nextQuestion(ProbeMailbox& mailbox, WordReader* reader) {
  if (reader != nullptr && !mailbox.waitFor(kRest)) reader->rest();
  return mailbox.take();
}

/// The worker's thread function. Per-monitor awareness makes the coordinates that Windows returns
/// physical pixels (ScreenPoint).
void work(ProbeMailbox& mailbox, const ReaderFactory& factory) {
  SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  const std::unique_ptr<WordReader> reader = readerOf(factory);
  while (const auto question = nextQuestion(mailbox, reader.get())) {
    mailbox.deliver(reader == nullptr ? Answer{} : answerOf(*reader, *question));
  }
}

/// Removes the message from the host's queue; returns whether it was there. PM_QS_POSTMESSAGE and
/// PM_NOYIELD: a plain PeekMessage would dispatch what other threads have sent to our windows.
bool takeBack(HWND host, UINT message) {
  MSG taken;
  return PeekMessageW(&taken, host, message, message, PM_REMOVE | PM_NOYIELD | PM_QS_POSTMESSAGE) !=
         FALSE;
}

}  // namespace

Service::Service(ReaderFactory factory, UINT message)
    : factory_(std::move(factory)), message_(message) {}

void Service::start() {
  started_ = true;
  POINT pointer{};
  if (GetCursorPos(&pointer) != FALSE) quietPlace_.pointerAt(placeOf(pointer));
}

void Service::leaveAlone(POINT place) {
  disarm();
  quietPlace_.begin(placeOf(place));
}

bool Service::ensureWorker() {
  if (mailbox_ == nullptr || !mailbox_->reopen()) startWorker();
  return mailbox_ != nullptr;
}

void Service::startWorker() {
  mailbox_ = std::make_shared<ProbeMailbox>([message = message_](WindowId host) {
    return PostMessageW(windowOf(host), message, 0, 0) != FALSE;
  });
  try {
    std::thread([mailbox = mailbox_, factory = factory_, counted = ScopedCount(workers_)] {
      work(*mailbox, factory);
    }).detach();
  } catch (const std::system_error&) {
    mailbox_.reset();  // no thread can be created now; the next question tries again
  }
}

void Service::stop() {
  if (!started_) return;
  disarm();
  quietPlace_ = {};
  started_ = false;
  if (mailbox_ != nullptr) mailbox_->close();
}

void Service::arm(HWND host, POINT point) {
  if (!started_ || !ensureWorker()) return;
  // The earlier question may have been answered: its message must not be taken for this one's.
  disarm();
  foreground_ = GetForegroundWindow();
  const HWND target = WindowFromPoint(point);
  if (target != nullptr && quietPlace_.mayAsk(placeOf(point), isButtonDown())) {
    mailbox_->arm({idOf(target), placeOf(point)}, idOf(host));
  }
}

void Service::disarm() {
  if (!started_ || mailbox_ == nullptr) return;
  const auto host = mailbox_->disarm();
  if (host && takeBack(windowOf(*host), message_)) mailbox_->withdraw();
}

bool Service::armed() const { return started_ && mailbox_ != nullptr && mailbox_->armed(); }

std::optional<Word> Service::word() const {
  const bool wanted = started_ && mailbox_ != nullptr && GetForegroundWindow() == foreground_;
  return wanted && !isButtonDown() ? mailbox_->word() : std::nullopt;
}

}  // namespace nhw32
