#include "data/connection_string.h"

#include <gtest/gtest.h>

namespace {

using data::parseConnectionString;

std::u16string dataSourceOf(std::u16string_view file) {
  return parseConnectionString(data::connectionString(file)).dataSource;
}

TEST(ConnectionString, NamesTheDatabaseFile) {
  EXPECT_EQ(data::connectionString(u"C:\\Program Files\\kk.dat"),
            u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Program Files\\kk.dat;"
            u"Persist Security Info=False");
}

TEST(ConnectionString, GivesItsThreeValues) {
  const data::ConnectionString parsed = parseConnectionString(
      u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Lexilo\\kk.dat;"
      u"Persist Security Info=False");
  EXPECT_EQ(parsed.provider, u"Microsoft.Jet.OLEDB.4.0");
  EXPECT_EQ(parsed.dataSource, u"C:\\Lexilo\\kk.dat");
  EXPECT_EQ(parsed.persistSecurityInfo, u"False");
}

TEST(ConnectionString, KeepsFolderNamesWithItsOwnPunctuation) {
  for (const std::u16string file :
       {u"C:\\a;b\\kk.dat", u"C:\\a=b\\kk.dat", u"C:\\a;b=c\\kk.dat", u"C:\\it's \"x\"\\kk.dat",
        u"C:\\;;\\kk.dat", u"C:\\词典；\\kk.dat", u"C:\\provider\\kk.dat",
        u"C:\\x;Provider=y\\kk.dat", u"C:\\x;Data Source=y\\kk.dat", u"C:\\x;data source\\kk.dat",
        u"C:\\x; data  source =y\\kk.dat", u"/home/x;=/kk.dat"}) {
    EXPECT_EQ(dataSourceOf(file), file);
  }
}

TEST(ConnectionString, TakesKeysInAnyCaseAndOrder) {
  const data::ConnectionString parsed =
      parseConnectionString(u"PERSIST security INFO=True; data SOURCE = x;y.dat ;provider=P");
  EXPECT_EQ(parsed.provider, u"P");
  EXPECT_EQ(parsed.dataSource, u"x;y.dat");
  EXPECT_EQ(parsed.persistSecurityInfo, u"True");
}

TEST(ConnectionString, LeavesOutWhatIsNotThere) {
  EXPECT_EQ(parseConnectionString(u"").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"kk.dat").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"Provider=P").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"Data Source=").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"Data Source=;Provider=P").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"Data Source=a.dat").dataSource, u"a.dat");
  EXPECT_EQ(parseConnectionString(u";Data Source=a.dat;").dataSource, u"a.dat;");
  EXPECT_EQ(parseConnectionString(u"nonsense;Data Source=a.dat").dataSource, u"a.dat");
}

}  // namespace
