#include "lookup/frm_sub.h"

#include <stdexcept>

#include "app/state.h"
#include "capture/screen_word.h"
#include "forms/clipboard.h"
#include "forms/geometry.h"
#include "lookup/layout.h"
#include "settings/settings_file.h"
#include "text/pasted_text.h"
#include "text/query_text.h"
#include "text/strings.h"
#include "text/utf.h"

// The widgets have their places from three sources: their constructors (frm_sub.h), the layout,
// which follows the window's size (lookup/layout.h), and the list's width, which the user sets by
// dragging the splitter. The form raises Resize for every change of its size, so that setting a
// size is all that loading has to do. The lookups themselves are in frm_sub_lookup_win.cpp.
namespace {

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmSub";
  design.caption = u"速查 V" LEXILO_VERSION;
  design.width = 3500;
  design.height = 3200;
  design.topmost = true;
  design.floating = true;
  design.iconResource = forms::kProgramIcon;
  return design;
}

/// The window opens on the headwords from this one on.
constexpr std::u16string_view kFirstWord = u"a";
/// Deliberate: more than the 75 rows of a list query, so that it never limits.
constexpr int kMaxListed = 100;

/// The splitter is one pixel wide; the mouse takes hold of it within three pixels on each side (45
/// twips) as well.
constexpr int kSplitterMargin = 45;

/// Twips by which the wrapped lines of a meaning are indented, so that each meaning is seen as one.
constexpr int kHangingIndent = 180;

/// The sizes that are kept in the settings file, each as its decimal number of twips.
const std::u16string kSection(user::kSettingsSection);
const std::u16string kWindowWidth = u"WindowWidth";
const std::u16string kWindowHeight = u"WindowHeight";
const std::u16string kTreeWidth = u"TreeWidth";

std::runtime_error unusable(const std::u16string& key, const std::u16string& value,
                            const std::u16string& file) {
  return std::runtime_error(
      text::toUtf8(u"设置文件中 " + key + u" 的值“" + value + u"”无法使用：" + file));
}

/// Returns the word that is meant by a pasted text. A connection of its own is opened only for a
/// word with accents.
std::u16string pastedWord(std::u16string_view pasted) {
  data::KnownHeadwords headwords(user::IdxWords);
  headwords.setConnectionString(user::ConnectionString);
  return text::pastedWord(pasted, [&](std::u16string_view word) { return headwords.has(word); });
}

}  // namespace

// Deliberate: with the default LookupOptions a Chinese meaning is searched within the bounds of the
// last list; the popup has them found anew.
frmSub::frmSub() : Form(design()), lookup_(user::IdxWords, data::LookupOptions{}) {
  txtInput.setFont({u"宋体", 10.5});
  txtOut.setHangingIndent(kHangingIndent);
  txtInput.onChange = [this] { txtInput_Change(); };
  txtInput.onGotFocus = [this] { txtInput_GotFocus(); };
  txtInput.onLostFocus = [this] { txtInput_LostFocus(); };
  txtInput.cleanPasted = pastedWord;
  cmdExit.onClick = [this] { cmdExit_Click(); };
  TreeView1.onNodeClick = [this](std::size_t node) { TreeView1_NodeClick(node); };
  mnuSearch_ = mnuOper.add(u"反查", [this] { mnuSearch_Click(); });
  mnuCopy_ = mnuOper.add(u"复制", [this] { mnuCopy_Click(); });
  wireMouse();
  wireKeys();
}

// The pointer's shape is the form's, whichever widget it is over: the splitter sets it, and every
// other widget sets it back. A drag of the splitter ends on the widget that it is dropped on.
void frmSub::wireMouse() {
  const auto showOwnPointer = [this](forms::TwipPoint) { setMousePointer(nullptr); };
  onMouseMove = showOwnPointer;
  for (forms::Widget* widget :
       std::initializer_list<forms::Widget*>{&Label1, &txtInput, &cmdExit, &TreeView1, &txtOut}) {
    widget->onMouseMove = showOwnPointer;
  }
  Image1.setGrabMargin(kSplitterMargin);
  Image1.onMouseMove = [this](forms::TwipPoint) { Image1_MouseMove(); };
  Image1.onMouseDown = [this](forms::TwipPoint) { Image1_MouseDown(); };
  Image1.onDragEnded = [this] { placeListAndPane(); };
  TreeView1.onDragDrop = [this](forms::Widget& source, forms::TwipPoint place) {
    TreeView1_DragDrop(source, place);
  };
  txtOut.onDragDrop = [this](forms::Widget& source, forms::TwipPoint place) {
    txtOut_DragDrop(source, place);
  };
  txtOut.onRightMouseUp = [this](forms::TwipPoint place) { txtOut_MouseUp(place); };
}

void frmSub::wireKeys() {
  txtInput.onKeyDown[VK_DOWN] = [this] { TreeView1.setFocus(); };
  TreeView1.onKeyDown[VK_ESCAPE] = [this] { escape(); };
  onEscape = [this] { escape(); };
  TreeView1.onText = [this](const std::u16string& typed) { takeTyping(typed); };
  txtOut.onText = [this](const std::u16string& typed) { takeTyping(typed); };
}

void frmSub::escape() {
  if (Image1.isDragged()) {
    Image1.cancelDrag();
  } else {
    returnToBox();
  }
}

void frmSub::returnToBox() {
  txtInput.setFocus();
  txtInput.selectAll();
}

// Only the first letter replaces the box's text: those of a phrase come one after the other where
// an input method sends them so.
void frmSub::takeTyping(const std::u16string& typed) {
  if (GetFocus() != txtInput.handle()) returnToBox();
  txtInput.insert(typed);
}

void frmSub::Form_Load() {
  // Deliberate: the list is filled before the sizes are read. An unusable size stops the loading
  // with a message; the window then works in its design size.
  MaxCount = kMaxListed;
  // In its design size; again at the end, which an error keeps from being reached.
  goToItsPlace();
  Adodc1.setConnectionString(user::ConnectionString);
  const std::u16string sql = makeStrSql(user::getEorC(kFirstWord), kFirstWord);
  Query(sql, Adodc1, TreeView1);
  readSizes();
  goToItsPlace();
}

// The first time just below the toolbar, afterwards where it was when it was closed.
void frmSub::goToItsPlace() {
  if (user::QuickLookupPlace) {
    placeBackAt(*user::QuickLookupPlace);
  } else {
    placeAtBar();
  }
}

void frmSub::Form_Resize() {
  // Setting the size raises this event again; snapping the snapped size changes nothing.
  const lookup::Size wanted{width(), height()};
  const lookup::Size size = lookup::snapSize(wanted);
  if (size != wanted) setSize(size.width, size.height);
  const lookup::Layout layout = lookup::layOut(size, TreeView1.width());
  txtInput.move({layout.inputLeft, txtInput.top(), layout.inputWidth, txtInput.height()});
  cmdExit.move({layout.exitLeft, cmdExit.top(), cmdExit.width(), cmdExit.height()});
  placeListAndPane();
}

// As Form_Resize snaps it afterwards. Without this the window would jump between the two sizes, and
// away from the side that is dragged.
SIZE frmSub::sizeWhenDraggedTo(SIZE wanted) const {
  const lookup::Size size = lookup::snapSize({wanted.cx, wanted.cy});
  return {size.width, size.height};
}

// Also after every drag, wherever it ended: the splitter that was dragged goes back to its place.
void frmSub::placeListAndPane() {
  const int listWidth = TreeView1.width();
  const lookup::Layout layout = lookup::layOut(lookup::snapSize({width(), height()}), listWidth);
  TreeView1.move({layout.listLeft, layout.listTop, listWidth, layout.listHeight});
  Image1.move(layout.splitter);
  txtOut.move(layout.pane);
}

// Deliberate: at every paint, since other topmost windows may have come above it. Never activates.
void frmSub::Form_Paint() { bringToTop(); }

void frmSub::Form_Unload() {
  // Deliberate: whether or not the focus paused capture.
  ScreenWord::StartCapture();
  setMousePointer(nullptr);
  user::QuickLookupPlace = place();
  writeSizes();
}

void frmSub::txtInput_Change() try {
  const user::TypedText typed = user::readTyped(txtInput.text());
  switch (typed.kind) {
    case user::Typed::kNothing:
      break;
    case user::Typed::kRefused:
      // Deliberate: in this order. Emptying the box raises this event again, for an empty text.
      txtInput.setText({});
      beep();
      txtOut.setText({});
      break;
    case user::Typed::kWord:
      Query(makeStrSql(typed.language, typed.word), Adodc1, TreeView1);
      break;
  }
} catch (const std::exception&) {
  // Typing is never interrupted by a message; the list keeps what it shows.
}

// What is typed here must not be captured itself.
void frmSub::txtInput_GotFocus() { ScreenWord::StopCapture(); }

void frmSub::txtInput_LostFocus() { ScreenWord::StartCapture(); }

void frmSub::cmdExit_Click() { unload(); }

void frmSub::TreeView1_NodeClick(std::size_t node) {
  std::u16string word = TreeView1.text(node);
  showMeaning(word, Adodc1);
}

// Whatever else is dropped, or dropped elsewhere, changes nothing.
void frmSub::TreeView1_DragDrop(const forms::Widget& source, forms::TwipPoint place) {
  if (&source != &Image1) return;
  TreeView1.setWidth(lookup::widthAfterDropOnList(place.x));
  placeListAndPane();
}

void frmSub::txtOut_DragDrop(const forms::Widget& source, forms::TwipPoint place) {
  if (&source != &Image1) return;
  TreeView1.setWidth(lookup::widthAfterDropOnPane(width(), TreeView1.width(), place.x));
  placeListAndPane();
}

void frmSub::txtOut_MouseUp(forms::TwipPoint place) {
  // The menu opens without a selection as well, with both items disabled.
  const bool selected = txtOut.selLength() != 0;
  mnuOper.item(mnuSearch_).enabled = selected;
  mnuOper.item(mnuCopy_).enabled = selected;
  POINT point{forms::toPixels(place.x, dpi()), forms::toPixels(place.y, dpi())};
  ClientToScreen(txtOut.handle(), &point);
  if (const auto* chosen = mnuOper.choose(*this, point)) chosen->onClick();
}

void frmSub::mnuSearch_Click() {
  // Setting the text raises Change, which looks the selection up. The pane may show another text
  // afterwards, whose selection is empty already.
  txtInput.setText(text::onOneLine(txtOut.selText()));
  txtOut.select(txtOut.selStart(), 0);
}

void frmSub::mnuCopy_Click() { forms::setClipboardText(handle(), txtOut.selText()); }

void frmSub::showSplitterPointer() { setMousePointer(IDC_SIZEWE); }

void frmSub::Image1_MouseMove() {
  showSplitterPointer();
  Image1.setToolTip(u"拖动以调解窗体宽度");  // Deliberate: the wording
}

void frmSub::Image1_MouseDown() {
  showSplitterPointer();
  Image1.beginDrag();
}

void frmSub::readSizes() {
  settingsPath_ = user::settingsFile();
  const int windowWidth = readSize(kWindowWidth, 3500);
  const int windowHeight = readSize(kWindowHeight, 3200);
  const int treeWidth = readSize(kTreeWidth, 2000);
  if (!lookup::leavesRoomForPane({windowWidth, windowHeight}, treeWidth)) {
    throw unusable(kTreeWidth, text::decimal(treeWidth), settingsPath_);
  }
  // Deliberate: height and width one after the other, each of which raises Resize.
  setSize(width(), windowHeight);
  setSize(windowWidth, height());
  TreeView1.setWidth(treeWidth);
}

// A value that is not a number of 16 bits, or is negative, is an error that the user sees: nothing
// but an edit of the file by hand makes one.
int frmSub::readSize(const std::u16string& key, int fallback) const {
  const std::u16string value = user::getINIProfileString(kSection, key, {}, settingsPath_);
  // Deliberate: the file's own path as a value counts as absent too.
  if (value.empty() || value == settingsPath_) return fallback;
  const auto size = user::toInteger16(value);
  if (!size || *size < 0) throw unusable(key, value, settingsPath_);
  return *size;
}

void frmSub::writeSizes() const {
  // If loading failed before the sizes were read, the stored ones are kept.
  if (settingsPath_.empty()) return;
  user::WriteINIProfileString(kSection, kWindowWidth, text::decimal(width()), settingsPath_);
  user::WriteINIProfileString(kSection, kWindowHeight, text::decimal(height()), settingsPath_);
  // The list of a window that was narrowed may be too wide for it.
  const int treeWidth = lookup::widthToKeep({width(), height()}, TreeView1.width());
  user::WriteINIProfileString(kSection, kTreeWidth, text::decimal(treeWidth), settingsPath_);
}
