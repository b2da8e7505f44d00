#pragma once

#include "capture/nhw32/uia/uia_interfaces.h"

/// Implementations of UI Automation interfaces in which every function that our client does not
/// call returns E_NOTIMPL.
namespace support {

struct UiaTextRangeStub : nhw32::IUIAutomationTextRange {
  using Range = nhw32::IUIAutomationTextRange;
  using Endpoint = nhw32::TextPatternRangeEndpoint;

  STDMETHODIMP Compare(Range*, BOOL*) override { return E_NOTIMPL; }
  STDMETHODIMP CompareEndpoints(Endpoint, Range*, Endpoint, int*) override { return E_NOTIMPL; }
  STDMETHODIMP FindAttribute(int, VARIANT, BOOL, Range**) override { return E_NOTIMPL; }
  STDMETHODIMP FindText(BSTR, BOOL, BOOL, Range**) override { return E_NOTIMPL; }
  STDMETHODIMP GetAttributeValue(int, VARIANT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetEnclosingElement(nhw32::IUIAutomationElement**) override { return E_NOTIMPL; }
  STDMETHODIMP Select() override { return E_NOTIMPL; }
  STDMETHODIMP AddToSelection() override { return E_NOTIMPL; }
  STDMETHODIMP RemoveFromSelection() override { return E_NOTIMPL; }
  STDMETHODIMP ScrollIntoView(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP GetChildren(nhw32::IUIAutomationElementArray**) override { return E_NOTIMPL; }
};

struct UiaTextPatternStub : nhw32::IUIAutomationTextPattern {
  using Range = nhw32::IUIAutomationTextRange;
  using Ranges = nhw32::IUIAutomationTextRangeArray;

  STDMETHODIMP RangeFromChild(nhw32::IUIAutomationElement*, Range**) override { return E_NOTIMPL; }
  STDMETHODIMP GetSelection(Ranges**) override { return E_NOTIMPL; }
  STDMETHODIMP GetVisibleRanges(Ranges**) override { return E_NOTIMPL; }
  STDMETHODIMP get_DocumentRange(Range**) override { return E_NOTIMPL; }
  STDMETHODIMP get_SupportedTextSelection(nhw32::SupportedTextSelection*) override {
    return E_NOTIMPL;
  }
};

struct UiaElementStub : nhw32::IUIAutomationElement {
  using Element = nhw32::IUIAutomationElement;
  using Elements = nhw32::IUIAutomationElementArray;
  using Condition = nhw32::IUIAutomationCondition;
  using Cache = nhw32::IUIAutomationCacheRequest;
  using Scope = nhw32::TreeScope;

  STDMETHODIMP SetFocus() override { return E_NOTIMPL; }
  STDMETHODIMP GetRuntimeId(SAFEARRAY**) override { return E_NOTIMPL; }
  STDMETHODIMP FindFirst(Scope, Condition*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP FindAll(Scope, Condition*, Elements**) override { return E_NOTIMPL; }
  STDMETHODIMP FindFirstBuildCache(Scope, Condition*, Cache*, Element**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP FindAllBuildCache(Scope, Condition*, Cache*, Elements**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP BuildUpdatedCache(Cache*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetCurrentPropertyValueEx(PROPERTYID, BOOL, VARIANT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetCachedPropertyValueEx(PROPERTYID, BOOL, VARIANT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetCurrentPatternAs(int, REFIID, void**) override { return E_NOTIMPL; }
  STDMETHODIMP GetCurrentPattern(int, IUnknown**) override { return E_NOTIMPL; }
  STDMETHODIMP GetCachedPattern(int, IUnknown**) override { return E_NOTIMPL; }
  STDMETHODIMP GetCachedParent(Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetCachedChildren(Elements**) override { return E_NOTIMPL; }
};

struct UiaCacheRequestStub : nhw32::IUIAutomationCacheRequest {
  using Condition = nhw32::IUIAutomationCondition;
  using Mode = nhw32::AutomationElementMode;
  using Scope = nhw32::TreeScope;

  STDMETHODIMP Clone(nhw32::IUIAutomationCacheRequest**) override { return E_NOTIMPL; }
  STDMETHODIMP get_TreeScope(Scope*) override { return E_NOTIMPL; }
  STDMETHODIMP put_TreeScope(Scope) override { return E_NOTIMPL; }
  STDMETHODIMP get_TreeFilter(Condition**) override { return E_NOTIMPL; }
  STDMETHODIMP get_AutomationElementMode(Mode*) override { return E_NOTIMPL; }
  STDMETHODIMP put_AutomationElementMode(Mode) override { return E_NOTIMPL; }
};

struct UiaTreeWalkerStub : nhw32::IUIAutomationTreeWalker {
  using Element = nhw32::IUIAutomationElement;
  using Cache = nhw32::IUIAutomationCacheRequest;

  STDMETHODIMP GetParentElement(Element*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetFirstChildElement(Element*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetLastChildElement(Element*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetNextSiblingElement(Element*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetPreviousSiblingElement(Element*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP NormalizeElement(Element*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetFirstChildElementBuildCache(Element*, Cache*, Element**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP GetLastChildElementBuildCache(Element*, Cache*, Element**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP GetNextSiblingElementBuildCache(Element*, Cache*, Element**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP GetPreviousSiblingElementBuildCache(Element*, Cache*, Element**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP NormalizeElementBuildCache(Element*, Cache*, Element**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP get_Condition(nhw32::IUIAutomationCondition**) override { return E_NOTIMPL; }
};

struct UiaClientStub : nhw32::IUIAutomation2 {
  using Element = nhw32::IUIAutomationElement;
  using Walker = nhw32::IUIAutomationTreeWalker;
  using Condition = nhw32::IUIAutomationCondition;
  using Cache = nhw32::IUIAutomationCacheRequest;
  using Scope = nhw32::TreeScope;
  using PropertyHandler = nhw32::IUIAutomationPropertyChangedEventHandler;
  using StructureHandler = nhw32::IUIAutomationStructureChangedEventHandler;
  using FocusHandler = nhw32::IUIAutomationFocusChangedEventHandler;
  using Handler = nhw32::IUIAutomationEventHandler;
  using Factory = nhw32::IUIAutomationProxyFactory;
  using FactoryEntry = nhw32::IUIAutomationProxyFactoryEntry;
  using FactoryMapping = nhw32::IUIAutomationProxyFactoryMapping;
  using Flags = nhw32::PropertyConditionFlags;

  STDMETHODIMP CompareElements(Element*, Element*, BOOL*) override { return E_NOTIMPL; }
  STDMETHODIMP CompareRuntimeIds(SAFEARRAY*, SAFEARRAY*, BOOL*) override { return E_NOTIMPL; }
  STDMETHODIMP GetRootElement(Element**) override { return E_NOTIMPL; }
  STDMETHODIMP ElementFromHandle(HWND, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP ElementFromPoint(POINT, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetFocusedElement(Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetRootElementBuildCache(Cache*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP ElementFromHandleBuildCache(HWND, Cache*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP GetFocusedElementBuildCache(Cache*, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP CreateTreeWalker(Condition*, Walker**) override { return E_NOTIMPL; }
  STDMETHODIMP get_ContentViewWalker(Walker**) override { return E_NOTIMPL; }
  STDMETHODIMP get_RawViewWalker(Walker**) override { return E_NOTIMPL; }
  STDMETHODIMP get_ControlViewCondition(Condition**) override { return E_NOTIMPL; }
  STDMETHODIMP get_ContentViewCondition(Condition**) override { return E_NOTIMPL; }
  STDMETHODIMP CreateTrueCondition(Condition**) override { return E_NOTIMPL; }
  STDMETHODIMP CreateFalseCondition(Condition**) override { return E_NOTIMPL; }
  STDMETHODIMP CreatePropertyCondition(PROPERTYID, VARIANT, Condition**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP CreatePropertyConditionEx(PROPERTYID, VARIANT, Flags, Condition**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP CreateAndCondition(Condition*, Condition*, Condition**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP CreateAndConditionFromArray(SAFEARRAY*, Condition**) override { return E_NOTIMPL; }
  STDMETHODIMP CreateAndConditionFromNativeArray(Condition**, int, Condition**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP CreateOrCondition(Condition*, Condition*, Condition**) override { return E_NOTIMPL; }
  STDMETHODIMP CreateOrConditionFromArray(SAFEARRAY*, Condition**) override { return E_NOTIMPL; }
  STDMETHODIMP CreateOrConditionFromNativeArray(Condition**, int, Condition**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP CreateNotCondition(Condition*, Condition**) override { return E_NOTIMPL; }
  STDMETHODIMP AddAutomationEventHandler(EVENTID, Element*, Scope, Cache*, Handler*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP RemoveAutomationEventHandler(EVENTID, Element*, Handler*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP AddPropertyChangedEventHandlerNativeArray(Element*, Scope, Cache*, PropertyHandler*,
                                                         PROPERTYID*, int) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP AddPropertyChangedEventHandler(Element*, Scope, Cache*, PropertyHandler*,
                                              SAFEARRAY*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP RemovePropertyChangedEventHandler(Element*, PropertyHandler*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP AddStructureChangedEventHandler(Element*, Scope, Cache*,
                                               StructureHandler*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP RemoveStructureChangedEventHandler(Element*, StructureHandler*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP AddFocusChangedEventHandler(Cache*, FocusHandler*) override { return E_NOTIMPL; }
  STDMETHODIMP RemoveFocusChangedEventHandler(FocusHandler*) override { return E_NOTIMPL; }
  STDMETHODIMP RemoveAllEventHandlers() override { return E_NOTIMPL; }
  STDMETHODIMP IntNativeArrayToSafeArray(int*, int, SAFEARRAY**) override { return E_NOTIMPL; }
  STDMETHODIMP IntSafeArrayToNativeArray(SAFEARRAY*, int**, int*) override { return E_NOTIMPL; }
  STDMETHODIMP RectToVariant(RECT, VARIANT*) override { return E_NOTIMPL; }
  STDMETHODIMP VariantToRect(VARIANT, RECT*) override { return E_NOTIMPL; }
  STDMETHODIMP SafeArrayToRectNativeArray(SAFEARRAY*, RECT**, int*) override { return E_NOTIMPL; }
  STDMETHODIMP CreateProxyFactoryEntry(Factory*, FactoryEntry**) override { return E_NOTIMPL; }
  STDMETHODIMP get_ProxyFactoryMapping(FactoryMapping**) override { return E_NOTIMPL; }
  STDMETHODIMP GetPropertyProgrammaticName(PROPERTYID, BSTR*) override { return E_NOTIMPL; }
  STDMETHODIMP GetPatternProgrammaticName(int, BSTR*) override { return E_NOTIMPL; }
  STDMETHODIMP PollForPotentialSupportedPatterns(Element*, SAFEARRAY**, SAFEARRAY**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP PollForPotentialSupportedProperties(Element*, SAFEARRAY**, SAFEARRAY**) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP CheckNotSupported(VARIANT, BOOL*) override { return E_NOTIMPL; }
  STDMETHODIMP get_ReservedNotSupportedValue(IUnknown**) override { return E_NOTIMPL; }
  STDMETHODIMP get_ReservedMixedAttributeValue(IUnknown**) override { return E_NOTIMPL; }
  STDMETHODIMP ElementFromIAccessible(IAccessible*, int, Element**) override { return E_NOTIMPL; }
  STDMETHODIMP ElementFromIAccessibleBuildCache(IAccessible*, int, Cache*, Element**) override {
    return E_NOTIMPL;
  }
};

}  // namespace support
