#pragma once

#include <string>
#include <string_view>

/// Formulas, numbers and abbreviations that stand beside a name without brackets: "glucose
/// C6H12O6", "Pleiades M45", "consumer price index CPI". The functions are pure.
namespace dictionary {

/// A text without the symbol after its name.
struct NamedText {
  std::u16string text;
  /// The symbol if it abbreviates the name, or what the name means; "" for a formula or none.
  std::u16string initials;
};

/// Returns whether `note` is made of the initials of the text's words: "FBI" beside "Federal Bureau
/// of Investigation".
bool areInitials(std::u16string_view note, std::u16string_view text);

/// Takes off the formula of a substance, the number of a nebula or a year or the initials of the
/// words before it, with what explains them: "methane CH4", "Pleiades M45", "consumer price index
/// CPI, a figure". What a name means in quotation marks is its other text. The gloss is without
/// notes.
NamedText withoutSymbol(std::u16string_view gloss);

}  // namespace dictionary
