#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/state.h"
#include "bench/timings.h"
#include "data/data_control.h"
#include "forms/loaded_forms.h"
#include "query/frm_main.h"
#include "query/frm_spc.h"

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

bool isPlain(std::u16string_view text, bool english) {
  return std::ranges::all_of(text, [=](char16_t unit) {
    return english ? (unit >= u'a' && unit <= u'z') : unit >= u'\u4E00';
  });
}

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
    if (isPlain(text, column == u"word") && text.size() == length && found.size() < kSearches)
      found.push_back(text);
  }
  std::shuffle(found.begin(), found.end(), std::minstd_rand(3));
  return found;
}

/// Two letters and a character that stand at the beginning of the same entry.
struct Fragments {
  std::u16string english;
  std::u16string chinese;
};

/// Those of entries that are spread over the dictionary: every search finds something.
std::vector<Fragments> fragments() {
  data::DataControl control;
  control.setConnectionString(user::ConnectionString);
  control.setRecordSource(u"select word,meaning from med");
  control.refresh();
  auto& rows = control.recordset();
  const std::size_t step = std::max<std::size_t>(rows.recordCount() / (2 * kSearches), 1);
  std::vector<Fragments> found;
  std::size_t place = 0;
  for (rows.moveFirst(); !rows.endOfFile() && found.size() < kSearches; rows.moveNext()) {
    if (place++ % step != 0) continue;
    Fragments pair{rows.field(u"word").text.substr(0, 2), rows.field(u"meaning").text.substr(0, 1)};
    if (isPlain(pair.english, true) && pair.english.size() == 2 && isPlain(pair.chinese, false) &&
        !pair.chinese.empty()) {
      found.push_back(std::move(pair));
    }
  }
  std::shuffle(found.begin(), found.end(), std::minstd_rand(3));
  return found;
}

void press(const forms::Button& button) { SendMessageW(button.handle(), BM_CLICK, 0, 0); }

/// Times a press of `button` and the painting of the lines that it leads to.
void timePress(frmMain& form, const forms::Button& button, Search& times) {
  times.whole.time([&] {
    times.search.time([&] { press(button); });
    times.lines.time([&] {
      UpdateWindow(form.TreeView2.handle());
      GdiFlush();
    });
  });
}

void searchForBoth(frmMain& form, Search& times) {
  for (const auto& [english, chinese] : fragments()) {
    press(form.cmdSpc);
    auto& dialog = forms::form<frmSpc>();
    dialog.txtE.setText(english);
    dialog.txtC.setText(chinese);
    forms::doEvents();
    timePress(form, dialog.cmdOK, times);
    forms::doEvents();
  }
}

void search(frmMain& form, const forms::Button& button, const std::vector<std::u16string>& texts,
            Search& times) {
  for (const std::u16string& text : texts) {
    form.txtInput.setText(text);
    forms::doEvents();
    timePress(form, button, times);
  }
}

int run(const std::u16string& database) {
  user::ConnectionString = data::connectionString(database);
  auto& form = forms::form<frmMain>();
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
  Search both("Two fragments, 2 letters and 1 character");
  searchForBoth(form, both);
  both.print();
  return 0;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2) {
    std::puts("usage: search_bench KK.DAT");
    return 2;
  }
  try {
    return run(win32::fromWide(arguments[1]));
  } catch (const std::exception& error) {
    std::printf("error: %s\n", error.what());
    return 1;
  }
}
