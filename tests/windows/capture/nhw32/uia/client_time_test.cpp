#include <objbase.h>

#include <string>
#include <thread>

#include "tests/support/window/uia_test.h"

namespace support {
namespace {

using nhw32::Outcome;
using namespace std::chrono_literals;

class UiaClientTimeTest : public UiaTest {
 protected:
  UiaClientTimeTest() { showText(u"one hello two"); }

  const nhw32::ScreenPoint kPoint = grid::at(0, 6);
};

TEST_F(UiaClientTimeTest, TellsTheClientHowLongACallMayTake) {
  EXPECT_EQ(wordAt(kPoint), u"hello");
  EXPECT_EQ(log().transactionLimit, 200U);
  EXPECT_FALSE(log().takesFocus);
}

TEST_F(UiaClientTimeTest, ConnectingToAProgramMayTakeLongAtFirst) {
  EXPECT_EQ(wordAt(kPoint), u"hello");
  EXPECT_EQ(log().connectionLimits, (std::vector<DWORD>{2000, 200})) << "not for its parents";
  EXPECT_EQ(wordAt(kPoint), u"hello");
  EXPECT_EQ(wordAt(kPoint), u"hello");
  EXPECT_EQ(log().connectionLimits, (std::vector<DWORD>{2000, 200}));

  const nhw32::Question another{reinterpret_cast<nhw32::WindowId>(GetDesktopWindow()), kPoint};
  GetWindowThreadProcessId(GetDesktopWindow(), &plan().elements.front().process);
  ASSERT_NE(plan().elements.front().process, GetCurrentProcessId());
  for (int i = 0; i < 2; ++i) EXPECT_EQ(reader_->wordAt(another).outcome, Outcome::kWord);
  EXPECT_EQ(log().connectionLimits, (std::vector<DWORD>{2000, 200, 2000, 200}));
}

TEST_F(UiaClientTimeTest, WaitsForASlowProgramWithinTheLimit) {
  EXPECT_EQ(wordAt(kPoint), u"hello");
  plan().perCall = 25ms;
  EXPECT_EQ(wordAt(kPoint), u"hello");
}

TEST_F(UiaClientTimeTest, WaitsLongerForTheFirstAnswerOfAProgramButTakesNoStaleWord) {
  plan().perCall = 140ms;
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  EXPECT_EQ(outcome(kPoint), Outcome::kUiaOutOfTime);
  plan().perCall = 20ms;
  EXPECT_EQ(wordAt(kPoint), u"hello");
}

TEST_F(UiaClientTimeTest, WaitsLongForTheFirstAnswerOnlyOnce) {
  plan().perCall = 200ms;
  auto start = log().now;
  EXPECT_EQ(outcome(kPoint), Outcome::kUiaOutOfTime);
  EXPECT_EQ(log().now - start, 2s);
  start = log().now;
  EXPECT_EQ(outcome(kPoint), Outcome::kUiaOutOfTime);
  EXPECT_EQ(log().now - start, 400ms);
}

TEST_F(UiaClientTimeTest, GivesUpWhenAnotherCallCouldEndTooLate) {
  EXPECT_EQ(wordAt(kPoint), u"hello");
  for (const auto perCall : {28ms, 30ms, 60ms, 100ms, 200ms}) {
    plan().perCall = perCall;
    log().calls.clear();
    log().localCalls = 0;
    const auto start = log().now;
    EXPECT_EQ(outcome(kPoint), Outcome::kUiaOutOfTime) << perCall.count();
    EXPECT_GT(log().now - start, 300ms);
    EXPECT_LE(log().now - start, 500ms) << perCall.count();
    EXPECT_LE(static_cast<long long>(uia_.remoteCalls()), 500ms / perCall);
  }
}

TEST_F(UiaClientTimeTest, TakesTheAnswerOfTheLastCallHoweverLate) {
  EXPECT_EQ(wordAt(kPoint), u"hello");
  const std::size_t last = log().calls.size();
  log().calls.clear();
  plan().onCall = [&] {
    if (log().calls.size() == last) log().now += 450ms;
  };
  EXPECT_EQ(wordAt(kPoint), u"hello");
}

TEST_F(UiaClientTimeTest, CountsTheTimeOfTheSystemsClock) {
  const nhw32::UiaSystem usual{.makeClient = {}};
  const auto before = std::chrono::steady_clock::now();
  const auto seen = usual.now();
  EXPECT_GE(seen, before);
  EXPECT_LE(seen, std::chrono::steady_clock::now());
}

TEST_F(UiaClientTimeTest, RetriesAMissingClientAfterAMinute) {
  int tries = 0;
  HRESULT result = REGDB_E_CLASSNOTREG;
  reader_ = nhw32::makeUiaReader({[&](nhw32::IUIAutomation2** client) {
                                    ++tries;
                                    return FAILED(result) ? result : makeFakeUia(uia_, client);
                                  },
                                  system().now});
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(outcome(kPoint), Outcome::kNone);
    log().now += 100ms;
  }
  EXPECT_EQ(tries, 1);

  result = S_OK;
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  log().now += 50s;
  EXPECT_EQ(wordAt(kPoint), u"hello");
  EXPECT_EQ(wordAt(kPoint), u"hello");
  EXPECT_EQ(tries, 2);
}

TEST_F(UiaClientTimeTest, AsksNothingIfACallCouldTakeLong) {
  plan().refused = {"put_TransactionTimeout"};
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  plan().refused = {"put_ConnectionTimeout"};
  reader_ = nhw32::makeUiaReader(system());
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  plan().refused = {"put_TransactionTimeout", "get_TransactionTimeout"};
  plan().ownLimit = 200;
  reader_ = nhw32::makeUiaReader(system());
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  plan().refused = {"put_TransactionTimeout"};
  plan().ownLimit = 0;
  reader_ = nhw32::makeUiaReader(system());
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  EXPECT_TRUE(log().calls.empty());
  EXPECT_EQ(log().live, 0);
}

TEST_F(UiaClientTimeTest, TakesAClientWhoseOwnLimitsAreShort) {
  plan().refused = {"put_TransactionTimeout", "put_ConnectionTimeout"};
  plan().ownLimit = 2000;
  EXPECT_EQ(wordAt(kPoint), u"hello");
  EXPECT_EQ(wordAt(kPoint), u"hello");
}

TEST_F(UiaClientTimeTest, AsksNothingIfACallCouldMoveTheFocus) {
  plan().refused = {"put_AutoSetFocus"};
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  EXPECT_TRUE(log().calls.empty());
  log().takesFocus = false;
  reader_ = nhw32::makeUiaReader(system());
  EXPECT_EQ(wordAt(kPoint), u"hello");
}

TEST_F(UiaClientTimeTest, ReplacesAClientThatCannotBePreparedAfterAMinute) {
  for (const auto* const name :
       {"CreateCacheRequest", "AddProperty", "AddPattern", "get_RawViewCondition", "put_TreeFilter",
        "get_ControlViewWalker"}) {
    plan().refused = {name};
    reader_ = nhw32::makeUiaReader(system());
    EXPECT_EQ(outcome(kPoint), Outcome::kNone) << name;
    EXPECT_EQ(log().live, 0) << name;
    plan().refused.clear();
    EXPECT_EQ(outcome(kPoint), Outcome::kNone) << name;
    log().now += 60s;
    EXPECT_EQ(wordAt(kPoint), u"hello") << name;
    reader_.reset();
  }
}

TEST_F(UiaClientTimeTest, SurvivesANullOrThrowingClient) {
  reader_ = nhw32::makeUiaReader({[](nhw32::IUIAutomation2**) { return S_OK; }, system().now});
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  reader_ = nhw32::makeUiaReader(
      {[](nhw32::IUIAutomation2**) -> HRESULT { throw std::bad_alloc(); }, system().now});
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
}

TEST_F(UiaClientTimeTest, AsksNothingInASingleThreadedApartment) {
  Outcome seen = Outcome::kWord;
  std::thread([&] {
    const HRESULT result = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    seen = outcome(kPoint);
    reader_.reset();
    if (SUCCEEDED(result)) CoUninitialize();
  }).join();
  EXPECT_EQ(seen, Outcome::kNone);
  EXPECT_TRUE(log().calls.empty());
}

TEST_F(UiaClientTimeTest, TheSystemsClientFindsNoWordInAWindowWithoutText) {
  reader_ = nhw32::makeUiaReader();
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 20; ++i) EXPECT_EQ(outcome({-20000, -20000}), Outcome::kNone);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 2s);
}

}  // namespace
}  // namespace support
