#pragma once

#include "data/data_control.h"
#include "forms/form.h"
#include "forms/text_box.h"
#include "forms/tree_view.h"

namespace query {

/// The list in which the default dictionary is highlighted. With no default no node is highlighted,
/// not even while the list has the focus; the arrow keys, Home and End then enter it at its ends.
class DefaultList : public forms::TreeView {
 public:
  using TreeView::TreeView;

  /// Highlights node `number`, or none for 0.
  void show(std::size_t number);

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool enter(WPARAM key);
};

}  // namespace query

/// 字典设置, the dictionary settings: lists all subject dictionaries and makes the one that the
/// user chooses the default, in the database and at once. Deliberate: it lists those that are not
/// shown as well; if one of them is the default, frmMain selects the first shown one. Errors reach
/// the handler of uncaught errors. Capture is off while it is the active window, and on again once
/// it is closed.
class frmdictSetting : public forms::Form {
 public:
  frmdictSetting();

  query::DefaultList TreeView2{*this, {}};
  forms::TextBox Text3{*this, {}, forms::TextBox::Look::kNote};
  data::DataControl Adodc1;

 private:
  void Form_Load() override;
  void Form_Resize() override;
  void Form_Activate() override;
  void Form_Unload() override;
  void TreeView2_NodeClick(std::size_t node);

  static void loadRecords(data::DataControl& recordSource, std::u16string_view sql);
};
