// capturewhy.exe, which tells users why there is a word or none.
#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/program/capture_fixture.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/process.h"
#include "tests/support/process/settings.h"
#include "tests/support/process/text_window.h"

namespace support {
namespace {

namespace fs = std::filesystem;

class CaptureWhy : public ::testing::Test {
 protected:
  /// Runs it with `arguments`, as a command line does, and returns what it prints.
  std::string printed(const std::wstring& arguments, DWORD exitCode = 0) {
    const fs::path program = AppFolder::withFullDictionary().path() / "capturewhy.exe";
    const fs::path report = fs::temp_directory_path() / "capturewhy.txt";
    const Process shell(L"C:\\windows\\system32\\cmd.exe", L"/s /c \"\"" + program.wstring() +
                                                               L"\" " + arguments + L" > \"" +
                                                               report.wstring() + L"\"\"");
    EXPECT_EQ(shell.waitForExit(), exitCode);
    std::ifstream file(report, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  std::string reportAt(POINT point) {
    input::moveTo(point);
    return printed(L"0");
  }

  static bool has(const std::string& report, const std::string& line) {
    return report.find(line) != std::string::npos;
  }
};

TEST_F(CaptureWhy, NamesTheWordThatThePopupWouldShow) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"a catalyst");
  const POINT place = editPosition(notepad.edit(), 4);
  const std::string report = reportAt({place.x + 3, place.y + 6});
  EXPECT_TRUE(has(report, "notepad.exe\n")) << report;
  EXPECT_TRUE(has(report, "Window class      Edit\n")) << report;
  EXPECT_TRUE(has(report, "yes, by the entry \"Edit\"\n")) << report;
  EXPECT_TRUE(has(report, "messages of edit controls\n")) << report;
  EXPECT_TRUE(has(report, "\"catalyst\"\n")) << report;
}

/// Registers a class of edit controls under a name that no table knows, and counts the messages of
/// edit controls that they are sent.
class PlainClass {
 public:
  static constexpr const wchar_t* kName = L"Lexilo.Plain";

  PlainClass() {
    WNDCLASSW plain{};
    GetClassInfoW(nullptr, L"EDIT", &plain);
    edit_ = plain.lpfnWndProc;
    plain.lpfnWndProc = answer;
    plain.lpszClassName = kName;
    RegisterClassW(&plain);
  }
  ~PlainClass() { UnregisterClassW(kName, nullptr); }
  PlainClass(const PlainClass&) = delete;
  PlainClass& operator=(const PlainClass&) = delete;

  [[nodiscard]] static int questions() { return questions_; }

 private:
  static LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    questions_ += message >= EM_GETSEL && message <= EM_GETIMESTATUS ? 1 : 0;
    return CallWindowProcW(edit_, window, message, wParam, lParam);
  }

  static inline std::atomic<int> questions_ = 0;
  static inline WNDPROC edit_ = nullptr;
};

TEST_F(CaptureWhy, AsksNoWindowThatIsNotProbed) {
  const PlainClass plain;
  const TextWindow box(PlainClass::kName, ES_MULTILINE, kPage, L"catalyst");
  const int before = PlainClass::questions();
  const std::string report = reportAt(box.characterPoint(2));
  EXPECT_TRUE(has(report, "Window class      Lexilo.Plain\n")) << report;
  EXPECT_TRUE(has(report, "no: its class contains no entry of either table\n")) << report;
  EXPECT_FALSE(has(report, "catalyst")) << report;
  EXPECT_EQ(PlainClass::questions(), before + 1) << "more than this test's own";
}

TEST_F(CaptureWhy, SaysWhetherFurtherWindowsAreOn) {
  settings::clear();
  const TextWindow box(furtherRichEdit(), ES_MULTILINE, kPage, L"a catalyst");
  const POINT place = richTextPosition(box.control(), 4);
  const POINT inside{place.x + 3, place.y + 6};
  const std::string off = reportAt(inside);
  EXPECT_TRUE(has(off, "a further window, by the entry \"RichEdit\", and these are off\n")) << off;
  EXPECT_TRUE(has(off, "Further windows   off\n")) << off;
  settings::write(L"FurtherWindows", L"1");
  const std::string on = reportAt(inside);
  settings::clear();
  EXPECT_TRUE(has(on, "where the pointer rests: a further window, by the entry \"RichEdit\"\n"))
      << on;
  EXPECT_TRUE(has(on, "Further windows   on (FurtherWindows=1)\n")) << on;
  EXPECT_TRUE(has(on, "messages of rich edit controls\n")) << on;
  EXPECT_TRUE(has(on, "\"catalyst\"\n")) << on;
}

TEST_F(CaptureWhy, SaysThatAPasswordFieldIsNotRead) {
  const TextWindow box(L"EDIT", ES_PASSWORD, kPage, L"catalyst");
  const std::string report = reportAt({kPage.left + 10, kPage.top + 8});
  EXPECT_TRUE(has(report, "a password field, which is never read\n")) << report;
  EXPECT_FALSE(has(report, "catalyst")) << report;
}

TEST_F(CaptureWhy, SaysThatAWindowDoesNotAnswer) {
  const TextWindow box(L"EDIT", ES_MULTILINE, kPage, L"catalyst");
  const TextWindow::Busy busy(box);
  const std::string report = reportAt({kPage.left + 10, kPage.top + 8});
  EXPECT_TRUE(has(report, "did not answer in time\n")) << report;
}

TEST_F(CaptureWhy, ExplainsItselfWhereItIsNotUnderstood) {
  for (const wchar_t* arguments : {L"/?", L"-1", L"61", L"3 4", L"3s"}) {
    EXPECT_TRUE(has(printed(arguments, 2), "capturewhy [SECONDS]")) << arguments;
  }
}

}  // namespace
}  // namespace support
