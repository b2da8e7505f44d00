// A dictionary that is not what it should be never takes the program down.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>

#include "tests/program/harness/controls.h"
#include "tests/program/harness/input.h"
#include "tests/program/harness/lexilo.h"
#include "tests/program/harness/message_box.h"

namespace harness {
namespace {

namespace fs = std::filesystem;

/// Answers whatever message boxes come up until there has been none for a while.
void answerMessages(const Lexilo& lexilo) {
  for (int boxes = 0; boxes < 20; ++boxes) {
    std::optional<ShownMessage> box;
    if (neverWithin(50, [&] { return (box = findMessageBox(lexilo.process())).has_value(); })) {
      return;
    }
    EXPECT_FALSE(box->text.empty());
    box->answer();
  }
  ADD_FAILURE() << "message boxes without end";
}

/// Repeats what a user does until it has had its effect, answering messages in between.
template <class Act, class Done>
void insist(const std::string& what, const Lexilo& lexilo, Act act, Done done) {
  waitFor(what, [&] {
    answerMessages(lexilo);
    if (done()) return true;
    act();
    return !neverWithin(kReactionTime, done);
  });
  answerMessages(lexilo);
}

/// Replaces what the box holds, letter by letter.
void type(const Lexilo& lexilo, const QuickLookup& window, const std::wstring& text) {
  insist(
      "an empty box", lexilo,
      [&] {
        input::click(centreOf(clientRectOf(window.input())));
        input::key(VK_END);
        input::key(VK_HOME, {VK_SHIFT});
        input::key(VK_DELETE);
      },
      [&] { return window.typed().empty(); });
  for (std::size_t typed = 1; typed <= text.size(); ++typed) {
    // A message that was answered has left the keyboard to the window, but perhaps not to the box.
    insist(
        "a typed letter", lexilo,
        [&] {
          if (focusIn(window.window()) != window.input()) {
            input::click(centreOf(clientRectOf(window.input())));
            input::key(VK_END);
          }
          input::type(text.substr(typed - 1, 1));
        },
        [&] { return window.typed() == text.substr(0, typed); });
  }
}

/// Starts the program, looks words up, and ends it by its menu, answering all messages. What it
/// shows may be anything; that it lives, answers and ends well is what counts.
void useAndEnd(const AppFolder& folder) {
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  insist(
      "the window", lexilo,
      [&] { input::click(centreOf(rectOf(lexilo.button(ToolbarButton::quickLookup)))); },
      [&] { return QuickLookup::find(lexilo.process()) != nullptr; });
  // Messages may lie before it and come up at any moment, so that it need not be in front.
  const QuickLookup window(QuickLookup::find(lexilo.process()));
  type(lexilo, window, L"data");
  type(lexilo, window, L"数据");
  type(lexilo, window, L"zoology");
  if (treeNodeRect(window.list(), 0)) {
    window.clickWord(0);
    answerMessages(lexilo);
  }
  insist(
      "the window to close", lexilo, [&] { input::click(centreOf(rectOf(window.exitButton()))); },
      [&] { return IsWindow(window.window()) == FALSE; });
  EXPECT_EQ(lexilo.exit(), 0U);
}

class DamagedDatabase : public ::testing::Test, public ::testing::WithParamInterface<int> {};

TEST_P(DamagedDatabase, ProgramStaysUsable) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  const std::uintmax_t size = fs::file_size(folder.database());
  // Ten places spread from the file's head to its end, each a little more than a page.
  const auto place = static_cast<std::uintmax_t>(GetParam());
  folder.damageDatabase(place * (size - 5'000) / 9, 5'000);
  useAndEnd(folder);
}

INSTANTIATE_TEST_SUITE_P(AtTenPlaces, DamagedDatabase, ::testing::Range(0, 10));

class BrokenDatabase : public ::testing::Test {};

TEST_F(BrokenDatabase, Empty) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  fs::resize_file(folder.database(), 0);
  useAndEnd(folder);
}

TEST_F(BrokenDatabase, CutInTheMiddle) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  fs::resize_file(folder.database(), fs::file_size(folder.database()) / 2);
  useAndEnd(folder);
}

TEST_F(BrokenDatabase, NoDatabaseAtAll) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  std::ofstream(folder.database(), std::ios::trunc) << "This is a letter to the editor.\n";
  useAndEnd(folder);
}

TEST_F(BrokenDatabase, WithoutTheTableAskedFor) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  folder.renameTables("edictidx", "edictidy");
  const Lexilo lexilo(folder);
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_NE(box.text.find(L"edictidx"), std::wstring::npos) << "the message does not name it";
  EXPECT_TRUE(box.criticalIcon);
  EXPECT_EQ(box.title, L"");
  box.answer();
  EXPECT_EQ(lexilo.exit(), 0U);
  useAndEnd(folder);
}

TEST_F(BrokenDatabase, WithoutTheTableOfTheMeanings) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  folder.renameTables("cdict", "cdicu");
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  lexilo.click(ToolbarButton::quickLookup);
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.text, L"显示词义出错！");
  EXPECT_TRUE(box.criticalIcon);
  box.answer();
  const QuickLookup window(lexilo.process());
  EXPECT_EQ(window.words().front(), L"a");
  EXPECT_EQ(window.meaning(), L"");
  window.close();
  EXPECT_EQ(lexilo.exit(), 0U);
}

TEST_F(BrokenDatabase, WriteProtectedEverythingStillWorks) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  const std::wstring file = folder.database().wstring();
  SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
  {
    const Lexilo lexilo(folder);
    lexilo.waitUntilSeen();
    const QuickLookup window = lexilo.openQuickLookupAtA();
    window.lookUp(L"data");
    window.lookUp(L"数据");
    EXPECT_EQ(lexilo.exit(), 0U);
  }
  // Later runs replace the folder.
  SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

}  // namespace
}  // namespace harness
