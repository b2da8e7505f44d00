#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "app/state.h"
#include "data/data_control.h"
#include "forms/dispatcher.h"
#include "forms/registry.h"
#include "lookup/frm_sub.h"

/// What a keystroke costs in the quick lookup window, until its list and pane are painted; beside
/// it the same letter in a bare text box, which is what the system's own echo takes.
namespace {

/// A window with nothing but a text box.
class EchoForm : public forms::Form {
 public:
  EchoForm() : Form(design()) {}
  forms::TextBox box{*this, {750, 120, 1750, 330}};

 private:
  static forms::FormDesign design() {
    forms::FormDesign design;
    design.name = u"Echo";
    design.width = 3500;
    design.height = 3200;
    return design;
  }
};

double milliseconds() {
  LARGE_INTEGER now;
  LARGE_INTEGER frequency;
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&frequency);
  return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

/// Types one letter into `box` and paints what it changed in `windows`.
double typeLetter(const forms::TextBox& box, char16_t letter, const std::vector<HWND>& windows) {
  const double start = milliseconds();
  SendMessageW(box.handle(), WM_CHAR, letter, 0);
  for (HWND window : windows) UpdateWindow(window);
  GdiFlush();
  return milliseconds() - start;
}

std::vector<double> typeWords(forms::TextBox& box, const std::vector<std::u16string>& words,
                              const std::vector<HWND>& windows) {
  std::vector<double> times;
  for (const std::u16string& word : words) {
    box.setText({});
    forms::doEvents();
    for (const char16_t letter : word) times.push_back(typeLetter(box, letter, windows));
  }
  std::sort(times.begin(), times.end());
  return times;
}

/// `count` headwords spread evenly over `table`.
std::vector<std::u16string> sampleWords(const char16_t* table, int count) {
  data::DataControl control;
  control.setConnectionString(user::ConnectionString);
  std::vector<std::u16string> words;
  control.setRecordSource(std::u16string(u"select word from ") + table);
  control.refresh();
  auto& rows = control.recordset();
  const std::size_t step =
      std::max<std::size_t>(rows.recordCount() / static_cast<unsigned>(count), 1);
  std::size_t place = 0;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    if (place++ % step == 0) words.push_back(rows.field(u"word").text);
  }
  return words;
}

void printRow(const char* what, const std::vector<double>& sorted) {
  if (sorted.empty()) return;
  std::printf("%-44s %8zu %10.2f %10.2f\n", what, sorted.size(), sorted[sorted.size() / 2],
              sorted[sorted.size() * 99 / 100]);
}

int run(const std::u16string& database) {
  user::ConnectionString =
      u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + database + u";Persist Security Info=False";
  data::DataControl control;
  control.setConnectionString(user::ConnectionString);
  user::IdxWords = data::readIndexWords(control);
  const auto english = sampleWords(u"edictidx", 200);
  const auto chinese = sampleWords(u"cdictidx", 300);

  auto& echo = forms::single<EchoForm>();
  echo.show();
  forms::doEvents();
  const auto echoEnglish = typeWords(echo.box, english, {echo.box.handle()});
  const auto echoChinese = typeWords(echo.box, chinese, {echo.box.handle()});
  echo.hide();

  auto& form = forms::single<frmSub>();
  form.show();
  forms::doEvents();
  const std::vector<HWND> painted{form.txtInput.handle(), form.TreeView1.handle(),
                                  form.txtOut.handle()};
  const auto lookupEnglish = typeWords(form.txtInput, english, painted);
  const auto lookupChinese = typeWords(form.txtInput, chinese, painted);

  std::printf("%-44s %8s %10s %10s\n", "keystroke to painted, ms", "strokes", "median", "99 %");
  printRow("English letter, list and pane painted", lookupEnglish);
  printRow("the same letter, a bare text box", echoEnglish);
  printRow("Chinese character, list and pane painted", lookupChinese);
  printRow("the same character, a bare text box", echoChinese);
  return 0;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2) {
    std::fputs("usage: window_bench KK.DAT\n", stderr);
    return 2;
  }
  try {
    return run(forms::fromWide(arguments[1]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "window_bench: %s\n", error.what());
    return 1;
  }
}
