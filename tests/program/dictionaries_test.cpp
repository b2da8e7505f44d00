// Searching the subject dictionaries and choosing the default one, as a user does.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/support/data/sample_database.h"
#include "tests/support/process/clipboard.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/dictionary_windows.h"
#include "tests/support/process/input.h"
#include "tests/support/process/message_box.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/text.h"

namespace support {
namespace {

class Dictionaries : public ::testing::Test {
 protected:
  Dictionaries() { lexilo.waitUntilSeen(); }

  /// Waits for a message box with that text and no title, and answers it.
  void expectMessage(const std::wstring& text, bool critical = false) const {
    const ShownMessage box = waitForMessageBox(lexilo.process());
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, L"");
    EXPECT_EQ(box.criticalIcon, critical);
    box.answer();
  }

  const Lexilo lexilo{AppFolder::withFullDictionary()};
};

TEST_F(Dictionaries, OpenAtTheDefaultOne) {
  const MultiQuery window(lexilo);
  EXPECT_EQ(textOf(window.window()), L" 多功能查询 V1.3");
  EXPECT_EQ(window.names().size(), 24U);
  EXPECT_EQ(window.chosen(), L"医学");
  saveScreenshot("build/shots/multi-query.png");
}

TEST_F(Dictionaries, AreSearchedByTheBeginning) {
  const MultiQuery window(lexilo);
  window.searchFor(L"hepat", L"确定", L"hepat");
  const auto lines = window.lines();
  EXPECT_EQ(lines.size(), 100U);
  EXPECT_TRUE(std::ranges::all_of(lines, [](const auto& line) {
    return line.starts_with(L"hepat") || line.starts_with(L"Hepat");
  }));
  saveScreenshot("build/shots/multi-query-prefix.png");
}

TEST_F(Dictionaries, AreSearchedByAPart) {
  const MultiQuery window(lexilo);
  window.search(L"cardiogr", L"高级");
  waitFor("lines", [&] { return !window.lines().empty(); });
  const auto lines = window.lines();
  EXPECT_LE(lines.size(), 200U);
  EXPECT_GT(lines.size(), 10U);
  for (const std::wstring& line : lines) EXPECT_NE(line.find(L"ardiogr"), line.npos);
}

TEST_F(Dictionaries, AreSearchedByChinese) {
  const MultiQuery window(lexilo);
  window.searchFor(L"肝炎", L"确定", L"肝炎");
  for (const std::wstring& line : window.lines()) EXPECT_TRUE(line.starts_with(L"肝炎"));
  saveScreenshot("build/shots/multi-query-chinese.png");
}

TEST_F(Dictionaries, TheReturnKeyIsTheFirstButton) {
  const MultiQuery window(lexilo);
  typeInto(window.input(), L"zinc");
  input::key(VK_RETURN);
  window.waitForFirstLine(L"zinc");
}

TEST_F(Dictionaries, WildcardsStandForCharacters) {
  const MultiQuery window(lexilo);
  window.search(L"gr?y", L"确定");
  window.waitForFirstLine(L"gr");
  for (const std::wstring& line : window.lines()) {
    EXPECT_TRUE(towlower(line[0]) == L'g' && towlower(line[1]) == L'r' && towlower(line[3]) == L'y')
        << line.size();
  }
  window.search(L"a*itis", L"确定");
  window.waitForFirstLine(L"a");
  for (const std::wstring& line : window.lines()) EXPECT_NE(line.find(L"itis"), line.npos);
}

TEST_F(Dictionaries, AreChosenByTheMouse) {
  const MultiQuery window(lexilo);
  window.choose(L"计算机");
  window.searchFor(L"kernel", L"确定", L"kernel");
  window.choose(L"网络释义");
  window.searchFor(L"'hood", L"确定", L"'hood");
}

TEST_F(Dictionaries, AreChosenByTheKeys) {
  const MultiQuery window(lexilo);
  const auto names = window.names();
  window.choose(names.at(0));
  for (int i = 0; i < 3; ++i) input::key(VK_DOWN);
  waitFor("the fourth", [&] { return window.chosen() == names.at(3); });
  const std::wstring fourth = names.at(3);
  // Highlight and search agree: the result is that of the same dictionary chosen by the mouse.
  window.search(L"a", L"确定");
  waitFor("lines", [&] { return !window.lines().empty(); });
  const auto byKeys = window.lines();
  window.choose(names.at(10));
  window.search(L"a", L"确定");
  waitFor("other lines", [&] { return window.lines() != byKeys; });
  window.choose(fourth);
  window.search(L"a", L"确定");
  waitFor("the same lines", [&] { return window.lines() == byKeys; });
}

TEST_F(Dictionaries, NothingFoundIsToldAndEmptiesTheLines) {
  const MultiQuery window(lexilo);
  window.searchFor(L"hepat", L"确定", L"hepat");
  window.search(L"qqzzxx");
  expectMessage(L"Sorry，没有该词条！");
  waitFor("empty lines", [&] {
    const auto lines = window.lines();
    return std::ranges::all_of(lines, [](const auto& line) { return line.empty(); });
  });
}

TEST_F(Dictionaries, AnEmptyBoxIsTold) {
  const MultiQuery window(lexilo);
  window.click(L"确定");
  expectMessage(L"查询条件不为空！");
  window.click(L"高级");
  expectMessage(L"查询条件不为空！");
}

TEST_F(Dictionaries, AreSearchedByTwoFragments) {
  const MultiQuery window(lexilo);
  const SpecialQuery dialog(lexilo.process(), window);
  saveScreenshot("build/shots/special-query.png");
  dialog.ask(L"heat", L"热");
  waitUntilGone(dialog.window());
  waitFor("lines", [&] { return !window.lines().empty(); });
  for (const std::wstring& line : window.lines()) {
    std::wstring lower = line;
    std::ranges::transform(lower, lower.begin(), towlower);
    EXPECT_NE(line.find(L'热'), line.npos);
    EXPECT_NE(lower.find(L"heat"), lower.npos);
  }
  EXPECT_EQ(textOf(window.input()), L"特殊查询 heat：热");
}

TEST_F(Dictionaries, BothFragmentsAreWanted) {
  const MultiQuery window(lexilo);
  const SpecialQuery dialog(lexilo.process(), window);
  dialog.ask(L"heat", L"");
  expectMessage(L"请在英文和中文的文本框里输入内容！");
  EXPECT_TRUE(IsWindowVisible(dialog.window()));
  dialog.ask(L"   ", L"热");
  expectMessage(L"请在英文和中文的文本框里输入内容！");
  EXPECT_TRUE(window.lines().empty());
  dialog.cancel();
}

TEST_F(Dictionaries, AQuoteAmongTwoFragmentsIsAnErrorThatHarmsNothing) {
  const MultiQuery window(lexilo);
  const SpecialQuery dialog(lexilo.process(), window);
  dialog.ask(L"it's", L"它");
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_TRUE(box.criticalIcon);
  EXPECT_TRUE(box.text.starts_with(L"无法在词典文件中执行这次查询：\n"));
  EXPECT_NE(box.text.find(L"不要使用单引号（'）"), box.text.npos);
  EXPECT_TRUE(box.text.ends_with(L"\n\nnear \"s\": syntax error"));
  box.answer();
  // It stays as it was typed, to be mended.
  EXPECT_TRUE(IsWindowVisible(dialog.window()));
  dialog.cancel();
  window.searchFor(L"heat", L"确定", L"heat");
}

TEST_F(Dictionaries, ClosingTheQueryClosesItsDialog) {
  const MultiQuery window(lexilo);
  const SpecialQuery dialog(lexilo.process(), window);
  window.close();
  waitUntilGone(dialog.window());
  EXPECT_TRUE(lexilo.process().running());
  const MultiQuery again(lexilo);
  EXPECT_EQ(again.chosen(), L"医学");
}

TEST_F(Dictionaries, ALineIsCopiedByTheKeys) {
  const MultiQuery window(lexilo);
  window.searchFor(L"zinc", L"确定", L"zinc");
  input::click(centreOf(treeNodeRect(window.results(), 0).value()));
  const std::wstring line = window.lines().front();
  setClipboardText(L"other");
  input::key('C', {VK_CONTROL});
  waitFor("the copy", [&] { return clipboardText() == line; });
}

/// The same with a database that may be changed.
class OwnDictionaries : public ::testing::Test {
 protected:
  void change(const std::string& sql) { Writer(folder.database()).run(sql); }
  std::int64_t number(const std::string& sql) {
    Writer reader(folder.database());
    reader.run("pragma busy_timeout=5000");  // Lexilo may be writing
    return reader.number(sql);
  }
  /// How many default dictionaries there are.
  std::int64_t defaults() { return number("select count(*) from [Index] where [default]=1"); }

  const AppFolder folder = AppFolder::withSmallDictionary();
};

TEST_F(OwnDictionaries, TheDefaultIsChosenByOneClickAndKept) {
  {
    const Lexilo lexilo(folder);
    lexilo.waitUntilSeen();
    const DictionarySettings settings(lexilo);
    EXPECT_EQ(textOf(settings.window()), L"字典设置");
    EXPECT_EQ(settings.names().size(), 24U);
    EXPECT_EQ(settings.chosen(), L"医学");
    saveScreenshot("build/shots/dictionary-settings.png");
    settings.choose(L"法律");
    waitFor("the flag", [&] {
      return number("select [default] from [Index] where TableName='law'") == 1 && defaults() == 1;
    });
    settings.close();
    const MultiQuery window(lexilo);
    EXPECT_EQ(window.chosen(), L"法律");
    lexilo.exit();
  }
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  const MultiQuery window(lexilo);
  EXPECT_EQ(window.chosen(), L"法律");
}

TEST_F(OwnDictionaries, AnOpenQueryFollowsTheSettingsOnceTheyAreClosed) {
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  const MultiQuery window(lexilo);
  EXPECT_EQ(window.chosen(), L"医学");
  const DictionarySettings settings(lexilo);
  settings.choose(L"计算机");
  settings.close();
  waitFor("the new default", [&] { return window.chosen() == L"计算机"; });
  window.searchFor(L"abs", L"确定", L"absolute");
}

TEST_F(OwnDictionaries, OnlySpaceAndReturnChooseTheDefaultByKeys) {
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  const DictionarySettings settings(lexilo);
  const std::wstring before = settings.chosen();
  input::key(VK_DOWN);
  waitFor("the highlight to move", [&] { return settings.chosen() != before; });
  EXPECT_TRUE(never(
      [&] { return number("select [default] from [Index] where TableName='med'") != 1; }, 300));
  input::key(VK_SPACE);
  waitFor("the flag", [&] {
    return number("select [default] from [Index] where TableName='med'") == 0 && defaults() == 1;
  });
  const std::string byReturn =
      "select count(*) from [Index] where [default]=1 and Cname='" + utf8(settings.chosen()) + "'";
  EXPECT_EQ(number(byReturn), 1);
  input::key(VK_UP);
  waitFor("the highlight to come back", [&] { return settings.chosen() == before; });
  EXPECT_EQ(number(byReturn), 1);
  input::key(VK_RETURN);
  waitFor("the flag again", [&] {
    return number("select [default] from [Index] where TableName='med'") == 1 && defaults() == 1;
  });
}

TEST_F(OwnDictionaries, AHiddenDefaultGivesTheFirstShownOne) {
  change("update [Index] set Isshow=0 where TableName='med'");
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  const MultiQuery window(lexilo);
  EXPECT_EQ(window.names().size(), 23U);
  EXPECT_EQ(window.chosen(), window.names().front());
  const DictionarySettings settings(lexilo);
  EXPECT_EQ(settings.names().size(), 24U);
  settings.choose(L"法律");
  settings.close();
  waitFor("another default", [&] { return window.chosen() == L"法律"; });
  // Made the default again by the user, it is still not shown.
  const DictionarySettings again(lexilo);
  again.choose(L"医学");
  waitFor("the flag", [&] {
    return number("select [default] from [Index] where TableName='med'") == 1 && defaults() == 1;
  });
  again.close();
  waitFor("the first shown one", [&] { return window.chosen() == window.names().front(); });
}

TEST_F(OwnDictionaries, OfSeveralDefaultsTheLastCountsAndOneClickLeavesOne) {
  change("update [Index] set [default]=1 where TableName in ('law','comp','art')");
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  const MultiQuery window(lexilo);
  const auto names = window.names();
  // Of 医学 法律 计算机 音乐艺术 the last in the list's order.
  std::wstring last;
  for (const std::wstring& name : names) {
    if (name == L"医学" || name == L"法律" || name == L"计算机" || name == L"音乐艺术") last = name;
  }
  EXPECT_EQ(window.chosen(), last);
  const DictionarySettings settings(lexilo);
  settings.choose(L"法律");
  waitFor("one default", [&] { return defaults() == 1; });
  EXPECT_EQ(number("select [default] from [Index] where TableName='law'"), 1);
}

TEST_F(OwnDictionaries, WithoutAShownOneTheUserIsAskedToChoose) {
  change("update [Index] set Isshow=0");
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  lexilo.click(ToolbarButton::kMultiFunction);
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.text, L"请选择字典！");
  box.answer();
  HWND window = waitForForm(lexilo.process(), L"frmMain");
  typeInto(waitForChild(window, L"Edit"), L"data");
  input::key(VK_RETURN);
  const ShownMessage again = waitForMessageBox(lexilo.process());
  EXPECT_EQ(again.text, L"请选择字典！");
  again.answer();
  EXPECT_EQ(lexilo.exit(), 0U);
}

TEST_F(OwnDictionaries, AMissingTableIsToldAndKeepsTheLines) {
  change("alter table law rename to lost");
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  const MultiQuery window(lexilo);
  window.choose(L"计算机");
  window.searchFor(L"abs", L"确定", L"absolute");
  const auto before = window.lines();
  window.choose(L"法律");
  window.search(L"a");
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.text, L"出现异常错误，请重新启动程序或安装程序！");
  EXPECT_TRUE(box.criticalIcon);
  box.answer();
  EXPECT_EQ(window.lines(), before);
  window.choose(L"医学");
  window.searchFor(L"ab", L"确定", L"ab");
}

TEST_F(OwnDictionaries, AMissingCatalogueIsToldByBothWindows) {
  change("drop table [Index]");
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  lexilo.click(ToolbarButton::kMultiFunction);
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.text, L"出现异常错误，请重新启动程序或安装程序！");
  box.answer();
  waitForForm(lexilo.process(), L"frmMain");
  lexilo.click(ToolbarButton::kDictionarySettings);
  const ShownMessage other = waitForMessageBox(lexilo.process());
  EXPECT_TRUE(other.criticalIcon);
  EXPECT_NE(other.text.find(L"ndex"), other.text.npos);
  other.answer();
  EXPECT_EQ(lexilo.exit(), 0U);
}

}  // namespace
}  // namespace support
