#include "capture/nhw32/uia/client.h"

#include <objbase.h>

#include <array>
#include <optional>
#include <utility>

#include "capture/nhw32/uia/com.h"
#include "capture/nhw32/uia/element.h"
#include "capture/nhw32/uia/limits.h"
#include "capture/nhw32/uia/prepared_client.h"
#include "capture/nhw32/uia/text.h"

// The client is created by the first question and kept. It runs in this process, on this thread,
// and calls the providers in other processes; the time limits that it is given apply to each call,
// those of UiaCalls to a question.
namespace nhw32 {
namespace {

/// CUIAutomation8 is the class of Windows 8 and later. The one of Windows 7 has no limits of time.
HRESULT makeSystemClient(IUIAutomation2** client) {
  return CoCreateInstance(CLSID_CUIAutomation8, nullptr, CLSCTX_INPROC_SERVER, IID_IUIAutomation2,
                          reinterpret_cast<void**>(client));
}

bool isConsoleWindow(HWND window) {
  std::array<wchar_t, 257> name{};  // class names have at most 256 characters
  const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return isConsole(std::u16string(name.begin(), name.begin() + length));
}

std::uint32_t processOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
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
    if (FAILED(system_.makeClient(client.GetAddressOf())) || !client) return false;
    client_ = PreparedClient::make(std::move(client));
    return client_.has_value();
  }

  Answer ask(const Question& question) {
    auto* const window = reinterpret_cast<HWND>(question.window);
    const auto place = placeOf(window);
    if (!place) return {};
    const bool console = isConsoleWindow(window);
    if (console && !mayAskConsoles(system_.build())) return {};
    const bool first = contacts_.isFirst(processOf(window));
    client_->limitConnecting(first ? kUiaFirstQuestionTime : kUiaCallTime);
    UiaCalls calls(system_.now, first ? kUiaFirstQuestionTime : kUiaQuestionTime);
    const auto start = system_.now();
    auto word = find(question, console ? Search::kLine : Search::kCharacter, calls);
    // What was under the point when a slow program was first asked may be gone: it is asked again,
    // and answers sooner now.
    if (first && system_.now() - start > kUiaQuestionTime) return {};
    // The window may have been closed, moved, resized or hidden meanwhile.
    if (!word || placeOf(window) != place) return {};
    return {Outcome::kWord, std::move(*word)};
  }

  std::optional<Word> find(const Question& question, Search search, UiaCalls& calls) {
    const TextHolder holder = textHolderAt(*client_, question, calls);
    if (holder.text) return wordUnder(*holder.text.Get(), question.point, search, calls);
    if (holder.item) return wordOfItem(*holder.item.Get(), question.point, calls);
    return std::nullopt;
  }

  UiaSystem system_;
  Retry retry_{kClientRetryDelay};
  std::optional<ScopedCom> com_;
  Contacts contacts_;
  std::optional<PreparedClient> client_;  // declared last: released before COM ends
};

}  // namespace

// GetVersionEx tells the version that the program's manifest names.
std::uint32_t windowsBuild() {
  using GetVersion = LONG(WINAPI*)(RTL_OSVERSIONINFOW*);
  const HMODULE library = GetModuleHandleW(L"ntdll.dll");
  if (library == nullptr) return 0;
  const auto getVersion = reinterpret_cast<GetVersion>(
      reinterpret_cast<void*>(GetProcAddress(library, "RtlGetVersion")));
  RTL_OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  return getVersion != nullptr && getVersion(&version) >= 0 ? version.dwBuildNumber : 0;
}

std::unique_ptr<WordReader> makeUiaReader() {
  return makeUiaReader({.makeClient = makeSystemClient});
}

std::unique_ptr<WordReader> makeUiaReader(UiaSystem system) {
  return std::make_unique<UiaReader>(std::move(system));
}

}  // namespace nhw32
