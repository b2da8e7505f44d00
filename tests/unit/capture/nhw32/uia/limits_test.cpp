#include "capture/nhw32/uia/limits.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

TEST(Consoles, AreKnownByTheirClass) {
  EXPECT_TRUE(nhw32::isConsole(u"ConsoleWindowClass"));
  EXPECT_TRUE(nhw32::isConsole(u"MyConsoleWindowClass2"));
  EXPECT_FALSE(nhw32::isConsole(u"consolewindowclass"));
  EXPECT_FALSE(nhw32::isConsole(u"_WwG"));
  EXPECT_FALSE(nhw32::isConsole(u""));
}

TEST(Consoles, MayBeAskedFromWindows11Version22H2On) {
  for (const std::uint32_t build : {0U, 7601U, 19045U, 20348U, 22000U, 22620U}) {
    EXPECT_FALSE(nhw32::mayAskConsoles(build)) << build;
  }
  for (const std::uint32_t build : {22621U, 22631U, 26100U}) {
    EXPECT_TRUE(nhw32::mayAskConsoles(build)) << build;
  }
}

TEST(Contacts, AreFirstOnce) {
  nhw32::Contacts contacts;
  EXPECT_TRUE(contacts.isFirst(8));
  EXPECT_TRUE(contacts.isFirst(12));
  EXPECT_FALSE(contacts.isFirst(8));
  EXPECT_FALSE(contacts.isFirst(12));
}

TEST(Contacts, RememberSixtyFourProcesses) {
  nhw32::Contacts contacts;
  for (std::uint32_t process = 1; process <= 65; ++process) EXPECT_TRUE(contacts.isFirst(process));
  for (std::uint32_t process = 2; process <= 65; ++process) EXPECT_FALSE(contacts.isFirst(process));
  EXPECT_TRUE(contacts.isFirst(1));
}

TEST(Retry, IsDueAtFirstAndAfterThePause) {
  nhw32::Retry retry(60s);
  const nhw32::Retry::Time start{};
  EXPECT_TRUE(retry.due(start));
  retry.failed(start);
  EXPECT_FALSE(retry.due(start));
  EXPECT_FALSE(retry.due(start + 59'999ms));
  EXPECT_TRUE(retry.due(start + 60s));
  retry.failed(start + 60s);
  EXPECT_FALSE(retry.due(start + 119s));
}

}  // namespace
