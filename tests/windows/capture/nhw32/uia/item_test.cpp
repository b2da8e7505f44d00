// Cells, headers and links: elements of one word that have no text pattern.
#include <string>

#include "tests/support/data/plain_readings.h"
#include "tests/support/window/uia_test.h"

namespace support {
namespace {

using nhw32::Outcome;

constexpr int kText = 50020;

class UiaItemTest : public UiaTest {
 protected:
  UiaItemTest() { plan().elements.resize(3); }

  ElementPlan& showItem(int type, std::u16string name, std::optional<std::u16string> value = {}) {
    ElementPlan& item = plan().elements.front();
    item.type = type;
    item.name = std::move(name);
    item.value = std::move(value);
    item.place = {100, 200, 80, 20};
    return item;
  }

  const nhw32::ScreenPoint kPoint{150, 205};
};

TEST_F(UiaItemTest, ACellOfOneWordIsItsValue) {
  showItem(nhw32::kDataItemControlType, u"A1", u" Revenue ");
  const auto answer = ask(kPoint);
  EXPECT_EQ(plainWord(answer.word.readings), u"Revenue");
  EXPECT_EQ(answer.word.box, (nhw32::ScreenBox{100, 200, 180, 220}));
}

TEST_F(UiaItemTest, AnEmptyCellIsNotItsPlace) {
  showItem(nhw32::kDataItemControlType, u"Cell", u"");
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
}

TEST_F(UiaItemTest, ACellWithoutAValueIsItsName) {
  showItem(nhw32::kDataItemControlType, u"Total");
  EXPECT_EQ(wordAt(kPoint), u"Total");
}

TEST_F(UiaItemTest, HeadersAndLinksAreTheirNames) {
  showItem(nhw32::kHeaderItemControlType, u"Country");
  EXPECT_EQ(wordAt(kPoint), u"Country");
  showItem(nhw32::kHyperlinkControlType, u"Imprint", u"address");
  EXPECT_EQ(wordAt(kPoint), u"Imprint");
}

TEST_F(UiaItemTest, SeveralWordsCannotBeTold) {
  for (const auto* text : {u"two words", u"42", u"", u"word, "}) {
    showItem(nhw32::kDataItemControlType, u"A1", text);
    EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  }
}

TEST_F(UiaItemTest, OtherElementsAreNotAskedForTheirNames) {
  for (const int type : {kText, 50000, 50033}) {
    showItem(type, u"word", u"word");
    EXPECT_EQ(outcome(kPoint), Outcome::kNone) << type;
  }
  EXPECT_EQ(uia_.times("GetCurrentPropertyValue"), 0U);
}

TEST_F(UiaItemTest, AnItemWithinAnItemIsTheInnerOne) {
  showItem(kText, u"two words");
  plan().elements[1] = plan().elements[0];
  plan().elements[1].type = nhw32::kDataItemControlType;
  plan().elements[1].name = u"word";
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
}

TEST_F(UiaItemTest, ATextAboveItIsReadInstead) {
  showItem(nhw32::kHyperlinkControlType, u"link");
  plan().elements[2].text = true;
  plan().text = u"some text";
  EXPECT_EQ(wordAt(grid::at(0, 5)), u"text");
  EXPECT_EQ(outcome(grid::at(0, 4)), Outcome::kNone);
  EXPECT_EQ(uia_.times("GetCurrentPropertyValue"), 0U);
}

TEST_F(UiaItemTest, IsNeverReadInAPasswordField) {
  showItem(nhw32::kDataItemControlType, u"secret", u"secret");
  for (auto& element : plan().elements) {
    element.password = true;
    EXPECT_EQ(outcome(kPoint), Outcome::kNone);
    element.password = false;
  }
  plan().elements[1].passwordType = VT_EMPTY;
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  EXPECT_EQ(uia_.times("GetCurrentPropertyValue"), 0U);
}

TEST_F(UiaItemTest, IsNotReadInAnotherProgramsWindow) {
  showItem(nhw32::kDataItemControlType, u"word");
  for (auto& element : plan().elements) element.process = GetCurrentProcessId() + 4;
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  plan().elements[1].text = true;
  EXPECT_EQ(outcome(kPoint), Outcome::kNone);
  plan().elements[1].text = false;
  EXPECT_EQ(uia_.times("GetCurrentPropertyValue"), 0U);
  plan().elements[2].window = window_.get();
  EXPECT_EQ(wordAt(kPoint), u"word");
}

TEST_F(UiaItemTest, IsNoneIfItsPlaceIsNotUnderThePoint) {
  ElementPlan& item = showItem(nhw32::kDataItemControlType, u"word");
  for (const std::vector<double>& place : {std::vector<double>{0, 0, 50, 20}, {100, 200, 80}, {}}) {
    item.place = place;
    EXPECT_EQ(outcome(kPoint), Outcome::kNone) << place.size();
  }
}

TEST_F(UiaItemTest, AFailureOfAnyCallIsNoWord) {
  showItem(nhw32::kDataItemControlType, u"A1", u"word");
  EXPECT_EQ(wordAt(kPoint), u"word");
  const auto calls = log().calls;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    for (const HRESULT result : {E_FAIL, S_OK}) {
      log().calls.clear();
      plan().trouble = Trouble{.call = i, .result = result};
      const auto word = wordAt(kPoint);
      EXPECT_TRUE(word.empty() || (result == S_OK && word == u"word")) << i << " " << calls[i];
      EXPECT_EQ(log().live, kKept);
    }
  }
}

}  // namespace
}  // namespace support
