#include "capture/nhw32/uia/client.h"

#include <objbase.h>

#include <optional>
#include <utility>

#include "capture/nhw32/uia/com.h"
#include "capture/nhw32/uia/geometry.h"
#include "capture/nhw32/uia/text.h"

// The client is created by the first question and kept. It runs in this process, on this thread,
// and calls the providers in other processes; the time limits that it is given apply to each call,
// those of UiaCalls to a question. CUIAutomation8 is the class of Windows 8 and later; the older
// one is tried where it is missing.
namespace nhw32 {
namespace {

HRESULT createClient(REFCLSID clientClass, IUIAutomation2** client) {
  return CoCreateInstance(clientClass, nullptr, CLSCTX_INPROC_SERVER, IID_IUIAutomation2,
                          reinterpret_cast<void**>(client));
}

HRESULT makeSystemClient(IUIAutomation2** client) {
  const HRESULT result = createClient(CLSID_CUIAutomation8, client);
  return SUCCEEDED(result) ? result : createClient(CLSID_CUIAutomation, client);
}

/// Sets the client's time limits; returns false for a client that does not accept them. Its own are
/// 2 and 20 seconds, too long for a worker that is to answer about the next point. A call must not
/// move the focus either.
bool prepare(IUIAutomation2& client) {
  const auto limit = static_cast<DWORD>(kUiaCallTime.count());
  return SUCCEEDED(client.put_AutoSetFocus(FALSE)) &&
         SUCCEEDED(client.put_ConnectionTimeout(limit)) &&
         SUCCEEDED(client.put_TransactionTimeout(limit));
}

/// Returns the window's rectangle on the screen, nullopt if it is hidden or has gone.
std::optional<ScreenBox> placeOf(HWND window) {
  RECT place{};
  if (!IsWindowVisible(window) || !GetWindowRect(window, &place)) return std::nullopt;
  return ScreenBox{static_cast<int>(place.left), static_cast<int>(place.top),
                   static_cast<int>(place.right), static_cast<int>(place.bottom)};
}

class UiaReader : public WordReader {
 public:
  explicit UiaReader(UiaSystem system) : system_(std::move(system)) {}

  Answer wordAt(const Question& question) override {
    try {
      return haveClient() ? ask(question) : Answer{};
    } catch (const NoAnswer& failure) {
      return {.outcome = failure.outcome(), .word = {}};
    } catch (...) {
      // The code of other makers runs inside the client and may throw anything.
      return {};
    }
  }

 private:
  /// Creates the client if there is none yet; returns false if that fails or is not due again.
  bool haveClient() {
    if (client_) return true;
    const auto now = system_.now();
    if (!retry_.due(now)) return false;
    // Recorded first, since makeClient may throw.
    retry_.failed(now);
    if (!com_) com_.emplace();
    if (!com_->ready()) return false;
    ComPtr<IUIAutomation2> client;
    if (FAILED(system_.makeClient(client.GetAddressOf())) || !client || !prepare(*client.Get()))
      return false;
    client_ = std::move(client);
    return true;
  }

  Answer ask(const Question& question) {
    auto* const window = reinterpret_cast<HWND>(question.window);
    const auto place = placeOf(window);
    if (!place) return {};
    UiaCalls calls(system_.now);
    const auto pattern = textPatternAt(*client_.Get(), question, calls);
    if (!pattern) return {};
    auto word = wordUnder(*pattern.Get(), question.point, calls);
    // The window may have been closed, moved, resized or hidden meanwhile.
    if (!word || placeOf(window) != place) return {};
    return {Outcome::kWord, std::move(*word)};
  }

  UiaSystem system_;
  Retry retry_{kClientRetryDelay};
  std::optional<ScopedCom> com_;
  ComPtr<IUIAutomation2> client_;  // declared last: released before COM ends
};

}  // namespace

std::unique_ptr<WordReader> makeUiaReader() {
  return makeUiaReader({.makeClient = makeSystemClient});
}

std::unique_ptr<WordReader> makeUiaReader(UiaSystem system) {
  return std::make_unique<UiaReader>(std::move(system));
}

}  // namespace nhw32
