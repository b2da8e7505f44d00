#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "app/state.h"
#include "bench/timings.h"
#include "bench/windows/sample_words.h"
#include "data/data_control.h"
#include "data/headword_lookup.h"
#include "forms/loaded_forms.h"
#include "lookup/frm_sub.h"

/// What a keystroke costs in the quick lookup window, until its list and pane are painted; beside
/// it the same letter in a bare text box, which is what the system's own echo takes.
namespace {

using bench::Timings;

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

/// What a keystroke may take until list and pane are painted, at the median, in ms.
constexpr double kPaintedAim = 10;

/// The steps of one keystroke, each with its times.
struct Keystroke {
  explicit Keystroke(const std::string& what)
      : whole(what + ", list and pane painted", kPaintedAim) {}

  void print() const { bench::printWithParts(whole, {&lookup, &box, &list, &pane}); }

  Timings whole;
  Timings lookup{"  looking it up and filling list and pane"};
  Timings box{"  painting the input box"};
  Timings list{"  painting the list"};
  Timings pane{"  painting the pane"};
};

void paint(const forms::Widget& widget) {
  UpdateWindow(widget.handle());
  GdiFlush();
}

void sendLetter(const forms::TextBox& box, char16_t letter) {
  SendMessageW(box.handle(), WM_CHAR, letter, 0);
}

/// Types one letter into the quick lookup window and paints what it changed.
void typeLetter(const frmSub& form, char16_t letter, Keystroke& times) {
  times.whole.time([&] {
    times.lookup.time([&] { sendLetter(form.txtInput, letter); });
    times.box.time([&] { paint(form.txtInput); });
    times.list.time([&] { paint(form.TreeView1); });
    times.pane.time([&] { paint(form.txtOut); });
  });
}

/// Empties `box` for each word and hands its letters to `type`.
template <typename Type>
void typeWords(forms::TextBox& box, const std::vector<std::u16string>& words, Type type) {
  for (const std::u16string& word : words) {
    box.setText({});
    forms::doEvents();
    for (const char16_t letter : word) type(letter);
  }
}

void typeEcho(EchoForm& echo, const std::vector<std::u16string>& words, Timings& times) {
  typeWords(echo.box, words, [&](char16_t letter) {
    times.time([&] {
      sendLetter(echo.box, letter);
      paint(echo.box);
    });
  });
}

void typeLookup(frmSub& form, const std::vector<std::u16string>& words, Keystroke& times) {
  typeWords(form.txtInput, words, [&](char16_t letter) { typeLetter(form, letter, times); });
}

int run(const std::u16string& database) {
  user::ConnectionString = data::connectionString(database);
  data::DataControl control;
  control.setConnectionString(user::ConnectionString);
  user::IdxWords = data::readIndexWords(control);
  const auto english = bench::sampleWords(control, u"edictidx", 200);
  const auto chinese = bench::sampleWords(control, u"cdictidx", 300);

  Timings echoEnglish("English letter, a bare text box");
  Timings echoChinese("Chinese character, a bare text box");
  auto& echo = forms::form<EchoForm>();
  echo.show();
  forms::doEvents();
  typeEcho(echo, english, echoEnglish);
  typeEcho(echo, chinese, echoChinese);
  echo.hide();

  Keystroke lookupEnglish("English letter");
  Keystroke lookupChinese("Chinese character");
  auto& form = forms::form<frmSub>();
  form.show();
  forms::doEvents();
  typeLookup(form, english, lookupEnglish);
  typeLookup(form, chinese, lookupChinese);

  Timings::printHeading("Keystroke to painted, ms");
  lookupEnglish.print();
  echoEnglish.print();
  lookupChinese.print();
  echoChinese.print();
  return 0;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2) {
    std::puts("usage: window_bench KK.DAT");
    return 2;
  }
  try {
    return run(win32::fromWide(arguments[1]));
  } catch (const std::exception& error) {
    std::printf("error: %s\n", error.what());
    return 1;
  }
}
