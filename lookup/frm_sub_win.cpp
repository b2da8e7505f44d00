#include "lookup/frm_sub.h"

#include <stdexcept>

#include "app/state.h"
#include "capture/screen_word.h"
#include "forms/clipboard.h"
#include "forms/geometry.h"
#include "lookup/layout.h"
#include "settings/settings_file.h"
#include "text/query_text.h"
#include "text/strings.h"
#include "text/utf.h"

namespace {

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmSub";
  design.caption = u"速查 V1.3";
  design.width = 3500;
  design.height = 3200;
  design.topmost = true;
  design.floating = true;
  design.iconResource = forms::kProgramIcon;
  return design;
}

constexpr std::u16string_view kFirstWord = u"a";
constexpr int kMaxListed = 100;

/// The splitter is one pixel wide; the mouse takes hold of it from three more on each side.
constexpr int kSplitterMargin = 45;

/// Sets the wrapped part of a meaning off from the next one.
constexpr int kHangingIndent = 180;

/// The sizes that are kept in the settings file.
const std::u16string kSection(user::kSettingsSection);
const std::u16string kWindowWidth = u"WindowWidth";
const std::u16string kWindowHeight = u"WindowHeight";
const std::u16string kTreeWidth = u"TreeWidth";

std::runtime_error unusable(const std::u16string& key, const std::u16string& value,
                            const std::u16string& file) {
  return std::runtime_error(
      text::toUtf8(u"设置文件中 " + key + u" 的值“" + value + u"”无法使用：" + file));
}

}  // namespace

frmSub::frmSub() : Form(design()), lookup_(user::IdxWords, data::LookupOptions{}) {
  txtInput.setFont({u"宋体", 10.5});
  txtOut.setHangingIndent(kHangingIndent);
  txtInput.onChange = [this] { txtInput_Change(); };
  txtInput.onGotFocus = [this] { txtInput_GotFocus(); };
  txtInput.onLostFocus = [this] { txtInput_LostFocus(); };
  cmdExit.onClick = [this] { cmdExit_Click(); };
  TreeView1.onNodeClick = [this](std::size_t node) { TreeView1_NodeClick(node); };
  mnuSearch_ = mnuOper.add(u"反查", [this] { mnuSearch_Click(); });
  mnuCopy_ = mnuOper.add(u"复制", [this] { mnuCopy_Click(); });
  wireMouse();
  wireKeys();
}

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
  TreeView1.onKeyDown[VK_ESCAPE] = [this] { txtInput.setFocus(); };
}

void frmSub::Form_Load() {
  MaxCount = kMaxListed;
  Adodc1.setConnectionString(user::ConnectionString);
  const std::u16string sql = makeStrSql(user::getEorC(kFirstWord), kFirstWord);
  Query(sql, Adodc1, TreeView1);
  readSizes();
}

void frmSub::Form_Resize() {
  const lookup::Size wanted{width(), height()};
  const lookup::Size size = lookup::snapSize(wanted);
  if (size != wanted) setSize(size.width, size.height);
  const lookup::Layout layout = lookup::layOut(size, TreeView1.width());
  txtInput.move({layout.inputLeft, txtInput.top(), layout.inputWidth, txtInput.height()});
  cmdExit.move({layout.exitLeft, cmdExit.top(), cmdExit.width(), cmdExit.height()});
  placeListAndPane();
}

void frmSub::placeListAndPane() {
  const int listWidth = TreeView1.width();
  const lookup::Layout layout = lookup::layOut(lookup::snapSize({width(), height()}), listWidth);
  TreeView1.move({layout.listLeft, layout.listTop, listWidth, layout.listHeight});
  Image1.move(layout.splitter);
  txtOut.move(layout.pane);
}

void frmSub::Form_Paint() { bringToTop(); }

void frmSub::Form_Unload() {
  ScreenWord::StartCapture();
  setMousePointer(nullptr);
  writeSizes();
}

void frmSub::txtInput_Change() try {
  const user::TypedText typed = user::readTyped(txtInput.text());
  switch (typed.kind) {
    case user::Typed::kNothing:
      break;
    case user::Typed::kRefused:
      txtInput.setText({});
      beep();
      txtOut.setText({});
      break;
    case user::Typed::kWord:
      Query(makeStrSql(typed.language, typed.word), Adodc1, TreeView1);
      break;
  }
} catch (const std::exception&) {
  // Typing is never interrupted: the list keeps what it shows.
}

void frmSub::txtInput_GotFocus() { ScreenWord::StopCapture(); }

void frmSub::txtInput_LostFocus() { ScreenWord::StartCapture(); }

void frmSub::cmdExit_Click() { unload(); }

void frmSub::TreeView1_NodeClick(std::size_t node) {
  std::u16string word = TreeView1.text(node);
  showMeaning(word, Adodc1);
}

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
  const bool selected = txtOut.selLength() != 0;
  mnuOper.item(mnuSearch_).enabled = selected;
  mnuOper.item(mnuCopy_).enabled = selected;
  POINT point{forms::toPixels(place.x, dpi()), forms::toPixels(place.y, dpi())};
  ClientToScreen(txtOut.handle(), &point);
  if (const auto* chosen = mnuOper.choose(*this, point)) chosen->onClick();
}

void frmSub::mnuSearch_Click() {
  txtInput.setText(text::onOneLine(txtOut.selText()));
  txtOut.select(txtOut.selStart(), 0);
}

void frmSub::mnuCopy_Click() { forms::setClipboardText(handle(), txtOut.selText()); }

void frmSub::showSplitterPointer() { setMousePointer(IDC_SIZEWE); }

void frmSub::Image1_MouseMove() {
  showSplitterPointer();
  Image1.setToolTip(u"拖动以调解窗体宽度");
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

int frmSub::readSize(const std::u16string& key, int fallback) const {
  const std::u16string value = user::getINIProfileString(kSection, key, {}, settingsPath_);
  if (value.empty() || value == settingsPath_) return fallback;
  const auto size = user::toInteger16(value);
  if (!size || *size < 0) throw unusable(key, value, settingsPath_);
  return *size;
}

void frmSub::writeSizes() const {
  // Loading that failed before the sizes were read must not replace those that are stored.
  if (settingsPath_.empty()) return;
  user::WriteINIProfileString(kSection, kWindowWidth, text::decimal(width()), settingsPath_);
  user::WriteINIProfileString(kSection, kWindowHeight, text::decimal(height()), settingsPath_);
  // A window that was narrowed may have left its list too wide for it.
  const int treeWidth = lookup::widthToKeep({width(), height()}, TreeView1.width());
  user::WriteINIProfileString(kSection, kTreeWidth, text::decimal(treeWidth), settingsPath_);
}
