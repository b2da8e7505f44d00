#include "tests/support/process/english_page.h"

#include <array>
#include <string_view>

namespace support {
namespace {

constexpr std::array<std::wstring_view, 40> kWords = {L"analysis",   L"bandwidth",
                                                      L"catalyst",   L"database",
                                                      L"enzyme",     L"filter",
                                                      L"gradient",   L"hormone",
                                                      L"in",         L"isotope",
                                                      L"jet",        L"kernel",
                                                      L"lattice",    L"membrane",
                                                      L"network",    L"of",
                                                      L"oxide",      L"protein",
                                                      L"quorum",     L"receptor",
                                                      L"solvent",    L"the",
                                                      L"torque",     L"ultrasound",
                                                      L"vector",     L"well-known",
                                                      L"x-ray",      L"yield",
                                                      L"zinc",       L"Ampere",
                                                      L"NASA",       L"Doppler",
                                                      L"by",         L"state-of-the-art",
                                                      L"plasma",     L"is",
                                                      L"metabolism", L"tensor",
                                                      L"and",        L"circuit"};

/// What may stand between two words.
constexpr std::array<std::wstring_view, 12> kBetween = {L" ",  L" ",  L" ",  L" ", L", ",   L". ",
                                                        L"; ", L" (", L") ", L"/", L" 42 ", L"，"};

}  // namespace

EnglishPage::EnglishPage(unsigned seed, int lines, int lineLength) {
  std::minstd_rand random(seed);
  const auto pick = [&](const auto& from) { return from[random() % from.size()]; };
  for (int line = 0; line < lines; ++line) {
    const std::size_t lineStart = text_.size();
    while (text_.size() - lineStart < static_cast<std::size_t>(lineLength)) {
      const std::wstring_view word = pick(kWords);
      words_.push_back({static_cast<int>(text_.size()), std::wstring(word)});
      text_.append(word).append(pick(kBetween));
    }
    text_ += L"\r\n";
  }
}

}  // namespace support
