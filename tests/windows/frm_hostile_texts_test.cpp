// Whatever is typed into a box of the search windows: no more than a message comes of it.
#include "tests/unit/support/hostile_texts.h"

#include "query/frm_spc.h"
#include "tests/windows/support/query_test.h"

namespace wintest {
namespace {

class FrmHostileTexts : public QueryTest {
 protected:
  FrmHostileTexts() : before_(support::readFile(besideProgram())) { open(); }

  /// No box stays, nothing is changed, and the next search finds what it always finds.
  void expectIntact() {
    static_cast<void>(boxes.take());
    EXPECT_EQ(MessageBoxes::current(), nullptr);
    EXPECT_EQ(support::readFile(besideProgram()), before_);
    easy(u"liver");
    EXPECT_EQ(lines(), (Texts{u"liver          肝"}));
  }

  template <class Type>
  void typeAll(Type type) {
    for (const std::u16string& text : support::hostileTexts()) {
      SCOPED_TRACE(text::toUtf8(text.substr(0, 120)));
      const ULONGLONG start = GetTickCount64();
      type(text);
      EXPECT_LT(GetTickCount64() - start, 6'500U);
      for (const std::u16string& line : lines()) {
        EXPECT_EQ(line.find(u"create "), line.npos);
        EXPECT_EQ(line.find(u"sqlite"), line.npos);
      }
    }
    expectIntact();
  }

 private:
  std::string before_;
};

TEST_F(FrmHostileTexts, InTheInputBox) {
  typeAll([](const std::u16string& text) { easy(text); });
  typeAll([](const std::u16string& text) { complex(text); });
}

TEST_F(FrmHostileTexts, InTheBoxesOfTheSpecialSearch) {
  typeAll([](const std::u16string& text) {
    for (const auto& [english, chinese] :
         std::vector<std::pair<std::u16string, std::u16string>>{{text, u"心"}, {u"e", text}}) {
      press(form().cmdSpc);
      forms::single<frmSpc>().txtE.setText(english);
      forms::single<frmSpc>().txtC.setText(chinese);
      press(forms::single<frmSpc>().cmdOK);
      if (forms::isLoaded<frmSpc>()) forms::single<frmSpc>().unload();
    }
  });
}

}  // namespace
}  // namespace wintest
