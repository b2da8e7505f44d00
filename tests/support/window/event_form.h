#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/loaded_forms.h"
#include "forms/text_box.h"

namespace support {

/// What the event forms wrote down, in order: "A.Load", "A.first.GotFocus" ...
using Events = std::vector<std::string>;

inline Events& events() {
  static Events log;
  return log;
}

/// How often `event` stands there.
inline std::ptrdiff_t times(const std::string& event) {
  return std::count(events().begin(), events().end(), event);
}

/// What the next form of a name is made of and does. Reset before every test.
struct Plan {
  forms::FormDesign design;
  std::function<void()> load;
  std::function<void()> activate;
  std::function<void()> unload;
  std::function<void()> paint;
};

template <char Name>
Plan& plan() {
  static Plan plan;
  return plan;
}

inline forms::FormDesign plainDesign(char name) {
  forms::FormDesign design;
  design.name = std::u16string(u"Test.") + static_cast<char16_t>(name);
  design.caption = std::u16string(1, static_cast<char16_t>(name));
  design.width = 4500;
  design.height = 3000;
  return design;
}

/// A form with two text boxes that writes down its events.
template <char Name>
class EventForm : public forms::Form {
 public:
  EventForm() : Form(plan<Name>().design) {
    first.onGotFocus = [] { note("first.GotFocus"); };
    first.onLostFocus = [] { note("first.LostFocus"); };
    second.onGotFocus = [] { note("second.GotFocus"); };
    second.onLostFocus = [] { note("second.LostFocus"); };
  }
  ~EventForm() override { note("gone"); }

  forms::TextBox first{*this, {150, 150, 3000, 300}};
  forms::TextBox second{*this, {150, 600, 3000, 300}};

 private:
  static void note(const char* event) { events().push_back(std::string(1, Name) + "." + event); }
  static void run(const char* event, const std::function<void()>& act) {
    note(event);
    if (act) act();
  }
  void Form_Load() override { run("Load", plan<Name>().load); }
  void Form_Resize() override { note("Resize"); }
  void Form_Activate() override { run("Activate", plan<Name>().activate); }
  void Form_LostFocus() override { note("LostFocus"); }
  void Form_Unload() override { run("Unload", plan<Name>().unload); }
  void Form_Paint() override {
    if (plan<Name>().paint) plan<Name>().paint();
  }
};

using FormA = EventForm<'A'>;
using FormB = EventForm<'B'>;
using FormC = EventForm<'C'>;

}  // namespace support
