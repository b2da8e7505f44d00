// A popup over a word of another program, whose user works on without moving the pointer.
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/program/capture_fixture.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/text_window.h"

namespace support {
namespace {

/// Presses a mouse button of the display where the pointer is, without moving it.
void clickHere(int button) { runBelow("xdotool click " + std::to_string(button)); }

constexpr int kLeftButton = 1;
constexpr int kMiddleButton = 2;
constexpr int kWheelDown = 5;

constexpr DWORD kQuiet = 600;  // six probes

/// Forty lines of words, more than the window shows.
std::wstring page() {
  std::wstring text;
  for (int line = 0; line < 40; ++line) text += L"The database holds many words.\r\n";
  return text;
}

/// What a user does in the program below the pointer, which he leaves where it is.
struct Work {
  const char* name;
  std::function<void(HWND window)> act;
};

std::ostream& operator<<(std::ostream& out, const Work& work) { return out << work.name; }

void closeByFrame(HWND window) { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); }

std::vector<Work> allWork() {
  return {{"TurningTheWheel", [](HWND) { clickHere(kWheelDown); }},
          {"Typing", [](HWND) { input::type(L"x"); }},
          {"PressingAKeyOfTheDisplay", [](HWND) { input::pressOnDisplay({"Down"}); }},
          {"ScrollingByAKey", [](HWND) { input::key(VK_NEXT); }},
          {"Clicking", [](HWND) { clickHere(kLeftButton); }},
          {"ClickingTheMiddleButton", [](HWND) { clickHere(kMiddleButton); }},
          {"OpeningAMenu", [](HWND) { input::pressOnDisplay({"alt+f"}); }},
          {"Minimising", [](HWND window) { ShowWindowAsync(window, SW_MINIMIZE); }},
          {"Moving",
           [](HWND window) {
             RECT place = rectOf(window);
             OffsetRect(&place, 40, 30);
             placeWindow(window, place);
           }},
          {"Closing", closeByFrame}};
}

class CaptureClosing : public Capture, public ::testing::WithParamInterface<Work> {};

TEST_P(CaptureClosing, InNotepadClosesThePopupForGood) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(page());
  send(notepad.edit(), EM_SETMODIFY, FALSE);
  restOn(notepad, 8);
  (void)popup.waitFor(L"database");
  GetParam().act(notepad.window());
  popup.waitUntilClosed();
  EXPECT_TRUE(popup.staysAway(kQuiet));
  if (std::string_view(GetParam().name) == "OpeningAMenu") input::pressOnDisplay({"Escape"});
  // Capture goes on elsewhere.
  const TextWindow elsewhere(L"Edit", 0, {900, 200, 1200, 230}, L"kernel");
  input::moveTo({910, 208});
  (void)popup.waitFor(L"kernel");
}

TEST_P(CaptureClosing, InWordPadClosesThePopupForGood) {
  const WordPad wordPad;
  wordPad.place(kPage);
  wordPad.setText(page());
  send(wordPad.edit(), EM_SETMODIFY, FALSE);
  const POINT place = richTextPosition(wordPad.edit(), 8);
  input::moveTo({place.x + 3, place.y + 6});
  (void)popup.waitFor(L"database");
  GetParam().act(wordPad.window());
  popup.waitUntilClosed();
  EXPECT_TRUE(popup.staysAway(kQuiet));
  if (std::string_view(GetParam().name) == "OpeningAMenu") input::pressOnDisplay({"Escape"});
  const TextWindow elsewhere(L"Edit", 0, {900, 200, 1200, 230}, L"kernel");
  input::moveTo({910, 208});
  (void)popup.waitFor(L"kernel");
}

INSTANTIATE_TEST_SUITE_P(EveryWork, CaptureClosing, ::testing::ValuesIn(allWork()),
                         [](const auto& work) { return std::string(work.param.name); });

TEST_F(Capture, AnotherProgramThatComesToTheFrontClosesThePopup) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(page());
  const Notepad other;
  other.place({860, 120, 1240, 720});
  restOn(notepad, 8);
  (void)popup.waitFor(L"database");
  ASSERT_EQ(GetForegroundWindow(), other.window());
  input::pressOnDisplay({"alt+Tab"});
  popup.waitUntilClosed();
  EXPECT_TRUE(popup.staysAway(kQuiet));
}

TEST_F(Capture, NothingOpensOverWhatIsTypedUntilThePointerLeaves) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"The database holds many words.");
  notepad.clickIntoText();
  restOn(notepad, 8);
  POINT pointer{};
  GetCursorPos(&pointer);
  (void)popup.waitFor(L"database");
  input::type(L"x");
  popup.waitUntilClosed();
  for (const wchar_t* text : {L"kernel ", L"the ", L"network "}) {
    input::type(text);
    EXPECT_TRUE(popup.staysAway(250));
  }
  input::moveTo({pointer.x + 5, pointer.y + 5});
  EXPECT_TRUE(popup.staysAway(kQuiet));
  input::moveTo({pointer.x, pointer.y + 6});
  waitFor("the popup", [&] { return popup.isUp(); });
}

TEST_F(Capture, DraggingASelectionRaisesNoPopup) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(page());
  notepad.clickIntoText();
  input::moveTo(kAwayFromTexts);
  popup.waitUntilClosed();
  const POINT from = editPosition(notepad.edit(), 5);
  input::press({from.x + 1, from.y + 6});
  for (const LONG character : {8, 16, 24, 34, 42}) {
    restOn(notepad, character);
    EXPECT_TRUE(popup.staysAway(400)) << character;
  }
  input::release();
  waitFor("the selection", [&] { return selectionOf(notepad.edit()).end > 30; });
  restOn(notepad, 8);
  (void)popup.waitFor(L"database");
}

TEST_F(Capture, APointerAtRestKeepsThePopup) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(page());
  restOn(notepad, 8);
  (void)popup.waitFor(L"database");
  HWND window = popup.window();
  // The program changes its title and its caret blinks meanwhile; neither is the user's work.
  SetWindowTextW(notepad.window(), L"Another title");
  EXPECT_TRUE(always([&] { return popup.window() == window; }, 3'000));
  // So does a hand that does not quite rest.
  for (int i = 0; i < 10; ++i) {
    runBelow("xdotool mousemove_relative 1 0 mousemove_relative -- -1 0");
    EXPECT_TRUE(always([&] { return popup.window() == window; }, 150));
  }
}

TEST_F(Capture, BehindItsOwnInputBoxAClosedPopupLeavesCaptureOff) {
  const QuickLookup window = lexilo.openQuickLookupAtA();
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(page());
  restOn(notepad, 8);
  (void)popup.waitFor(L"database");
  SetForegroundWindow(window.window());
  waitFor("the box to have the keyboard",
          [&] { return focusIn(window.window()) == window.input(); });
  popup.waitUntilClosed();
  const TextWindow elsewhere(L"Edit", 0, {900, 200, 1200, 230}, L"kernel");
  input::moveTo({910, 208});
  EXPECT_TRUE(popup.staysAway(kQuiet));
}

}  // namespace
}  // namespace support
