// The stages of a build. Each has the whole of its result in memory before the next one
// begins: entries are parsed one by one into pairs and subject rows (translation/, arrange/), the
// pairs that fit are chosen (block_packing.h), the tables are written, read back and checked, and
// the file is put in place. Nothing depends on time, locale, thread or the order of a hash table,
// so that a build can be repeated and compared byte by byte.

#include "dictionary/build.h"

#include <fstream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "dictionary/arrange/block_packing.h"
#include "dictionary/arrange/chinese_side.h"
#include "dictionary/arrange/pair_collector.h"
#include "dictionary/arrange/senses.h"
#include "dictionary/arrange/tables.h"
#include "dictionary/arrange/term_check.h"
#include "dictionary/check/check.h"
#include "dictionary/database/temporary_file.h"
#include "dictionary/report.h"
#include "dictionary/source/csv_reader.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// Bad lines that are reported one by one as they are read; the others are reported as ranges at
/// the end, so that a source of another format does not flood the console.
constexpr std::size_t kMaxReportedAtOnce = 20;
/// Entries between two lines of progress: every second or two.
constexpr std::size_t kProgressStep = 200'000;
constexpr std::size_t kMebibyte = std::size_t{1} << 20U;

/// The stages of one build in their order, and what each hands to the next: readSource(),
/// readFurtherSources(), arrangeContent(), publish().
class Builder {
 public:
  explicit Builder(std::ostream& log) : log_(log), progress_(log) {}

  void readSource(std::istream& stream);
  void readFurtherSources(const SourceFiles& files);
  void arrangeContent();
  void publish(const std::filesystem::path& target) {
    publishDatabase(content_, facts_, target, log_, progress_);
  }
  void printReport() const { report_.print(log_); }
  void reportCost();

 private:
  void reportBadLine(const SourceReader& reader);
  void reportFurtherBadLines();
  void addEntry(const SourceEntry& source);
  void addParsed(const Entry& entry);
  void addSubjectRows(const ChineseEntry& entry);
  void refuseMisplacedTerms() const;

  std::ostream& log_;
  Progress progress_;
  BuildReport report_;
  SourceFacts facts_;
  ShortForms shortForms_;
  std::vector<Entry> withShortForms_;  ///< wait until all words are known
  PairCollector pairs_;
  SubjectCollector subjects_;
  ChineseSources further_;
  DatabaseContent content_;
  std::size_t badLines_ = 0;
  std::map<LineFault, LineRanges> furtherBadLines_;
};

void Builder::reportBadLine(const SourceReader& reader) {
  report_.addBadLine(reader.fault());
  if (++badLines_ > kMaxReportedAtOnce) {
    furtherBadLines_[reader.fault()].add(reader.lineNumber());
    return;
  }
  log_ << "line " << reader.lineNumber() << " skipped: " << describe(reader.fault()) << '\n';
  if (badLines_ == kMaxReportedAtOnce) log_ << "further bad lines are named when all is read\n";
}

/// By fault, in as few ranges as there are.
void Builder::reportFurtherBadLines() {
  for (const auto& [fault, lines] : furtherBadLines_) {
    log_ << lines.text() << " skipped: " << describe(fault) << '\n';
  }
}

void Builder::addEntry(const SourceEntry& source) {
  facts_.add(source);
  std::optional<Entry> entry = extractEntry(source);
  if (!entry) {
    report_.addBadHeadword();
    return;
  }
  shortForms_.record(*entry);
  if (hasShortForm(*entry)) {
    withShortForms_.push_back(std::move(*entry));
  } else {
    addParsed(*entry);
  }
}

void Builder::addParsed(const Entry& entry) {
  report_.addEntry(entry, pairs_.add(entry));
  subjects_.add(entry);
}

void Builder::readSource(std::istream& stream) {
  SourceReader reader(stream);
  std::size_t entries = 0;
  for (;;) {
    const SourceReader::Result result = reader.next();
    if (result == SourceReader::Result::kEnd) break;
    if (result == SourceReader::Result::kBadLine) {
      reportBadLine(reader);
      continue;
    }
    addEntry(reader.entry());
    if (++entries % kProgressStep == 0) progress_.report(grouped(entries) + " entries so far");
  }
  reportFurtherBadLines();
  for (Entry& entry : withShortForms_) {
    shortForms_.complete(entry);
    addParsed(entry);
  }
  withShortForms_.clear();
  shortForms_ = {};
  progress_.report(grouped(entries) + " entries read");
}

void Builder::readFurtherSources(const SourceFiles& files) {
  if (!files.wordFrequencies.empty()) {
    further_.ranks = rankWords(readWordFrequencies(files.wordFrequencies));
  }
  if (!files.chinese.empty()) further_.entries = readCedict(files.chinese);
  if (!files.terms.empty()) further_.terms = readTermList(files.terms);
  for (const ChineseEntry& entry : further_.entries) addSubjectRows(entry);
  for (const Term& term : further_.terms) {
    if (term.subject) subjects_.add(*term.subject, term.english, term.chinese);
  }
  progress_.report(grouped(further_.entries.size()) + " Chinese entries and " +
                   grouped(further_.terms.size()) + " terms read");
}

/// Equivalents only: an explanation is nothing that one searches for.
void Builder::addSubjectRows(const ChineseEntry& entry) {
  for (const Gloss& gloss : entry.glosses) {
    if (!isEquivalent(gloss)) continue;
    for (std::size_t i = 0; i < kSubjectCount; ++i) {
      const auto subject = static_cast<Subject>(i);
      if ((gloss.subjects & setOf(subject)) != 0) subjects_.add(subject, gloss.english, entry.word);
    }
  }
}

/// The list of terms is our own, so that a pair in the wrong place is a mistake to be mended there.
void Builder::refuseMisplacedTerms() const {
  const std::vector<Term> misplaced = misplacedTerms(content_.vocabulary, further_);
  for (const Term& term : misplaced) {
    log_ << (term.given ? "no source gives the term \"" : "a source gives the term \"")
         << text::toUtf8(term.english) << "\", " << text::toUtf8(term.chinese) << '\n';
  }
  if (!misplaced.empty()) {
    throw Failure("the folder \"given\" of the list of terms is for those that a source gives");
  }
}

/// The collectors are emptied: pairs of a full dictionary take hundreds of megabytes.
void Builder::arrangeContent() {
  content_.vocabulary = std::move(pairs_).finish();
  refuseMisplacedTerms();
  content_.vocabulary = addChineseSide(std::move(content_.vocabulary), further_);
  further_.entries.clear();
  further_.ranks.clear();
  content_.subjects = std::move(subjects_).finish();
  progress_.report(grouped(content_.vocabulary.pairs.size()) + " pairs sorted");
  const std::vector<bool> chosen = choosePairs(content_.vocabulary, LookupLimits());
  content_.general = arrange(content_.vocabulary, chosen);
  report_.addContent(content_, chosen);
  report_.addTerms(further_.terms.size(),
                   termsWithoutRow(further_.terms, content_.vocabulary, chosen).size());
  progress_.report(grouped(content_.general.edict.size()) + " pairs chosen");
}

void Builder::reportCost() {
  const std::size_t memory = peakMemory();
  progress_.report(
      memory == 0 ? "done" : "done with at most " + grouped(memory / kMebibyte) + " MiB of memory");
}

}  // namespace

void publishDatabase(const DatabaseContent& content, const SourceFacts& facts,
                     const std::filesystem::path& target, std::ostream& log, Progress& progress) {
  const TemporaryFile temporary(target);  // deleted at the end unless it was renamed
  writeDatabase(content, temporary.path());
  progress.report("database written");
  const CheckResult check = checkDatabase(temporary.path(), &facts);
  if (!check.findings.empty()) {
    check.findings.print(log);
    throw Failure("the new database breaks the rules above; " + displayName(target) +
                  " stays as it was");
  }
  progress.report("database checked");
  temporary.replace(target);
  progress.report(displayName(target) + " is ready");
}

void buildDatabase(const SourceFiles& sources, const std::filesystem::path& target,
                   std::ostream& log) {
  requireFile(sources.english);
  std::ifstream stream(sources.english, std::ios::binary);
  if (!stream) throw Failure("cannot read " + displayName(sources.english));
  Builder builder(log);
  builder.readSource(stream);
  builder.readFurtherSources(sources);
  builder.arrangeContent();
  builder.publish(target);
  builder.printReport();
  builder.reportCost();
}

}  // namespace dictionary
