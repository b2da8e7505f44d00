#include "dictionary/build.h"

#include <fstream>
#include <map>
#include <string>
#include <utility>

#include "dictionary/arrange/block_choice.h"
#include "dictionary/arrange/pair_collector.h"
#include "dictionary/arrange/subject_collector.h"
#include "dictionary/build_report.h"
#include "dictionary/console.h"
#include "dictionary/database/database_writer.h"
#include "dictionary/database/install.h"
#include "dictionary/line_ranges.h"
#include "dictionary/source/source_reader.h"

namespace dictionary {
namespace {

/// Bad lines that are told when they are met; those behind them are told together.
constexpr std::size_t kToldAtOnce = 20;
/// How often reading tells how far it is, in entries.
constexpr std::size_t kEntriesBetweenNews = 200'000;
constexpr std::size_t kMebibyte = std::size_t{1} << 20U;

/// One build's stages and what they hand on.
class Builder {
 public:
  explicit Builder(std::ostream& log) : log_(log), progress_(log) {}

  void readSource(std::istream& stream);
  void arrangeContent();
  void install(const std::filesystem::path& target) {
    installDatabase(content_, target, log_, progress_);
  }
  void printReport() const { report_.print(log_); }
  void tellCost();

 private:
  void tellBadLine(const SourceReader& reader);
  void tellFurtherBadLines();
  void addEntry(const SourceEntry& source);

  std::ostream& log_;
  Progress progress_;
  BuildReport report_;
  PairCollector pairs_;
  SubjectCollector subjects_;
  DatabaseContent content_;
  std::size_t badLines_ = 0;
  std::map<LineFault, LineRanges> furtherBadLines_;
};

void Builder::tellBadLine(const SourceReader& reader) {
  report_.addBadLine(reader.fault());
  if (++badLines_ > kToldAtOnce) {
    furtherBadLines_[reader.fault()].add(reader.lineNumber());
    return;
  }
  log_ << "line " << reader.lineNumber() << " skipped: " << describe(reader.fault()) << '\n';
  if (badLines_ == kToldAtOnce) log_ << "further bad lines are named when all is read\n";
}

void Builder::tellFurtherBadLines() {
  for (const auto& [fault, lines] : furtherBadLines_) {
    log_ << lines.text() << " skipped: " << describe(fault) << '\n';
  }
}

void Builder::addEntry(const SourceEntry& source) {
  const std::optional<Entry> entry = extractEntry(source);
  if (!entry) {
    report_.addBadHeadword();
    return;
  }
  report_.addEntry(*entry, pairs_.add(*entry));
  subjects_.add(*entry);
}

void Builder::readSource(std::istream& stream) {
  SourceReader reader(stream);
  std::size_t entries = 0;
  for (;;) {
    const SourceReader::Result result = reader.next();
    if (result == SourceReader::Result::kEnd) break;
    if (result == SourceReader::Result::kBadLine) {
      tellBadLine(reader);
      continue;
    }
    addEntry(reader.entry());
    if (++entries % kEntriesBetweenNews == 0)
      progress_.report(grouped(entries) + " entries so far");
  }
  tellFurtherBadLines();
  progress_.report(grouped(entries) + " entries read");
}

void Builder::arrangeContent() {
  content_.vocabulary = std::move(pairs_).finish();
  content_.subjects = std::move(subjects_).finish();
  progress_.report(grouped(content_.vocabulary.pairs.size()) + " pairs sorted");
  const std::vector<bool> chosen = choosePairs(content_.vocabulary, LookupLimits());
  content_.general = arrange(content_.vocabulary, chosen);
  report_.addContent(content_, chosen);
  progress_.report(grouped(content_.general.edict.size()) + " pairs chosen");
}

void Builder::tellCost() {
  const std::size_t memory = peakMemory();
  progress_.report(
      memory == 0 ? "done" : "done with at most " + grouped(memory / kMebibyte) + " MiB of memory");
}

}  // namespace

void buildDatabase(const std::filesystem::path& source, const std::filesystem::path& target,
                   std::ostream& log) {
  requireFile(source);
  std::ifstream stream(source, std::ios::binary);
  if (!stream) throw Failure("cannot read " + displayName(source));
  Builder builder(log);
  builder.readSource(stream);
  builder.arrangeContent();
  builder.install(target);
  builder.printReport();
  builder.tellCost();
}

}  // namespace dictionary
