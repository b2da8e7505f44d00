// A dictionary that is not what it should be never takes the program down.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>

#include "tests/support/process/controls.h"
#include "tests/support/process/dictionary_windows.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/message_box.h"
#include "tests/support/process/screen.h"

namespace support {
namespace {

namespace fs = std::filesystem;

/// Answers whatever message boxes come up until there has been none for a while.
void answerMessages(const Lexilo& lexilo) {
  for (int boxes = 0; boxes < 20; ++boxes) {
    std::optional<ShownMessage> box;
    if (never([&] { return (box = findMessageBox(lexilo.process())).has_value(); }, 50)) {
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
    return eventually(done, kReactionTime);
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
      [&] { input::click(centreOf(rectOf(lexilo.button(ToolbarButton::kQuickLookup)))); },
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

/// Starts the program and expects it to report that its dictionary has `problem`, where it lies,
/// what to do and what the engine says; then ends it.
void expectToldAtStart(const AppFolder& folder, const std::wstring& problem,
                       const std::wstring& engineText) {
  const Lexilo lexilo(folder);
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.text, problem + L"\n" + folder.databaseAsShown() +
                          L"\n请重新解压或重新安装 Lexilo，恢复这个文件，然后重新启动程序。\n\n" +
                          engineText);
  EXPECT_TRUE(box.criticalIcon);
  EXPECT_EQ(box.title, L"");
  box.answer();
  EXPECT_EQ(lexilo.exit(), 0U);
}

class BrokenDatabase : public ::testing::Test {};

TEST_F(BrokenDatabase, Empty) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  fs::resize_file(folder.database(), 0);
  expectToldAtStart(folder, L"词典文件不完整：", L"no such table: edictidx");
  useAndEnd(folder);
}

TEST_F(BrokenDatabase, CutInTheMiddle) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  fs::resize_file(folder.database(), fs::file_size(folder.database()) / 2);
  expectToldAtStart(folder, L"词典文件已经损坏：", L"database disk image is malformed");
  useAndEnd(folder);
}

TEST_F(BrokenDatabase, NoDatabaseAtAll) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  std::ofstream(folder.database(), std::ios::trunc) << "This is a letter to the editor.\n";
  expectToldAtStart(folder, L"这个文件不是词典文件，或者已经损坏：", L"file is not a database");
  useAndEnd(folder);
}

TEST_F(BrokenDatabase, WithoutTheTableAskedFor) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  folder.renameTables("edictidx", "edictidy");
  expectToldAtStart(folder, L"词典文件不完整：", L"no such table: edictidx");
  useAndEnd(folder);
}

TEST_F(BrokenDatabase, WithoutTheTableOfTheMeanings) {
  const AppFolder folder = AppFolder::withSmallDictionary();
  folder.renameTables("cdict", "cdicu");
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  lexilo.click(ToolbarButton::kQuickLookup);
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

/// A small dictionary that may only be read while this lives. Later runs replace its folder.
class WriteProtectedDatabase : public ::testing::Test {
 protected:
  ~WriteProtectedDatabase() override { setAttribute(FILE_ATTRIBUTE_NORMAL); }

  void SetUp() override {
    setAttribute(FILE_ATTRIBUTE_READONLY);
    ASSERT_NE(reader.get(), INVALID_HANDLE_VALUE);
  }

  const AppFolder folder = AppFolder::withSmallDictionary();

 private:
  void setAttribute(DWORD attribute) const {
    EXPECT_NE(SetFileAttributesW(folder.database().c_str(), attribute), FALSE);
  }

  // The attribute does not bind every user; a handle that lets nobody else write does.
  const win32::OwnedKernelObject reader{CreateFileW(folder.database().c_str(), GENERIC_READ,
                                                    FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                                    FILE_ATTRIBUTE_NORMAL, nullptr)};
};

TEST_F(WriteProtectedDatabase, LookupsStillWork) {
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  window.lookUp(L"data");
  window.lookUp(L"数据");
  EXPECT_EQ(lexilo.exit(), 0U);
}

TEST_F(WriteProtectedDatabase, ChoosingADefaultTellsWhatToDo) {
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  const DictionarySettings settings(lexilo);
  const std::wstring before = settings.chosen();
  input::click(centreOf(treeNodeRect(settings.list(), 0).value()));
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.text,
            L"无法写入词典文件：\n" + folder.databaseAsShown() +
                L"\n请取消这个文件的只读属性，或者把整个 Lexilo 文件夹移到可以写入的位置，"
                L"再试一次。\n\nattempt to write a readonly database");
  EXPECT_TRUE(box.criticalIcon);
  saveScreenshot("build/shots/write-protected-dictionary.png");
  box.answer();
  EXPECT_EQ(settings.chosen(), before);
  settings.close();
  EXPECT_EQ(lexilo.exit(), 0U);
}

}  // namespace
}  // namespace support
