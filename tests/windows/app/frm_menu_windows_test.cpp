// The commands that open the windows of the subject dictionaries, from the menu and the toolbar.
#include "app/frm_about.h"
#include "query/frm_dict_setting.h"
#include "query/frm_main.h"
#include "tests/support/window/frm_top_test.h"
#include "tests/support/window/query_test.h"

namespace support {
namespace {

// Numbers of the items without the separators, as the Down key counts them.
constexpr int kMultiQuery = 1;
constexpr int kDictSettings = 4;
constexpr int kAbout = 6;

class FrmMenuWindows : public FrmTopTest {
 protected:
  FrmMenuWindows()
      : dictionary_(subjectSql() +
                    ";create table edictidx (word text);"
                    "insert into edictidx values ('a')") {}
  ~FrmMenuWindows() override {
    unloadAll();
    forms::LoadedForms::instance().purge();
  }

  template <class F>
  static bool opens() {
    return eventually(
        [] { return forms::isLoaded<F>() && GetForegroundWindow() == forms::form<F>().handle(); });
  }

 private:
  OtherDictionary dictionary_;
};

TEST_F(FrmMenuWindows, TheFirstItemOpensTheQueryWindow) {
  start();
  chooseFromMenu(kMultiQuery);
  ASSERT_TRUE(opens<frmMain>());
  EXPECT_TRUE(user::MainOpen);
  EXPECT_TRUE(eventually([] { return !captureRuns(); }));
}

TEST_F(FrmMenuWindows, TheFirstItemTellsThatItIsOpenEvenIfItWas) {
  start();
  opened<frmMain>();
  user::MainOpen = false;
  chooseFromMenu(kMultiQuery);
  ASSERT_TRUE(opens<frmMain>());
  EXPECT_TRUE(user::MainOpen);
}

TEST_F(FrmMenuWindows, TheFourthOpensTheSettings) {
  start();
  chooseFromMenu(kDictSettings);
  ASSERT_TRUE(opens<frmdictSetting>());
  EXPECT_FALSE(user::MainOpen);
  EXPECT_TRUE(eventually([] { return !captureRuns(); }));
  forms::form<frmdictSetting>().unload();
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmMenuWindows, TheSixthOpensTheAboutBox) {
  start();
  chooseFromMenu(kAbout);
  ASSERT_TRUE(opens<frmAbout>());
  EXPECT_TRUE(eventually([] { return !captureRuns(); }));
  forms::form<frmAbout>().unload();
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmMenuWindows, TheToolbarOpensTheQueryWindowAndTheSettings) {
  start();
  click(top().cmdSub);
  ASSERT_TRUE(opens<frmMain>());
  EXPECT_TRUE(user::MainOpen);
  click(top().cmdDictSetting);
  ASSERT_TRUE(opens<frmdictSetting>());
  click(top().cmdSub);
  EXPECT_TRUE(opens<frmMain>());
}

TEST_F(FrmMenuWindows, CaptureRestsInTheSettingsThatTheToolbarOpens) {
  start();
  ASSERT_TRUE(eventually([] { return captureRuns(); }));
  click(top().cmdDictSetting);
  ASSERT_TRUE(opens<frmdictSetting>());
  EXPECT_TRUE(eventually([] { return !captureRuns(); }));
  EXPECT_TRUE(always([] { return !captureRuns(); }, 40));
  forms::form<frmdictSetting>().unload();
  EXPECT_TRUE(captureRuns());
}

}  // namespace
}  // namespace support
