#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "app/state.h"
#include "bench/timings.h"
#include "data/data_control.h"
#include "forms/dispatcher.h"
#include "forms/registry.h"
#include "query/frm_main.h"

/// What a click on a button of the multi-dictionary window costs until its result lines are
/// painted, over the medical dictionary.
namespace {

using bench::Timings;

/// At the median, in ms.
constexpr double kPaintedAim = 60;
constexpr std::size_t kSearches = 150;

struct Search {
  explicit Search(const std::string& what) : whole(what + ", lines painted", kPaintedAim) {}

  void print() const { bench::printWithParts(whole, {&search, &lines}); }

  Timings whole;
  Timings search{"  searching and filling the lines"};
  Timings lines{"  painting the lines"};
};

/// Beginnings, `length` code units long, of words of a column, spread over the dictionary.
std::vector<std::u16string> beginnings(const std::u16string& column, std::size_t length) {
  data::DataControl control;
  control.setConnectionString(user::ConnectionString);
  control.setRecordSource(u"select " + column + u" from med");
  control.refresh();
  auto& rows = control.recordset();
  const std::size_t step = std::max<std::size_t>(rows.recordCount() / (2 * kSearches), 1);
  std::vector<std::u16string> found;
  std::size_t place = 0;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    if (place++ % step != 0) continue;
    std::u16string text = rows.field(std::size_t{0}).text.substr(0, length);
    const bool plain = std::ranges::all_of(text, [&](char16_t unit) {
      return column == u"word" ? (unit >= u'a' && unit <= u'z') : unit >= u'\u4E00';
    });
    if (plain && text.size() == length && found.size() < kSearches) found.push_back(text);
  }
  std::shuffle(found.begin(), found.end(), std::minstd_rand(3));
  return found;
}

void search(frmMain& form, const forms::Button& button, const std::vector<std::u16string>& texts,
            Search& times) {
  for (const std::u16string& text : texts) {
    form.txtInput.setText(text);
    forms::doEvents();
    times.whole.time([&] {
      times.search.time([&] { SendMessageW(button.handle(), BM_CLICK, 0, 0); });
      times.lines.time([&] {
        UpdateWindow(form.TreeView2.handle());
        GdiFlush();
      });
    });
  }
}

int run(const std::u16string& database) {
  user::ConnectionString =
      u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + database + u";Persist Security Info=False";
  auto& form = forms::single<frmMain>();
  form.show();
  forms::doEvents();
  if (form.selectedTable() != u"med") {
    std::fputs("search_bench: the medical dictionary is not the default one\n", stderr);
    return 1;
  }
  Timings::printHeading("Click to painted lines, ms");
  for (const std::size_t length : {std::size_t{2}, std::size_t{4}}) {
    const std::string letters = std::to_string(length);
    Search prefix("English prefix, " + letters + " letters");
    search(form, form.cmdOK, beginnings(u"word", length), prefix);
    prefix.print();
    Search part("English part, " + letters + " letters");
    search(form, form.Command1, beginnings(u"word", length), part);
    part.print();
  }
  Search chinese("Chinese prefix, 2 characters");
  search(form, form.cmdOK, beginnings(u"meaning", 2), chinese);
  chinese.print();
  Search chinesePart("Chinese part, 2 characters");
  search(form, form.Command1, beginnings(u"meaning", 2), chinesePart);
  chinesePart.print();
  return 0;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2) {
    std::fputs("usage: search_bench KK.DAT\n", stderr);
    return 2;
  }
  try {
    return run(forms::fromWide(arguments[1]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "search_bench: %s\n", error.what());
    return 1;
  }
}
