#include "forms/form.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "forms/appearance/system_look.h"
#include "forms/appearance/text_size.h"
#include "forms/focus.h"
#include "forms/geometry.h"
#include "forms/stacking.h"
#include "win32/monitor.h"
#include "win32/win32.h"

// A form has three sizes: width() and height() in twips, the same on every monitor and with every
// frame; the client area in pixels, which is that less the layouts' frame at the form's DPI; and
// the window's outer size in pixels, with the frame that Windows draws. setSize goes down this
// list, WM_SIZE up.
namespace forms {
namespace {

DWORD styleOf(const FormDesign& design) {
  switch (design.frame) {
    case Frame::kSizable:
      return WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    case Frame::kFixed:
      return WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    case Frame::kDialog:
      // As the system's own dialogs: an owned window of another kind is not one to which every
      // window manager gives the keyboard.
      return WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    case Frame::kBorderless:
      break;
  }
  return WS_POPUP | WS_CLIPCHILDREN;
}

DWORD exStyleOf(const FormDesign& design) {
  DWORD style = design.topmost ? WS_EX_TOPMOST : 0;
  if (design.neverActive) style |= WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW;
  if (!design.taskbarButton) style |= WS_EX_TOOLWINDOW;
  if (design.frame == Frame::kDialog) style |= WS_EX_DLGMODALFRAME;
  return style;
}

/// What the layouts take a form's frame for, in twips.
SIZE designFrameOf(const FormDesign& design) {
  if (design.frame == Frame::kBorderless) return {};
  return {kFrameWidth, kFrameHeight};
}

/// Returns the forms whose owner window is `owner`.
std::vector<Form*> formsOwnedBy(HWND owner) {
  std::vector<Form*> owned;
  for (HWND window : win32::threadWindows()) {
    Form* form = GetWindow(window, GW_OWNER) == owner ? Form::of(window) : nullptr;
    if (form != nullptr) owned.push_back(form);
  }
  return owned;
}

PixelBox toBox(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

/// Returns the monitor of the bar of ours that is shown, or that of `window` while none is.
win32::Monitor monitorOfBar(HWND window) {
  const std::vector<PixelBox> bars = placesKeptOnTop(Rank::kBar, Rank::kBar);
  if (bars.empty()) return win32::monitorOf(window);
  return win32::monitorAt({bars.front().left, bars.front().top});
}

win32::OwnedIcon loadIcon(int resource, int systemMetric, int dpi) {
  const int size = GetSystemMetricsForDpi(systemMetric, static_cast<UINT>(dpi));
  return win32::OwnedIcon(static_cast<HICON>(LoadImageW(
      GetModuleHandleW(nullptr), MAKEINTRESOURCEW(resource), IMAGE_ICON, size, size, 0)));
}

}  // namespace

Form::Form(const FormDesign& design) : design_(design) {
  setFocusLocator(&locateFocus);
  createWindow();
  setSize(design_.width, design_.height);
}

Form::~Form() {
  forgetFocus(*this);
  if (handle_ == nullptr) return;
  removeFromStack(handle_);
  DestroyWindow(std::exchange(handle_, nullptr));
}

// One window class a form. Registering it again, when the form is loaded anew, fails and changes
// nothing. windowProc stores the handle at WM_NCCREATE, before CreateWindowEx returns, since the
// form already gets messages then. The window has no size yet; the DPI is known only once it
// exists.
void Form::createWindow() {
  const std::u16string className = u"Lexilo." + design_.name;
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.style = design_.shadow ? CS_DROPSHADOW : 0;
  windowClass.lpfnWndProc = windowProc;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = GetSysColorBrush(design_.background);
  windowClass.lpszClassName = win32::wide(className);
  RegisterClassExW(&windowClass);
  CreateWindowExW(exStyleOf(design_), win32::wide(className), win32::wide(design_.caption),
                  styleOf(design_), CW_USEDEFAULT, CW_USEDEFAULT, 0, 0, nullptr, nullptr,
                  windowClass.hInstance, this);
  if (handle_ == nullptr) {
    win32::throwLastError();
  }
  takeDpi(static_cast<int>(GetDpiForWindow(handle_)));
  showIcons();
}

// Loaded at the exact size for the DPI. WM_SETICON does not take ownership: the icons shown before
// are freed once both are replaced.
void Form::showIcons() {
  if (design_.iconResource == 0) return;
  auto big = loadIcon(design_.iconResource, SM_CXICON, monitorDpi_);
  auto small = loadIcon(design_.iconResource, SM_CXSMICON, monitorDpi_);
  SendMessageW(handle_, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(big.get()));
  SendMessageW(handle_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small.get()));
  bigIcon_ = std::move(big);
  smallIcon_ = std::move(small);
}

Rank Form::rank() const {
  if (design_.neverActive) return Rank::kNotice;
  if (!design_.topmost) return Rank::kWindow;
  return design_.floating ? Rank::kFloating : Rank::kBar;
}

// The window procedure tells our forms from other windows, whose user data is no Form. The thread
// is compared as well: another program's procedure may have the same address.
Form* Form::of(HWND window) {
  if (window == nullptr || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId() ||
      GetClassLongPtrW(window, GCLP_WNDPROC) != reinterpret_cast<ULONG_PTR>(&windowProc)) {
    return nullptr;
  }
  return reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

// Painting raises no event before Form_Load has run.
void Form::load() {
  guard([this] { Form_Load(); });
  loaded_ = true;
}

// The first time Form_Resize comes before the window is visible, so that nothing is seen moving.
// The events of opening are raised before this returns, not by the message loop: the caller goes on
// with a form that is active.
void Form::show(Form* owner) {
  if (owner != nullptr) {
    // Outside of what is documented ("Window Features" has a window's owner given when it is
    // created) but what every system does: forms are loaded before it is known who owns them.
    SetWindowLongPtrW(handle_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner->handle()));
  }
  if (owner != nullptr && (GetWindowLongPtrW(owner->handle(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0) {
    // A window that is given a topmost owner does not become topmost by that.
    SetWindowPos(handle_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  const bool first = !std::exchange(shown_, true);
  if (first) resized();
  const int normal = design_.neverActive ? SW_SHOWNOACTIVATE : SW_SHOWNORMAL;
  const int again = isMinimised() ? SW_RESTORE : SW_SHOW;
  ShowWindow(handle_, design_.neverActive ? normal : again);
  if (first && (IsWindowVisible(handle_) == FALSE || isMinimised() || IsZoomed(handle_) != FALSE)) {
    // The first call in a process does what the program's starter asked for, such as a shortcut set
    // to "run minimised" (ShowWindow's remarks); the second does what it is told.
    ShowWindow(handle_, normal);
  }
  if (design_.neverActive) return;
  SetForegroundWindow(handle_);
  raisePendingFocusEvents();
  updateStacking();
}

void Form::hide() { ShowWindow(handle_, SW_HIDE); }

// Owned forms first, with their events: DestroyWindow destroys owned windows without closing them.
// After Form_Unload the form and its widgets hear of no loss of the focus.
void Form::unload() {
  if (unloading_) return;
  for (Form* owned : formsOwnedBy(handle_)) owned->unload();
  if (unloading_) return;  // by the handler of an owned form
  unloading_ = true;
  guard([this] { Form_Unload(); });
  for (const Widget* widget : widgets()) forgetFocus(*widget);
  forgetFocus(*this);
  DestroyWindow(handle_);
  onUnloaded.raise();
}

SIZE Form::frameAt(int dpi) const {
  return win32::frameOf(styleOf(design_), exStyleOf(design_), dpi);
}

SIZE Form::outerPixels(int width, int height, int layoutDpi, int monitorDpi) const {
  const SIZE inDesign = designFrameOf(design_);
  const SIZE real = frameAt(monitorDpi);
  return {clientPixels(width, inDesign.cx, layoutDpi) + real.cx,
          clientPixels(height, inDesign.cy, layoutDpi) + real.cy};
}

SIZE Form::outerPixels(int width, int height) const {
  return outerPixels(width, height, dpi_, monitorDpi_);
}

int Form::layoutDpiAt(int monitorDpi, double scale) const {
  if (!design_.growsWithTexts) return monitorDpi;
  const SIZE window = outerPixels(design_.width, design_.height, monitorDpi, monitorDpi);
  const PixelBox work = toBox(win32::monitorOf(handle_).work);
  return layoutDpi(monitorDpi, scale, {window.cx, window.cy}, {work.width(), work.height()});
}

void Form::takeDpi(int monitorDpi) {
  monitorDpi_ = monitorDpi;
  metrics_ = windowMetrics(monitorDpi);
  const double scale = textScale(metrics_, monitorDpi);
  textDpi_ = design_.fixedTexts ? monitorDpi : static_cast<int>(std::lround(monitorDpi * scale));
  dpi_ = layoutDpiAt(monitorDpi, scale);
}

SIZE Form::outerTwipsOf(SIZE client) const {
  const SIZE frame = designFrameOf(design_);
  return {outerTwips(client.cx, frame.cx, dpi_, sizeSet_.cx, width_),
          outerTwips(client.cy, frame.cy, dpi_, sizeSet_.cy, height_)};
}

void Form::takeClientSize() {
  RECT client{};
  GetClientRect(handle_, &client);
  const SIZE size = outerTwipsOf({client.right, client.bottom});
  width_ = size.cx;
  height_ = size.cy;
}

// Limits what the user can do with the frame: setSize limits what code does. Not ptMaxSize: it is
// that of the primary monitor, and the system fits it to the monitor on which the window is
// maximised only where it was left untouched (MINMAXINFO).
void Form::limitTracking(MINMAXINFO& limits) const {
  if (design_.frame != Frame::kSizable) return;
  const SIZE largest = outerPixels(kMaxSize, kMaxSize);
  limits.ptMaxTrackSize = {largest.cx, largest.cy};
  if (design_.leastWidth == 0) return;
  const SIZE least = outerPixels(design_.leastWidth, design_.leastHeight);
  limits.ptMinTrackSize = {least.cx, least.cy};
}

// For a maximised window as well, whose size is no tracking size.
void Form::limitSize(WINDOWPOS& position) const {
  if (design_.frame != Frame::kSizable || (position.flags & SWP_NOSIZE) != 0) return;
  const SIZE largest = outerPixels(kMaxSize, kMaxSize);
  position.cx = std::min(position.cx, static_cast<int>(largest.cx));
  position.cy = std::min(position.cy, static_cast<int>(largest.cy));
}

void Form::setSize(int width, int height) {
  width_ = std::clamp(width, 0, kMaxSize);
  height_ = std::clamp(height, 0, kMaxSize);
  sizeSet_ = {width_, height_};
  const SIZE outer = outerPixels(width_, height_);
  SetWindowPos(handle_, nullptr, 0, 0, outer.cx, outer.cy,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int Form::left() const {
  RECT rect{};
  GetWindowRect(handle_, &rect);
  return toTwips(rect.left, dpi_);
}

int Form::top() const {
  RECT rect{};
  GetWindowRect(handle_, &rect);
  return toTwips(rect.top, dpi_);
}

void Form::setPosition(int left, int top) {
  SetWindowPos(handle_, nullptr, toPixels(left, dpi_), toPixels(top, dpi_), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Windows documents that the size and place are those of WM_SIZING's rectangle after the message.
// Returns whether the rectangle was changed.
bool Form::correctSizing(WPARAM side, RECT& rect) const {
  const SIZE frame = frameAt(monitorDpi_);
  SIZE pixels{rect.right - rect.left, rect.bottom - rect.top};
  const SIZE wanted = outerTwipsOf({pixels.cx - frame.cx, pixels.cy - frame.cy});
  const SIZE size = sizeWhenDraggedTo(wanted);
  const SIZE corrected = outerPixels(size.cx, size.cy);
  if (size.cx != wanted.cx) pixels.cx = corrected.cx;
  if (size.cy != wanted.cy) pixels.cy = corrected.cy;
  const bool byLeft = side == WMSZ_LEFT || side == WMSZ_TOPLEFT || side == WMSZ_BOTTOMLEFT;
  const bool byTop = side == WMSZ_TOP || side == WMSZ_TOPLEFT || side == WMSZ_TOPRIGHT;
  const PixelBox box = resizedAtDraggedSide(toBox(rect), pixels.cx, pixels.cy, byLeft, byTop);
  if (box == toBox(rect)) return false;
  rect = {box.left, box.top, box.right, box.bottom};
  return true;
}

// A hidden window may get no WM_DPICHANGED, but it has the DPI of the monitor that it is on.
void Form::moveTo(int left, int top) {
  SetWindowPos(handle_, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  const int dpi = static_cast<int>(GetDpiForWindow(handle_));
  if (dpi != monitorDpi_) rescale(dpi, {left, top, left, top});
}

// These all first move onto the monitor, whose DPI decides on the size in pixels.
void Form::placeAtBar() {
  const std::vector<PixelBox> bars = placesKeptOnTop(Rank::kBar, Rank::kBar);
  if (bars.empty()) return;
  const PixelBox bar = bars.front();
  const PixelBox work = toBox(monitorOfBar(handle_).work);
  moveTo(work.left, work.top);
  const PixelBox place = forms::placeAtBar(place_, bar, work);
  moveTo(place.left, place.top);
}

void Form::placeBackAt(const PixelBox& place) {
  const POINT middle{(place.left + place.right) / 2, place.top};
  const PixelBox work = toBox(win32::monitorAt(middle).work);
  moveTo(work.left, work.top);
  const int titleHeight = GetSystemMetricsForDpi(SM_CYCAPTION, static_cast<UINT>(monitorDpi_)) +
                          GetSystemMetricsForDpi(SM_CYSIZEFRAME, static_cast<UINT>(monitorDpi_));
  const PixelBox wanted{place.left, place.top, place.left + place_.width(),
                        place.top + place_.height()};
  const PixelBox found = withTitleBarOn(wanted, work, titleHeight);
  moveTo(found.left, found.top);
}

void Form::setPlace(const PixelBox& place) {
  SetWindowPos(handle_, nullptr, place.left, place.top, place.width(), place.height(),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void Form::centre(const Form& other) {
  const PixelBox work = toBox(win32::monitorOf(other.handle_).work);
  moveTo(work.left, work.top);
  setPlace(centred(place(), other.place(), work));
}

void Form::centre() {
  const PixelBox work = toBox(monitorOfBar(handle_).work);
  moveTo(work.left, work.top);
  const PixelBox middle = centred(place(), work, work);
  // Beside all of them; otherwise beside the bars, which are smaller.
  for (const Rank lowest : {Rank::kFloating, Rank::kBar}) {
    if (const auto free = placeBeside(middle, work, placesKeptOnTop(lowest, Rank::kBar))) {
      setPlace(*free);
      return;
    }
  }
  setPlace(middle);
}

void Form::setMousePointer(const wchar_t* systemCursor) {
  HCURSOR pointer = systemCursor == nullptr ? nullptr : LoadCursorW(nullptr, systemCursor);
  if (std::exchange(mousePointer_, pointer) == pointer) return;
  // Windows asks for a shape when the pointer moves: without this the old one would stay until
  // then.
  POINT place{};
  GetCursorPos(&place);
  HWND under = WindowFromPoint(place);
  if (under == nullptr || GetAncestor(under, GA_ROOT) != handle_) return;
  const LRESULT part = SendMessageW(under, WM_NCHITTEST, 0, MAKELPARAM(place.x, place.y));
  SendMessageW(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under),
               MAKELPARAM(part, WM_MOUSEMOVE));
}

void Form::bringToTop() { forms::bringToTop(handle_); }

FocusLocation Form::locateFocus() {
  Form* form = of(GetActiveWindow());
  return {form, form == nullptr ? nullptr : form->widgetOf(GetFocus())};
}

void Form::raiseGotFocus() noexcept {
  guard([this] {
    if (Widget* widget = widgetOf(GetFocus())) widget->formActivated();
  });
  guard([this] { Form_Activate(); });
}

void Form::raisePaint() noexcept {
  if (loaded_) guard([this] { Form_Paint(); });
}

void Form::raiseLostFocus() noexcept {
  guard([this] { Form_LostFocus(); });
}

}  // namespace forms
