#pragma once

#include <optional>

#include "capture/nhw32/reader.h"
#include "capture/nhw32/uia/calls.h"
#include "capture/nhw32/uia/com.h"
#include "capture/nhw32/uia/prepared_client.h"
#include "capture/nhw32/uia/uia_interfaces.h"

/// Finding what holds the text under a point.
namespace nhw32 {

/// What was found: one of the two, or neither.
struct TextHolder {
  /// The text pattern of the element under the point, or of the nearest of ten ancestors that has
  /// one.
  ComPtr<IUIAutomationTextPattern> text;
  /// The element under the point, if no element has a text pattern and it is a table's cell, a
  /// header or a link.
  ComPtr<IUIAutomationElement> item;
};

/// Finds what holds the text under the question's point. Nothing if one of the elements on the way
/// is a password field or does not report whether it is, and if none of them, up to the tenth
/// ancestor, belongs to the process or to the top-level window of the question's window. One call
/// for each element. Throws NoAnswer.
TextHolder textHolderAt(PreparedClient& client, const Question& question, UiaCalls& calls);

/// Returns the word that a cell, header or link shows, with the rectangle of the element, which
/// contains `point`; nullopt if its text is not one word. Throws NoAnswer.
std::optional<Word> wordOfItem(IUIAutomationElement& item, ScreenPoint point, UiaCalls& calls);

}  // namespace nhw32
