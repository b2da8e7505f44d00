// Many captures in a row: nothing may be left behind.
#include <windows.h>

#include <tlhelp32.h>
#include <winternl.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "forms/loaded_forms.h"
#include "tests/support/process/controls.h"
#include "tests/support/window/capture_test.h"
#include "tests/support/window/system_editor.h"

namespace support {
namespace {

/// What a process holds that a user would miss sooner or later.
struct Held {
  std::size_t memory = 0;  ///< bytes on its heaps
  int gdiObjects = 0;
  int threads = 0;
  std::size_t handles = 0;
};

/// What our questions might leave in the program that is asked.
struct HeldByOther {
  std::size_t memory = 0;  ///< bytes committed
  std::size_t handles = 0;
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

/// Handles that a process has open.
std::size_t handlesOf(DWORD process) {
  struct Entry {
    ULONG owner;
    BYTE type;
    BYTE flags;
    USHORT handle;
    void* object;
    ULONG access;
  };
  constexpr std::size_t kEntries = 200'000;
  constexpr auto kSystemHandles = static_cast<SYSTEM_INFORMATION_CLASS>(16);
  std::vector<std::byte> buffer(sizeof(std::uint64_t) + kEntries * sizeof(Entry));
  const NTSTATUS status = NtQuerySystemInformation(kSystemHandles, buffer.data(),
                                                   static_cast<ULONG>(buffer.size()), nullptr);
  EXPECT_GE(status, 0);
  const auto count = *reinterpret_cast<const ULONG*>(buffer.data());
  const auto* entries = reinterpret_cast<const Entry*>(buffer.data() + sizeof(std::uint64_t));
  return static_cast<std::size_t>(std::count_if(
      entries, entries + count, [&](const Entry& entry) { return entry.owner == process; }));
}

/// Bytes that a process has committed.
std::size_t committedBy(HANDLE process) {
  std::size_t bytes = 0;
  MEMORY_BASIC_INFORMATION region{};
  for (const std::byte* at = nullptr;
       VirtualQueryEx(process, at, &region, sizeof region) != 0 && region.RegionSize != 0;
       at = static_cast<const std::byte*>(region.BaseAddress) + region.RegionSize) {
    if (region.State == MEM_COMMIT) bytes += region.RegionSize;
  }
  return bytes;
}

/// With the forms that have gone let go of, whose objects are kept until the next event.
Held held() {
  forms::LoadedForms::instance().purge();
  return {heapBytes(), gdiObjects(), threads(), handlesOf(GetCurrentProcessId())};
}

HeldByOther heldBy(const SystemEditor& program) {
  return {committedBy(program.process().handle()), handlesOf(program.process().id())};
}

class CaptureSoak : public CaptureTest {
 protected:
  /// Captures the word at `point` as the cycle does, but without waiting for its time.
  static void capture(POINT point) {
    constexpr DWORD kProbeTime = 100;
    bool reported = false;
    for (int probes = 0; probes < 50 && !reported; ++probes) {
      ScreenWord::CatchWordAt(point);
      reported = eventually([] { return !ScreenWord::strScreenWord.empty(); }, kProbeTime);
    }
    ASSERT_TRUE(reported);
    std::u16string word = std::exchange(ScreenWord::strScreenWord, {});
    auto& form = popup();
    ASSERT_NE(form.showMeaning(word, form.Adodc1), u"");
    UpdateWindow(form.handle());
    form.unload();
    forms::doEvents();
  }
};

TEST_F(CaptureSoak, TwoThousandCapturesLeaveNothingBehind) {
  const PlainWindow edit(L"Edit", {200, 720, 900, 800}, L"data bit datum it's");
  const SystemEditor program(SystemEditor::Kind::kWordPad, u"data bit datum it's");
  const auto inRichEdit = [&](LONG index) {
    const POINT corner = richTextPosition(program.control(), index);
    return POINT{corner.x + 4, corner.y + 6};
  };
  const std::array plain{wordPoint(edit.handle(), 0), wordPoint(edit.handle(), 5)};
  const std::array rich{inRichEdit(0), inRichEdit(5)};
  // Another program's rich edit control takes many times as long.
  const auto round = [&](std::size_t captures) {
    for (std::size_t i = 0; i < captures && !HasFatalFailure(); ++i) {
      capture(i % 8 == 7 ? rich[i / 8 % 2] : plain[i % 2]);
    }
  };
  round(200);
  const Held before = held();
  const HeldByOther otherBefore = heldBy(program);
  round(2000);
  const Held after = held();
  const HeldByOther otherAfter = heldBy(program);
  constexpr std::size_t kSlack = std::size_t{16} * 1024;  // bytes: eight for each capture
  EXPECT_LE(after.memory, before.memory + kSlack);
  EXPECT_LE(after.gdiObjects, before.gdiObjects + 2);
  EXPECT_LE(after.handles, before.handles + 4);
  EXPECT_LE(otherAfter.memory, otherBefore.memory + kSlack);
  EXPECT_LE(otherAfter.handles, otherBefore.handles + 4);
  EXPECT_GT(before.gdiObjects, 0);
  EXPECT_GT(before.handles, 0U);
  EXPECT_GT(otherBefore.handles, 0U);
  RecordProperty("bytes kept", std::to_string(static_cast<std::int64_t>(after.memory) -
                                              static_cast<std::int64_t>(before.memory)));
  // The system runs threads of its own for a moment.
  EXPECT_TRUE(eventually([&] { return threads() <= before.threads; }));
}

}  // namespace
}  // namespace support
