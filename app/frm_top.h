#pragma once

#include <cstdint>

#include "app/commands.h"
#include "app/resources/resource_ids.h"
#include "data/data_control.h"
#include "forms/button.h"
#include "forms/drag_handle.h"
#include "forms/form.h"
#include "forms/static_controls.h"
#include "forms/timer.h"

/// The floating toolbar, the program's first window; loading it is the program's start. Its
/// widgets, state and handlers keep their given names.
class frmTop : public forms::Form {
 public:
  frmTop();

  forms::DragHandle Image1{*this, forms::DragHandle::Look::kGrip, {0, 0, 180, 375}};
  forms::Button cmdMain{*this, forms::Picture(app::kQuickLookup.icon), {180, 0, 375, 375}};
  forms::Button cmdSub{*this, forms::Picture(app::kMultiQuery.icon), {555, 0, 375, 375}};
  forms::Button cmdDictSetting{*this, forms::Picture(app::kDictSettings.icon), {930, 0, 375, 375}};
  forms::Button cmdMouse{*this, forms::Picture(), {1305, 0, 375, 375}};
  forms::Button cmdHelp{*this, forms::Picture(app::kHelp.icon), {1680, 0, 375, 375}};
  forms::Label Picture1{*this, u"", {2055, 0, 30, 375}};
  forms::Button Command1{*this, forms::Picture(IDI_MENU_ARROW), {2085, 0, 240, 375}};
  forms::Button cmdMouseYes{*this, forms::Picture(IDI_CAPTURE_ON), {}};
  forms::Button cmdMouseNot{*this, forms::Picture(IDI_CAPTURE_OFF), {}};
  forms::Timer Timer1{*this};
  data::DataControl Adodc1;
  data::DataControl Adodc2;  // Deliberate: connected, and never queried

  /// Switches capture on or off, as the picture on the button says it is not. The menu's item does
  /// the same.
  void cmdMouse_Click();

 private:
  void Form_Load() override;
  void Form_Paint() override;
  void Form_Resize() override;
  void Form_LostFocus() override;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void cmdMain_Click();
  void cmdSub_Click();
  void cmdDictSetting_Click();
  void cmdHelp_Click();
  void Command1_Click();
  void Image1_MouseMove();
  void Image1_MouseDown();
  void Image1_MouseUp();
  void Timer1_Timer();

  void start();
  void placeAtTopRight();
  void disableTimer1();
  void Get_Windows_Rect();
  void GetIdx();
  static void RunQuery(data::DataControl& control, std::u16string_view sql);
  void showCapture(bool on);

  bool IdxPending = false;
  bool IsDragging = false;
  bool IsDragArmed = false;
  std::int32_t DragOffsetX = 0;
  std::int32_t DragOffsetY = 0;
  std::int32_t TopHeight = 0;
  RECT WindowRect{};
  POINT CursorPos{};
};
