#include "capture/why/report.h"

#include <gtest/gtest.h>

#include "tests/support/data/plain_readings.h"
#include "text/utf.h"

namespace capture {
namespace {

WhyFindings inNotepad() {
  WhyFindings findings;
  findings.point = {-12, 318};
  findings.program = u"notepad.exe";
  findings.diagnosis.className = u"Edit";
  findings.diagnosis.realClassName = u"Edit";
  findings.diagnosis.reader = nhw32::ReaderKind::kEdit;
  findings.diagnosis.answer = {
      .outcome = nhw32::Outcome::kWord,
      .word = {.readings = text::readingsAt(u"the man's", 5), .box = {-20, 310, 41, 326}}};
  findings.diagnosis.time = std::chrono::microseconds(2349);
  return findings;
}

std::string reportOf(const WhyFindings& findings) { return text::toUtf8(whyReport(findings)); }

TEST(WhyReport, SaysWhatWasFound) {
  EXPECT_EQ(reportOf(inNotepad()),
            "Point             -12, 318\n"
            "Program           notepad.exe\n"
            "Window class      Edit\n"
            "Real class        Edit\n"
            "Probed            yes, by the entry \"Edit\"\n"
            "Further windows   off\n"
            "Read by           messages of edit controls\n"
            "Word              \"man's\", \"man\"\n"
            "Its place         -20, 310 to 41, 326\n"
            "Time              2.3 ms\n");
}

TEST(WhyReport, NamesTheFirstEntryThatAdmitsTheWindow) {
  WhyFindings findings = inNotepad();
  findings.diagnosis.className = u"RichEdit20W";
  EXPECT_NE(reportOf(findings).find("yes, by the entry \"RichEdit20W\"\n"), std::string::npos);
}

TEST(WhyReport, EndsWithTheClassesOfAWindowThatIsNotAsked) {
  WhyFindings findings = inNotepad();
  findings.diagnosis.className = u"Button";
  findings.diagnosis.realClassName = u"Button";
  EXPECT_FALSE(isAsked(findings));
  EXPECT_EQ(reportOf(findings),
            "Point             -12, 318\n"
            "Program           notepad.exe\n"
            "Window class      Button\n"
            "Real class        Button\n"
            "Probed            no: its class contains no entry of either table\n"
            "Further windows   off\n");
}

TEST(WhyReport, NamesTheTableThatAdmitsTheWindow) {
  WhyFindings findings = inNotepad();
  findings.program = u"chrome.exe";
  findings.diagnosis.className = u"Chrome_WidgetWin_1";
  const std::string off = reportOf(findings);
  EXPECT_NE(off.find("Probed            no: a further window, by the entry \"Chrome_WidgetWin_1\", "
                     "and these are off\nFurther windows   off\n"),
            std::string::npos)
      << off;
  EXPECT_FALSE(isAsked(findings));
  findings.furtherWindows = true;
  EXPECT_TRUE(isAsked(findings));
  const std::string on = reportOf(findings);
  EXPECT_NE(on.find("Probed            where the pointer rests: a further window, by the entry "
                    "\"Chrome_WidgetWin_1\"\nFurther windows   on (FurtherWindows=1)\n"),
            std::string::npos)
      << on;
  findings.diagnosis.className = u"Edit";
  EXPECT_NE(reportOf(findings).find("yes, by the entry \"Edit\"\n"), std::string::npos);
}

TEST(WhyReport, SaysThatAProgramIsLeftAlone) {
  WhyFindings findings = inNotepad();
  findings.program = u"Code.exe";
  findings.diagnosis.className = u"Chrome_WidgetWin_1";
  findings.furtherWindows = true;
  EXPECT_FALSE(isAsked(findings));
  EXPECT_NE(reportOf(findings).find("no: a further window, but its program is left alone\n"),
            std::string::npos);
}

TEST(WhyReport, SaysWhyThereIsNoWord) {
  using nhw32::Outcome;
  for (const auto& [outcome, said] :
       {std::pair(Outcome::kNone, "none: there is no word, or the window does not tell its text\n"),
        {Outcome::kRefused, "none: the window may not be asked"},
        {Outcome::kOutOfTime, "none: the window did not answer in time\n"},
        {Outcome::kUiaOutOfTime, "none: the window did not answer in time\n"}}) {
    WhyFindings findings = inNotepad();
    findings.diagnosis.answer.outcome = outcome;
    const std::string report = reportOf(findings);
    EXPECT_NE(report.find(said), std::string::npos) << report;
    EXPECT_EQ(report.find("Its place"), std::string::npos);
    EXPECT_EQ(report.find("man"), std::string::npos);
  }
}

TEST(WhyReport, NamesTheReader) {
  using nhw32::ReaderKind;
  for (const auto& [reader, said] :
       {std::pair(std::optional(ReaderKind::kRichEdit), "messages of rich edit controls\n"),
        {std::optional(ReaderKind::kUia), "UI Automation\n"},
        {std::optional<ReaderKind>(), "nobody: the window does not answer\n"}}) {
    WhyFindings findings = inNotepad();
    findings.diagnosis.reader = reader;
    EXPECT_NE(reportOf(findings).find("Read by           " + std::string(said)), std::string::npos);
  }
}

TEST(WhyReport, NeverShowsAPassword) {
  WhyFindings findings = inNotepad();
  findings.diagnosis.isPassword = true;
  const std::string report = reportOf(findings);
  EXPECT_NE(report.find("a password field, which is never read\n"), std::string::npos);
  EXPECT_EQ(report.find("man"), std::string::npos);
  EXPECT_EQ(report.find("Its place"), std::string::npos);
}

TEST(WhyReport, LeavesOutAProgramThatIsNotTold) {
  WhyFindings findings = inNotepad();
  findings.program.clear();
  EXPECT_NE(reportOf(findings).find("Program           not told\n"), std::string::npos);
}

}  // namespace
}  // namespace capture
