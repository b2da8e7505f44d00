#pragma once

#include <functional>
#include <string>

#include "data/data_control.h"
#include "data/headword_lookup.h"
#include "forms/button.h"
#include "forms/drag_handle.h"
#include "forms/form.h"
#include "forms/popup_menu.h"
#include "forms/rich_text_box.h"
#include "forms/static_controls.h"
#include "forms/text_box.h"
#include "forms/tree_view.h"

/// 速查, the quick lookup window: while the user types, the list shows the headwords from the typed
/// text on and the pane the meanings of the first, or of the one that the user chooses. Always
/// above the windows of other programs. Its size and the list's width are kept in the settings
/// file. Capture is off while txtInput has the focus. Lengths in twips of the form's DPI.
class frmSub : public forms::Form {
 public:
  frmSub();

  /// Gives txtInput the focus and selects its text: what is typed next replaces it.
  void returnToBox();

  // Tab goes through them in this order.
  forms::Label Label1{*this, u"输入：", {90, 180, 640, 270}};
  forms::TextBox txtInput{*this, {750, 120, 1750, 330}};
  forms::TreeView TreeView1{*this, {30, 600, 2000, 2200}};
  forms::DragHandle Image1{*this, forms::DragHandle::Look::kLine, {2030, 600, 20, 2200}};
  forms::RichTextBox txtOut{*this, {2050, 600, 1300, 2200}};
  forms::Button cmdExit{*this, u"退出", {2600, 120, 750, 330}};
  data::DataControl Adodc1;
  forms::PopupMenu mnuOper{u"菜单操作"};

  /// The sound of refused input: the system's beep. Tests set one of their own.
  std::function<void()> beep = [] { MessageBeep(MB_OK); };

  /// Finds the bounds for `word`, which is trimmed and has its quotes doubled, and returns the list
  /// query within them. Throws data::Error.
  std::u16string makeStrSql(std::u16string_view EorC, std::u16string_view word);
  /// Runs `sql` and copies its rows into `list` (fillList). Throws data::Error if it cannot be run.
  void Query(std::u16string_view sql, data::DataControl& control, forms::TreeView& list);
  /// Copies the rows of `control` into `list`, shows the meanings of the first word and selects it.
  /// Without rows everything stays as it is. On an error it stops without a message; nodes already
  /// written stay.
  void fillList(data::DataControl& control, forms::TreeView& list);
  /// Returns the meaning query for `word`, whose quotes are doubled; on an error shows a message
  /// and returns "".
  std::u16string findword(std::u16string_view EorC, std::u16string_view word);
  /// Shows the meanings of `word`, whose quotes are doubled in the caller's variable. Returns the
  /// pane's text; "" if there are no meanings, when the pane stays as it is, and after a message on
  /// an error.
  std::u16string showMeaning(std::u16string& word, data::DataControl& control);

  /// The bounds of the last lookup; for tests.
  [[nodiscard]] data::Bounds bounds() const { return lookup_.bounds(); }

 private:
  void Form_Load() override;
  void Form_Resize() override;
  void Form_Paint() override;
  void Form_Unload() override;
  [[nodiscard]] SIZE sizeWhenDraggedTo(SIZE wanted) const override;
  void txtInput_Change();
  void txtInput_GotFocus();
  void txtInput_LostFocus();
  void cmdExit_Click();
  void TreeView1_NodeClick(std::size_t node);
  void TreeView1_DragDrop(const forms::Widget& source, forms::TwipPoint place);
  void txtOut_DragDrop(const forms::Widget& source, forms::TwipPoint place);
  void txtOut_MouseUp(forms::TwipPoint place);
  void Image1_MouseMove();
  void Image1_MouseDown();
  void mnuSearch_Click();
  void mnuCopy_Click();

  void wireMouse();
  void wireKeys();
  void goToItsPlace();
  void takeTyping(const std::u16string& typed);
  void escape();
  void readSizes();
  int readSize(const std::u16string& key, int fallback) const;
  void writeSizes() const;
  void placeListAndPane();
  void showSplitterPointer();
  void showText(const data::MeaningText& text);

  int MaxCount = 0;              ///< nodes that the list may have
  std::u16string settingsPath_;  ///< "" until the sizes have been read
  std::size_t mnuSearch_ = 0;
  std::size_t mnuCopy_ = 0;
  data::HeadwordLookup lookup_;
};
