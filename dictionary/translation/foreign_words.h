#pragma once

#include <string>
#include <string_view>

/// Foreign words beside the Chinese text of a translation that are no part of the equivalent: the
/// second word of a term ("Wittig | reaction [化]维蒂希反应"), what an abbreviation stands for
/// ("orig | origin 起源"), the first name of a person. Others belong to it: X射线, Windows字符集,
/// "take的过去式". The functions are pure; returned views refer into the argument.
namespace dictionary {

/// Returns the line without a foreign word at its beginning that completes the headword
/// ("reaction [化]维蒂希反应", "Sea阿拉弗拉海", ", Mount 麦金利山", ",Robert德弗罗") or is its
/// expansion ("narcotics 麻醉药"). Returns the whole of any other line, also of one that refers to
/// a word ("shoe 的过去分词").
std::u16string_view withoutHeadwordRest(std::u16string_view line);

/// Returns the piece without the foreign words before a blank and the Chinese text: the expansion
/// of an abbreviation ("National Gallery 国家美术馆"), or forms of the headword ("-dled, -dling
/// 逃走"). A single word is removed only if `abbreviation` is set: the line translates an
/// abbreviation. Words before 的 are what it refers to ("Black Sea 的古名"); of these only a
/// part-of-speech mark is removed.
std::u16string_view withoutExpansion(std::u16string_view piece, bool abbreviation);

/// Returns the piece without the expansion of an abbreviation after its translation ("商用货架产品
/// commercial off-the-shelf"): two words or more with more than four small letters.
std::u16string_view withoutTail(std::u16string_view piece);

/// Returns `equivalent`, a Chinese headword, without the words before its Chinese text if these are
/// - in lower case and not in `headword`, which they complete or explain: "gum刺梧桐树胶" of
///   "karaya", "copper便士" of "pence";
/// - what `headword` abbreviates: "Texas美国德克萨斯州州名" of "Tex.";
/// - the second word of a geographical name.
/// References to other words and names that are written in lower case are kept. Returns "" if the
/// rest says nothing by itself ("novice等", "比blankety少用").
std::u16string_view withoutForeignWords(std::u16string_view equivalent,
                                        std::u16string_view headword);

}  // namespace dictionary
