#include "tests/support/window/text_geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/support/process/find.h"
#include "tests/support/window/hooked_text_window.h"

namespace support {
namespace {

/// The first character of the first line in sight; the first one in sight of a single line.
std::size_t firstInSight(HWND control) {
  const auto first = static_cast<std::size_t>(send(control, EM_GETFIRSTVISIBLELINE));
  if ((GetWindowLongPtrW(control, GWL_STYLE) & ES_MULTILINE) == 0) return first;
  return static_cast<std::size_t>(send(control, EM_LINEINDEX, first));
}

/// The first character below what is in sight; the text's end where all the rest is.
std::size_t endOfSight(HWND control, std::size_t first) {
  const LONG bottom = clientRectOf(control).bottom;
  std::size_t end = first;
  // No line is shorter than a character, none in these tests longer than that.
  for (std::size_t step = 512; step > 0; step /= 2) {
    for (auto corner = characterCorner(control, end + step); corner && corner->y < bottom;
         corner = characterCorner(control, end + step)) {
      end += step;
      if (end - first > 20'000) return end;
    }
  }
  return end;
}

/// Returns how many of `length` pixels in a row, from the first on, have a word. Fails the test if
/// one of the others has one.
template <class QuestionOf>
int runOfWord(LONG length, QuestionOf questionOf) {
  const auto told = [&](LONG pixel) {
    return answerTo(questionOf(pixel)).outcome == nhw32::Outcome::kWord;
  };
  LONG end = 0;
  while (end < length && told(end)) ++end;
  for (LONG pixel = end; pixel < length; pixel += 5) {
    EXPECT_FALSE(told(pixel)) << pixel << " pixels on";
  }
  return static_cast<int>(end);
}

}  // namespace

std::vector<TextPoint> visibleTextPoints(HWND control, std::size_t count) {
  const std::size_t first = firstInSight(control);
  std::vector<std::size_t> positions(endOfSight(control, first) - first);
  for (std::size_t i = 0; i < positions.size(); ++i) positions[i] = first + i;
  std::mt19937 random(static_cast<unsigned>(count));
  std::ranges::shuffle(positions, random);
  const auto below = [&random](LONG bound) {
    return static_cast<LONG>(random() % static_cast<unsigned>(bound));
  };
  std::vector<TextPoint> places;
  for (const std::size_t position : positions) {
    if (places.size() == count) break;
    const auto cell = characterCell(control, position);
    if (!cell) continue;
    places.push_back({position,
                      {cell->left + below(cell->right - cell->left),
                       cell->top + below(cell->bottom - cell->top)}});
  }
  return places;
}

int wordRows(HWND control, std::size_t position) {
  const POINT corner = *characterCorner(control, position);
  return runOfWord(clientRectOf(control).bottom - corner.y, [&](LONG y) {
    return questionAt(control, {corner.x + 1, corner.y + y});
  });
}

int wordColumns(HWND control, std::size_t position) {
  const POINT corner = *characterCorner(control, position);
  return runOfWord(clientRectOf(control).right - corner.x, [&](LONG x) {
    return questionAt(control, {corner.x + x, corner.y + 2});
  });
}

int lineDistance(HWND control, std::size_t inLine, std::size_t inNextLine) {
  const auto line = characterCorner(control, inLine);
  const auto next = characterCorner(control, inNextLine);
  return static_cast<int>(next->y - line->y);
}

}  // namespace support
