// Capture after every way of closing every dialog, wherever the focus goes back to.
#include <functional>
#include <ostream>
#include <tuple>

#include "app/frm_about.h"
#include "lookup/frm_sub.h"
#include "query/frm_dict_setting.h"
#include "query/frm_spc.h"
#include "tests/windows/support/query_test.h"

namespace wintest {
namespace {

/// One way of opening a dialog and closing it.
struct Closing {
  const char* name;
  std::function<forms::Form&()> open;
  std::function<void()> close;
  std::function<bool()> isOpen;
};

std::ostream& operator<<(std::ostream& out, const Closing& closing) { return out << closing.name; }

void closeBox(forms::Form& form) { SendMessageW(form.handle(), WM_SYSCOMMAND, SC_CLOSE, 0); }

void press(const forms::Button& button) { SendMessageW(button.handle(), BM_CLICK, 0, 0); }

template <class F>
forms::Form& shown() {
  auto& form = forms::single<F>();
  form.show();
  return form;
}

forms::Form& special() {
  press(forms::single<frmMain>().cmdSpc);
  return forms::single<frmSpc>();
}

void search(const char16_t* english, const char16_t* chinese) {
  auto& dialog = forms::single<frmSpc>();
  dialog.txtE.setText(english);
  dialog.txtC.setText(chinese);
  press(dialog.cmdOK);
}

std::vector<Closing> closings() {
  const auto escape = [] { input::key(VK_ESCAPE); };
  return {
      {"AboutByItsButton", shown<frmAbout>, [] { press(forms::single<frmAbout>().cmdOK); },
       forms::isLoaded<frmAbout>},
      {"AboutByEsc", shown<frmAbout>, escape, forms::isLoaded<frmAbout>},
      {"AboutByItsCloseBox", shown<frmAbout>, [] { closeBox(forms::single<frmAbout>()); },
       forms::isLoaded<frmAbout>},
      {"SettingsByTheirCloseBox", shown<frmdictSetting>,
       [] { closeBox(forms::single<frmdictSetting>()); }, forms::isLoaded<frmdictSetting>},
      {"SettingsByAltF4", shown<frmdictSetting>,
       [] {
         PostMessageW(forms::single<frmdictSetting>().handle(), WM_SYSKEYDOWN, VK_F4, 1 << 29);
       },
       forms::isLoaded<frmdictSetting>},
      {"SpecialWithHits", special, [] { search(u"heart", u"心"); }, forms::isLoaded<frmSpc>},
      {"SpecialWithoutHits", special, [] { search(u"heart", u"肝"); }, forms::isLoaded<frmSpc>},
      {"SpecialByCancel", special, [] { press(forms::single<frmSpc>().cmdCancel); },
       forms::isLoaded<frmSpc>},
      {"SpecialByEsc", special, escape, forms::isLoaded<frmSpc>},
      {"SpecialByItsCloseBox", special, [] { closeBox(forms::single<frmSpc>()); },
       forms::isLoaded<frmSpc>},
  };
}

/// Where the focus is before the dialog opens, and goes back to.
enum class Back { inputBox, tree, quickLookupBox };

class DialogCapture : public QueryTest,
                      public ::testing::WithParamInterface<std::tuple<Closing, Back>> {
 protected:
  /// The window of ours that comes to the front and stays there: the window manager may show
  /// another one for a moment.
  static const forms::Form& lastingFront() {
    HWND front = nullptr;
    EXPECT_TRUE(eventually([&] {
      front = GetForegroundWindow();
      return forms::Form::of(front) != nullptr &&
             allAlong([&] { return GetForegroundWindow() == front; }, 50);
    }));
    const forms::Form* form = forms::Form::of(front);
    return form != nullptr ? *form : QueryTest::form();
  }
};

TEST_P(DialogCapture, RestsInItAndThenFollowsTheFocus) {
  const auto& [closing, back] = GetParam();
  open();
  if (back == Back::quickLookupBox) opened<frmSub>();
  if (back == Back::tree) form().TreeView1.setFocus();
  HWND before = back == Back::quickLookupBox ? forms::single<frmSub>().txtInput.handle()
                : back == Back::tree         ? form().TreeView1.handle()
                                             : form().txtInput.handle();
  ASSERT_TRUE(eventually([&] { return GetFocus() == before; }));
  EXPECT_TRUE(back == Back::tree ? runs() : rests());

  awaitActive(closing.open());
  EXPECT_TRUE(rests());
  EXPECT_TRUE(allAlong([] { return !captureRuns(); }, 40));

  closing.close();
  ASSERT_TRUE(eventually([&] { return !closing.isOpen(); }));
  static_cast<void>(boxes.take());  // what a search without hits says
  // The dialog's owner comes to the front behind it, even from behind another window.
  awaitActive(back == Back::quickLookupBox ? lastingFront() : form());
  HWND focus = GetFocus();
  const bool typing =
      focus == form().txtInput.handle() ||
      (forms::isLoaded<frmSub>() && focus == forms::single<frmSub>().txtInput.handle());
  EXPECT_TRUE(typing ? rests() : runs());
  EXPECT_TRUE(allAlong([&] { return captureRuns() != typing; }, 40));
  // The button that opens the special search takes the focus first, as buttons do.
  const bool byButton = std::string_view(closing.name).starts_with("Special");
  if (back != Back::quickLookupBox) {
    EXPECT_EQ(focus, byButton ? form().cmdSpc.handle() : before);
  }
}

std::string nameOf(const ::testing::TestParamInfo<DialogCapture::ParamType>& info) {
  const Back back = std::get<Back>(info.param);
  return std::string(std::get<Closing>(info.param).name) + (back == Back::inputBox ? "ToTheInputBox"
                                                            : back == Back::tree
                                                                ? "ToTheTree"
                                                                : "ToTheQuickLookup");
}

INSTANTIATE_TEST_SUITE_P(EveryWay, DialogCapture,
                         ::testing::Combine(::testing::ValuesIn(closings()),
                                            ::testing::Values(Back::inputBox, Back::tree,
                                                              Back::quickLookupBox)),
                         nameOf);

}  // namespace
}  // namespace wintest
