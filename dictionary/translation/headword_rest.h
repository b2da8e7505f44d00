#pragma once

#include <string_view>

/// Entries of a word that stands for a term of two: "Wittig | reaction [化]维蒂希反应". The
/// functions are pure.
namespace dictionary {

/// Returns the line without a foreign word at its beginning that completes the headword
/// ("reaction [化]维蒂希反应", "Sea阿拉弗拉海", ", Mount 麦金利山") or is its expansion ("narcotics
/// 麻醉药"). Returns the whole of any other line, also of one that refers to a word ("shoe 的过去
/// 分词"). The view refers into `line`.
std::u16string_view withoutHeadwordRest(std::u16string_view line);

}  // namespace dictionary
