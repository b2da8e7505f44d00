/// The text order. Input: three texts in UTF-8, valid or not, a line each.

#include "text/order.h"

#include <string>
#include <string_view>

#include "tests/fuzz/fuzz_input.h"
#include "text/utf.h"

namespace {

int sign(int value) { return static_cast<int>(value > 0) - static_cast<int>(value < 0); }

int order(std::string_view a, std::string_view b) { return sign(text::compareUtf8(a, b)); }

void checkPair(std::string_view a, std::string_view b) {
  const std::u16string unitsA = text::toUtf16(a);
  const std::u16string unitsB = text::toUtf16(b);
  require(order(a, b) == sign(text::compare(unitsA, unitsB)));
  require(order(a, b) == -order(b, a));
  require((order(a, b) == 0) == text::equal(unitsA, unitsB));
  require((order(a, b) == 0) == (text::toLower(unitsA) == text::toLower(unitsB)));
}

void checkCase(std::string_view a) {
  const std::string lower = text::toUtf8(text::toLower(text::toUtf16(a)));
  require(order(a, lower) == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const std::string_view a = input.line();
  const std::string_view b = input.line();
  const std::string_view c = input.line();
  checkCase(a);
  checkPair(a, a);
  checkPair(a, b);
  checkPair(b, c);
  // Both steps the same way, or one of them none: the way over both is the same.
  if (order(a, b) * order(b, c) >= 0) {
    require(order(a, c) == sign(order(a, b) + order(b, c)));
  }
  return 0;
}
