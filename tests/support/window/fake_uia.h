#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "capture/nhw32/reader.h"
#include "capture/nhw32/uia/uia_interfaces.h"

/// A fake of UI Automation: a chain of elements, one of which may hold a text, and the COM objects
/// of the client's side.
namespace support {

/// One element and its properties.
struct ElementPlan {
  VARTYPE passwordType = VT_BOOL;
  bool password = false;
  bool text = false;
  DWORD process = GetCurrentProcessId();
  HWND window = nullptr;
};

/// A failure of one of the calls.
struct Trouble {
  std::size_t call = 0;  ///< the number of the call, from 0
  HRESULT result = E_FAIL;
  bool throws = false;
};

/// What TextUnit_Character covers; programs differ in whether CR LF is one character or two.
enum class Units { kCharacters, kCharactersWithCrLf, kWords, kAll };

/// What GetBoundingRectangles returns.
enum class Rectangles { kRight, kNothing, kNone, kOdd, kIntegers, kTwoDimensions, kInfinite };

struct FakeUiaPlan {
  /// The element under every point and its ancestors.
  std::vector<ElementPlan> elements = std::vector<ElementPlan>(1);
  std::u16string text;
  Units units = Units::kCharacters;
  Rectangles rectangles = Rectangles::kRight;
  bool keepsToLength = true;  ///< GetText cuts its text as it is told to
  std::optional<Trouble> trouble;
  std::chrono::milliseconds perCall{0};
  std::function<void()> onCall = [] {};
  HRESULT limits = S_OK;  ///< what setting a limit of time returns
};

/// The calls that were made.
struct FakeUiaLog {
  std::vector<std::string> calls;
  int live = 0;  ///< objects that somebody holds a reference to
  std::size_t unitsRead = 0;
  DWORD connectionLimit = 0;
  DWORD transactionLimit = 0;
  bool takesFocus = true;
  std::chrono::steady_clock::time_point now{};
};

/// What the objects share.
struct FakeUia {
  FakeUiaPlan plan;
  FakeUiaLog log;

  /// Takes note of a call and lets `act` answer it, unless the plan has trouble for it.
  template <class Act>
  HRESULT call(const char* name, Act act) {
    const std::size_t number = log.calls.size();
    log.calls.emplace_back(name);
    log.now += plan.perCall;
    plan.onCall();
    if (plan.trouble && plan.trouble->call == number) return fail();
    return act();
  }

  [[nodiscard]] std::size_t times(const std::string& name) const;

 private:
  [[nodiscard]] HRESULT fail() const;
};

/// A client of it, with one reference.
HRESULT makeFakeUia(FakeUia& uia, nhw32::IUIAutomation2** client);

/// A range of its text.
HRESULT makeFakeUiaRange(FakeUia& uia, std::size_t begin, std::size_t end,
                         nhw32::IUIAutomationTextRange** range);

/// Counts references for an object of the fake.
template <class Interface>
class Counted : public Interface {
 public:
  explicit Counted(FakeUia& uia) : in_(uia) { ++in_.log.live; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  virtual ~Counted() { --in_.log.live; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID /*iid*/, void** result) override {
    *result = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) const std::unique_ptr<Counted> last(this);
    return left;
  }

 protected:
  FakeUia& in_;

 private:
  ULONG references_ = 1;
};

/// Where the fake's characters lie: a grid, each line of the text one row.
namespace grid {
inline constexpr int kLeft = 100;
inline constexpr int kTop = 200;
inline constexpr int kWidth = 10;
inline constexpr int kHeight = 20;

/// A point of the character in a row and column, `right` pixels from its left edge.
inline nhw32::ScreenPoint at(int row, int column, int right = 2) {
  return {kLeft + column * kWidth + right, kTop + row * kHeight + kHeight / 2};
}

/// The place of some characters of a row.
inline nhw32::ScreenBox box(int row, int column, int count) {
  return {kLeft + column * kWidth, kTop + row * kHeight, kLeft + (column + count) * kWidth,
          kTop + (row + 1) * kHeight};
}

/// The position that is nearest to a point.
std::size_t nearest(const std::u16string& text, POINT point);
/// The rectangles of a part of the text: left, top, width, height of each row's.
std::vector<double> rectangles(const std::u16string& text, std::size_t begin, std::size_t end);
}  // namespace grid

}  // namespace support
