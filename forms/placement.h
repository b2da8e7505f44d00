#pragma once

#include <cstddef>
#include <optional>
#include <span>

/// Where a window goes so that it neither leaves its monitor nor is covered, and what it lies
/// above. Places are in screen pixels.
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

/// Whether two boxes share a pixel.
bool meet(const PixelBox& one, const PixelBox& other);

/// A box of the size of `window`, at most that of `work`, in the middle of `over` as far as all of
/// it lies inside `work`.
PixelBox centred(const PixelBox& window, const PixelBox& over, const PixelBox& work);

/// The place nearest to `wanted` where a box of its size lies inside `work` and meets none of
/// `obstacles`; nullopt where there is none.
std::optional<PixelBox> placeBeside(const PixelBox& wanted, const PixelBox& work,
                                    std::span<const PixelBox> obstacles);

/// Which of our topmost windows lies above which.
enum class Rank {
  floating,  ///< below all others of ours
  window,    ///< an ordinary window that is topmost for the time being
  bar,       ///< above every window
  notice,    ///< above all of them: popups, menus, message boxes
};

/// `ranks` are those of our topmost windows from the top of the Z order down. Index of the one
/// behind which a window of `rank` goes when it is brought to the top: the last of a higher rank;
/// nullopt where there is none and it goes to the very top.
std::optional<std::size_t> lowestAbove(std::span<const Rank> ranks, Rank rank);

}  // namespace forms
