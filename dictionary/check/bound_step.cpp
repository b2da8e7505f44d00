#include "dictionary/check/bound_step.h"

#include <algorithm>

#include "data/bound_limits.h"
#include "data/wildcards.h"
#include "text/order.h"
#include "text/query_text.h"

namespace dictionary {
namespace {

using data::withoutWildcards;

std::u16string escaped(std::u16string_view word) {
  std::u16string text(word);
  return user::escapeQuote(text);
}

RowWindow clamped(RowWindow window) {
  window.upper = std::min(window.upper, window.lower + data::kWindowRows);
  return window;
}

std::int64_t blockEnd(std::ptrdiff_t block) {
  return static_cast<std::int64_t>(block) * data::kBlockRows;
}

}  // namespace

EnglishBoundStep::EnglishBoundStep(const std::vector<std::u16string>& index) {
  for (const std::u16string& word : index) {
    std::u16string lower = text::toLower(word);
    greatest_.push_back(greatest_.empty() ? lower : std::max(lower, greatest_.back()));
  }
}

std::optional<RowWindow> EnglishBoundStep::window(std::u16string_view word) const {
  const std::u16string low = text::toLower(withoutWildcards(escaped(word), u"0"));
  const auto found = std::ranges::lower_bound(greatest_, low);
  if (found == greatest_.end()) return std::nullopt;
  const std::int64_t upper = blockEnd(found - greatest_.begin() + 1);
  return clamped({upper - data::kReachBack, upper});
}

ChineseBoundStep::ChineseBoundStep(const std::vector<std::u16string>& index)
    : greatest_(index), least_(index) {
  for (std::size_t i = 1; i < index.size(); ++i) {
    if (text::compare(greatest_[i - 1], greatest_[i]) > 0) greatest_[i] = greatest_[i - 1];
    const std::size_t back = index.size() - 1 - i;
    if (text::compare(least_[back + 1], least_[back]) < 0) least_[back] = least_[back + 1];
  }
}

RowWindow ChineseBoundStep::window(std::u16string_view word) const {
  // The last row that is not behind the word.
  const std::u16string typed = escaped(word);
  const std::u16string low = withoutWildcards(typed, u"0");
  const auto behind = std::ranges::partition_point(
      least_, [&](const std::u16string& least) { return text::compare(least, low) <= 0; });
  const std::ptrdiff_t before = behind - least_.begin();

  // The first row that is not before the word followed by the last of the common characters.
  const std::u16string high = withoutWildcards(typed, u"做") + u"做做";
  const auto first = std::ranges::partition_point(
      greatest_, [&](const std::u16string& greatest) { return text::compare(greatest, high) < 0; });

  RowWindow window;
  window.lower = before > 0 ? blockEnd(before) - data::kReachBack : 0;
  window.upper =
      first == greatest_.end() ? data::kLastRow : blockEnd(first - greatest_.begin() + 1);
  return clamped(window);
}

}  // namespace dictionary
