#include "query/frm_dict_setting.h"

#include "app/resources/resource_ids.h"
#include "app/state.h"
#include "capture/screen_word.h"
#include "forms/loaded_forms.h"
#include "query/catalogue.h"
#include "query/frm_main.h"
#include "query/layout.h"
#include "query/subject_search.h"

namespace {

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmdictSetting";
  design.caption = u"字典设置";
  design.width = query::kSettingsWidth;
  design.height = query::kSettingsHeight;
  design.leastWidth = query::kSettingsMinWidth;
  design.leastHeight = query::kSettingsMinHeight;
  design.iconResource = forms::kProgramIcon;
  return design;
}

}  // namespace

frmdictSetting::frmdictSetting() : Form(design()) {
  TreeView2.setPicture(forms::Picture(IDI_DICTIONARY));
  TreeView2.keepHighlight();
  // Looking through the list must not write.
  TreeView2.chooseOnlyExpressly();
  TreeView2.onNodeClick = [this](std::size_t node) { TreeView2_NodeClick(node); };
  onEscape = [this] { unload(); };
}

void frmdictSetting::Form_Load() {
  centre();
  Adodc1.setConnectionString(user::ConnectionString);
  loadRecords(Adodc1, query::kAllDictionaries);
  const forms::ScopedRepaintHold held(TreeView2);
  TreeView2.clear();
  data::RecordSet& rows = Adodc1.recordset();
  const std::size_t count = rows.recordCount();
  for (std::size_t i = 1; i <= count; ++i) {
    TreeView2.add(rows.field(u"cname").text);
    if (rows.field(u"default").integer == 1) TreeView2.select(i);
    rows.moveNext();
  }
  Text3.setText(u"   选择默认查词词典，在多功能查询窗体启动时将直接选择该词典。");
}

void frmdictSetting::Form_Resize() {
  const auto [dictionaries, hint] = query::layOutSettings(width(), height());
  TreeView2.move(dictionaries);
  Text3.move(hint);
}

void frmdictSetting::Form_Activate() { ScreenWord::StopCapture(); }

void frmdictSetting::Form_Unload() {
  ScreenWord::StartCapture();
  if (user::MainOpen) forms::form<frmMain>().iniTree();
}

void frmdictSetting::TreeView2_NodeClick(std::size_t node) try {
  query::chooseDefault(Adodc1.recordset(), node);
} catch (...) {
  // The list goes on showing what is stored.
  TreeView2.show(query::lastDefault(Adodc1.recordset()));
  throw;
}

void frmdictSetting::loadRecords(data::DataControl& recordSource, std::u16string_view sql) {
  recordSource.setRecordSource(sql);
  recordSource.refresh();
}

namespace query {

void DefaultList::show(std::size_t number) {
  if (number != 0) {
    select(number);
  } else {
    send(TVM_SELECTITEM, TVGN_CARET, 0);
  }
}

LRESULT DefaultList::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN && enter(wParam)) return 0;
  if (message != WM_SETFOCUS || selected() != 0) {
    return TreeView::handleMessage(message, wParam, lParam);
  }
  // The control highlights its first node when it gets the focus.
  const LRESULT result = TreeView::handleMessage(message, wParam, lParam);
  show(0);
  return result;
}

bool DefaultList::enter(WPARAM key) {
  const bool enters = key == VK_DOWN || key == VK_UP || key == VK_HOME || key == VK_END;
  if (!enters || count() == 0 || selected() != 0) return false;
  select(key == VK_END ? count() : 1);
  return true;
}

}  // namespace query
