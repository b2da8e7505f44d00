#pragma once

#include <cstddef>
#include <optional>
#include <span>

/// Where a window is placed so that it neither leaves its monitor nor is covered, and above which
/// windows. Pure functions; coordinates are screen pixels.
namespace forms {

/// A rectangle; right and bottom are the first pixels outside.
struct PixelBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  [[nodiscard]] int width() const { return right - left; }
  [[nodiscard]] int height() const { return bottom - top; }
  bool operator==(const PixelBox&) const = default;
};

/// Returns whether two boxes share a pixel.
bool meet(const PixelBox& one, const PixelBox& other);

/// Returns a box of the size of `window`, reduced to that of `work`, centred over `over` and then
/// moved into `work`.
PixelBox centred(const PixelBox& window, const PixelBox& over, const PixelBox& work);

/// Returns the place nearest to `wanted` (Euclidean distance of the corners) where a box of its
/// size lies inside `work` and meets none of `obstacles`; nullopt if there is none.
std::optional<PixelBox> placeBeside(const PixelBox& wanted, const PixelBox& work,
                                    std::span<const PixelBox> obstacles);

/// Returns the place of a box of the size of `window` just below `bar`, at its left edge; just
/// above it where there is no room below. It is moved into `work` as far as it is too far right or
/// down; its top left corner is in `work` in any case.
PixelBox placeAtBar(const PixelBox& window, const PixelBox& bar, const PixelBox& work);

/// Returns `window`, moved no more than it takes to have its title bar, `titleHeight` pixels high,
/// within `work`: in full height, and in width at least three times its height.
PixelBox withTitleBarOn(const PixelBox& window, const PixelBox& work, int titleHeight);

/// Returns the place of a window whose frame is dragged, with another size: of `dragged` the left
/// side moves if it is the left that is dragged (`byLeft`), otherwise the right one; likewise the
/// upper or the lower one.
PixelBox resizedAtDraggedSide(const PixelBox& dragged, int width, int height, bool byLeft,
                              bool byTop);

/// Returns how far `x` lies outside of the pixels from `left` to before `right`: negative to the
/// left of them, positive to the right, 0 on them.
int distanceOutside(int x, int left, int right);

/// The order of our topmost windows, from the lowest to the highest.
enum class Rank {
  kFloating,  ///< below all others of ours
  kWindow,    ///< an ordinary window that is topmost for the time being
  kBar,       ///< above every window
  kNotice,    ///< above all of them: popups, menus, message boxes
};

/// The place in the Z order of a window that is brought to the top.
struct Raise {
  enum class Where {
    kStays,   ///< it is in its place already
    kTop,     ///< above all windows; what is to stay above it has to follow
    kBehind,  ///< behind the window of index `behind`
  };
  Where where = Where::kTop;
  std::size_t behind = 0;
  bool operator==(const Raise&) const = default;
};

/// Returns the place of the window of rank `rank` and index `self` in `stack`, nullopt if it is not
/// topmost yet. `stack` is the topmost windows from the top of the Z order down: ours with their
/// ranks, those of other programs as nullopt. The window goes below the last of ours that ranks
/// higher, unless a window of another program lies above that one: then it goes to the top, and the
/// higher ones have to be raised above it afterwards.
Raise raised(std::span<const std::optional<Rank>> stack, std::optional<std::size_t> self,
             Rank rank);

}  // namespace forms
