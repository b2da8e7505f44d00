#pragma once

#include "forms/geometry.h"

/// Where the widgets of the windows that can be resized go. All lengths in twips of the window's
/// DPI; sizes of windows are outer sizes as Form::width counts them. All functions are pure.
namespace query {

using Box = forms::WidgetBox;

/// Size that the multi-dictionary window opens with: room for some twenty result lines.
inline constexpr int kOpeningWidth = 10500;
inline constexpr int kOpeningHeight = 7200;

/// The smallest size in which every widget can be used; the user cannot go below it.
inline constexpr int kMinWidth = 6600;
inline constexpr int kMinHeight = 3600;

/// Places of its widgets. The input box, the results and the height of both trees follow the
/// window; below the smallest size nothing shrinks any more.
struct Layout {
  Box inputLabel;
  Box input;
  Box ok;
  Box advanced;
  Box special;
  Box dictionariesLabel;
  Box dictionaries;
  Box results;
};
Layout layOut(int width, int height);

/// Sizes of the settings window: it opens with room for all dictionaries.
inline constexpr int kSettingsWidth = 4620;
inline constexpr int kSettingsHeight = 7800;
inline constexpr int kSettingsMinWidth = 3000;
inline constexpr int kSettingsMinHeight = 3000;

/// Places of its widgets: the list, and the hint below it.
struct SettingsLayout {
  Box dictionaries;
  Box hint;
  bool operator==(const SettingsLayout&) const = default;
};
SettingsLayout layOutSettings(int width, int height);

}  // namespace query
