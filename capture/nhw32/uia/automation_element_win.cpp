#include "capture/nhw32/uia/automation_element.h"

#include <cstdint>
#include <optional>

namespace nhw32 {
namespace {

/// Text lies at most this far above the element that the point hits.
constexpr int kMostAncestors = 10;

HWND toHandle(WindowId window) { return reinterpret_cast<HWND>(window); }

/// One walk from the element under a point upwards.
class Walk {
 public:
  Walk(AutomationClient& client, const Question& question, AutomationCalls& calls)
      : client_(client), window_(toHandle(question.window)), calls_(calls) {
    const POINT point{question.point.x, question.point.y};
    if (!calls_.make([&] { return client_.ElementFromPoint(point, element_.out()); })) {
      element_.reset();
    }
  }

  Reference<AutomationTextPattern> textPattern() {
    bool belongs = false;
    for (int ancestors = 0; element_ && isNoPassword(); ++ancestors) {
      belongs = belongs || ofWindow();
      Reference<AutomationTextPattern> pattern;
      if (!calls_.make([&] {
            return element_->GetCurrentPatternAs(kTextPattern, kAutomationTextPatternId,
                                                 pattern.anyOut());
          })) {
        break;
      }
      if (pattern && belongs) return pattern;
      if (pattern || ancestors == kMostAncestors || !toParent()) break;
    }
    return {};
  }

 private:
  bool isNoPassword() {
    OwnedValue value;
    return property(kPasswordProperty, value) && value.get().vt == VT_BOOL &&
           value.get().boolVal == VARIANT_FALSE;
  }

  /// Another program's window may lie over the one that was asked for. A console's process is not
  /// that of its text, but both have one window.
  bool ofWindow() {
    DWORD process = 0;
    if (GetWindowThreadProcessId(window_, &process) == 0) return false;
    const auto elementProcess = number(kProcessIdProperty);
    if (elementProcess && static_cast<DWORD>(*elementProcess) == process) return true;
    const auto handle = number(kNativeWindowHandleProperty);
    if (!handle || *handle == 0) return false;
    const HWND root = GetAncestor(toHandle(static_cast<std::uint32_t>(*handle)), GA_ROOT);
    return root != nullptr && root == GetAncestor(window_, GA_ROOT);
  }

  bool toParent() {
    if (!walker_ &&
        !(calls_.make([&] { return client_.get_ControlViewWalker(walker_.out()); }) && walker_)) {
      return false;
    }
    Reference<AutomationElement> parent;
    if (!calls_.make([&] { return walker_->GetParentElement(element_.get(), parent.out()); })) {
      return false;
    }
    element_ = std::move(parent);
    return true;
  }

  bool property(int id, OwnedValue& value) {
    return calls_.make([&] { return element_->GetCurrentPropertyValue(id, value.out()); });
  }

  std::optional<std::int32_t> number(int id) {
    OwnedValue value;
    if (!property(id, value) || value.get().vt != VT_I4) return std::nullopt;
    return value.get().lVal;
  }

  AutomationClient& client_;
  HWND window_;
  AutomationCalls& calls_;
  Reference<AutomationElement> element_;
  Reference<AutomationTreeWalker> walker_;
};

}  // namespace

Reference<AutomationTextPattern> textPatternAt(AutomationClient& client, const Question& question,
                                               AutomationCalls& calls) {
  return Walk(client, question, calls).textPattern();
}

}  // namespace nhw32
