#include "tests/support/window/fake_uia.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "tests/support/window/uia_stubs.h"

namespace support {
namespace {

class FakePattern : public Counted<UiaTextPatternStub> {
 public:
  using Counted::Counted;

  HRESULT STDMETHODCALLTYPE RangeFromPoint(POINT point,
                                           nhw32::IUIAutomationTextRange** range) override {
    return in_.call("RangeFromPoint", [&] {
      const std::size_t index = grid::nearest(in_.plan.text, point);
      return makeFakeUiaRange(in_, index, index, range);
    });
  }
};

class FakeElement : public Counted<UiaElementStub> {
 public:
  FakeElement(FakeUia& uia, std::size_t index) : Counted(uia), index_(index) {}

  [[nodiscard]] std::size_t index() const { return index_; }

  HRESULT STDMETHODCALLTYPE GetCurrentPropertyValue(int property, VARIANT* value) override {
    return in_.call("GetCurrentPropertyValue", [&] {
      const ElementPlan& plan = in_.plan.elements.at(index_);
      if (property == UIA_IsPasswordPropertyId) {
        value->vt = plan.passwordType;
        value->boolVal = plan.password ? VARIANT_TRUE : VARIANT_FALSE;
      } else if (property == UIA_ProcessIdPropertyId) {
        value->vt = VT_I4;
        value->lVal = static_cast<LONG>(plan.process);
      } else if (property == UIA_NativeWindowHandlePropertyId) {
        value->vt = VT_I4;
        value->lVal = static_cast<LONG>(reinterpret_cast<LONG_PTR>(plan.window));
      } else {
        return E_INVALIDARG;
      }
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE GetCurrentPatternAs(int pattern, REFIID iid, void** result) override {
    return in_.call("GetCurrentPatternAs", [&] {
      if (pattern != UIA_TextPatternId || !IsEqualIID(iid, nhw32::IID_IUIAutomationTextPattern)) {
        return E_INVALIDARG;
      }
      *result = in_.plan.elements.at(index_).text ? std::make_unique<FakePattern>(in_).release()
                                                  : nullptr;
      return S_OK;
    });
  }

 private:
  std::size_t index_;
};

HRESULT giveElement(FakeUia& uia, std::size_t index, nhw32::IUIAutomationElement** element) {
  *element = index < uia.plan.elements.size() ? std::make_unique<FakeElement>(uia, index).release()
                                              : nullptr;
  return S_OK;
}

class FakeWalker : public Counted<UiaTreeWalkerStub> {
 public:
  using Counted::Counted;

  HRESULT STDMETHODCALLTYPE GetParentElement(nhw32::IUIAutomationElement* element,
                                             nhw32::IUIAutomationElement** parent) override {
    return in_.call("GetParentElement", [&] {
      return giveElement(in_, dynamic_cast<FakeElement&>(*element).index() + 1, parent);
    });
  }
};

class FakeClient : public Counted<UiaClientStub> {
 public:
  using Counted::Counted;

  HRESULT STDMETHODCALLTYPE ElementFromPoint(POINT /*point*/,
                                             nhw32::IUIAutomationElement** element) override {
    return in_.call("ElementFromPoint", [&] { return giveElement(in_, 0, element); });
  }
  HRESULT STDMETHODCALLTYPE
  get_ControlViewWalker(nhw32::IUIAutomationTreeWalker** walker) override {
    return in_.call("get_ControlViewWalker", [&] {
      *walker = std::make_unique<FakeWalker>(in_).release();
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE put_AutoSetFocus(BOOL takesFocus) override {
    in_.log.takesFocus = takesFocus != FALSE;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE put_ConnectionTimeout(DWORD timeout) override {
    in_.log.connectionLimit = timeout;
    return in_.plan.limits;
  }
  HRESULT STDMETHODCALLTYPE put_TransactionTimeout(DWORD timeout) override {
    in_.log.transactionLimit = timeout;
    return in_.plan.limits;
  }
};

}  // namespace

std::size_t FakeUia::times(const std::string& name) const {
  return static_cast<std::size_t>(std::count(log.calls.begin(), log.calls.end(), name));
}

HRESULT FakeUia::fail() const {
  if (plan.trouble->throws) throw std::runtime_error("the fake throws");
  return plan.trouble->result;
}

HRESULT makeFakeUia(FakeUia& uia, nhw32::IUIAutomation2** client) {
  *client = std::make_unique<FakeClient>(uia).release();
  return S_OK;
}

}  // namespace support
