#include "capture/nhw32/policy.h"

#include <algorithm>
#include <array>

#include "text/characters.h"

namespace nhw32 {
namespace {

/// Visual Basic registers its text boxes, which are edit controls, under names of its own.
constexpr std::array<std::u16string_view, 4> kEditClasses{u"Edit", u"ThunderRT6TextBox",
                                                          u"ThunderRT5TextBox", u"ThunderTextBox"};

// As in winerror.h, which the builds for other systems do not have.
constexpr std::uint32_t kErrorSuccess = 0;
constexpr std::uint32_t kErrorTimeout = 1460;

/// ASCII case-insensitive, as class names are for Windows.
bool isEdit(std::u16string_view name) {
  return std::ranges::any_of(kEditClasses, [&](std::u16string_view known) {
    return std::ranges::equal(known, name, {}, text::lowerAscii<char16_t>,
                              text::lowerAscii<char16_t>);
  });
}

bool contains(std::u16string_view className, std::u16string_view name) {
  return className.find(name) != std::u16string_view::npos;
}

/// Most rich edit controls are a RICHEDIT50W today.
bool isRichEdit(std::u16string_view name) {
  if (contains(name, u"Edit")) return contains(name, u"RichEdit");
  constexpr std::u16string_view kLower = u"richedit";
  return std::search(name.begin(), name.end(), kLower.begin(), kLower.end(),
                     [](char16_t unit, char16_t lower) {
                       return text::lowerAscii(unit) == lower;
                     }) != name.end();
}

}  // namespace

ReaderKind readerKindFor(std::u16string_view className, std::u16string_view realClassName) {
  if (isEdit(realClassName) || isEdit(className)) return ReaderKind::kEdit;
  return isRichEdit(className) ? ReaderKind::kRichEdit : ReaderKind::kUia;
}

Outcome outcomeOfSendTimeout(std::uint32_t lastError) {
  return lastError == kErrorTimeout || lastError == kErrorSuccess ? Outcome::kOutOfTime
                                                                  : Outcome::kRefused;
}

// A window without a record may be asked. Records are few (kMaxWindows), so a linear search does. A
// handle that Windows gives to a new window has its predecessor's record until it answers once.
bool Backoff::mayAsk(WindowId window, Time now) const {
  const auto record = std::ranges::find(records_, window, &Record::window);
  return record == records_.end() || now >= record->until;
}

void Backoff::note(WindowId window, Outcome outcome, Time now) {
  if (outcome == Outcome::kRefused) return;
  Record record{.window = window};
  if (const auto old = std::ranges::find(records_, window, &Record::window);
      old != records_.end()) {
    record = *old;
    records_.erase(old);
  }
  // Any other outcome is an answer in time, which resets the count: no record is kept.
  if (outcome != Outcome::kOutOfTime && outcome != Outcome::kUiaOutOfTime) return;
  ++record.timeouts;
  if (record.timeouts >= kMaxTimeouts) {
    // The delay is 0 before the third timeout, so the first one is kMinDelay.
    const std::chrono::seconds most =
        outcome == Outcome::kUiaOutOfTime ? kMaxUiaDelay : std::chrono::seconds(kMaxDelay);
    record.delay = std::clamp(2 * record.delay, std::chrono::seconds(kMinDelay), most);
    record.until = now + record.delay;
  }
  if (records_.size() == kMaxWindows) records_.erase(records_.begin());
  records_.push_back(record);
}

Answer BackoffReader::wordAt(const Question& question) {
  if (!backoff_.mayAsk(question.window, clock_())) {
    reader_->rest();
    return {};
  }
  // The delay counts from the end of the question, so the time is read again.
  Answer answer = reader_->wordAt(question);
  backoff_.note(question.window, answer.outcome, clock_());
  return answer;
}

}  // namespace nhw32
