#include "data/error.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <set>

#include "forms/text_lines.h"
#include "text/utf.h"

namespace {

using data::Access;
using data::Error;
using data::failureText;

constexpr const char* kFile = "C:\\词典 it's\\kk.dat";

struct Kind {
  int code;
  const char* words;
  const char* problem;
  const char* remedy;  ///< a part of it
  Access access = Access::kRead;
};

const Kind kKinds[] = {
    {SQLITE_CANTOPEN, "unable to open database file", "找不到词典文件，或者无法打开它：",
     "同一文件夹"},
    {SQLITE_CANTOPEN_ISDIR, "unable to open database file", "找不到词典文件，或者无法打开它：",
     "重新解压或重新安装"},
    {SQLITE_CANTOPEN, "unable to open database file", "无法写入词典文件：", "可以写入的位置",
     Access::kWrite},
    {SQLITE_READONLY, "attempt to write a readonly database", "无法写入词典文件：", "只读属性",
     Access::kWrite},
    {SQLITE_READONLY_ROLLBACK, "attempt to write a readonly database", "无法写入词典文件：",
     "只读属性"},
    {SQLITE_PERM, "access permission denied", "没有打开词典文件的权限：", "权限"},
    {SQLITE_NOTADB, "file is not a database", "这个文件不是词典文件，或者已经损坏：",
     "重新解压或重新安装"},
    {SQLITE_CORRUPT, "database disk image is malformed", "词典文件已经损坏：",
     "重新解压或重新安装"},
    {SQLITE_CORRUPT_INDEX, "database disk image is malformed", "词典文件已经损坏：",
     "重新解压或重新安装"},
    {SQLITE_ERROR, "no such table: edictidx", "词典文件不完整：", "重新解压或重新安装"},
    {SQLITE_BUSY, "database is locked", "词典文件正被其他程序占用：", "请关闭正在使用它的程序"},
    {SQLITE_BUSY_RECOVERY, "database is locked", "词典文件正被其他程序占用：", "再试一次"},
    {SQLITE_LOCKED, "database table is locked", "词典文件正被其他程序占用：", "再试一次"},
    {SQLITE_INTERRUPT, "interrupted", "在词典文件中查询用时过长，已经停止：", "更具体的文字"},
    {SQLITE_NOMEM, "out of memory", "在词典文件中查询时内存不足：", "关闭其他程序"},
    {SQLITE_TOOBIG, "string or blob too big", "在词典文件中查询的内容过长：", "较短的文字"},
    {SQLITE_FULL, "database or disk is full", "磁盘已满，无法写入词典文件：", "腾出空间",
     Access::kWrite},
    {SQLITE_IOERR_READ, "disk I/O error", "读写词典文件时出错：", "检查磁盘或网络连接"},
    {SQLITE_NOTFOUND, "row to be updated is not there any more", "词典文件已被其他程序改动：",
     "重新打开", Access::kWrite},
    {SQLITE_ERROR, "near \"s\": syntax error", "无法在词典文件中执行这次查询：", "单引号（'）"},
    {SQLITE_ERROR, "no such column: x", "无法在词典文件中执行这次查询：", "单引号（'）"},
    {SQLITE_AUTH, "not authorized", "无法在词典文件中执行这次查询：", "检查输入的文字"},
    {SQLITE_INTERNAL, "internal error", "使用词典文件时出错：", "重新启动程序"},
};

TEST(ErrorText, SaysWhatIsWrongWithWhichFileAndWhatToDo) {
  for (const Kind& kind : kKinds) {
    const std::string text = failureText(kFile, kind.access, Error(kind.code, kind.words));
    const std::string head = std::string(kind.problem) + '\n' + kFile + '\n';
    const std::string tail = std::string("\n\n") + kind.words;
    EXPECT_TRUE(text.starts_with(head)) << text;
    EXPECT_TRUE(text.ends_with(tail)) << text;
    ASSERT_GT(text.size(), head.size() + tail.size());
    const std::string remedy = text.substr(head.size(), text.size() - head.size() - tail.size());
    EXPECT_TRUE(remedy.starts_with("请")) << text;
    EXPECT_TRUE(remedy.ends_with("。")) << text;
    EXPECT_NE(remedy.find(kind.remedy), std::string::npos) << text;
    EXPECT_EQ(remedy.find('\n'), std::string::npos) << text;
    EXPECT_EQ(text::toUtf16(text).find(u'\uFFFD'), std::u16string::npos) << text;
  }
}

TEST(ErrorText, QuotesAPathWithinMaxPathInFull) {
  const std::string file = "C:\\" + std::string(251, 'd') + "\\kk.dat";
  ASSERT_EQ(file.size(), 261U);
  const auto shown = [](const std::string& path) {
    return failureText(path, Access::kRead, Error(SQLITE_CORRUPT, "malformed")).find(path + '\n') !=
           std::string::npos;
  };
  EXPECT_TRUE(shown(file.substr(0, 3) + file.substr(4)));
  EXPECT_FALSE(shown(file));
}

TEST(ErrorText, QuotesBothEndsOfALongPath) {
  const std::string text = failureText("C:\\first\\" + std::string(30'000, 'd') + "\\kk.dat",
                                       Access::kRead, Error(SQLITE_CORRUPT, "malformed"));
  EXPECT_NE(text.find("C:\\first\\dd"), std::string::npos);
  EXPECT_NE(text.find("dd\\kk.dat\n请"), std::string::npos);
}

TEST(ErrorText, QuotesLongWordsOfTheEngineOnOneLine) {
  std::string typed;
  for (int i = 0; i < 5000; ++i) typed += "词\r\n";
  const std::string text = failureText(kFile, Access::kRead,
                                       Error(SQLITE_ERROR, "near \"" + typed + "\": syntax error"));
  const std::string words = text.substr(text.rfind("\n\n") + 2);
  EXPECT_TRUE(words.starts_with("near \"词  词  ")) << words;
  EXPECT_TRUE(words.ends_with("  \": syntax error")) << words;
  EXPECT_EQ(text::toUtf16(words).size(), data::kMaxShownEngineText);
  EXPECT_EQ(words.find_first_of("\r\n"), std::string::npos);
}

// The longest texts that there are: a message box shows them whole but for ends of lines in long
// words.
TEST(ErrorText, IsNeverCutByTheMessageBox) {
  for (const Kind& kind : kKinds) {
    const Error error(kind.code, kind.words + std::string(98'301, 'x'));
    const std::u16string text =
        text::toUtf16(failureText("C:\\" + std::string(30'000, 'd'), kind.access, error));
    std::u16string fitted = forms::fittedToBox(text);
    std::u16string unbroken = text;
    std::erase(fitted, u'\n');
    std::erase(unbroken, u'\n');
    EXPECT_EQ(fitted, unbroken);
  }
}

TEST(ErrorText, KeepsCodeAndWordsBesideTheDescription) {
  const Error error(SQLITE_BUSY_RECOVERY, "database is locked");
  EXPECT_STREQ(error.what(), "database is locked");
  try {
    data::describingFailures(kFile, Access::kWrite, [&] { throw Error(error); });
    ADD_FAILURE() << "no error";
  } catch (const Error& described) {
    EXPECT_EQ(described.code(), SQLITE_BUSY_RECOVERY);
    EXPECT_STREQ(described.engineText(), "database is locked");
    EXPECT_EQ(described.what(), failureText(kFile, Access::kWrite, error));
  }
}

TEST(ErrorText, LeavesMistakesOfTheCallerInPlainEnglish) {
  try {
    data::describingFailures(kFile, Access::kRead,
                             [] { throw Error(SQLITE_MISUSE, "no column 3"); });
    ADD_FAILURE() << "no error";
  } catch (const Error& error) {
    EXPECT_STREQ(error.what(), "no column 3");
    EXPECT_STREQ(error.engineText(), "no column 3");
  }
}

TEST(ErrorText, LetsResultsAndOtherErrorsPass) {
  EXPECT_EQ(data::describingFailures(kFile, Access::kRead, [] { return 42; }), 42);
  const auto fail = [] { throw std::overflow_error("Overflow"); };
  EXPECT_THROW(data::describingFailures(kFile, Access::kRead, fail), std::overflow_error);
}

}  // namespace
