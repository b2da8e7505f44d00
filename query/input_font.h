#pragma once

#include "forms/font.h"

namespace query {

/// The font of the boxes that texts to search for are typed into.
inline forms::Font inputFont() { return {u"宋体", 10.5}; }

}  // namespace query
