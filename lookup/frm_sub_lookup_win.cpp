#include <algorithm>
#include <optional>

#include "app/state.h"
#include "forms/message_box.h"
#include "lookup/frm_sub.h"
#include "text/query_text.h"

// One lookup: makeStrSql finds the bounds and builds the list query, Query runs it, fillList copies
// its rows into the list and calls showMeaning for the first. The nodes of the list are reused from
// one lookup to the next: nearly all texts change at each key, but hardly ever the number of nodes.

std::u16string frmSub::makeStrSql(std::u16string_view EorC, std::u16string_view word) {
  return lookup_.makeStrSql(EorC, word, Adodc1);
}

void frmSub::Query(std::u16string_view sql, data::DataControl& control, forms::TreeView& list) {
  control.setRecordSource(sql);
  control.refresh();
  fillList(control, list);
}

void frmSub::fillList(data::DataControl& control, forms::TreeView& list) try {
  data::RecordSet& rows = control.recordset();
  if (rows.empty()) return;
  const std::size_t shown = list.count();
  const std::size_t filled = std::min(rows.recordCount(), static_cast<std::size_t>(MaxCount));
  // New texts alone cause a single repaint, which costs less than switching repainting off and on.
  std::optional<forms::ScopedRepaintHold> held;
  if (filled != shown) held.emplace(list);
  rows.moveFirst();
  for (std::size_t node = 1; node <= filled; ++node) {
    const std::u16string word = rows.field(u"word").text;
    if (node > shown) {
      list.add(word);
    } else {
      list.setText(node, word);
    }
    rows.moveNext();
  }
  for (std::size_t surplus = filled; surplus < shown; ++surplus) list.remove(filled + 1);
  held.reset();
  list.refresh();
  // The same control is used for the meanings.
  rows.close();
  if (list.text(1).empty()) return;
  std::u16string first = list.text(1);
  // Selected after the meanings are shown; selecting from code is no choice of the user's.
  showMeaning(first, control);
  list.select(1);
} catch (const std::exception&) {
  // The nodes already written stay. The statement must not stay open: it would block a writer.
  list.refresh();
  control.recordset().close();
}

std::u16string frmSub::findword(std::u16string_view EorC, std::u16string_view word) try {
  return lookup_.findword(EorC, word, Adodc1);
} catch (const std::exception&) {
  forms::showMessage(u"查词出错！", forms::MessageIcon::kCritical);
  return {};
}

std::u16string frmSub::showMeaning(std::u16string& word, data::DataControl& control) try {
  const auto EorC = user::getEorC(word);
  // Deliberate: in the caller's variable, and in the headword that is shown.
  user::escapeQuote(word);
  control.setRecordSource(findword(EorC, word));
  control.refresh();
  // Deliberate: no message, and the pane stays as it is.
  if (control.recordset().empty()) return {};
  showText(data::meaningLines(word, data::readMeanings(control.recordset())));
  return txtOut.text();
} catch (const std::exception&) {
  control.recordset().close();
  forms::showMessage(u"显示词义出错！", forms::MessageIcon::kCritical);
  return {};
}

void frmSub::showText(const data::MeaningText& text) {
  const std::u16string_view body = text.body;
  // The caret goes after the blank that the headword's line begins with.
  txtOut.setRuns({{body.substr(0, text.headLength), user::kHeadwordColor},
                  {body.substr(text.headLength), user::kMeaningColor}},
                 1);
}
