#pragma once

#include <cstdint>
#include <optional>

/// When a popup has outlived its word, although the pointer rests: the user works on by wheel, key
/// or click, another window comes to the front, or the word's own window goes, moves or scrolls.
/// Portable.
namespace capture {

/// The window of a word, as it can be seen from outside without asking it. A number stands for each
/// window; 0 is none.
struct WordWindow {
  bool shown = false;  ///< it exists, is visible, and is not minimised
  int left = 0;        ///< its outer rectangle, in screen pixels
  int top = 0;
  int right = 0;
  int bottom = 0;
  std::uintptr_t topmost = 0;     ///< the top-level window that is seen at the word's place
  std::optional<int> horizontal;  ///< where its scroll bars stand; nullopt if that is not known
  std::optional<int> vertical;
};

/// What is seen at one look.
struct PopupSight {
  std::uint32_t input = 0;  ///< the time of the session's last input; any change is an input
  int x = 0;                ///< the pointer, in screen pixels
  int y = 0;
  bool mouseMoved = false;        ///< since the look before, even if by less than a pixel
  bool mouseUsed = false;         ///< a button or the wheel was, since the look before
  std::uintptr_t foreground = 0;  ///< 0 while it changes from one window to another
  WordWindow window;
};

/// Why a popup is to close.
enum class PopupEnd { kInput, kForeground, kWindow };

/// Compares what is seen while a popup is open with what was seen when it opened. The movements of
/// the pointer themselves never end it; those of the popup's own tick do (hasMovedAway).
class PopupWatch {
 public:
  /// `first` is seen when the popup opens.
  explicit PopupWatch(const PopupSight& first);

  /// Returns why the popup is to close now, nullopt if it may stay. To be called every 50 ms or so.
  [[nodiscard]] std::optional<PopupEnd> look(const PopupSight& now);

 private:
  [[nodiscard]] bool inputAtRest(const PopupSight& now);

  WordWindow window_;
  std::uintptr_t foreground_;
  PopupSight last_;
  bool moved_ = false;
  bool inputSeen_ = false;
};

}  // namespace capture
