// Record sets on any SQL text: it yields rows or an error, within its limits, and the database file
// stays as it is.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "data/error.h"
#include "data/record_set.h"
#include "tests/fuzz/fuzz_input.h"
#include "tests/support/data/sample_database.h"

namespace {

/// A small dictionary that lives as long as the fuzzer.
class Subject {
 public:
  Subject() {
    support::makeDatabase(
        file_,
        "create table edict (eid integer primary key, word text collate lexilo, cid integer);"
        "create table cdictidx (word text collate lexilo, id integer primary key);"
        "create index i on cdictidx (word);"
        "create table med (word text collate lexilo primary key, meaning text collate lexilo)"
        " without rowid;"
        "create table [Index] (id integer primary key, TableName text, Cname text collate lexilo,"
        " Isshow integer, [default] integer);"
        "insert into edict values (1,'bit',2),(2,'Data',1),(3,'it''s',3);"
        "insert into cdictidx values ('位',1),('数据',2),('它是',3);"
        "insert into med values ('heat','热'),('fever','发热'),('cold','感冒');"
        "insert into [Index] values (1,'med','医学',1,1)");
    bytes_ = support::readFile(file_);
    using std::chrono::milliseconds;
    database_ = std::make_shared<data::Database>(
        support::utf8Path(file_), data::Timeouts{milliseconds(100), milliseconds(0)});
  }

  void run(std::string_view sql) const {
    try {
      data::RecordSet rows(database_, sql);
      walk(rows, data::translate(sql));
    } catch (const data::Error&) {
      // A text that is no query of ours.
    }
    require(support::readFile(file_) == bytes_);
    require(support::entryCount(folder_.path()) == 1);
  }

 private:
  static void walk(data::RecordSet& rows, const data::Query& query) {
    const bool empty = rows.empty();
    require(rows.endOfFile() == empty);
    std::u16string last;
    rows.moveLast();
    if (!empty) last = rows.field(0).text;
    const std::size_t count = rows.recordCount();
    require((count == 0) == empty);
    if (query.top) require(count <= *query.top);
    rows.moveFirst();
    std::size_t steps = 0;
    for (std::u16string text; !rows.endOfFile(); rows.moveNext()) {
      text = rows.field(0).text;
      if (++steps == count) require(text == last);
    }
    require(steps == count);
  }

  support::TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
  std::string bytes_;
  std::shared_ptr<data::Database> database_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Subject subject;
  subject.run(FuzzInput(data, size).rest());
  return 0;
}
