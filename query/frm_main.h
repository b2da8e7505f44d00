#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/data_control.h"
#include "forms/button.h"
#include "forms/column_tree.h"
#include "forms/form.h"
#include "forms/graphics.h"
#include "forms/static_controls.h"
#include "forms/text_box.h"
#include "forms/tree_view.h"

/// 多功能查询, the multi-dictionary query window: searches one of the shown subject dictionaries at
/// a time and lists what it finds, one line an entry. Capture is off while txtInput has the focus.
/// user::MainOpen is set from its loading to its unloading.
class frmMain : public forms::Form {
 public:
  frmMain();

  /// Gives txtInput the focus and selects its text: what is typed next replaces it.
  void returnToBox();

  forms::Label Label2{*this, u"输入：", {}};
  forms::TextBox txtInput{*this, {}};
  forms::Button cmdOK{*this, u"确定", {}};     ///< searches by the beginning
  forms::Button Command1{*this, u"高级", {}};  ///< searches for any part
  forms::Button cmdSpc{*this, u"特殊", {}};    ///< opens frmSpc
  forms::Label Label5{*this, u"请选择字典：", {}};
  forms::TreeView TreeView1{*this, {}};    ///< the dictionaries
  forms::ColumnTree TreeView2{*this, {}};  ///< the result lines
  data::DataControl Adodc1;

  /// Fills the tree of dictionaries again and selects the default one, or the first if none is
  /// flagged. Shows a message if there are none. Throws data::Error.
  void iniTree();
  /// Writes the rows of `recordSource`, at most `maxRows`, as lines into `tree`. On an error it
  /// stops without a message; the lines already written stay.
  void MakeTree(data::DataControl& recordSource, forms::TreeView& tree, std::int16_t maxRows);
  /// Lists the entries of the selected dictionary whose English side contains `englishText` and
  /// whose Chinese side contains `chineseText`. Throws data::Error: for a quote in either text, or
  /// if no dictionary is selected.
  void SpcSearch(std::u16string& englishText, std::u16string& chineseText);

  // State that no widget shows; for tests and measurements.
  /// Table of the selected dictionary; "" for none.
  [[nodiscard]] const std::u16string& selectedTable() const { return curTable; }
  /// Node of the dictionary that was clicked last, from 1; 0 before the first click.
  [[nodiscard]] std::int16_t lastClicked() const { return curIndex; }
  /// Column in which the last search by beginning or by part looked; "" before the first.
  [[nodiscard]] std::u16string_view lastColumn() const { return curField; }

 private:
  void Form_Load() override;
  void Form_Resize() override;
  void Form_Unload() override;
  void txtInput_GotFocus();
  void txtInput_LostFocus();
  void TreeView1_NodeClick(std::size_t node);
  void cmdOK_Click();
  void Command1_Click();
  void cmdSpc_Click();

  std::u16string makeQuerySql(std::u16string& text, std::u16string_view mode);
  static void runQuery(data::DataControl& recordSource, std::u16string_view sql);
  void search(std::u16string_view mode, std::int16_t maxRows);

  std::vector<std::u16string> tableNames;  ///< of node i + 1
  std::u16string curTable;
  std::u16string_view curField;
  std::int16_t curIndex = 0;
};
