#include "dictionary/database/writer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dictionary/console.h"
#include "tests/support/data/sample_database.h"
#include "tests/support/data/temp_folder.h"

namespace {

using dictionary::DatabaseContent;
using dictionary::Subject;

std::vector<dictionary::SubjectRow>& rowsOf(DatabaseContent& content, Subject subject) {
  return content.subjects.at(static_cast<std::size_t>(subject));
}

/// "ID TableName default" of every row of the catalogue, in the order of ID.
std::vector<std::u16string> catalogue(const DatabaseContent& content) {
  const support::TempFolder folder;
  dictionary::writeDatabase(content, folder.file(u"kk.dat"));
  data::DataControl control =
      support::opened(folder.file(u"kk.dat"), u"select * from [Index] order by ID");
  data::RecordSet& rows = control.recordset();
  std::vector<std::u16string> texts;
  if (rows.empty()) return texts;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    texts.push_back(rows.field(u"ID").text + u" " + rows.field(u"TableName").text + u" " +
                    rows.field(u"default").text);
  }
  return texts;
}

using Texts = std::vector<std::u16string>;

TEST(WriteDatabase, LeavesOutSubjectsWithoutRows) {
  DatabaseContent content;
  EXPECT_EQ(catalogue(content), Texts());
  rowsOf(content, Subject::kChemistry) = {{u"acid", u"酸"}};
  rowsOf(content, Subject::kMedicine) = {{u"anemia", u"贫血"}};
  rowsOf(content, Subject::kWeb) = {{u"hood", u"胡德"}};
  EXPECT_EQ(catalogue(content), (Texts{u"1 med 1", u"2 chem 0", u"3 web 0"}));

  const support::TempFolder folder;
  dictionary::writeDatabase(content, folder.file(u"kk.dat"));
  support::Writer tables(folder.file(u"kk.dat"));
  EXPECT_EQ(tables.number("select count(*) from sqlite_schema where name in ('med','chem','web')"),
            3);
  EXPECT_EQ(tables.number("select count(*) from sqlite_schema where name='law'"), 0);
}

TEST(WriteDatabase, MakesTheFirstSubjectTheDefaultWhereTheUsualOneHasNoRows) {
  DatabaseContent content;
  rowsOf(content, Subject::kLaw) = {{u"abandon", u"委付"}};
  rowsOf(content, Subject::kWeb) = {{u"hood", u"胡德"}};
  EXPECT_EQ(catalogue(content), (Texts{u"1 law 1", u"2 web 0"}));
}

TEST(WriteDatabase, SaysWhyItFails) {
  DatabaseContent content;
  rowsOf(content, Subject::kLaw) = {{u"abandon", u"委付"}, {u"Abandon", u"放弃"}};
  const support::TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  try {
    dictionary::writeDatabase(content, file);
    ADD_FAILURE() << "two rows of one headword were written";
  } catch (const dictionary::Failure& failure) {
    EXPECT_EQ(failure.what(), "cannot write " + dictionary::displayName(file) +
                                  ": UNIQUE constraint failed: law.word");
  }
}

}  // namespace
