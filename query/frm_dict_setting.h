#pragma once

#include "data/data_control.h"
#include "forms/form.h"
#include "forms/text_box.h"
#include "query/default_list.h"

/// 字典设置: lists all subject dictionaries and makes the one that is clicked the default.
class frmdictSetting : public forms::Form {
 public:
  frmdictSetting();

  query::DefaultList TreeView2{*this, {}};
  forms::TextBox Text3{*this, {}, forms::TextBox::Look::note};
  data::DataControl Adodc1;

 private:
  void Form_Load() override;
  void Form_Resize() override;
  void Form_Activate() override;
  void Form_Unload() override;
  void TreeView2_NodeClick(std::size_t node);

  static void loadRecords(data::DataControl& recordSource, std::u16string_view sql);
};
