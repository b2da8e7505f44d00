#include "capture/nhw32/choose_way.h"

#include <algorithm>
#include <array>

namespace nhw32 {
namespace {

/// The text boxes of Visual Basic are edit controls under names of their own.
constexpr std::array<std::u16string_view, 4> kEditControls{u"Edit", u"ThunderRT6TextBox",
                                                           u"ThunderRT5TextBox", u"ThunderTextBox"};

constexpr char16_t lower(char16_t unit) {
  return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

bool isEdit(std::u16string_view name) {
  return std::ranges::any_of(kEditControls, [&](std::u16string_view known) {
    return std::ranges::equal(known, name, {}, lower, lower);
  });
}

}  // namespace

Way wayFor(std::u16string_view className, std::u16string_view realClass) {
  if (isEdit(realClass) || isEdit(className)) return Way::edit;
  const bool rich = className.find(u"RichEdit") != std::u16string_view::npos;
  return rich ? Way::richEdit : Way::automation;
}

}  // namespace nhw32
