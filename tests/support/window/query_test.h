#pragma once

#include "app/state.h"
#include "capture/screen_word.h"
#include "data/data_control.h"
#include "query/frm_main.h"
#include "tests/support/process/controls.h"
#include "tests/support/window/capture_state.h"
#include "tests/support/window/dictionary.h"
#include "tests/support/window/window_test.h"
#include "win32/program.h"

namespace support {

/// Subject dictionaries: 化学, 计算机 and 医学 in the order of their names, and 隐藏, which is not
/// shown; 医学 is the default.
inline std::string subjectSql() {
  std::string sql =
      "create table [Index] (id integer primary key, TableName text collate lexilo,"
      " Cname text collate lexilo, Isshow integer, [default] integer);"
      "insert into [Index] values (1,'med','医学',1,1),(2,'chem','化学',1,0),"
      "(3,'comp','计算机',1,0),(4,'hid','隐藏',0,0)";
  for (const char* table : {"med", "chem", "comp", "hid"}) {
    sql += std::string(";create table ") + table +
           " (word text collate lexilo, meaning text collate lexilo)";
  }
  sql +=
      ";insert into med values ('heart','心脏'),('heart beat','心搏'),('heart''s','心的'),"
      "('sweetheart','心上人'),('liver','肝')"
      ";insert into chem values ('heat','热'),('heat pump','热泵'),('it''s','它是')"
      ";insert into hid values ('hidden','隐藏的')";
  for (int i = 100; i < 350; ++i) {
    const std::string number = std::to_string(i);
    sql += ";insert into comp values ('bit" + number + "','位" + number + "')";
  }
  return sql;
}

/// The windows of the subject dictionaries, over that database.
class QueryTest : public WindowTest {
 protected:
  explicit QueryTest(const std::string& changes = {})
      : dictionary_(subjectSql() + (changes.empty() ? "" : ";" + changes)) {
    user::ConnectionString = data::connectionString(win32::applicationFolder() + u"\\kk.dat");
    user::MainOpen = false;
  }
  ~QueryTest() override {
    unloadAll();
    // Its file cannot be replaced while a form that has gone still holds it.
    forms::LoadedForms::instance().purge();
  }

  /// Changes the database while the program does not know of it.
  static void store(const std::string& sql) { Writer(besideProgram()).run(sql); }
  static std::int64_t stored(const std::string& sql) { return Writer(besideProgram()).number(sql); }

  static frmMain& form() { return forms::form<frmMain>(); }

  /// Shows it and waits until its input box has the focus.
  frmMain& open() {
    auto& window = opened<frmMain>();
    EXPECT_TRUE(eventually([&] { return GetFocus() == window.txtInput.handle(); }));
    return window;
  }

  static void press(const forms::Button& button) { SendMessageW(button.handle(), BM_CLICK, 0, 0); }

  /// Searches for `text`.
  static void easy(const std::u16string& text) {
    form().txtInput.setText(text);
    press(form().cmdOK);
  }
  static void complex(const std::u16string& text) {
    form().txtInput.setText(text);
    press(form().Command1);
  }

  static std::vector<std::u16string> lines() { return nodeTexts(form().TreeView2); }

  static bool runs() {
    return eventually([] { return captureRuns(); });
  }
  static bool rests() {
    return eventually([] { return !captureRuns(); });
  }

  /// Expects that each node of a tree shows the tree's one picture, selected or not.
  static void expectFirstPictureAtEveryNode(const forms::TreeView& tree) {
    const auto pictures = reinterpret_cast<HIMAGELIST>(
        SendMessageW(tree.handle(), TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
    EXPECT_EQ(ImageList_GetImageCount(pictures), 1);
    std::size_t nodes = 0;
    TVITEMW item{};
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    for (item.hItem = TreeView_GetRoot(tree.handle()); item.hItem != nullptr;
         item.hItem = TreeView_GetNextSibling(tree.handle(), item.hItem)) {
      item.iImage = item.iSelectedImage = -1;
      SendMessageW(tree.handle(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
      EXPECT_EQ(item.iImage, 0) << nodes;
      EXPECT_EQ(item.iSelectedImage, 0) << nodes;
      ++nodes;
    }
    EXPECT_EQ(nodes, tree.count());
  }

  /// Expects just one message box since the last call.
  void expectBox(const std::u16string& text, Icon icon) {
    ASSERT_TRUE(eventually([this] { return boxes.count() >= 1; }));
    const auto seen = boxes.take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, text);
    EXPECT_EQ(seen[0].icon, icon);
    EXPECT_EQ(seen[0].title, u"");
  }

  /// Expects just one message box since the last call, about the database file: what is
  /// wrong with it, where it lies, what to do, and what the engine says.
  void expectDatabaseBox(const std::u16string& problem, const std::u16string& engineText) {
    ASSERT_TRUE(eventually([this] { return boxes.count() >= 1; }));
    const auto seen = boxes.take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].icon, Icon::kError);
    EXPECT_EQ(seen[0].title, u"");
    const std::u16string head = problem + u"\n" + win32::applicationFolder() + u"\\kk.dat\n请";
    EXPECT_TRUE(seen[0].text.starts_with(head)) << text::toUtf8(seen[0].text);
    EXPECT_TRUE(seen[0].text.ends_with(u"。\n\n" + engineText)) << text::toUtf8(seen[0].text);
  }

  static constexpr const char16_t* kUnexpected = u"出现异常错误，请重新启动程序或安装程序！";
  static constexpr const char16_t* kChoose = u"请选择字典！";
  static constexpr const char16_t* kNoText = u"查询条件不为空！";
  static constexpr const char16_t* kNothing = u"Sorry，没有该词条！";

 private:
  OtherDictionary dictionary_;
};

using Texts = std::vector<std::u16string>;

}  // namespace support
