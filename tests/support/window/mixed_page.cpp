#include "tests/support/window/mixed_page.h"

#include <array>
#include <string_view>

namespace support {
namespace {

using namespace std::string_view_literals;

constexpr std::array kWords{u"data"sv,          u"the"sv,    u"well-known"sv, u"don't"sv,
                            u"illumination"sv,  u"Willow"sv, u"a"sv,          u"caf\u00E9"sv,
                            u"mother-in-law"sv, u"WWW"sv,    u"iiii"sv,       u"字典"sv,
                            u"专业词汇"sv};

constexpr std::array kBetween{u" "sv,    u" "sv,   u" "sv,  u" "sv,      u", "sv,        u". "sv,
                              u" 42 "sv, u" - "sv, u"，"sv, u"\u3000"sv, u" (\"x3\") "sv};

void append(MixedPage& page, std::u16string_view text, std::u16string_view word) {
  page.text += text;
  page.words.resize(page.text.size(), std::u16string(word));
}

/// As the service spells it where no dictionary is asked.
std::u16string_view spelled(std::u16string_view word) {
  return word == u"caf\u00E9" ? u"cafe"sv : word;
}

bool isChinese(std::u16string_view word) { return word.front() >= u'\u3400'; }

}  // namespace

MixedPage makeMixedPage(const MixedPageDesign& design) {
  std::mt19937 random(design.seed);
  MixedPage page;
  std::size_t lineBegin = 0;
  while (page.text.size() < design.length) {
    const auto word = kWords[random() % kWords.size()];
    append(page, word, spelled(word));
    // English beside Chinese needs no blank.
    if (isChinese(word)) append(page, u"term", u"term");
    const auto between = kBetween[random() % kBetween.size()];
    append(page, between, u"");  // the letter that touches a digit is no word
    if (design.lineLength != 0 && page.text.size() - lineBegin > design.lineLength) {
      append(page, design.lineEnd, u"");
      lineBegin = page.text.size();
    }
  }
  return page;
}

}  // namespace support
