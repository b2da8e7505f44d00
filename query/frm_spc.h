#pragma once

#include <functional>
#include <string>

#include "forms/button.h"
#include "forms/form.h"
#include "forms/graphics.h"
#include "forms/static_controls.h"
#include "forms/text_box.h"

namespace query {

/// The font of the boxes that texts to search for are typed into, in this window and in frmMain.
inline forms::Font inputFont() { return {u"宋体", 10.5}; }

}  // namespace query

/// 特殊查询, the special query: asks for an English and a Chinese fragment and hands both to
/// frmMain, which opens it as an owned window and centres it. Knows nothing of frmMain itself.
/// Capture is off while it is the active window, and on again once it is closed.
class frmSpc : public forms::Form {
 public:
  frmSpc();

  forms::Label Label1{*this, u"英文", {180, 240, 600, 270}};
  forms::TextBox txtE{*this, {840, 180, 3000, 360}};
  forms::Label Label2{*this, u"中文", {180, 720, 600, 270}};
  forms::TextBox txtC{*this, {840, 660, 3000, 360}};
  forms::Button cmdOK{*this, u"确定", {1560, 1200, 1080, 390}};
  forms::Button cmdCancel{*this, u"取消", {2760, 1200, 1080, 390}};

  /// Runs the query for two trimmed texts, neither of them empty. Set by whoever opens the dialog.
  /// May throw; the dialog then stays open.
  std::function<void(std::u16string& english, std::u16string& chinese)> search;

 private:
  void Form_Activate() override;
  void Form_Unload() override;
  void cmdOK_Click();
  void cmdCancel_Click();
};
