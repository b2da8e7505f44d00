#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <set>
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
  int type = 50033;  ///< a pane
  std::optional<std::u16string> value;
  std::u16string name;
  std::vector<double> place;
};

/// A failure of one of the calls.
struct Trouble {
  std::size_t call = 0;  ///< the number of the call, from 0
  HRESULT result = E_FAIL;
  bool throws = false;
};

/// What TextUnit_Character covers; programs differ in whether CR LF is one character or two. With
/// kListItems a label, the tab after it and the item's first character are one, as in word
/// processors.
enum class Units { kCharacters, kCharactersWithCrLf, kListItems, kWords, kAll };

/// What GetBoundingRectangles returns.
enum class Rectangles { kRight, kNothing, kNone, kOdd, kIntegers, kTwoDimensions, kInfinite };

struct FakeUiaPlan {
  /// The element under every point and its ancestors.
  std::vector<ElementPlan> elements = std::vector<ElementPlan>(1);
  std::u16string text;
  Units units = Units::kCharacters;
  Rectangles rectangles = Rectangles::kRight;
  bool keepsToLength = true;  ///< GetText cuts its text as it is told to
  bool trimsBlanks = false;   ///< GetText leaves out the blanks at the end of each row
  bool tellsRowOnly = false;  ///< RangeFromPoint returns the beginning of the point's row
  std::size_t columns = 0;    ///< longer lines go on in the next row; 0 is no limit
  std::optional<Trouble> trouble;
  std::chrono::milliseconds perCall{0};
  std::function<void()> onCall = [] {};
  std::set<std::string> refused;  ///< functions of the client that fail, in preparing it
  DWORD ownLimit = 20'000;        ///< the limits of time that it has by itself
  std::uint32_t build = 26100;    ///< of Windows
};

/// The calls that were made.
struct FakeUiaLog {
  std::vector<std::string> calls;
  std::size_t localCalls = 0;  ///< those of them that are answered by what was prefetched
  int farthest = 0;            ///< characters by which a range or its end was to be moved at most
  int mostLines = 0;           ///< lines
  bool stopped = false;        ///< a move by characters was stopped by an end of the text
  int live = 0;                ///< objects that somebody holds a reference to
  std::size_t unitsRead = 0;
  DWORD transactionLimit = 0;
  std::vector<DWORD> connectionLimits;  ///< in the order in which they were set
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

  /// The same for a call that does not leave the client's process, which takes no time.
  template <class Act>
  HRESULT callLocally(const char* name, Act act) {
    ++log.localCalls;
    log.now -= plan.perCall;
    return call(name, act);
  }

  /// Lets `act` answer a call that prepares the client, unless the plan refuses it.
  template <class Act>
  HRESULT prepare(const char* name, Act act) {
    return plan.refused.contains(name) ? E_NOTIMPL : act();
  }

  [[nodiscard]] std::size_t times(const std::string& name) const;
  [[nodiscard]] std::size_t remoteCalls() const { return log.calls.size() - log.localCalls; }

 private:
  [[nodiscard]] HRESULT fail() const;
};

/// A client of it, with one reference.
HRESULT makeFakeUia(FakeUia& uia, nhw32::IUIAutomation2** client);

/// A range of its text.
HRESULT makeFakeUiaRange(FakeUia& uia, std::size_t begin, std::size_t end,
                         nhw32::IUIAutomationTextRange** range);

/// An array as automation hands them out.
SAFEARRAY* arrayOf(const std::vector<double>& numbers);

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

/// Where the fake's characters lie: a grid, each line of the text one row or, if it is longer than
/// the row's columns, some.
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

/// A row's part of the text, without the line's end.
struct Row {
  std::size_t begin;
  std::size_t end;
};
using Rows = std::vector<Row>;

Rows rowsOf(const std::u16string& text, std::size_t columns);
/// The position that is nearest to a point, or where its row begins.
std::size_t nearest(const Rows& rows, POINT point, bool rowOnly);
/// The rectangles of a part of the text: left, top, width, height of each row's.
std::vector<double> rectangles(const Rows& rows, std::size_t begin, std::size_t end);
}  // namespace grid

}  // namespace support
