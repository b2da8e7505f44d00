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
      const auto rows = grid::rowsOf(in_.plan.text, in_.plan.columns);
      const std::size_t index = grid::nearest(rows, point, in_.plan.tellsRowOnly);
      return makeFakeUiaRange(in_, index, index, range);
    });
  }
};

class FakeRequest : public Counted<UiaCacheRequestStub> {
 public:
  using Counted::Counted;

  [[nodiscard]] const std::set<int>& properties() const { return properties_; }
  /// Only what is in the view of the filter is prefetched; the fake's elements are in none.
  [[nodiscard]] bool ofEverything() const { return ofEverything_; }
  [[nodiscard]] bool ofText() const { return ofText_; }

  HRESULT STDMETHODCALLTYPE AddProperty(int property) override {
    return in_.prepare("AddProperty", [&] {
      properties_.insert(property);
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE AddPattern(int pattern) override {
    return in_.prepare("AddPattern", [&] {
      ofText_ = pattern == UIA_TextPatternId;
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE put_TreeFilter(nhw32::IUIAutomationCondition* filter) override {
    return in_.prepare("put_TreeFilter", [&] {
      ofEverything_ = filter != nullptr;
      return S_OK;
    });
  }

 private:
  std::set<int> properties_;
  bool ofEverything_ = false;
  bool ofText_ = false;
};

HRESULT giveNumber(long number, VARIANT* value) {
  value->vt = VT_I4;
  value->lVal = number;
  return S_OK;
}

HRESULT giveFlag(bool flag, VARIANT* value, VARTYPE type = VT_BOOL) {
  value->vt = type;
  value->boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  return S_OK;
}

HRESULT giveText(const std::u16string& text, VARIANT* value) {
  value->vt = VT_BSTR;
  value->bstrVal = SysAllocString(reinterpret_cast<const OLECHAR*>(text.c_str()));
  return S_OK;
}

HRESULT giveProperty(const ElementPlan& plan, int property, VARIANT* value) {
  switch (property) {
    case UIA_IsPasswordPropertyId:
      return giveFlag(plan.password, value, plan.passwordType);
    case UIA_ProcessIdPropertyId:
      return giveNumber(static_cast<long>(plan.process), value);
    case UIA_NativeWindowHandlePropertyId:
      return giveNumber(static_cast<long>(reinterpret_cast<LONG_PTR>(plan.window)), value);
    case UIA_ControlTypePropertyId:
      return giveNumber(plan.type, value);
    case UIA_IsValuePatternAvailablePropertyId:
      return giveFlag(plan.value.has_value(), value);
    case UIA_ValueValuePropertyId:
      return giveText(plan.value.value_or(u""), value);
    case UIA_NamePropertyId:
      return giveText(plan.name, value);
    case UIA_BoundingRectanglePropertyId:
      value->vt = VT_ARRAY | VT_R8;
      value->parray = arrayOf(plan.place);
      return S_OK;
    default:
      return E_INVALIDARG;
  }
}

class FakeElement : public Counted<UiaElementStub> {
 public:
  FakeElement(FakeUia& uia, std::size_t index, const FakeRequest& request)
      : Counted(uia), index_(index) {
    if (request.ofEverything()) prefetched_ = request.properties();
    textPrefetched_ = request.ofEverything() && request.ofText();
  }

  [[nodiscard]] std::size_t index() const { return index_; }

  HRESULT STDMETHODCALLTYPE GetCachedPropertyValue(int property, VARIANT* value) override {
    return in_.callLocally("GetCachedPropertyValue", [&] {
      return prefetched_.contains(property) ? giveProperty(plan(), property, value) : E_INVALIDARG;
    });
  }

  HRESULT STDMETHODCALLTYPE GetCurrentPropertyValue(int property, VARIANT* value) override {
    return in_.call("GetCurrentPropertyValue",
                    [&] { return giveProperty(plan(), property, value); });
  }

  HRESULT STDMETHODCALLTYPE GetCachedPatternAs(int pattern, REFIID iid, void** result) override {
    return in_.callLocally("GetCachedPatternAs", [&] {
      if (!textPrefetched_ || pattern != UIA_TextPatternId ||
          !IsEqualIID(iid, nhw32::IID_IUIAutomationTextPattern)) {
        return E_INVALIDARG;
      }
      *result = plan().text ? std::make_unique<FakePattern>(in_).release() : nullptr;
      return S_OK;
    });
  }

 private:
  [[nodiscard]] const ElementPlan& plan() const { return in_.plan.elements.at(index_); }

  std::size_t index_;
  std::set<int> prefetched_;
  bool textPrefetched_ = false;
};

HRESULT giveElement(FakeUia& uia, std::size_t index, nhw32::IUIAutomationCacheRequest* request,
                    nhw32::IUIAutomationElement** element) {
  const auto& what = dynamic_cast<FakeRequest&>(*request);
  *element = index < uia.plan.elements.size()
                 ? std::make_unique<FakeElement>(uia, index, what).release()
                 : nullptr;
  return S_OK;
}

class FakeWalker : public Counted<UiaTreeWalkerStub> {
 public:
  using Counted::Counted;

  HRESULT STDMETHODCALLTYPE GetParentElementBuildCache(
      nhw32::IUIAutomationElement* element, nhw32::IUIAutomationCacheRequest* request,
      nhw32::IUIAutomationElement** parent) override {
    return in_.call("GetParentElementBuildCache", [&] {
      return giveElement(in_, dynamic_cast<FakeElement&>(*element).index() + 1, request, parent);
    });
  }
};

class FakeClient : public Counted<UiaClientStub> {
 public:
  using Counted::Counted;

  HRESULT STDMETHODCALLTYPE
  ElementFromPointBuildCache(POINT /*point*/, nhw32::IUIAutomationCacheRequest* request,
                             nhw32::IUIAutomationElement** element) override {
    return in_.call("ElementFromPointBuildCache",
                    [&] { return giveElement(in_, 0, request, element); });
  }
  HRESULT STDMETHODCALLTYPE
  get_ControlViewWalker(nhw32::IUIAutomationTreeWalker** walker) override {
    return give<FakeWalker>("get_ControlViewWalker", walker);
  }
  HRESULT STDMETHODCALLTYPE
  get_RawViewCondition(nhw32::IUIAutomationCondition** condition) override {
    return give<Counted<nhw32::IUIAutomationCondition>>("get_RawViewCondition", condition);
  }
  HRESULT STDMETHODCALLTYPE
  CreateCacheRequest(nhw32::IUIAutomationCacheRequest** request) override {
    return give<FakeRequest>("CreateCacheRequest", request);
  }
  HRESULT STDMETHODCALLTYPE put_AutoSetFocus(BOOL takesFocus) override {
    return in_.prepare("put_AutoSetFocus", [&] {
      in_.log.takesFocus = takesFocus != FALSE;
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE get_AutoSetFocus(BOOL* takesFocus) override {
    *takesFocus = in_.log.takesFocus ? TRUE : FALSE;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE put_ConnectionTimeout(DWORD timeout) override {
    return in_.prepare("put_ConnectionTimeout", [&] {
      in_.log.connectionLimits.push_back(timeout);
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE get_ConnectionTimeout(DWORD* timeout) override {
    return giveLimit("get_ConnectionTimeout", timeout);
  }
  HRESULT STDMETHODCALLTYPE put_TransactionTimeout(DWORD timeout) override {
    return in_.prepare("put_TransactionTimeout", [&] {
      in_.log.transactionLimit = timeout;
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE get_TransactionTimeout(DWORD* timeout) override {
    return giveLimit("get_TransactionTimeout", timeout);
  }

 private:
  template <class Object, class Interface>
  HRESULT give(const char* name, Interface** result) {
    return in_.prepare(name, [&] {
      *result = std::make_unique<Object>(in_).release();
      return S_OK;
    });
  }
  HRESULT giveLimit(const char* name, DWORD* timeout) {
    return in_.prepare(name, [&] {
      *timeout = in_.plan.ownLimit;
      return S_OK;
    });
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
