#pragma once

#include "forms/button.h"
#include "forms/form.h"
#include "forms/static_controls.h"
#include "forms/text_box.h"

/// 特殊查询: asks for an English and a Chinese fragment and hands both to frmMain.
class frmSpc : public forms::Form {
 public:
  frmSpc();

  forms::Label Label1{*this, u"英文", {180, 240, 600, 270}};
  forms::TextBox txtE{*this, {840, 180, 3000, 360}};
  forms::Label Label2{*this, u"中文", {180, 720, 600, 270}};
  forms::TextBox txtC{*this, {840, 660, 3000, 360}};
  forms::Button cmdOK{*this, u"确定", {1560, 1200, 1080, 390}};
  forms::Button cmdCancel{*this, u"取消", {2760, 1200, 1080, 390}};

 private:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Unload() override;
  void cmdOK_Click();
  void cmdCancel_Click();
};
