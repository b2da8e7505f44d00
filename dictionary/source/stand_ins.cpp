#include "dictionary/source/stand_ins.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/translation/characters.h"

namespace dictionary {
namespace {

struct StandIn {
  char16_t character;
  std::u16string_view meant;
};

/// Found by comparing the entries that hold the stand-in with the English words they translate.
constexpr std::array kStandIns = {
    StandIn{0x0401, u"呎"},    // foot-pound
    StandIn{0x0416, u"牙合"},  // occlusal; the one character for it lies beyond U+FFFF
    StandIn{0x0436, u"䏡"},    // albumose, proteose
    StandIn{0x0449, u"伞"},    // cyme, corymb
    StandIn{0x044B, u"踇"},    // hallux
    StandIn{0x0451, u"腘"},    // popliteal
    StandIn{0x2502, u""},      // a stray mark before some words
    StandIn{0x25CB, u"〇"},    // the digit in names of compounds
    StandIn{0x2609, u""},      // a stray mark before some words
    StandIn{0x2522, u"棓"},    // gallic
    StandIn{0x252D, u"噁"},    // oxazole
    StandIn{0x2533, u"䓬"},    // azepine, tropylium
    StandIn{0x2534, u"芪"},    // stilbene
    StandIn{0x2535, u"萮"},    // behenic
    StandIn{0x2537, u"呫"},    // xanthene
    StandIn{0x2539, u"鎓"},    // onium
    StandIn{0xE23A, u"棓"},   StandIn{0xE23C, u"噁"}, StandIn{0xE24D, u"鎓"},
    StandIn{0xE41F, u"踇"},   StandIn{0xE490, u"䏡"}, StandIn{0xE7AB, u"啰"},  // rale
};

bool insideCyrillicWord(std::u16string_view text, std::size_t position) {
  return isCyrillic(text[position]) &&
         ((position > 0 && isCyrillic(text[position - 1])) ||
          (position + 1 < text.size() && isCyrillic(text[position + 1])));
}

}  // namespace

std::u16string repairStandIns(std::u16string_view text) {
  std::u16string repaired;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto* const found = std::ranges::find(kStandIns, text[i], &StandIn::character);
    if (found == kStandIns.end() || insideCyrillicWord(text, i)) {
      repaired += text[i];
    } else {
      repaired += found->meant;
    }
  }
  return repaired;
}

}  // namespace dictionary
