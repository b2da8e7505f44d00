#include "dictionary/source/substitutes.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

/// The book that a line was taken from, as its tag tells.
enum class Book { kAny, kMedicine, kChemistry };

/// A text that the source has in place of `meant`: a substitute, with the characters beside it
/// where these make its meaning certain.
struct Substitute {
  std::u16string_view written;
  std::u16string_view meant;
  Book book = Book::kAny;
};

// Found by comparing the entries that contain the substitute with the English words that they
// translate, and with other entries for the same plant, animal or compound. A substitute whose
// meaning is not certain is not listed: isSubstitute() then keeps the text out of the dictionary.
// The books of medicine and chemistry numbered the same lost characters six code points apart:
// U+252E is 芪 (stilbene) in the one and U+2534 in the other. So each line confirms two.
constexpr std::array kSubstitutes = {
    Substitute{u"\u2502", u""},    // a stray mark before some words
    Substitute{u"\u2609", u""},    // a stray mark before some words
    Substitute{u"\u25CB", u"〇"},  // the digit in names of compounds

    // Box drawing characters
    Substitute{u"\u250A", u"槚", Book::kMedicine},          // Anacardium
    Substitute{u"\u2510", u"槚", Book::kChemistry},         // cashew
    Substitute{u"\u2511", u"芴", Book::kChemistry},         // fluorene
    Substitute{u"\u250C", u"䓛", Book::kMedicine},          // chrysene
    Substitute{u"\u2512", u"䓛", Book::kChemistry},         // chrysene
    Substitute{u"\u2510", u"苧", Book::kMedicine},          // Boehmeria, Mosla
    Substitute{u"\u2516", u"苧", Book::kChemistry},         // thujone
    Substitute{u"\u251C", u"牻", Book::kChemistry},         // geraniol
    Substitute{u"\u251C", u"棓", Book::kMedicine},          // pyrogallol
    Substitute{u"\u2522", u"棓", Book::kChemistry},         // gallic
    Substitute{u"\u2523", u"鏻", Book::kChemistry},         // phosphonium
    Substitute{u"\u2524", u"薁", Book::kChemistry},         // azulene
    Substitute{u"\u2526", u"楤", Book::kMedicine},          // Aralia
    Substitute{u"\u2527", u"噁", Book::kMedicine},          // oxazole
    Substitute{u"\u252D", u"噁", Book::kChemistry},         // oxazole
    Substitute{u"\u2527", u"苉", Book::kChemistry},         // picene
    Substitute{u"\u2528", u"䓝", Book::kMedicine},          // menthol
    Substitute{u"\u252E", u"䓝", Book::kChemistry},         // menthol
    Substitute{u"\u252A", u"梾", Book::kMedicine},          // Cornus
    Substitute{u"\u2530", u"梾", Book::kChemistry},         // cornin
    Substitute{u"\u252D", u"䓬", Book::kMedicine},          // azepine
    Substitute{u"\u2533", u"䓬", Book::kChemistry},         // azepine, tropylium
    Substitute{u"\u252E", u"芪", Book::kMedicine},          // stilbene
    Substitute{u"\u2534", u"芪", Book::kChemistry},         // stilbene
    Substitute{u"\u252F", u"萮", Book::kMedicine},          // behenic, Armoracia
    Substitute{u"\u2535", u"萮", Book::kChemistry},         // behenic
    Substitute{u"\u2531", u"呫", Book::kMedicine},          // xanthone
    Substitute{u"\u2537", u"呫", Book::kChemistry},         // xanthene
    Substitute{u"\u2532", u"萹", Book::kMedicine},          // Polygonum aviculare
    Substitute{u"\u2538", u"萹", Book::kChemistry},         // avicularin
    Substitute{u"\u2539", u"葎", Book::kMedicine},          // Oldenlandia
    Substitute{u"\u253F", u"葎", Book::kChemistry},         // humulene
    Substitute{u"\u2539", u"鎓", Book::kChemistry},         // onium
    Substitute{u"\u253A", u"㶲", Book::kChemistry},         // exergy
    Substitute{u"\u253E", u"鉮", Book::kChemistry},         // arsonium
    Substitute{u"\u2541", u"蝲", Book::kChemistry},         // astacene
    Substitute{u"\u2542\u0422", u"榅桲", Book::kMedicine},  // quince
    Substitute{u"\u2548", u"榅", Book::kChemistry},         // cydonin
    Substitute{u"\u2544", u"锡", Book::kChemistry},         // Leipzig yellow, hayatine
    Substitute{u"\u2536", u"藦", Book::kChemistry},         // Asclepias
    Substitute{u"凝血\u252D烷", u"凝血噁烷"},               // thromboxane
    Substitute{u"吡咯烷\u2539", u"吡咯烷鎓"},               // pyrrolidinium
    Substitute{u"异？唑", u"异噁唑"},                       // sulfisoxazole, sulfamethoxazole

    // Private use
    Substitute{u"\uE238", u"薁"},          // azulene
    Substitute{u"\uE23A", u"棓"},          // gallic
    Substitute{u"\uE23C", u"噁"},          // oxazole
    Substitute{u"\uE24A", u"楤"},          // Aralia
    Substitute{u"\uE24B", u"䏡"},          // proteose
    Substitute{u"\uE24D", u"鎓"},          // onium
    Substitute{u"\uE24F", u"䓬"},          // tropone, diazepine
    Substitute{u"\uE250", u"䓝"},          // menthane
    Substitute{u"\uE3CD", u"苧"},          // thujane
    Substitute{u"\uE40B", u"噁"},          // oxazole
    Substitute{u"\uE41F", u"踇"},          // hallux
    Substitute{u"\uE490", u"䏡"},          // proteose
    Substitute{u"\uE7AB", u"啰"},          // rale
    Substitute{u"\uE7B8", u"牻"},          // Geranium
    Substitute{u"鲂\uE248", u"鲂鮄"},      // Trigla
    Substitute{u"海\uE23B果", u"海杧果"},  // Cerbera
    Substitute{u"土\uE7B1儿", u"土圞儿"},  // Apios
    Substitute{u"一叶\uE3D3", u"一叶萩"},  // securinine
    Substitute{u"菥\uE7C7", u"菥蓂"},      // Thlaspi arvense

    // Cyrillic and Bopomofo letters
    Substitute{u"\u0401", u"呎"},    // foot-pound
    Substitute{u"\u0416", u"牙合"},  // occlusal; the one character for it lies beyond U+FFFF
    Substitute{u"\u0436", u"䏡"},    // albumose, proteose
    Substitute{u"\u0449", u"伞"},    // cyme, corymb
    Substitute{u"\u044B", u"踇"},    // hallux
    Substitute{u"\u0451", u"腘"},    // popliteal
    Substitute{u"\u041B", u"梣", Book::kMedicine},          // Fraxinus
    Substitute{u"\u0425", u"栉", Book::kMedicine},          // pecten
    Substitute{u"\u0417", u"孖", Book::kMedicine},          // gemellus
    Substitute{u"\u043A", u"蝲", Book::kMedicine},          // Cambaroides
    Substitute{u"\u0448草", u"缬草", Book::kMedicine},      // valerate
    Substitute{u"枳\u0420", u"枳椇", Book::kMedicine},      // Hovenia
    Substitute{u"菝\u0432", u"菝葜", Book::kMedicine},      // Smilax
    Substitute{u"\u041D藤", u"榼藤", Book::kMedicine},      // Entada
    Substitute{u"\u041A树", u"栾树", Book::kMedicine},      // Koelreuteria
    Substitute{u"\u041A[树]", u"栾[树]", Book::kMedicine},  // Koelreuteria
    Substitute{u"\u042C", u"鱥", Book::kMedicine},          // Tinca, Phoxinus
    Substitute{u"海\u041E果", u"海杧果", Book::kMedicine},  // Cerbera
    Substitute{u"萎\u0433", u"萎蕤", Book::kMedicine},      // Polygonatum officinale
    Substitute{u"\u310F", u"藨", Book::kMedicine},          // Scirpus, Rubus
    Substitute{u"蒴\u3112", u"蒴藋", Book::kMedicine},      // Sambucus chinensis
    Substitute{u"\u310B", u"藟", Book::kMedicine},          // Vitis flexuosa
    Substitute{u"亚\u311C酸", u"亚硒酸", Book::kMedicine},  // selenious acid
    Substitute{u"\u3119荷", u"蘘荷", Book::kMedicine},      // Zingiber mioga
    Substitute{u"玉\u3113", u"玉簪", Book::kMedicine},      // Funkia
    Substitute{u"土马\u3107", u"土马鬃", Book::kMedicine},  // Polytrichum

    // Vowels with a tone mark
    Substitute{u"荚\u00E8", u"荚蒾", Book::kMedicine},      // Viburnum
    Substitute{u"萝\u011B", u"萝藦", Book::kMedicine},      // Asclepias, Metaplexis
    Substitute{u"\u00F2麻", u"苘麻", Book::kMedicine},      // Abutilon
    Substitute{u"\u00ED菜", u"菾菜", Book::kMedicine},      // Beta
    Substitute{u"\u00E1莶", u"豨莶", Book::kMedicine},      // Siegesbeckia
    Substitute{u"豆\u00EA", u"豆蔻", Book::kMedicine},      // nutmeg, cardamom
    Substitute{u"芎\u00F9", u"芎䓖", Book::kMedicine},      // Cnidium
    Substitute{u"大\u00FC属", u"大薸属", Book::kMedicine},  // Pistia
    Substitute{u"苦\u01D2菜", u"苦荬菜", Book::kMedicine},  // Lactuca denticulata
    Substitute{u"苦\u01DC", u"苦蘵", Book::kMedicine},      // Physalis
};

/// A Cyrillic letter on its own is a substitute; next to another one it is a letter.
bool insideCyrillicWord(std::u16string_view text, std::size_t position) {
  return isCyrillic(text[position]) &&
         ((position > 0 && isCyrillic(text[position - 1])) ||
          (position + 1 < text.size() && isCyrillic(text[position + 1])));
}

Book bookOf(std::u16string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(u" \t"), line.size()));
  // "(data 的复数) [医] …": inflected forms repeat the line of their base after a note.
  if (line.starts_with(u'(')) line.remove_prefix(std::min(line.find(u'['), line.size()));
  if (line.starts_with(u"[医]")) return Book::kMedicine;
  return line.starts_with(u"[化]") ? Book::kChemistry : Book::kAny;
}

/// The substitute that begins at `at`; nullptr if there is none.
const Substitute* substituteAt(std::u16string_view line, std::size_t at, Book book) {
  const std::u16string_view rest = line.substr(at);
  const auto* const found = std::ranges::find_if(kSubstitutes, [&](const Substitute& substitute) {
    return rest.starts_with(substitute.written) &&
           (substitute.book == Book::kAny || substitute.book == book);
  });
  return found == kSubstitutes.end() ? nullptr : found;
}

bool mayHaveSubstitute(std::u16string_view line) {
  return std::ranges::any_of(line, [](char16_t unit) {
    return isForbidden(unit) || isSubstitute(unit) || isLatin1Letter(unit) || unit == 0x2609 ||
           unit == u'？';
  });
}

}  // namespace

std::u16string restoreSubstitutes(std::u16string_view line) {
  if (!mayHaveSubstitute(line)) return std::u16string(line);
  const Book book = bookOf(line);
  std::u16string restored;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const Substitute* const found =
        insideCyrillicWord(line, i) ? nullptr : substituteAt(line, i, book);
    if (found == nullptr) {
      restored += line[i];
    } else {
      restored += found->meant;
      i += found->written.size() - 1;
    }
  }
  return restored;
}

}  // namespace dictionary
