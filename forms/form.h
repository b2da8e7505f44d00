#pragma once

#include <string>
#include <vector>

#include "forms/event.h"
#include "forms/placement.h"
#include "forms/widget.h"
#include "win32/win32.h"

namespace forms {

enum class Frame {
  kBorderless,
  kSizable,
  kFixed,
  kDialog,  ///< fixed, for a form that is shown with an owner
};

/// Resource number of the program's own icon: the first, which Explorer takes too.
inline constexpr int kProgramIcon = 1;

/// What a form is made of. Sizes are outer sizes in twips at the form's DPI (see Form::width).
struct FormDesign {
  std::u16string name;  ///< "frmSub"; its window class is "Lexilo.frmSub"
  std::u16string caption;
  Frame frame = Frame::kSizable;
  int width = 0;
  int height = 0;
  int leastWidth = 0;  ///< the user cannot make a sizable form smaller
  int leastHeight = 0;
  bool topmost = false;      ///< raising it never takes the focus
  bool floating = false;     ///< a topmost form that stays below all other windows of ours
  bool neverActive = false;  ///< no focus, no taskbar button, no place in Alt+Tab
  bool taskbarButton = true;
  bool closable = true;  ///< reacts to Alt+F4, the close box and WM_CLOSE
  bool shadow = false;   ///< casts one, as tool tips do
  int iconResource = 0;
  int background = COLOR_BTNFACE;  ///< a system colour
};

/// A top-level window. A form exists once: forms::form<F>() loads it on the first reference,
/// unload() ends it, and the next reference loads it anew. Twips are those of the form's DPI (1440
/// to an inch, 15 to a pixel at 96 DPI). User-interface thread only. Handlers run inside the
/// exception barrier: what they throw is reported and never leaves a function of this class.
class Form {
 public:
  /// Creates the window, hidden. Throws std::runtime_error if Windows cannot create it.
  explicit Form(const FormDesign& design);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  /// The form behind a top-level window; nullptr for windows that are none of ours.
  static Form* of(HWND window);

  [[nodiscard]] HWND handle() const { return handle_; }
  /// The DPI of the monitor that the form is on.
  [[nodiscard]] int dpi() const { return dpi_; }
  [[nodiscard]] Rank rank() const;

  /// Whether an ordinary form was made topmost while it is active (see updateStacking).
  [[nodiscard]] bool isRaisedForNow() const { return raisedForNow_; }
  void setRaisedForNow(bool raised) { raisedForNow_ = raised; }
  /// Whether a message box or a menu is open, above which no form is raised.
  static bool isRaisingHeld();

  /// Runs Form_Load. An error that it lets out is shown; the form stays as far as it got.
  void load();
  /// Shows the form and gives it the focus; one that is open comes to the front, restored.
  void show(Form* owner = nullptr);
  /// Hides the form; it stays loaded and raises no event.
  void hide();
  /// Unloads the forms it owns, then runs Form_Unload, then ends the window.
  void unload();
  [[nodiscard]] bool isUnloading() const { return unloading_; }

  /// Outer size in twips: the client size plus 120 x 405 for a form with a caption, whatever the
  /// real frame takes. While minimised, the size before.
  [[nodiscard]] int width() const { return width_; }
  [[nodiscard]] int height() const { return height_; }
  /// Sets the outer size in twips; each is limited to 0..32,767. Raises Form_Resize.
  void setSize(int width, int height);
  /// The top left corner on the virtual screen: screen pixels converted to twips at the form's DPI.
  [[nodiscard]] int left() const;
  [[nodiscard]] int top() const;
  /// Moves the form to that point, in the same twips.
  void setPosition(int left, int top);
  /// The outer rectangle in screen pixels.
  [[nodiscard]] PixelBox place() const;
  /// Puts the form into the middle of `other` so that all of it lies on the monitor's work area;
  /// one that is too large for that is made smaller.
  void centre(const Form& other);
  /// The same in the middle of its monitor; where topmost forms of ours lie there, beside them as
  /// far as there is room.
  void centre();
  [[nodiscard]] bool isMinimised() const { return IsIconic(handle_) != FALSE; }

  /// The pointer's shape over the whole form; nullptr is each widget's own.
  void setMousePointer(const wchar_t* systemCursor);

  /// The colour that the form's own drawings take.
  void setForeColor(COLORREF color) { foreColor_ = color; }
  [[nodiscard]] COLORREF foreColor() const { return foreColor_; }

  /// Puts the form above all other windows but those of ours that are to stay above it; moves,
  /// sizes and activates nothing.
  void bringToTop();

  /// Returns the visible widget under a point in screen pixels, or nullptr; `except` is ignored.
  [[nodiscard]] Widget* widgetAt(POINT screen, const Widget* except = nullptr) const;

  /// Returns the widget of this form that `control` belongs to; nullptr for any other window.
  [[nodiscard]] Widget* widgetOf(HWND control) const;

  /// Returns the widget that takes the mouse at a point beside it (screen pixels), or nullptr.
  [[nodiscard]] Widget* grabberAt(POINT screen) const;

  /// For the constructor and destructor of Widget; the form does not own its widgets.
  void addWidget(Widget& widget);
  void removeWidget(Widget& widget);
  /// For Widget::setToolTip; "" removes the tool tip.
  void setToolTip(Widget& widget, const std::u16string& text);
  /// Hides the tool tip that is shown.
  void hideToolTip() const;

  /// For raisePendingFocusEvents: run Form_Activate and Form_LostFocus inside the barrier.
  void raiseActivate() noexcept;
  void raiseLostFocus() noexcept;
  /// Part of the form was painted; its own pictures count as the form.
  void raisePaint() noexcept;

  Event<TwipPoint> onMouseMove;
  /// Enter and Esc, where the widget with the focus has no use for them itself.
  Event<> onEnter;
  Event<> onEscape;

 protected:
  virtual void Form_Load() {}
  virtual void Form_Resize() {}
  virtual void Form_Activate() {}
  virtual void Form_LostFocus() {}
  virtual void Form_Paint() {}
  virtual void Form_Unload() {}
  /// The form's own window procedure; override to see further messages.
  virtual LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void createWindow();
  void showIcons();
  void createToolTip();
  void takeClientSize();
  void resized();
  void paint();
  void giveFocusBack();
  void rescale(int dpi, const RECT& suggested);
  void command(WORD code, HWND control, WORD id) const;
  bool passToGrabber(UINT message, WPARAM wParam, LPARAM lParam);
  void limitTracking(MINMAXINFO& limits) const;
  void adjustPlacement(WINDOWPOS& position) const;
  void setPlace(const PixelBox& place);
  [[nodiscard]] SIZE outerPixels(int width, int height, int dpi) const;
  [[nodiscard]] SIZE outerPixels(int width, int height) const {
    return outerPixels(width, height, dpi_);
  }
  [[nodiscard]] int frameWidth() const;
  [[nodiscard]] int frameHeight() const;

  FormDesign design_;
  HWND handle_ = nullptr;
  HWND toolTip_ = nullptr;
  HWND lastFocus_ = nullptr;
  win32::OwnedIcon bigIcon_;
  win32::OwnedIcon smallIcon_;
  HCURSOR mousePointer_ = nullptr;
  COLORREF foreColor_ = 0;
  int dpi_ = 96;
  int width_ = 0;
  int height_ = 0;
  SIZE sizeSet_{};           // what setSize was last given, twips
  SIZE resizedFor_{-1, -1};  // client size of the last Form_Resize, pixels
  bool loaded_ = false;
  bool shown_ = false;
  bool unloading_ = false;
  bool raisedForNow_ = false;
  std::vector<Widget*> widgets_;
};

}  // namespace forms
