// Many captures in a row: nothing may be left behind.
#include <windows.h>

#include <tlhelp32.h>
#include <winternl.h>

#include <array>
#include <span>

#include "forms/registry.h"
#include "tests/windows/support/capture_test.h"

namespace wintest {
namespace {

/// What a process holds that a user would miss sooner or later.
struct Held {
  std::size_t memory = 0;  ///< bytes on its heaps
  int gdiObjects = 0;
  int threads = 0;
};

/// GDI objects of this process in the table that all processes share; its place in the process
/// environment block and the 0x4000 entries of 24 bytes are the same in every 64-bit Windows.
int gdiObjects() {
  struct Entry {
    void* object;
    WORD process;
    WORD count;
    WORD upper;
    WORD type;
    void* user;
  };
  constexpr std::size_t kTablePlace = 0xF8;
  constexpr int kEntries = 0x4000;
  PROCESS_BASIC_INFORMATION process{};
  NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof process,
                            nullptr);
  const auto* environment = reinterpret_cast<const std::byte*>(process.PebBaseAddress);
  const auto* table = *reinterpret_cast<const Entry* const*>(environment + kTablePlace);
  int count = 0;
  for (int i = 0; i < kEntries; ++i) {
    // Deleted objects keep their entry, without a type.
    if (table[i].type != 0) ++count;
  }
  return count;
}

int threads() {
  HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  THREADENTRY32 entry{};
  entry.dwSize = sizeof entry;
  int count = 0;
  for (BOOL more = Thread32First(snapshot, &entry); more != FALSE;
       more = Thread32Next(snapshot, &entry)) {
    if (entry.th32OwnerProcessID == GetCurrentProcessId()) ++count;
  }
  CloseHandle(snapshot);
  return count;
}

/// Bytes in use on all heaps of this process.
std::size_t heapBytes() {
  std::array<HANDLE, 64> heaps{};
  const DWORD count = std::min<DWORD>(GetProcessHeaps(heaps.size(), heaps.data()), heaps.size());
  std::size_t bytes = 0;
  for (HANDLE heap : std::span(heaps).first(count)) {
    HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry) != FALSE) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
    }
    HeapUnlock(heap);
  }
  return bytes;
}

Held held() { return {heapBytes(), gdiObjects(), threads()}; }

class CaptureSoak : public CaptureTest {
 protected:
  /// Captures the word at `index` of `edit` as the cycle does, but without its waits.
  static void capture(HWND edit, int index) {
    ScreenWord::CatchWordAt(wordPoint(edit, index));
    ASSERT_TRUE(eventually([] { return !ScreenWord::strScreenWord.empty(); }));
    std::u16string word = std::exchange(ScreenWord::strScreenWord, {});
    auto& form = popup();
    ASSERT_NE(form.showMeaning(word, form.Adodc1), u"");
    UpdateWindow(form.handle());
    form.unload();
    forms::doEvents();
  }
};

TEST_F(CaptureSoak, TwoThousandCapturesLeaveNothingBehind) {
  const PlainWindow edit(L"Edit", {200, 300, 900, 400}, L"data bit datum it's");
  const auto round = [&](int captures) {
    for (int i = 0; i < captures && !HasFatalFailure(); ++i) capture(edit.handle(), i % 2 * 5);
  };
  round(200);
  const Held before = held();
  round(2000);
  const Held after = held();
  // The last popup may still be on the heap, as one was before.
  EXPECT_LE(after.memory, before.memory + 256 * 1024);
  EXPECT_LE(after.gdiObjects, before.gdiObjects + 2);
  EXPECT_GT(before.gdiObjects, 0);
  // The system runs threads of its own for a moment.
  EXPECT_TRUE(eventually([&] { return threads() <= before.threads; }));
}

}  // namespace
}  // namespace wintest
