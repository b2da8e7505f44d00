#include "query/frm_dict_setting.h"

#include "app/resources/resource_ids.h"
#include "app/state.h"
#include "capture/screen_word.h"
#include "forms/loaded_forms.h"
#include "query/catalogue.h"
#include "query/frm_main.h"
#include "query/layout.h"
#include "query/subject_search.h"

// The record set stays the one that loading made: node i is its row i, since both are in the order
// of the names and neither is sorted again while the window is open. It holds rows that were read,
// not an open statement, so that the window does not block a writer.
namespace {

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmdictSetting";
  design.caption = u"字典设置";
  design.width = query::kSettingsWidth;
  design.growsWithTexts = true;
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
  // Moving the highlight by the keys must not write to the database.
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
    // Deliberate: each that is flagged is selected in turn, so that the last one remains.
    if (rows.field(u"default").integer == 1) TreeView2.select(i);
    rows.moveNext();
  }
  // Deliberate: the three blanks.
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
  // frmMain shows the new default at once.
  if (user::MainOpen) forms::form<frmMain>().iniTree();
}

void frmdictSetting::TreeView2_NodeClick(std::size_t node) try {
  query::chooseDefault(Adodc1.recordset(), node);
} catch (...) {
  // The highlight goes back to what is stored.
  TreeView2.show(query::lastDefault(Adodc1.recordset()));
  throw;
}

void frmdictSetting::loadRecords(data::DataControl& recordSource, std::u16string_view sql) {
  recordSource.setRecordSource(sql);
  recordSource.refresh();
}

namespace query {

// The control's own behaviour is to highlight its first node when it gets the focus with none
// highlighted. Here a highlight means the default dictionary, so it is taken back at once, and the
// first key that moves the highlight is handled here.
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
  const LRESULT result = TreeView::handleMessage(message, wParam, lParam);
  show(0);
  return result;
}

// End enters the list at its end, the other keys at its beginning; without nodes nothing is
// entered.
bool DefaultList::enter(WPARAM key) {
  const bool enters = key == VK_DOWN || key == VK_UP || key == VK_HOME || key == VK_END;
  if (!enters || count() == 0 || selected() != 0) return false;
  select(key == VK_END ? count() : 1);
  return true;
}

}  // namespace query
