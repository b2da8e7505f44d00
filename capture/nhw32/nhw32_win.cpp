#include "capture/nhw32/nhw32.h"
#include "capture/nhw32/router.h"

#include <algorithm>
#include <utility>

#include "capture/nhw32/ansi_word.h"
#include "capture/nhw32/reader.h"
#include "capture/nhw32/service.h"

namespace nhw32 {
namespace {

/// Converts one character. Best fit: an accented letter that is missing from the code page becomes
/// the plain one.
std::optional<std::string> toAnsi(std::u16string_view character) {
  std::string bytes(8, '\0');  // no code page of Windows takes more bytes for a character
  // The parameter must be null for UTF-8, which has every character.
  BOOL missing = FALSE;
  BOOL* const usedDefault = GetACP() == CP_UTF8 ? nullptr : &missing;
  const int length =
      WideCharToMultiByte(CP_ACP, 0, reinterpret_cast<const wchar_t*>(character.data()),
                          static_cast<int>(character.size()), bytes.data(),
                          static_cast<int>(bytes.size()), nullptr, usedDefault);
  if (length == 0 || missing != FALSE) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(length));
  return bytes;
}

}  // namespace

// The service lives until the program ends. Its worker may wait for a window then, and ends with
// the process.
Service& service() {
  static Service instance([] { return makeWindowReader(); }, RegisterWindowMessageA(kMessageName));
  return instance;
}

void setIsHeadword(text::IsHeadword isHeadword) { service().setIsHeadword(std::move(isHeadword)); }

void leaveAlone(POINT place) { service().leaveAlone(place); }

void SetNHW32() { service().start(); }

void ResetNHW32() { service().stop(); }

void BL_SetFlag32(std::uint32_t flag, HWND window, std::int16_t x, std::int16_t y) {
  if (flag == kArm) service().arm(window, {x, y});
  if (flag == kDisarm) service().disarm();
}

void BL_GetText32(char* buffer, std::int32_t size, RECT* word) {
  // Asked once: the word may be withdrawn between two calls.
  const Word found = service().word().value_or(Word{});
  if (word != nullptr) {
    *word = {found.box.left, found.box.top, found.box.right, found.box.bottom};
  }
  if (buffer == nullptr || size < 0) return;
  const auto chosen = text::chooseReading(found.readings, service().isHeadword());
  const std::string text =
      chosen ? ansiWord(chosen->word, static_cast<std::size_t>(size), toAnsi) : std::string();
  *std::ranges::copy(text, buffer).out = '\0';
}

}  // namespace nhw32
