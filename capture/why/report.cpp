#include "capture/why/report.h"

#include <algorithm>
#include <string_view>

#include "capture/further_windows.h"
#include "capture/probe.h"
#include "text/utf.h"

namespace capture {
namespace {

std::u16string number(long long value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

/// A line of the report, its value beginning at the same column as all others.
std::u16string line(std::u16string_view name, std::u16string_view value) {
  constexpr std::size_t kColumn = 18;
  std::u16string text(name);
  text.resize(std::max(kColumn, text.size() + 1), u' ');
  text += value;
  text += u'\n';
  return text;
}

std::u16string quoted(std::u16string_view text) { return u"\"" + std::u16string(text) + u"\""; }

/// Class names are compared by their characters in the ANSI code page; those of the table are
/// ASCII.
std::u16string probedText(const WhyFindings& findings) {
  const std::string className = text::toUtf8(findings.diagnosis.className);
  const auto byEntry = [](std::string_view entry) {
    return u"by the entry " + quoted(std::u16string(entry.begin(), entry.end()));
  };
  if (const auto entry = probedAs(className)) return u"yes, " + byEntry(*entry);
  const auto further = furtherAs(className);
  if (!further) return u"no: its class contains no entry of either table";
  if (!findings.furtherWindows) {
    return u"no: a further window, " + byEntry(*further) + u", and these are off";
  }
  if (isLeftAlone(findings.program)) return u"no: a further window, but its program is left alone";
  return u"where the pointer rests: a further window, " + byEntry(*further);
}

std::u16string_view readerText(std::optional<nhw32::ReaderKind> reader) {
  if (!reader) return u"nobody: the window does not answer";
  switch (*reader) {
    case nhw32::ReaderKind::kEdit:
      return u"messages of edit controls";
    case nhw32::ReaderKind::kRichEdit:
      return u"messages of rich edit controls";
    case nhw32::ReaderKind::kUia:
      break;
  }
  return u"UI Automation";
}

/// The readings that a dictionary is asked for, then the one that is taken otherwise.
std::u16string readingsText(const text::Readings& readings) {
  std::u16string listed;
  const auto add = [&listed](const text::Reading& reading) {
    if (!listed.empty()) listed += u", ";
    listed += quoted(reading.word);
  };
  for (const text::Reading& candidate : readings.candidates) add(candidate);
  if (readings.otherwise && std::ranges::find(readings.candidates, readings.otherwise->word,
                                              &text::Reading::word) == readings.candidates.end()) {
    add(*readings.otherwise);
  }
  return listed;
}

std::u16string answerText(const nhw32::Diagnosis& diagnosis) {
  if (diagnosis.isPassword) return u"none: this is a password field, which is never read";
  switch (diagnosis.answer.outcome) {
    case nhw32::Outcome::kWord:
      return readingsText(diagnosis.answer.word.readings);
    case nhw32::Outcome::kRefused:
      return u"none: the window may not be asked (its program may have more rights), or has gone";
    case nhw32::Outcome::kOutOfTime:
    case nhw32::Outcome::kUiaOutOfTime:
      return u"none: the window did not answer in time";
    case nhw32::Outcome::kNone:
      break;
  }
  return u"none: there is no word, or the window does not tell its text";
}

std::u16string boxText(const nhw32::ScreenBox& box) {
  return number(box.left) + u", " + number(box.top) + u" to " + number(box.right) + u", " +
         number(box.bottom);
}

std::u16string timeText(std::chrono::microseconds time) {
  const long long tenths = (time.count() + 50) / 100;
  return number(tenths / 10) + u"." + number(tenths % 10) + u" ms";
}

}  // namespace

bool isAsked(const WhyFindings& findings) {
  const std::string className = text::toUtf8(findings.diagnosis.className);
  return isProbed(className) || (findings.furtherWindows && furtherAs(className).has_value() &&
                                 !isLeftAlone(findings.program));
}

std::u16string whyReport(const WhyFindings& findings) {
  const nhw32::Diagnosis& diagnosis = findings.diagnosis;
  std::u16string report =
      line(u"Point", number(findings.point.x) + u", " + number(findings.point.y)) +
      line(u"Program", findings.program.empty() ? u"not told" : findings.program) +
      line(u"Window class", diagnosis.className) + line(u"Real class", diagnosis.realClassName) +
      line(u"Probed", probedText(findings)) +
      line(u"Further windows", findings.furtherWindows ? u"on (FurtherWindows=1)" : u"off");
  if (!isAsked(findings)) return report;
  report += line(u"Read by", readerText(diagnosis.reader)) + line(u"Word", answerText(diagnosis));
  const bool hasWord = !diagnosis.isPassword && diagnosis.answer.outcome == nhw32::Outcome::kWord;
  if (hasWord) report += line(u"Its place", boxText(diagnosis.answer.word.box));
  return report + line(u"Time", timeText(diagnosis.time));
}

}  // namespace capture
