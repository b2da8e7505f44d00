#include "dictionary/arrange/term_check.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/unit/dictionary/arrange/pair_collector_test.h"

namespace {

using dictionary::ChineseEntry;
using dictionary::ChineseSources;
using dictionary::GlossValue;
using dictionary::Subject;
using dictionary::Vocabulary;
using pair_collector_test::collect;
using pair_collector_test::entry;

std::vector<std::u16string> texts(const std::vector<dictionary::Term>& terms) {
  std::vector<std::u16string> result;
  for (const dictionary::Term& term : terms) result.push_back(term.english + u"=" + term.chinese);
  return result;
}

TEST(MisplacedTerms, AreThoseThatASourceGivesAndGivenOnesThatNoneGives) {
  const Vocabulary vocabulary = collect({entry("Cloud", "n. 云")});
  const auto law = Subject::kLaw;
  const ChineseEntry cloudComputing{u"云计算", {{u"cloud computing", 2, 0, GlossValue::kPair}}};
  const ChineseSources sources{{cloudComputing},
                               {{u"cloud", u"云", law},
                                {u"cloud", u"云端", law},
                                {u"cloud computing", u"云计算", law},
                                {u"cloud computing", u"云", law},
                                {u"Cloud", u"云", law, true},
                                {u"clouds", u"云", law, true},
                                {u"cloud computing", u"云计算", law, true}},
                               {}};
  EXPECT_EQ(texts(dictionary::misplacedTerms(vocabulary, sources)),
            (std::vector<std::u16string>{u"cloud=云", u"cloud computing=云计算", u"clouds=云"}));
}

TEST(TermsWithoutRow, AreThoseOfWhichNoPairIsChosen) {
  const Vocabulary vocabulary = collect({entry("Cloud", "n. 云, 云端"), entry("it", "pron. 它")});
  const std::vector<dictionary::Term> terms = {{u"cloud", u"云", Subject::kLaw},
                                               {u"cloud", u"云端", {}, true},
                                               {u"IT", u"信息技术", {}},
                                               {u"cloud", u"它", {}}};
  EXPECT_EQ(texts(termsWithoutRow(terms, vocabulary, {true, false, true})),
            (std::vector<std::u16string>{u"cloud=云端", u"IT=信息技术", u"cloud=它"}));
}

}  // namespace
