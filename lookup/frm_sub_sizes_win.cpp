#include <stdexcept>

#include "lookup/frm_sub.h"
#include "lookup/layout.h"
#include "settings/settings_file.h"
#include "settings/settings_rules.h"
#include "text/strings.h"
#include "text/utf.h"

namespace {

const std::u16string kSection(user::kSettingsSection);
const std::u16string kWindowWidth = u"WindowWidth";
const std::u16string kWindowHeight = u"WindowHeight";
const std::u16string kTreeWidth = u"TreeWidth";

std::runtime_error unusable(const std::u16string& key, const std::u16string& value,
                            const std::u16string& file) {
  return std::runtime_error(
      text::toUtf8(u"设置文件中 " + key + u" 的值“" + value + u"”无法使用：" + file));
}

}  // namespace

void frmSub::readSizes() {
  settingsPath_ = user::settingsFile();
  const int windowWidth = readSize(kWindowWidth, 3500);
  const int windowHeight = readSize(kWindowHeight, 3200);
  const int treeWidth = readSize(kTreeWidth, 2000);
  if (!lookup::leavesRoomForPane({windowWidth, windowHeight}, treeWidth)) {
    throw unusable(kTreeWidth, text::decimal(treeWidth), settingsPath_);
  }
  setSize(width(), windowHeight);
  setSize(windowWidth, height());
  TreeView1.setWidth(treeWidth);
}

int frmSub::readSize(const std::u16string& key, int fallback) const {
  const std::u16string value = user::getINIProfileString(kSection, key, {}, settingsPath_);
  if (value.empty() || value == settingsPath_) return fallback;
  const auto size = user::toInteger16(value);
  if (!size || *size < 0) throw unusable(key, value, settingsPath_);
  return *size;
}

void frmSub::writeSizes() const {
  // Loading that failed before the sizes were read must not replace those that are stored.
  if (settingsPath_.empty()) return;
  user::WriteINIProfileString(kSection, kWindowWidth, text::decimal(width()), settingsPath_);
  user::WriteINIProfileString(kSection, kWindowHeight, text::decimal(height()), settingsPath_);
  // A window that was narrowed may have left its list too wide for it.
  const int treeWidth = lookup::widthToKeep({width(), height()}, TreeView1.width());
  user::WriteINIProfileString(kSection, kTreeWidth, text::decimal(treeWidth), settingsPath_);
}
