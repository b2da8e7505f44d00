#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Chinese words in English glosses, written as 漢語|汉语[Han4 yu3]: the traditional and the
/// simplified form where they differ, and mostly the pinyin. The functions are pure.
namespace dictionary {

/// What a gloss says of the word to which it refers.
enum class ReferenceKind : std::uint8_t {
  kSame,  ///< has the same meaning: "see 金安區|金安区[Jin1 an1 Qu1]", "variant of 抬[tai2]"
  kRelated,  ///< is worth looking up as well: "see also 一時[yi1 shi2]", "also written 慰藉"
  kPart,  ///< has a meaning, of which the character has none by itself: "used in 葡萄[pu2 tao5]"
  kNone,  ///< does not have the meaning: "cf. 上聲[shang3 sheng1]", "abbr. to 奧運|奥运[Ao4 yun4]"
};

/// A Chinese word to which a gloss refers.
struct GlossReference {
  ReferenceKind kind = ReferenceKind::kNone;
  bool usage = false;  ///< whether the gloss marks its own word as old, regional or wrong
  std::u16string traditional;
  std::u16string simplified;  ///< the same where the gloss gives one form only
  std::u16string pinyin;      ///< "" where the gloss gives none
  /// The English text with which a variant's gloss says which meaning it has: "variant of 翻, to
  /// turn"; otherwise "".
  std::u16string meaning;
};

/// Returns the word to which the gloss refers; nullopt if it is an English text, in which Chinese
/// words may stand besides. `gloss` is without notes. Of several words only the first is given, and
/// of "variant of 扒 in 扒手" the word in which the variant is used.
std::optional<GlossReference> findReference(std::u16string_view gloss);

/// Returns whether the gloss tells a pronunciation ("Taiwan pr. [zhao1ji2]"), a classifier
/// ("CL:個|个[ge4]") or a short form ("abbr. to UN") instead of a meaning.
bool isAside(std::u16string_view gloss);

/// Returns the English text without Chinese words and square brackets: "Dingbian County in Yulin 榆
/// 林[Yu2 lin2], Shaanxi" gives "Dingbian County in Yulin, Shaanxi". Where the text does not stand
/// without them, returns what is before the last comma, or nullopt: "radical 頁".
std::optional<std::u16string> withoutChinese(std::u16string_view gloss);

}  // namespace dictionary
