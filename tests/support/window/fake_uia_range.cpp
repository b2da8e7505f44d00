#include <algorithm>
#include <cstdlib>
#include <limits>
#include <memory>

#include "tests/support/window/fake_uia.h"
#include "tests/support/window/uia_stubs.h"

namespace support {

SAFEARRAY* arrayOf(const std::vector<double>& numbers) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_R8, 0, static_cast<ULONG>(numbers.size()));
  for (LONG i = 0; i < static_cast<LONG>(numbers.size()); ++i) {
    double number = numbers[static_cast<std::size_t>(i)];
    SafeArrayPutElement(array, &i, &number);
  }
  return array;
}
namespace {

using nhw32::TextUnit;

SAFEARRAY* arrayWithTwoDimensions() {
  SAFEARRAYBOUND bounds[] = {{4, 0}, {1, 0}};
  return SafeArrayCreate(VT_R8, 2, bounds);
}

SAFEARRAY* arrayFor(Rectangles kind, std::vector<double> numbers) {
  switch (kind) {
    case Rectangles::kRight:
      return arrayOf(numbers);
    case Rectangles::kNothing:
      return nullptr;
    case Rectangles::kNone:
      return arrayOf({});
    case Rectangles::kOdd:
      numbers.push_back(1);
      return arrayOf(numbers);
    case Rectangles::kIntegers:
      return SafeArrayCreateVector(VT_I4, 0, 4);
    case Rectangles::kTwoDimensions:
      return arrayWithTwoDimensions();
    case Rectangles::kInfinite:
      return arrayOf({-std::numeric_limits<double>::infinity(), 0,
                      std::numeric_limits<double>::infinity(), 4000});
  }
  return nullptr;
}

std::u16string withoutBlanksAtLineEnds(const std::u16string& text) {
  std::u16string left;
  for (const char16_t unit : text + u'\n') {
    if (unit == u'\n') left.resize(left.find_last_not_of(u' ') + 1);
    left += unit;
  }
  left.pop_back();
  return left;
}

class Range : public Counted<UiaTextRangeStub> {
 public:
  Range(FakeUia& uia, std::size_t begin, std::size_t end)
      : Counted(uia), begin_(begin), end_(end) {}

  HRESULT STDMETHODCALLTYPE Clone(nhw32::IUIAutomationTextRange** copy) override {
    return in_.call("Clone", [&] { return makeFakeUiaRange(in_, begin_, end_, copy); });
  }

  HRESULT STDMETHODCALLTYPE ExpandToEnclosingUnit(TextUnit unit) override {
    return in_.call("ExpandToEnclosingUnit", [&] {
      while (begin_ > 0 && !isEdge(begin_, unit)) --begin_;
      end_ = next(begin_, unit);
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE GetBoundingRectangles(SAFEARRAY** rectangles) override {
    return in_.call("GetBoundingRectangles", [&] {
      *rectangles = arrayFor(in_.plan.rectangles, grid::rectangles(rows_, begin_, end_));
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE GetText(int maxLength, BSTR* result) override {
    return in_.call("GetText", [&] {
      std::u16string part = text().substr(begin_, end_ - begin_);
      if (in_.plan.trimsBlanks) part = withoutBlanksAtLineEnds(part);
      if (in_.plan.keepsToLength) part.resize(std::min<std::size_t>(part.size(), maxLength));
      in_.log.unitsRead += part.size();
      *result = SysAllocStringLen(reinterpret_cast<const OLECHAR*>(part.data()),
                                  static_cast<UINT>(part.size()));
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE Move(TextUnit unit, int count, int* moved) override {
    return in_.call("Move", [&] {
      *moved = step(begin_, count, unit);
      end_ = next(begin_, unit);
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE MoveEndpointByUnit(nhw32::TextPatternRangeEndpoint end, TextUnit unit,
                                               int count, int* moved) override {
    return in_.call("MoveEndpointByUnit", [&] {
      *moved = step(at(end), count, unit);
      keepOrder(end);
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE MoveEndpointByRange(nhw32::TextPatternRangeEndpoint end,
                                                nhw32::IUIAutomationTextRange* other,
                                                nhw32::TextPatternRangeEndpoint otherEnd) override {
    return in_.call("MoveEndpointByRange", [&] {
      at(end) = dynamic_cast<Range&>(*other).at(otherEnd);
      keepOrder(end);
      return S_OK;
    });
  }

 private:
  [[nodiscard]] const std::u16string& text() const { return in_.plan.text; }

  std::size_t& at(nhw32::TextPatternRangeEndpoint end) {
    return end == nhw32::TextPatternRangeEndpoint_Start ? begin_ : end_;
  }

  void keepOrder(nhw32::TextPatternRangeEndpoint moved) {
    if (begin_ > end_) (moved == nhw32::TextPatternRangeEndpoint_Start ? end_ : begin_) = at(moved);
  }

  [[nodiscard]] bool isSecondOfPair(std::size_t index) const {
    return text()[index] >= 0xDC00 && text()[index] <= 0xDFFF;
  }

  /// Whether a unit of the text begins at `index`.
  [[nodiscard]] bool isEdge(std::size_t index, TextUnit unit) const {
    if (index == 0 || index >= text().size()) return true;
    if (unit == nhw32::TextUnit_Line) {
      return std::ranges::find(rows_, index, &grid::Row::begin) != rows_.end();
    }
    switch (in_.plan.units) {
      case Units::kCharacters:
        return !isSecondOfPair(index);
      case Units::kCharactersWithCrLf:
        return !isSecondOfPair(index) && !(text()[index - 1] == u'\r' && text()[index] == u'\n');
      case Units::kListItems:
        return text()[index] != u'\t' && text()[index - 1] != u'\t';
      case Units::kWords:
        return text()[index - 1] == u' ' && text()[index] != u' ';
      case Units::kAll:
        break;
    }
    return false;
  }

  [[nodiscard]] std::size_t next(std::size_t index, TextUnit unit) const {
    if (index >= text().size()) return text().size();
    ++index;
    while (!isEdge(index, unit)) ++index;
    return index;
  }

  /// Moves `index` by some units and says by how many.
  int step(std::size_t& index, int count, TextUnit unit) {
    const bool lines = unit == nhw32::TextUnit_Line;
    int& most = lines ? in_.log.mostLines : in_.log.farthest;
    most = std::max(most, std::abs(count));
    int moved = 0;
    for (; moved < count && index < text().size(); ++moved) index = next(index, unit);
    for (; moved > count && index > 0; --moved) {
      --index;
      while (!isEdge(index, unit)) --index;
    }
    if (!lines && moved != count) in_.log.stopped = true;
    return moved;
  }

  std::size_t begin_;
  std::size_t end_;
  grid::Rows rows_ = grid::rowsOf(text(), in_.plan.columns);
};

}  // namespace

HRESULT makeFakeUiaRange(FakeUia& uia, std::size_t begin, std::size_t end,
                         nhw32::IUIAutomationTextRange** range) {
  *range = std::make_unique<Range>(uia, begin, end).release();
  return S_OK;
}

}  // namespace support
