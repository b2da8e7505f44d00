#include "query/frm_main.h"

#include <optional>

#include "app/resources/resource_ids.h"
#include "app/state.h"
#include "capture/screen_word.h"
#include "data/database.h"
#include "forms/geometry.h"
#include "forms/loaded_forms.h"
#include "forms/message_box.h"
#include "query/catalogue.h"
#include "query/frm_spc.h"
#include "query/layout.h"
#include "query/subject_search.h"

// A search takes three steps: makeQuerySql or specialSql builds the text, runQuery runs it and
// reports an empty result, MakeTree writes the rows into the tree. The dictionaries are rows of
// [Index], in the order of their nodes; only their tables' names are kept.
//
// Errors: the handlers of loading and of both searches show one message for whatever goes wrong and
// end; MakeTree ends without one; those of the special query are not caught.
namespace {

/// Rows that the searches list at most, as their SQL texts ask for.
constexpr std::int16_t kMaxEasyRows = 100;
constexpr std::int16_t kMaxComplexRows = 200;
constexpr std::int16_t kMaxSpecialRows = 200;

forms::FormDesign design() {
  forms::FormDesign design;
  design.name = u"frmMain";
  design.caption = u" 多功能查询 V" LEXILO_VERSION;  // Deliberate: the blank
  design.width = query::kOpeningWidth;
  design.growsWithTexts = true;
  design.height = query::kOpeningHeight;
  design.leastWidth = query::kMinWidth;
  design.leastHeight = query::kMinHeight;
  design.iconResource = forms::kProgramIcon;
  return design;
}

// Messages that several handlers show.

void tellToChooseDictionary() {
  forms::showMessage(u"请选择字典！", forms::MessageIcon::kExclamation);
}

void tellUnexpectedError() {
  forms::showMessage(u"出现异常错误，请重新启动程序或安装程序！", forms::MessageIcon::kCritical);
}

}  // namespace

frmMain::frmMain() : Form(design()) {
  txtInput.setFont(query::inputFont());
  cmdOK.setToolTip(u"普通查询");
  Command1.setToolTip(u"高级搜索");
  TreeView1.setPicture(forms::Picture(IDI_DICTIONARY));
  TreeView1.keepHighlight();
  txtInput.onGotFocus = [this] { txtInput_GotFocus(); };
  txtInput.onLostFocus = [this] { txtInput_LostFocus(); };
  TreeView1.onNodeClick = [this](std::size_t node) { TreeView1_NodeClick(node); };
  cmdOK.onClick = [this] { cmdOK_Click(); };
  Command1.onClick = [this] { Command1_Click(); };
  cmdSpc.onClick = [this] { cmdSpc_Click(); };
  // Enter searches from the trees as well: moving the highlight has chosen the dictionary already.
  TreeView1.onKeyDown.erase(VK_RETURN);
  TreeView2.onKeyDown.erase(VK_RETURN);
  onEnter = [this] { cmdOK_Click(); };
  onEscape = [this] { returnToBox(); };
}

void frmMain::returnToBox() {
  txtInput.setFocus();
  txtInput.selectAll();
}

void frmMain::Form_Load() try {
  centre();
  // Set first: the window is open even if no dictionary can be read.
  user::MainOpen = true;
  Adodc1.setConnectionString(user::ConnectionString);
  Adodc1.setCacheKiB(data::kSearchCacheKiB);
  iniTree();
} catch (const std::exception&) {
  tellUnexpectedError();
}

void frmMain::Form_Resize() {
  const query::Layout layout = query::layOut(width(), height());
  Label2.move(layout.inputLabel);
  txtInput.move(layout.input);
  cmdOK.move(layout.ok);
  Command1.move(layout.advanced);
  cmdSpc.move(layout.special);
  Label5.move(layout.dictionariesLabel);
  TreeView1.move(layout.dictionaries);
  TreeView2.move(layout.results);
}

void frmMain::Form_Unload() {
  user::MainOpen = false;
  // The window goes without raising the box's LostFocus.
  if (GetFocus() == txtInput.handle()) txtInput_LostFocus();
}

// What is typed here must not be captured itself.
void frmMain::txtInput_GotFocus() { ScreenWord::StopCapture(); }

void frmMain::txtInput_LostFocus() { ScreenWord::StartCapture(); }

void frmMain::TreeView1_NodeClick(std::size_t node) {
  // A node that is clicked but not selected changes nothing.
  if (TreeView1.selected() != node) return;
  curIndex = forms::toInt16(static_cast<std::int64_t>(node));
  curTable = tableNames.at(node - 1);
}

void frmMain::cmdOK_Click() try {
  search(query::kEasy, kMaxEasyRows);
} catch (const std::exception&) {
  tellUnexpectedError();
}

void frmMain::Command1_Click() try {
  search(query::kComplex, kMaxComplexRows);
} catch (const std::exception&) {
  tellUnexpectedError();
}

void frmMain::cmdSpc_Click() {
  // If it is open already, it comes to the front where the user has moved it.
  const bool opens = !forms::isLoaded<frmSpc>();
  auto& dialog = forms::form<frmSpc>();
  if (opens) dialog.centre(*this);
  dialog.search = [](std::u16string& english, std::u16string& chinese) {
    forms::form<frmMain>().SpcSearch(english, chinese);
  };
  dialog.show(this);
}

void frmMain::search(std::u16string_view mode, std::int16_t maxRows) {
  // Deliberate: not trimmed; blanks alone are searched for as typed.
  std::u16string text = txtInput.text();
  // Both checks come before any access to the database, and leave the lines as they are.
  if (text.empty()) {
    forms::showMessage(u"查询条件不为空！", forms::MessageIcon::kExclamation);
    return;
  }
  if (curTable.empty()) {
    tellToChooseDictionary();
    return;
  }
  runQuery(Adodc1, makeQuerySql(text, mode));
  MakeTree(Adodc1, TreeView2, maxRows);
}

void frmMain::iniTree() {
  Adodc1.setRecordSource(query::kShownDictionaries);
  Adodc1.refresh();
  TreeView1.clear();
  data::RecordSet& rows = Adodc1.recordset();
  if (rows.empty()) {
    // Deliberate: curTable stays, so that searches still run against the table chosen before.
    tellToChooseDictionary();
    return;
  }
  const forms::ScopedRepaintHold held(TreeView1);
  tableNames.assign(rows.recordCount(), {});
  curTable.clear();
  rows.moveFirst();
  for (std::size_t i = 1; i <= tableNames.size(); ++i) {
    // Deliberate: by position, 1 TableName, 2 Cname, 4 default.
    TreeView1.add(rows.field(2).text);
    tableNames[i - 1] = rows.field(1).text;
    // Of several defaults the last one wins.
    if (rows.field(4).integer == 1) {
      TreeView1.select(i);
      curTable = tableNames[i - 1];
    }
    rows.moveNext();
  }
  // None is flagged, or the default is not among those that are shown.
  if (curTable.empty()) {
    curTable = tableNames.front();
    TreeView1.select(1);
  }
}

// The caller's text is changed; it is a copy of the input box's.
std::u16string frmMain::makeQuerySql(std::u16string& text, std::u16string_view mode) {
  query::Search search = query::makeQuerySql(text, mode, curTable);
  curField = search.column;
  return std::move(search.sql);
}

void frmMain::runQuery(data::DataControl& recordSource, std::u16string_view sql) {
  recordSource.setRecordSource(sql);
  recordSource.refresh();
  if (recordSource.recordset().recordCount() == 0) {
    forms::showMessage(u"Sorry，没有该词条！", forms::MessageIcon::kInformation);
  }
}

void frmMain::MakeTree(data::DataControl& recordSource, forms::TreeView& tree,
                       std::int16_t maxRows) try {
  const std::size_t nodeCount = tree.count();
  std::optional<forms::ScopedRepaintHold> held(tree);
  data::RecordSet& rows = recordSource.recordset();
  if (rows.empty()) {
    // Deliberate: the nodes stay, without a text.
    for (std::size_t node = 1; node <= nodeCount; ++node) tree.setText(node, {});
    return;
  }
  const std::int16_t width = query::sampleWidth(rows);
  rows.moveFirst();
  // Nodes are reused, as in the quick lookup window.
  std::size_t written = 0;
  for (int i = 1; i <= maxRows && !rows.endOfFile(); ++i) {
    const std::u16string line = query::resultLine(rows, width);
    if (written < nodeCount) {
      tree.setText(written + 1, line);
    } else {
      tree.add(line);
    }
    rows.moveNext();
    ++written;
  }
  tree.refresh();
  for (std::size_t surplus = written; surplus < nodeCount; ++surplus) tree.remove(written + 1);
  // After the repaint is released: until then the control may not know how far it can scroll.
  held.reset();
  tree.scrollToBeginning();
} catch (const std::exception&) {
  // The lines already written stay.
}

void frmMain::SpcSearch(std::u16string& englishText, std::u16string& chineseText) {
  // Deliberate: nothing is caught, and curTable is not checked; without a dictionary the query
  // fails.
  runQuery(Adodc1, query::specialSql(curTable, englishText, chineseText));
  MakeTree(Adodc1, TreeView2, kMaxSpecialRows);
  // A record of what was asked, also if nothing was found. Nothing is searched for by this.
  txtInput.setText(query::specialInput(englishText, chineseText));
}
