#include "capture/nhw32/uia/automation_provider.h"

#include <objbase.h>

#include <optional>

#include "capture/nhw32/uia/automation_element.h"
#include "capture/nhw32/uia/automation_owners.h"
#include "capture/nhw32/uia/automation_rules.h"
#include "capture/nhw32/uia/automation_text.h"

namespace nhw32 {
namespace {

HRESULT createClient(REFCLSID clientClass, AutomationClient2** client) {
  return CoCreateInstance(clientClass, nullptr, CLSCTX_INPROC_SERVER, kAutomationClient2Id,
                          reinterpret_cast<void**>(client));
}

HRESULT makeSystemClient(AutomationClient2** client) {
  const HRESULT result = createClient(kAutomationClass8, client);
  return SUCCEEDED(result) ? result : createClient(kAutomationClass, client);
}

/// Without limits of time nothing is asked: the client's own are 2 and 20 seconds.
bool prepare(AutomationClient2& client) {
  const auto limit = static_cast<DWORD>(kCallLimit.count());
  return SUCCEEDED(client.put_AutoSetFocus(FALSE)) &&
         SUCCEEDED(client.put_ConnectionTimeout(limit)) &&
         SUCCEEDED(client.put_TransactionTimeout(limit));
}

/// Where a window lies on the screen; none where it is hidden or gone.
std::optional<ScreenBox> placeOf(HWND window) {
  RECT place{};
  if (!IsWindowVisible(window) || !GetWindowRect(window, &place)) return std::nullopt;
  return ScreenBox{static_cast<int>(place.left), static_cast<int>(place.top),
                   static_cast<int>(place.right), static_cast<int>(place.bottom)};
}

class AutomationProvider : public TextProvider {
 public:
  explicit AutomationProvider(AutomationSystem system) : system_(std::move(system)) {}

  Answer wordAt(const Question& question) override {
    try {
      return haveClient() ? ask(question) : Answer{};
    } catch (...) {
      return {};
    }
  }

 private:
  bool haveClient() {
    if (client_) return true;
    const auto now = system_.now();
    if (!retry_.due(now)) return false;
    // Noted beforehand: making one may also throw.
    retry_.failed(now);
    if (!com_) com_.emplace();
    if (!com_->ready()) return false;
    Reference<AutomationClient2> client;
    if (FAILED(system_.makeClient(client.out())) || !client || !prepare(*client.get()))
      return false;
    client_ = std::move(client);
    return true;
  }

  Answer ask(const Question& question) {
    auto* const window = reinterpret_cast<HWND>(question.window);
    const auto place = placeOf(window);
    if (!place) return {};
    AutomationCalls calls(system_.now);
    const auto pattern = textPatternAt(*client_.get(), question, calls);
    if (pattern) {
      auto word = wordUnder(*pattern.get(), question.point, calls);
      // Meanwhile the window may have gone, moved or shrunk.
      if (word && placeOf(window) == place) return {Outcome::word, std::move(*word)};
    }
    return {calls.outOfTime() ? Outcome::outOfTime : Outcome::none, {}};
  }

  AutomationSystem system_;
  Retry retry_{kClientPause};
  std::optional<ComThread> com_;
  Reference<AutomationClient2> client_;  // goes before COM does
};

}  // namespace

std::unique_ptr<TextProvider> makeAutomationProvider() {
  return makeAutomationProvider({makeSystemClient, std::chrono::steady_clock::now});
}

std::unique_ptr<TextProvider> makeAutomationProvider(AutomationSystem system) {
  return std::make_unique<AutomationProvider>(std::move(system));
}

}  // namespace nhw32
