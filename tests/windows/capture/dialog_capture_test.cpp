// Capture after every way of closing every dialog, wherever the focus goes back to.
#include <functional>
#include <ostream>
#include <tuple>

#include "app/frm_about.h"
#include "lookup/frm_sub.h"
#include "query/frm_dict_setting.h"
#include "query/frm_spc.h"
#include "tests/support/window/query_test.h"

namespace support {
namespace {

/// One way of opening a dialog and closing it.
struct Closing {
  const char* name;
  std::function<forms::Form&()> open;
  std::function<void()> close;
  std::function<bool()> isOpen;
};

std::ostream& operator<<(std::ostream& out, const Closing& closing) { return out << closing.name; }

template <class F>
void closeBox() {
  SendMessageW(forms::form<F>().handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
}

template <class F>
void pressAltF4() {
  PostMessageW(forms::form<F>().handle(), WM_SYSKEYDOWN, VK_F4, 1 << 29);
}

template <class F>
forms::Form& shown() {
  auto& form = forms::form<F>();
  form.show();
  return form;
}

/// Where the focus is before the dialog opens, and goes back to.
enum class Back { kInputBox, kTree, kQuickLookupBox };

class DialogCapture : public QueryTest,
                      public ::testing::WithParamInterface<std::tuple<Closing, Back>> {
 public:
  static std::vector<Closing> closings() {
    const auto escape = [] { input::key(VK_ESCAPE); };
    const auto enter = [] { input::key(VK_RETURN); };
    const auto about = forms::isLoaded<frmAbout>;
    const auto settings = forms::isLoaded<frmdictSetting>;
    const auto special = forms::isLoaded<frmSpc>;
    return {
        {"AboutByItsButton", shown<frmAbout>, [] { press(forms::form<frmAbout>().cmdOK); }, about},
        {"AboutByEnter", shown<frmAbout>, enter, about},
        {"AboutByEsc", shown<frmAbout>, escape, about},
        {"AboutByItsCloseBox", shown<frmAbout>, closeBox<frmAbout>, about},
        {"AboutByAltF4", shown<frmAbout>, pressAltF4<frmAbout>, about},
        {"SettingsByEsc", shown<frmdictSetting>, escape, settings},
        {"SettingsByTheirCloseBox", shown<frmdictSetting>, closeBox<frmdictSetting>, settings},
        {"SettingsByAltF4", shown<frmdictSetting>, pressAltF4<frmdictSetting>, settings},
        {"SpecialWithHits", shownSpecial, [] { search(u"心"); }, special},
        {"SpecialWithoutHits", shownSpecial, [] { search(u"肝"); }, special},
        {"SpecialByEnter", shownSpecial,
         [] {
           fill(u"心");
           input::key(VK_RETURN);
         },
         special},
        {"SpecialByCancel", shownSpecial, [] { press(forms::form<frmSpc>().cmdCancel); }, special},
        {"SpecialByEsc", shownSpecial, escape, special},
        {"SpecialByItsCloseBox", shownSpecial, closeBox<frmSpc>, special},
        {"SpecialByAltF4", shownSpecial, pressAltF4<frmSpc>, special},
    };
  }

 protected:
  static forms::Form& shownSpecial() {
    press(form().cmdSpc);
    return forms::form<frmSpc>();
  }
  static void fill(const char16_t* chinese) {
    forms::form<frmSpc>().txtE.setText(u"heart");
    forms::form<frmSpc>().txtC.setText(chinese);
  }
  static void search(const char16_t* chinese) {
    fill(chinese);
    press(forms::form<frmSpc>().cmdOK);
  }

  /// The window of ours that comes to the front and stays there: the window manager may show
  /// another one for a moment.
  static const forms::Form& lastingFront() {
    HWND front = nullptr;
    EXPECT_TRUE(eventually([&] {
      front = GetForegroundWindow();
      return forms::Form::of(front) != nullptr &&
             always([&] { return GetForegroundWindow() == front; }, 50);
    }));
    const forms::Form* form = forms::Form::of(front);
    return form != nullptr ? *form : QueryTest::form();
  }
};

TEST_P(DialogCapture, RestsInItAndThenFollowsTheFocus) {
  const auto& [closing, back] = GetParam();
  open();
  if (back == Back::kQuickLookupBox) opened<frmSub>();
  if (back == Back::kTree) form().TreeView1.setFocus();
  HWND before = back == Back::kQuickLookupBox ? forms::form<frmSub>().txtInput.handle()
                : back == Back::kTree         ? form().TreeView1.handle()
                                              : form().txtInput.handle();
  ASSERT_TRUE(eventually([&] { return GetFocus() == before; }));
  EXPECT_TRUE(back == Back::kTree ? runs() : rests());

  const forms::Form& dialog = closing.open();
  awaitActive(dialog);
  EXPECT_TRUE(rests());
  EXPECT_TRUE(always([] { return !captureRuns(); }, 40));

  // Keys go where the window manager has the front.
  actUntil(
      "a dialog to close",
      [&] {
        awaitActive(dialog);
        closing.close();
      },
      [&] { return !closing.isOpen(); }, kLastingWindow);
  static_cast<void>(boxes.take());  // what a search without hits says
  // The dialog's owner comes to the front behind it, even from behind another window.
  awaitActive(back == Back::kQuickLookupBox ? lastingFront() : form());
  HWND focus = GetFocus();
  const bool typing =
      focus == form().txtInput.handle() ||
      (forms::isLoaded<frmSub>() && focus == forms::form<frmSub>().txtInput.handle());
  EXPECT_TRUE(typing ? rests() : runs());
  EXPECT_TRUE(always([&] { return captureRuns() != typing; }, 40));
  // The button that opens the special search takes the focus first, as buttons do.
  const bool byButton = std::string_view(closing.name).starts_with("Special");
  if (back != Back::kQuickLookupBox) {
    EXPECT_EQ(focus, byButton ? form().cmdSpc.handle() : before);
  }
}

std::string nameOf(const ::testing::TestParamInfo<DialogCapture::ParamType>& info) {
  const Back back = std::get<Back>(info.param);
  return std::string(std::get<Closing>(info.param).name) +
         (back == Back::kInputBox ? "ToTheInputBox"
          : back == Back::kTree   ? "ToTheTree"
                                  : "ToTheQuickLookup");
}

INSTANTIATE_TEST_SUITE_P(EveryWay, DialogCapture,
                         ::testing::Combine(::testing::ValuesIn(DialogCapture::closings()),
                                            ::testing::Values(Back::kInputBox, Back::kTree,
                                                              Back::kQuickLookupBox)),
                         nameOf);

}  // namespace
}  // namespace support
