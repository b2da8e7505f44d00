#include "capture/nhw32/choose_way.h"

#include <algorithm>
#include <array>

namespace nhw32 {
namespace {

struct NamedWay {
  std::u16string_view part;
  Way way;
};

/// The first that fits counts: "Edit" stands in the names of rich edit controls as well. The text
/// boxes of Visual Basic are edit controls under names of their own.
constexpr std::array kNamedWays{
    NamedWay{u"RichEdit", Way::richEdit},      NamedWay{u"Edit", Way::edit},
    NamedWay{u"ThunderRT6TextBox", Way::edit}, NamedWay{u"ThunderRT5TextBox", Way::edit},
    NamedWay{u"ThunderTextBox", Way::edit},
};

}  // namespace

Way wayFor(std::u16string_view className) {
  const auto* const named = std::ranges::find_if(kNamedWays, [&](const NamedWay& candidate) {
    return className.find(candidate.part) != std::u16string_view::npos;
  });
  return named == kNamedWays.end() ? Way::automation : named->way;
}

}  // namespace nhw32
