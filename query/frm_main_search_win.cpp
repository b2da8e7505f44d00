#include <optional>

#include "forms/message_box.h"
#include "query/frm_main.h"
#include "query/query_sql.h"
#include "query/result_lines.h"

namespace {

constexpr std::int16_t kMostSpecial = 200;

}  // namespace

std::u16string frmMain::makeQuerySql(std::u16string& text, std::u16string_view mode) {
  query::Search search = query::makeQuerySql(text, mode, curTable);
  curField = search.column;
  return std::move(search.sql);
}

void frmMain::runQuery(data::DataControl& recordSource, std::u16string_view sql) {
  recordSource.setRecordSource(sql);
  recordSource.refresh();
  if (recordSource.recordset().recordCount() == 0) {
    forms::showMessage(u"Sorry，没有该词条！", forms::MessageIcon::information);
  }
}

void frmMain::MakeTree(data::DataControl& recordSource, forms::TreeView& tree,
                       std::int16_t maxRows) try {
  const std::size_t nodeCount = tree.count();
  std::optional<forms::TreeView::RepaintHeld> held(tree);
  data::RecordSet& rows = recordSource.recordset();
  if (rows.empty()) {
    for (std::size_t node = 1; node <= nodeCount; ++node) tree.setText(node, {});
    return;
  }
  const std::int16_t width = query::sampleWidth(rows);
  rows.moveFirst();
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
  // Not while the repaint is held: the control may not know yet how far it scrolls.
  held.reset();
  tree.scrollToBeginning();
} catch (const std::exception&) {
  // The lines already written stay.
}

void frmMain::SpcSearch(std::u16string& englishText, std::u16string& chineseText) {
  runQuery(Adodc1, query::specialSql(curTable, englishText, chineseText));
  MakeTree(Adodc1, TreeView2, kMostSpecial);
  txtInput.setText(query::specialInput(englishText, chineseText));
}
