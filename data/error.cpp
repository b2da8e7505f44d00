// Descriptions are chosen by the engine's result code, and name what a user can do. Several codes
// share one description where the remedy is the same, and one code has two where the cause differs
// (SQLITE_CANTOPEN for reading and for writing; SQLITE_ERROR for a missing table and for a text
// that the engine does not understand).

#include "data/error.h"

#include <sqlite3.h>

#include <algorithm>
#include <string_view>

#include "text/strings.h"
#include "text/utf.h"

namespace data {
namespace {

/// The parts of a description: `problem`, a colon at its end, is followed by the file's path.
struct Explanation {
  std::u16string_view problem;
  std::u16string_view remedy;
};

constexpr std::u16string_view kReinstall =
    u"请重新解压或重新安装 Lexilo，恢复这个文件，然后重新启动程序。";

constexpr Explanation kMissing{u"找不到词典文件，或者无法打开它：",
                               u"请确认这个文件与程序在同一文件夹中，并且没有被其他程序占用。"
                               u"如果它不见了，请重新解压或重新安装 Lexilo。"};
constexpr Explanation kNotWritable{u"无法写入词典文件：",
                                   u"请取消这个文件的只读属性，或者把整个 Lexilo 文件夹移到"
                                   u"可以写入的位置，再试一次。"};
constexpr Explanation kNoAccess{u"没有打开词典文件的权限：",
                                u"请取得读取这个文件的权限，或者把整个 Lexilo 文件夹移到"
                                u"可以读写的位置，再试一次。"};
constexpr Explanation kNoDatabase{u"这个文件不是词典文件，或者已经损坏：", kReinstall};
constexpr Explanation kDamaged{u"词典文件已经损坏：", kReinstall};
constexpr Explanation kIncomplete{u"词典文件不完整：", kReinstall};
constexpr Explanation kInUse{u"词典文件正被其他程序占用：", u"请关闭正在使用它的程序，再试一次。"};
constexpr Explanation kTooLong{u"在词典文件中查询用时过长，已经停止：",
                               u"请少用通配符，或者输入更具体的文字，再试一次。"};
constexpr Explanation kNoMemory{u"在词典文件中查询时内存不足：",
                                u"请输入更具体的文字，或者关闭其他程序，再试一次。"};
constexpr Explanation kTooBig{u"在词典文件中查询的内容过长：",
                              u"请改用较短的文字，再试一次。"
                              u"如果仍然出错，请重新解压或重新安装 Lexilo。"};
constexpr Explanation kDiskFull{u"磁盘已满，无法写入词典文件：",
                                u"请在这个磁盘上腾出空间，再试一次。"};
constexpr Explanation kDiskFailed{u"读写词典文件时出错：",
                                  u"请检查磁盘或网络连接，再试一次。"
                                  u"如果仍然出错，请重新解压或重新安装 Lexilo。"};
constexpr Explanation kChanged{u"词典文件已被其他程序改动：",
                               u"请关闭这个窗口，重新打开，再试一次。"};
constexpr Explanation kQueryRefused{u"无法在词典文件中执行这次查询：",
                                    u"请确认已经选择字典，并检查输入的文字：不要使用单引号（'），"
                                    u"也不要太长。如果仍然出错，请重新解压或重新安装 Lexilo。"};
constexpr Explanation kOther{u"使用词典文件时出错：",
                             u"请重新启动程序。如果仍然出错，请重新解压或重新安装 Lexilo。"};

Explanation explain(Access access, const Error& error) {
  // The low byte of an extended result code is the primary one.
  switch (error.code() & 0xFF) {
    case SQLITE_CANTOPEN:
      // An update needs a journal beside the file: the folder may not be writable.
      return access == Access::kWrite ? kNotWritable : kMissing;
    case SQLITE_READONLY:
      return kNotWritable;
    case SQLITE_PERM:
      return kNoAccess;
    case SQLITE_NOTADB:
      return kNoDatabase;
    case SQLITE_CORRUPT:
    case SQLITE_FORMAT:
      return kDamaged;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return kInUse;
    case SQLITE_INTERRUPT:
      return kTooLong;
    case SQLITE_NOMEM:
      return kNoMemory;
    case SQLITE_TOOBIG:
      return kTooBig;
    case SQLITE_FULL:
      return kDiskFull;
    case SQLITE_IOERR:
      return kDiskFailed;
    case SQLITE_NOTFOUND:
      return kChanged;
    case SQLITE_ERROR:
      // A missing column may come from a quote in the user's input; a missing table does not, since
      // the windows name the tables: then the file lacks it.
      return std::string_view(error.engineText()).starts_with("no such table") ? kIncomplete
                                                                               : kQueryRefused;
    case SQLITE_AUTH:
      return kQueryRefused;
    default:
      return kOther;
  }
}

/// The engine's message on one line: it may quote line ends of the user's input.
std::u16string shownEngineText(const Error& error) {
  std::u16string line = text::shortened(text::toUtf16(error.engineText()), kMaxShownEngineText);
  std::replace_if(
      line.begin(), line.end(), [](char16_t unit) { return unit < u' '; }, u' ');
  return line;
}

}  // namespace

void raise(sqlite3* connection) {
  throw Error(sqlite3_extended_errcode(connection), sqlite3_errmsg(connection));
}

void check(sqlite3* connection, int result) {
  if (result != SQLITE_OK) raise(connection);
}

std::string failureText(const std::string& file, Access access, const Error& error) {
  const Explanation explanation = explain(access, error);
  std::u16string whole(explanation.problem);
  whole.append(u"\n").append(text::shortened(text::toUtf16(file), kMaxShownPath));
  whole.append(u"\n").append(explanation.remedy);
  whole.append(u"\n\n").append(shownEngineText(error));
  return text::toUtf8(whole);
}

void throwDescribed(const std::string& file, Access access, const Error& error) {
  if (error.code() == SQLITE_MISUSE) throw Error(error);
  throw Error(error.code(), error.engineText(), failureText(file, access, error));
}

}  // namespace data
