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
  kFloating,  ///< below all others of ours
  kWindow,    ///< an ordinary window that is topmost for the time being
  kBar,       ///< above every window
  kNotice,    ///< above all of them: popups, menus, message boxes
};

/// Where a window goes that is brought to the top.
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

/// Decides it for the window of index `self` (nullopt where it is not topmost yet) and of rank
/// `rank`. `stack` are the topmost windows from the top of the Z order down, ours with their ranks,
/// nullopt for those of other programs.
Raise raised(std::span<const std::optional<Rank>> stack, std::optional<std::size_t> self,
             Rank rank);

}  // namespace forms
