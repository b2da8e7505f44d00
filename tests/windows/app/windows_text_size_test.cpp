// Every window of the program with larger texts of the system.
#include "app/frm_about.h"
#include "forms/loaded_forms.h"
#include "query/frm_dict_setting.h"
#include "query/frm_main.h"
#include "query/frm_spc.h"
#include "tests/support/window/frm_sub_test.h"
#include "tests/support/window/query_test.h"
#include "tests/support/window/text_size.h"

namespace support {
namespace {

using Widgets = std::vector<const forms::Widget*>;

constexpr std::array kPercents = {100, 125, 150, 200, 225};

void expectWhole(int percent, const forms::Form& form, const Widgets& widgets) {
  const RECT window = clientRectOf(form.handle());
  for (const forms::Widget* widget : widgets) {
    EXPECT_TRUE(isSeenWhole(*widget)) << percent << " %, " << letterHeight(*widget) << " pixels";
    const RECT rect = rectOf(widget->handle());
    EXPECT_LE(rect.right, window.right) << percent;
    EXPECT_LE(rect.bottom, window.bottom + 1) << percent;
  }
}

class WindowsTextSize : public FrmSubTest {};
class QueryWindowsTextSize : public QueryTest {};

TEST_F(WindowsTextSize, QuickLookup) {
  for (const int percent : kPercents) {
    const TextSize texts(percent);
    open();
    expectWhole(percent, sub(), {&sub().Label1, &sub().cmdExit});
    EXPECT_EQ(letterHeight(sub().TreeView1), 12 * percent / 100);
    EXPECT_EQ(sub().width(), 3500);
    EXPECT_EQ(pixelBox(sub().TreeView1).top, 40);
    sub().unload();
  }
}

TEST_F(WindowsTextSize, About) {
  for (const int percent : kPercents) {
    const TextSize texts(percent);
    auto& about = opened<frmAbout>();
    expectWhole(percent, about,
                {&about.lblTitle, &about.lblVersion, &about.lblDescription, &about.Label5,
                 &about.lblDisclaimer, &about.Label6, &about.cmdOK});
    EXPECT_GE(letterHeight(about.Label5), 12 * std::min(percent, 200) / 100);
    about.unload();
  }
}

TEST_F(WindowsTextSize, SpecialQuery) {
  for (const int percent : kPercents) {
    const TextSize texts(percent);
    auto& dialog = opened<frmSpc>();
    expectWhole(percent, dialog,
                {&dialog.Label1, &dialog.Label2, &dialog.cmdOK, &dialog.cmdCancel});
    EXPECT_EQ(letterHeight(dialog.Label1), 12 * percent / 100);
    dialog.unload();
  }
}

TEST_F(QueryWindowsTextSize, MultiQueryAndSettings) {
  for (const int percent : kPercents) {
    const TextSize texts(percent);
    auto& main = opened<frmMain>();
    expectWhole(percent, main,
                {&main.Label2, &main.Label5, &main.cmdOK, &main.Command1, &main.cmdSpc});
    main.unload();
    auto& settings = opened<frmdictSetting>();
    expectWhole(percent, settings, {&settings.Text3});
    settings.unload();
  }
}

TEST_F(WindowsTextSize, OpenWindowsTakeANewSize) {
  open();
  auto& about = opened<frmAbout>();
  const TextSize texts(200);
  tellOfTextSize(sub());
  tellOfTextSize(about);
  EXPECT_EQ(letterHeight(sub().TreeView1), 24);
  expectWhole(200, sub(), {&sub().Label1, &sub().cmdExit});
  EXPECT_EQ(letterHeight(about.Label5), 24);
  expectWhole(200, about, {&about.lblTitle, &about.lblDescription, &about.cmdOK});
}

}  // namespace
}  // namespace support
