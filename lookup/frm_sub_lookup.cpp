#include "forms/message_box.h"
#include "lookup/frm_sub.h"
#include "text/query_text.h"

namespace {

constexpr COLORREF kHeadwordColor = RGB(255, 0, 0);
constexpr COLORREF kMeaningColor = RGB(0, 0, 255);

}  // namespace

std::u16string frmSub::makeStrSql(std::u16string_view EorC, std::u16string_view word) {
  return lookup_.makeStrSql(EorC, word, Adodc1);
}

void frmSub::Query(std::u16string_view sql, data::DataControl& control, forms::TreeView& list) {
  control.setRecordSource(sql);
  control.refresh();
  fillList(control, list);
}

void frmSub::fillList(data::DataControl& control, forms::TreeView& list) try {
  const std::size_t shown = list.count();
  data::RecordSet& rows = control.recordset();
  if (rows.empty()) return;
  rows.moveFirst();
  std::size_t filled = 0;
  {
    const forms::TreeView::RepaintHeld held(list);
    for (int i = 1; i <= MaxCount && !rows.endOfFile(); ++i) {
      const std::u16string word = rows.field(u"word").text;
      if (filled < shown) {
        list.setText(filled + 1, word);
      } else {
        list.add(word);
      }
      ++filled;
      rows.moveNext();
    }
    for (std::size_t surplus = filled; surplus < shown; ++surplus) list.remove(filled + 1);
  }
  rows.close();
  if (list.text(1).empty()) return;
  std::u16string first = list.text(1);
  showMeaning(first, control);
  list.select(1);
} catch (const std::exception&) {
  // The nodes already written stay.
  control.recordset().close();
}

std::u16string frmSub::findword(std::u16string_view EorC, std::u16string_view word) try {
  return lookup_.findword(EorC, word, Adodc1);
} catch (const std::exception&) {
  forms::showMessage(u"查词出错！", forms::MessageIcon::critical);
  return {};
}

std::u16string frmSub::showMeaning(std::u16string& word, data::DataControl& control) try {
  const auto EorC = user::getEorC(word);
  user::escapeQuote(word);
  control.setRecordSource(findword(EorC, word));
  control.refresh();
  if (control.recordset().empty()) return {};
  showText(data::meaningLines(word, data::readMeanings(control.recordset())));
  return txtOut.text();
} catch (const std::exception&) {
  control.recordset().close();
  forms::showMessage(u"显示词义出错！", forms::MessageIcon::critical);
  return {};
}

void frmSub::showText(const data::MeaningText& text) {
  const forms::RichTextBox::RepaintHeld held(txtOut);
  txtOut.setText({});
  txtOut.setText(text.body);
  txtOut.select(0, text.headLength);
  txtOut.setSelColor(kHeadwordColor);
  txtOut.select(text.headLength, text.body.size() - text.headLength);
  txtOut.setSelColor(kMeaningColor);
  txtOut.select(1, 0);
}
