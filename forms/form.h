#pragma once

#include <string>

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
  /// Where the user has made texts larger, the form's twips become larger with them, as far as it
  /// then still fits on its monitor. Otherwise only the texts do, in the places that they have.
  bool growsWithTexts = false;
  bool fixedTexts = false;  ///< fonts with a face keep their sizes
};

/// A top-level window. A form exists once: forms::form<F>() loads it on the first reference,
/// unload() ends it, and the next reference loads it anew. Events of opening, in this order: Load,
/// Resize, Activate, GotFocus of a widget. Twips are those of the form's DPI (1440 to an inch, 15
/// to a pixel at 96 DPI; see WidgetHost::dpi). User-interface thread only. Handlers run inside the
/// exception barrier: what they throw is reported and never leaves a function of this class.
class Form : public WidgetHost {
 public:
  /// Creates the window, hidden. Throws std::runtime_error if Windows cannot create it.
  explicit Form(const FormDesign& design);
  ~Form() override;

  /// Returns the form whose window is `window`; nullptr for any other window.
  static Form* of(HWND window);

  /// Runs Form_Load. An error that it lets out is shown; the form stays as far as it got.
  void load();
  /// Shows the form and gives it the focus; one that is open comes to the front, restored. With
  /// `owner` it stays above that form and is unloaded with it.
  void show(Form* owner = nullptr);
  /// Hides the form; it stays loaded and raises no event.
  void hide();
  /// Unloads the forms it owns, then runs Form_Unload, then destroys the window. Does nothing if it
  /// is unloading already.
  void unload();
  [[nodiscard]] bool isUnloading() const { return unloading_; }
  /// Last event of unload(), after the window was destroyed; for the owner of the object.
  Event<> onUnloaded;

  /// Outer size in twips: the client size plus kFrameWidth x kFrameHeight for a form with a
  /// caption, whatever the real frame takes. While minimised, the size before.
  [[nodiscard]] int width() const { return width_; }
  [[nodiscard]] int height() const { return height_; }
  /// Sets the outer size in twips; each is limited to 0..kMaxSize. Raises Form_Resize.
  void setSize(int width, int height);
  /// The top left corner on the virtual screen: screen pixels converted to twips at the form's DPI.
  [[nodiscard]] int left() const;
  [[nodiscard]] int top() const;
  /// Moves the form to that point, in the same twips.
  void setPosition(int left, int top);
  /// The outer rectangle in screen pixels. While minimised, the one before.
  [[nodiscard]] PixelBox place() const { return place_; }
  /// Moves the form, which keeps its size in twips, just below the bar of ours that is shown: onto
  /// its monitor, with its title bar on the work area. Does nothing while no bar is shown.
  void placeAtBar();
  /// Moves the form to where its top left corner is that of `place`, or as near to it as its title
  /// bar is on a monitor. It keeps its size in twips.
  void placeBackAt(const PixelBox& place);
  /// Puts the form into the middle of `other` so that all of it lies on the monitor's work area;
  /// one that is too large for that is made smaller.
  void centre(const Form& other);
  /// The same in the middle of the monitor on which the bar of ours is shown, or of its own
  /// monitor; where topmost forms of ours lie there, beside them as far as there is room.
  void centre();
  [[nodiscard]] bool isMinimised() const { return IsIconic(handle()) != FALSE; }

  /// Sets the pointer's shape over the whole form, an IDC_ constant; nullptr is each widget's own.
  void setMousePointer(const wchar_t* systemCursor);

  /// Raises the form above all windows but those of ours that are to stay above it; moves, sizes
  /// and activates nothing (see forms::bringToTop).
  void bringToTop();

  /// Run Form_Activate, Form_LostFocus and, once it was loaded, Form_Paint.
  void raiseGotFocus() noexcept override;
  void raiseLostFocus() noexcept override;
  void raisePaint() noexcept override;

  /// The mouse moved over the form itself.
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
  /// Returns the outer size, in twips, that the form takes where the user drags its frame to
  /// `wanted`. The side that is dragged goes where that size needs it.
  [[nodiscard]] virtual SIZE sizeWhenDraggedTo(SIZE wanted) const { return wanted; }
  /// The form's own window procedure; override to see further messages.
  virtual LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static FocusLocation locateFocus();
  void createWindow();
  [[nodiscard]] Rank rank() const;
  void showIcons();
  void takeClientSize();
  void resized();
  void paint();
  void giveFocusBack();
  bool scaleSize(int monitorDpi, SIZE& size);
  void rescale(int monitorDpi, const RECT& suggested);
  void takeDpi(int monitorDpi);
  [[nodiscard]] int layoutDpiAt(int monitorDpi, double scale) const;
  /// The outer size in pixels that it has on a monitor of that DPI.
  [[nodiscard]] SIZE sizeAt(int monitorDpi) const;
  void takeSystemLook();
  void restoreSize();
  void command(WORD code, HWND control, WORD id) const;
  bool passToGrabber(UINT message, WPARAM wParam, LPARAM lParam) const;
  void limitTracking(MINMAXINFO& limits) const;
  void limitSize(WINDOWPOS& position) const;
  [[nodiscard]] bool correctSizing(WPARAM side, RECT& rect) const;
  void endSession();
  void comeBackOnScreen();
  void moveTo(int left, int top);
  void setPlace(const PixelBox& place);
  /// What the frame that Windows draws takes, in pixels.
  [[nodiscard]] SIZE frameAt(int dpi) const;
  /// Converts an outer size in twips to the real window's outer size in pixels.
  [[nodiscard]] SIZE outerPixels(int width, int height) const;
  [[nodiscard]] SIZE outerPixels(int width, int height, int layoutDpi, int monitorDpi) const;
  /// The reverse: of a client size in pixels, at the form's DPI.
  [[nodiscard]] SIZE outerTwipsOf(SIZE client) const;

  FormDesign design_;
  HWND lastFocus_ = nullptr;  // the control that had the focus when the form was deactivated
  win32::OwnedIcon bigIcon_;
  win32::OwnedIcon smallIcon_;
  HCURSOR mousePointer_ = nullptr;
  NONCLIENTMETRICSW metrics_{};  // as taken with the DPI
  int width_ = 0;
  int height_ = 0;
  PixelBox place_;
  SIZE sizeSet_{};           // what setSize was last given, twips
  SIZE scaledSize_{-1, -1};  // outer size that scaleSize() gave for one in between, pixels
  SIZE resizedFor_{-1, -1};  // client size of the last Form_Resize, pixels
  bool loaded_ = false;
  bool shown_ = false;
  bool unloading_ = false;
};

/// Sets what ends the program when Windows ends the session or has it closed to replace its files
/// (WM_ENDSESSION). Null, as at first: each form unloads itself and the process goes on.
void setSessionEndHandler(void (*endProgram)());

}  // namespace forms
