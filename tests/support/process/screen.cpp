#include "tests/support/process/screen.h"

#include <filesystem>
#include <functional>
#include <numeric>
#include <utility>

#include "tests/support/process/find.h"
#include "tests/support/process/process.h"
#include "tests/support/wait.h"

namespace support {
namespace {

/// A bitmap of 32 bits a pixel, top row first, selected into a device context of its own.
class Canvas {
 public:
  explicit Canvas(SIZE size) : size_(size), context_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO information{};
    information.bmiHeader.biSize = sizeof information.bmiHeader;
    information.bmiHeader.biWidth = size.cx;
    information.bmiHeader.biHeight = -size.cy;
    information.bmiHeader.biPlanes = 1;
    information.bmiHeader.biBitCount = 32;
    bitmap_ = CreateDIBSection(context_, &information, DIB_RGB_COLORS, &bits_, nullptr, 0);
    before_ = SelectObject(context_, bitmap_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas() {
    SelectObject(context_, before_);
    DeleteObject(bitmap_);
    DeleteDC(context_);
  }

  [[nodiscard]] HDC context() const { return context_; }

  [[nodiscard]] std::vector<COLORREF> pixels() const {
    GdiFlush();
    const auto* quads = static_cast<const RGBQUAD*>(bits_);
    std::vector<COLORREF> colours;
    for (LONG i = 0; i < size_.cx * size_.cy; ++i) {
      colours.push_back(RGB(quads[i].rgbRed, quads[i].rgbGreen, quads[i].rgbBlue));
    }
    return colours;
  }

 private:
  SIZE size_;
  HDC context_;
  void* bits_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
};

}  // namespace

std::vector<COLORREF> screenPixels(const RECT& rect) {
  const SIZE size{rect.right - rect.left, rect.bottom - rect.top};
  const Canvas canvas(size);
  HDC screen = GetDC(nullptr);
  BitBlt(canvas.context(), 0, 0, size.cx, size.cy, screen, rect.left, rect.top, SRCCOPY);
  ReleaseDC(nullptr, screen);
  return canvas.pixels();
}

std::vector<COLORREF> settledPixels(const RECT& rect) {
  std::vector<COLORREF> last = screenPixels(rect);
  const auto stays = [&] { return std::exchange(last, screenPixels(rect)) == last; };
  if (!settles(stays, kUntilLeftAlone.lasting, kDefaultTimeout)) {
    throw Failure("the screen does not settle");
  }
  return last;
}

bool isSeenWhole(HWND window, const std::vector<HWND>& others) {
  const RECT inside = clientRectOf(window);
  // On a busy machine it may not have been painted since it was shown.
  repaint(window);
  const std::vector<COLORREF> shown = settledPixels(inside);
  for (HWND other : others) {
    ShowWindow(other, SW_HIDE);
    waitUntilGone(other);
  }
  const std::vector<COLORREF> alone = settledPixels(inside);
  // Pixels of a blinking caret, or of the focus rectangle of a list that is active alone.
  constexpr std::ptrdiff_t kCaret = 600;
  const auto same = std::inner_product(shown.begin(), shown.end(), alone.begin(), std::ptrdiff_t{0},
                                       std::plus<>(), std::equal_to<>());
  return std::ssize(shown) - same <= kCaret;
}

std::vector<COLORREF> iconPixels(const wchar_t* icon, SIZE size) {
  const Canvas canvas(size);
  const RECT whole{0, 0, size.cx, size.cy};
  FillRect(canvas.context(), &whole, GetSysColorBrush(COLOR_BTNFACE));
  DrawIconEx(canvas.context(), 0, 0, LoadIconW(nullptr, icon), size.cx, size.cy, 0, nullptr,
             DI_NORMAL);
  return canvas.pixels();
}

void saveScreenshot(const std::string& file) {
  std::filesystem::create_directories(std::filesystem::path(file).parent_path());
  runBelow("import -window root " + file);
}

void saveScreenshot(const std::string& file, const RECT& rect) {
  std::filesystem::create_directories(std::filesystem::path(file).parent_path());
  const std::string place = std::to_string(rect.right - rect.left) + "x" +
                            std::to_string(rect.bottom - rect.top) + "+" +
                            std::to_string(rect.left) + "+" + std::to_string(rect.top);
  // Without the time of day, which would make a new file of the same picture.
  runBelow("import -window root -crop " + place + " +repage +set date:create +set date:modify " +
           "-define png:exclude-chunks=date,time " + file);
}

}  // namespace support
