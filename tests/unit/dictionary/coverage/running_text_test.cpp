#include "dictionary/coverage/running_text.h"

#include <gtest/gtest.h>

#ifndef _WIN32  // kkbuild for Windows reads no texts: see coverage_test.cpp

#include <zlib.h>

#include <string>

#include "dictionary/console.h"
#include "tests/support/data/temp_folder.h"

namespace {

class ReadRunningText : public testing::Test {
 protected:
  std::u16string read(std::string_view bytes) {
    support::writeFile(file_, bytes);
    return dictionary::readRunningText(file_);
  }

  std::string failure() {
    try {
      dictionary::readRunningText(file_);
    } catch (const dictionary::Failure& error) {
      return error.what();
    }
    return "none";
  }

  void pack(std::string_view bytes) {
    gzFile file = gzopen(file_.c_str(), "wb");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(gzwrite(file, bytes.data(), static_cast<unsigned>(bytes.size())),
              static_cast<int>(bytes.size()));
    EXPECT_EQ(gzclose(file), Z_OK);
  }

  support::TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"text");
};

TEST_F(ReadRunningText, ReturnsPlainTextAsItIs) {
  EXPECT_EQ(read("Plain text,\r\nwith a < b & c > d; 文.\n"),
            u"Plain text,\r\nwith a < b & c > d; 文.\n");
  EXPECT_EQ(read("1 < 2"), u"1 < 2");
  EXPECT_EQ(read("< a"), u"< a");
  EXPECT_EQ(read("<"), u"<");
  EXPECT_EQ(read(""), u"");
}

TEST_F(ReadRunningText, ReadsInvalidBytesAsLatin1) {
  EXPECT_EQ(read("caf\xE9, caf\xC3\xA9 \xFF"), u"café, café ÿ");
  EXPECT_EQ(read("<p>caf\xE9, caf\xC3\xA9"), u"\n\n\n\n\n\ncafé, café\n\n\n\n\n\n");
}

TEST_F(ReadRunningText, Unpacks) {
  pack("A packed text");
  EXPECT_EQ(dictionary::readRunningText(file_), u"A packed text");
  pack("<html><body>A <b>pack</b>ed page</body></html>");
  EXPECT_EQ(dictionary::readRunningText(file_), u"\n\n\n\nA packed page\n\n\n\n");
}

TEST_F(ReadRunningText, EndsWordsAtBlocksOnly) {
  const std::u16string text = read(
      "<!DOCTYPE html>\n<html><body><p>in<i>ter</i>face<b>s</b><p>a<br>b"
      "<ul><li>c<li>d</ul>e<table><tr><td>f<td>g</table>H<sub>2</sub>O</body></html>");
  const auto has = [&](std::u16string_view part) { return text.find(part) != text.npos; };
  EXPECT_TRUE(has(u"\n\ninterfaces\n\n"));
  EXPECT_TRUE(has(u"\n\na\n"));
  EXPECT_TRUE(has(u"a\n\nb\n\n")) << "the line's end and that of its empty element";
  EXPECT_TRUE(has(u"\n\nc\n\n"));
  EXPECT_TRUE(has(u"\n\nd\n\n"));
  EXPECT_TRUE(has(u"\n\ne\n\n"));
  EXPECT_TRUE(has(u"\n\nf\n\n"));
  EXPECT_TRUE(has(u"H2O"));
}

TEST_F(ReadRunningText, EndsNoWordAtElementsWithinALine) {
  for (const std::string name :
       {"a",    "abbr",   "acronym", "b",   "bdi", "bdo",  "big", "cite", "del",
        "dfn",  "em",     "font",    "i",   "ins", "mark", "q",   "s",    "small",
        "span", "strike", "strong",  "sub", "sup", "u",    "wbr"}) {
    const std::u16string text = read("<p>in<" + name + ">ter</" + name + ">face</p>");
    EXPECT_NE(text.find(u"interface"), text.npos) << name;
  }
}

TEST_F(ReadRunningText, LeavesOutProgramTexts) {
  for (const std::string name : {"script", "style", "pre", "code", "tt", "kbd", "samp", "var"}) {
    const std::string element = "<" + name + ">left<b>out</b></" + name + ">";
    const std::u16string text = read("<div>the" + element + "rest<!-- left --></div>");
    EXPECT_EQ(text.find(u"left"), text.npos) << name;
    EXPECT_EQ(text.find(u"out"), text.npos) << name;
    EXPECT_NE(text.find(u"the  rest"), text.npos) << name;
  }
}

TEST_F(ReadRunningText, HasNoLineEndsOfTheHtmlSource) {
  EXPECT_EQ(read("<p>well-\nknown\r\n\tword &amp; &eacute;</p>"),
            u"\n\n\n\n\n\nwell- known   word & é\n\n\n\n\n\n");
}

TEST_F(ReadRunningText, ReadsPartsOfPages) {
  for (const std::string begin : {"<h1>", "\xEF\xBB\xBF<h1>", "\n <h1>", "<!-- x --><h1>",
                                  "<?xml version='1.0'?><html><h1>"}) {
    const std::u16string text = read(begin + "A title</h1> text");
    EXPECT_NE(text.find(u"\n\nA title\n\n"), text.npos) << begin;
    EXPECT_EQ(text.find(u'<'), text.npos) << begin;
  }
  EXPECT_EQ(read("<!-- nothing -->"), u"");
}

TEST_F(ReadRunningText, ReadsDeepPages) {
  std::string page = "<p>top";
  for (int i = 0; i < 100'000; ++i) page += "<span>";
  EXPECT_NE(read(page).find(u"top"), std::u16string::npos);
}

TEST_F(ReadRunningText, SaysWhatCannotBeRead) {
  const std::string name = dictionary::displayName(file_);
  EXPECT_EQ(failure(), name + " cannot be read");
  pack("A packed text that is long enough to be cut off, and is");
  const std::string whole = support::readFile(file_);
  support::writeFile(file_, whole.substr(0, whole.size() - 12));
  EXPECT_EQ(failure(), name + " cannot be unpacked: it ends too early");
  std::string wrong = whole;
  wrong[wrong.size() - 6] = static_cast<char>(~wrong[wrong.size() - 6]);
  support::writeFile(file_, wrong);
  EXPECT_EQ(failure(), name + " cannot be read or unpacked");
}

TEST_F(ReadRunningText, RefusesEndlessTexts) {
  gzFile file = gzopen(file_.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  const std::string block(std::size_t{1} << 20U, 'a');
  for (std::size_t size = 0; size <= dictionary::kMaxTextBytes; size += block.size()) {
    gzwrite(file, block.data(), static_cast<unsigned>(block.size()));
  }
  gzclose(file);
  EXPECT_EQ(failure(), dictionary::displayName(file_) + " is too long");
}

TEST_F(ReadRunningText, ReadsTagsInCapitals) {
  const std::u16string text = read("<P>in<I>ter</I>face<BR>a<SCRIPT>left</SCRIPT>b</P>");
  EXPECT_NE(text.find(u"\n\ninterface\n"), text.npos);
  EXPECT_NE(text.find(u"a  b"), text.npos);
}

}  // namespace

#endif
