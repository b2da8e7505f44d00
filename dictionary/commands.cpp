// The command line. Each command is a call of the function that does the work (build.h, check.h,
// word_lookup.h, coverage/); here are only arguments, output and exit codes. The number of
// arguments decides, and a file name may begin with any character; "coverage --chinese" with two
// more is the only option.

#include "dictionary/commands.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <optional>
#include <string_view>

#include "dictionary/build.h"
#include "dictionary/check/check.h"
#include "dictionary/console.h"
#include "dictionary/coverage/chinese_coverage.h"
#include "dictionary/coverage/coverage.h"
#include "dictionary/word_lookup.h"
#include "text/utf.h"

namespace dictionary {
namespace {

constexpr std::string_view kUsage =
    "kkbuild makes and checks kk.dat, the dictionary database.\n"
    "\n"
    "  kkbuild build SOURCE.csv OUTPUT   builds OUTPUT from comma-separated source data\n"
    "  kkbuild build SOURCE.csv CHINESE.js FREQUENCIES TERMS OUTPUT\n"
    "                                    builds OUTPUT from all sources: also a Chinese-English\n"
    "                                    one, word frequencies, and a folder of lists of terms\n"
    "  kkbuild check FILE [SOURCE.csv]   checks every rule of a database\n"
    "  kkbuild lookup FILE WORD          shows what the quick lookup window shows for WORD\n"
    "  kkbuild coverage FILE TEXT...     counts the words of English texts that the popup finds\n"
    "  kkbuild coverage --chinese FILE LIST\n"
    "                                    counts the most frequent Chinese words that are found\n"
    "  kkbuild --help                    shows this text\n"
    "\n"
    "build replaces an existing OUTPUT only by a complete and checked new one; it reports lines\n"
    "that cannot be read and goes on. check needs the source for the rules about what a database\n"
    "must have of it. coverage reads plain texts and HTML, packed by gzip or not.\n"
    "The exit code is 0 for success, 1 if the database could not be built, breaks a rule or has "
    "no\n"
    "such word, or a file cannot be read, 2 for wrong arguments.\n";

/// How many headwords the lists of frequent words show, of which a user sees some thirty at once.
void printListLengths(const std::vector<std::size_t>& lengths, std::ostream& out) {
  const auto below = [&](std::size_t limit) {
    const auto count = std::ranges::lower_bound(lengths, limit) - lengths.begin();
    return percentage(static_cast<std::size_t>(count), lengths.size());
  };
  out << "lists of " << grouped(lengths.size())
      << " frequent English words: " << (lengths.empty() ? 0 : lengths[lengths.size() / 2])
      << " headwords at the median, " << below(10) << " with fewer than 10, " << below(20)
      << " with fewer than 20\n";
}

/// Lists that end cut are reported, but break no rule: building without any is impossible.
ExitCode runCheck(const std::vector<std::string>& arguments, std::ostream& out) {
  std::optional<SourceFacts> facts;
  if (arguments.size() > 2) facts = readSourceFacts(pathOf(arguments[2]));
  const CheckResult result = checkDatabase(pathOf(arguments[1]), facts ? &*facts : nullptr);
  result.findings.print(out);
  out << grouped(result.pairs) << " pairs of " << grouped(result.englishHeadwords)
      << " English and " << grouped(result.chineseHeadwords) << " Chinese headwords; "
      << grouped(result.dictionaries) << " subject dictionaries with "
      << grouped(result.subjectRows) << " rows\n"
      << grouped(result.cutLists) << " of " << grouped(result.chineseLists) << " Chinese lists ("
      << percentage(result.cutLists, result.chineseLists)
      << ") end with a headword of which not all meanings are shown\n";
  if (facts) {
    out << grouped(result.untranslatedWords)
        << " important words have no Chinese text in the source; "
        << grouped(result.untranslatedWithoutRow) << " of them have no row\n";
    printListLengths(result.frequentLists, out);
  } else {
    out << "the rules about the source are not checked without it\n";
  }
  out << (result.findings.empty() ? (facts ? "all rules are kept\n" : "all other rules are kept\n")
                                  : "the database breaks the rules above\n");
  return result.findings.empty() ? kSuccess : kFailed;
}

/// Prints the list, an empty line and the meaning of its first headword.
ExitCode runLookup(const std::string& file, const std::string& word, std::ostream& out,
                   std::ostream& err) {
  const LookupResult result = lookUp(pathOf(file), text::toUtf16(word));
  if (result.headwords.empty()) {
    err << "kkbuild: no headword follows \"" << word << "\"\n";
    return kFailed;
  }
  for (const std::u16string& headword : result.headwords) out << text::toUtf8(headword) << '\n';
  std::string meaning = text::toUtf8(result.meaning);
  std::erase(meaning, '\r');  // the window's lines end with CR LF, the console's with LF
  out << '\n' << meaning << '\n';
  return kSuccess;
}

ExitCode runCoverage(const std::vector<std::string>& arguments, std::ostream& out) {
  std::vector<std::filesystem::path> texts;
  std::transform(arguments.begin() + 2, arguments.end(), std::back_inserter(texts), pathOf);
  reportCoverage(pathOf(arguments[1]), texts, out);
  return kSuccess;
}

ExitCode dispatch(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
  const std::string command = arguments.empty() ? "" : arguments[0];
  if (command == "--help" || command == "-h" || command == "help") {
    out << kUsage;
    return kSuccess;
  }
  if (command == "build" && (arguments.size() == 3 || arguments.size() == 6)) {
    SourceFiles sources{.english = pathOf(arguments[1])};
    if (arguments.size() == 6) {
      sources.chinese = pathOf(arguments[2]);
      sources.wordFrequencies = pathOf(arguments[3]);
      sources.terms = pathOf(arguments[4]);
    }
    buildDatabase(sources, pathOf(arguments.back()), err);
    return kSuccess;
  }
  if (command == "check" && (arguments.size() == 2 || arguments.size() == 3)) {
    return runCheck(arguments, out);
  }
  if (command == "lookup" && arguments.size() == 3) {
    return runLookup(arguments[1], arguments[2], out, err);
  }
  if (command == "coverage" && arguments.size() == 4 && arguments[1] == "--chinese") {
    reportChineseCoverage(pathOf(arguments[2]), pathOf(arguments[3]), out);
    return kSuccess;
  }
  if (command == "coverage" && arguments.size() >= 3) return runCoverage(arguments, out);
  err << kUsage;
  return kMisused;
}

}  // namespace

ExitCode runCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err) {
  try {
    return dispatch(arguments, out, err);
  } catch (const std::exception& error) {
    err << "kkbuild: " << error.what() << '\n';
    return kFailed;
  }
}

}  // namespace dictionary
