#pragma once

// First: the other headers rest on it.
#include <windows.h>

#include <oleacc.h>
#include <uiautomationclient.h>
#include <uiautomationcore.h>
#include <unknwn.h>

/// The client interfaces of UI Automation that are used here, under the names of the Windows SDK
/// (UIAutomationClient.h), whose documentation applies. mingw-w64 10 declares only the provider
/// side and the constants. The order of the functions is the ABI: no function may be moved or left
/// out. IUIAutomationElement ends before its property accessors (get_CurrentProcessId and those
/// after it), which are not used: a client may declare the beginning of an interface. In a
/// namespace so that newer headers, which declare them all, do no harm.
namespace nhw32 {

struct IUIAutomationCacheRequest;
struct IUIAutomationElement;
struct IUIAutomationTextRange;
struct IUIAutomationTreeWalker;

// Interfaces that only occur as types of parameters.
struct IUIAutomationElementArray;
struct IUIAutomationEventHandler;
struct IUIAutomationFocusChangedEventHandler;
struct IUIAutomationPropertyChangedEventHandler;
struct IUIAutomationProxyFactory;
struct IUIAutomationProxyFactoryEntry;
struct IUIAutomationProxyFactoryMapping;
struct IUIAutomationStructureChangedEventHandler;
struct IUIAutomationTextRangeArray;

// The SDK's enumerations; the first as far as they are used.
enum TextUnit : int { TextUnit_Character = 0, TextUnit_Line = 3 };
enum TextPatternRangeEndpoint : int {
  TextPatternRangeEndpoint_Start = 0,
  TextPatternRangeEndpoint_End = 1,
};
enum AutomationElementMode : int {};
enum TreeScope : int {};
enum PropertyConditionFlags : int {};
enum SupportedTextSelection : int {};

/// Has no functions of its own.
struct IUIAutomationCondition : IUnknown {};

/// A new one asks for the element alone (TreeScope) with a reference to it, so that its pattern may
/// be called (AutomationElementMode).
struct IUIAutomationCacheRequest : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE AddProperty(PROPERTYID propertyId) = 0;
  virtual HRESULT STDMETHODCALLTYPE AddPattern(PATTERNID patternId) = 0;
  virtual HRESULT STDMETHODCALLTYPE Clone(IUIAutomationCacheRequest** clonedRequest) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_TreeScope(TreeScope* scope) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_TreeScope(TreeScope scope) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_TreeFilter(IUIAutomationCondition** filter) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_TreeFilter(IUIAutomationCondition* filter) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_AutomationElementMode(AutomationElementMode* mode) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_AutomationElementMode(AutomationElementMode mode) = 0;
};

struct IUIAutomationTextRange : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE Clone(IUIAutomationTextRange** clonedRange) = 0;
  virtual HRESULT STDMETHODCALLTYPE Compare(IUIAutomationTextRange* range, BOOL* areSame) = 0;
  virtual HRESULT STDMETHODCALLTYPE CompareEndpoints(TextPatternRangeEndpoint srcEndPoint,
                                                     IUIAutomationTextRange* range,
                                                     TextPatternRangeEndpoint targetEndPoint,
                                                     int* compValue) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExpandToEnclosingUnit(TextUnit textUnit) = 0;
  virtual HRESULT STDMETHODCALLTYPE FindAttribute(int attr, VARIANT val, BOOL backward,
                                                  IUIAutomationTextRange** found) = 0;
  virtual HRESULT STDMETHODCALLTYPE FindText(BSTR text, BOOL backward, BOOL ignoreCase,
                                             IUIAutomationTextRange** found) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetAttributeValue(int attr, VARIANT* value) = 0;
  /// An array of doubles: left, top, width and height of the visible part of each line.
  virtual HRESULT STDMETHODCALLTYPE GetBoundingRectangles(SAFEARRAY** boundingRects) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  GetEnclosingElement(IUIAutomationElement** enclosingElement) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetText(int maxLength, BSTR* text) = 0;
  virtual HRESULT STDMETHODCALLTYPE Move(TextUnit unit, int count, int* moved) = 0;
  virtual HRESULT STDMETHODCALLTYPE MoveEndpointByUnit(TextPatternRangeEndpoint endpoint,
                                                       TextUnit unit, int count, int* moved) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  MoveEndpointByRange(TextPatternRangeEndpoint srcEndPoint, IUIAutomationTextRange* range,
                      TextPatternRangeEndpoint targetEndPoint) = 0;
  virtual HRESULT STDMETHODCALLTYPE Select() = 0;
  virtual HRESULT STDMETHODCALLTYPE AddToSelection() = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveFromSelection() = 0;
  virtual HRESULT STDMETHODCALLTYPE ScrollIntoView(BOOL alignToTop) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetChildren(IUIAutomationElementArray** children) = 0;
};

struct IUIAutomationTextPattern : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE RangeFromPoint(POINT pt, IUIAutomationTextRange** range) = 0;
  virtual HRESULT STDMETHODCALLTYPE RangeFromChild(IUIAutomationElement* child,
                                                   IUIAutomationTextRange** range) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetSelection(IUIAutomationTextRangeArray** ranges) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetVisibleRanges(IUIAutomationTextRangeArray** ranges) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_DocumentRange(IUIAutomationTextRange** range) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  get_SupportedTextSelection(SupportedTextSelection* supportedTextSelection) = 0;
};

struct IUIAutomationElement : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE SetFocus() = 0;
  virtual HRESULT STDMETHODCALLTYPE GetRuntimeId(SAFEARRAY** runtimeId) = 0;
  virtual HRESULT STDMETHODCALLTYPE FindFirst(TreeScope scope, IUIAutomationCondition* condition,
                                              IUIAutomationElement** found) = 0;
  virtual HRESULT STDMETHODCALLTYPE FindAll(TreeScope scope, IUIAutomationCondition* condition,
                                            IUIAutomationElementArray** found) = 0;
  virtual HRESULT STDMETHODCALLTYPE FindFirstBuildCache(TreeScope scope,
                                                        IUIAutomationCondition* condition,
                                                        IUIAutomationCacheRequest* cacheRequest,
                                                        IUIAutomationElement** found) = 0;
  virtual HRESULT STDMETHODCALLTYPE FindAllBuildCache(TreeScope scope,
                                                      IUIAutomationCondition* condition,
                                                      IUIAutomationCacheRequest* cacheRequest,
                                                      IUIAutomationElementArray** found) = 0;
  virtual HRESULT STDMETHODCALLTYPE BuildUpdatedCache(IUIAutomationCacheRequest* cacheRequest,
                                                      IUIAutomationElement** updatedElement) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCurrentPropertyValue(PROPERTYID propertyId,
                                                            VARIANT* retVal) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCurrentPropertyValueEx(PROPERTYID propertyId,
                                                              BOOL ignoreDefaultValue,
                                                              VARIANT* retVal) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCachedPropertyValue(PROPERTYID propertyId,
                                                           VARIANT* retVal) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCachedPropertyValueEx(PROPERTYID propertyId,
                                                             BOOL ignoreDefaultValue,
                                                             VARIANT* retVal) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCurrentPatternAs(int patternId, REFIID riid,
                                                        void** patternObject) = 0;
  /// Returns S_OK and a null pattern if the element does not support the pattern.
  virtual HRESULT STDMETHODCALLTYPE GetCachedPatternAs(int patternId, REFIID riid,
                                                       void** patternObject) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCurrentPattern(int patternId, IUnknown** patternObject) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCachedPattern(int patternId, IUnknown** patternObject) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCachedParent(IUIAutomationElement** parent) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCachedChildren(IUIAutomationElementArray** children) = 0;
};

struct IUIAutomationTreeWalker : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE GetParentElement(IUIAutomationElement* element,
                                                     IUIAutomationElement** parent) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetFirstChildElement(IUIAutomationElement* element,
                                                         IUIAutomationElement** first) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetLastChildElement(IUIAutomationElement* element,
                                                        IUIAutomationElement** last) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNextSiblingElement(IUIAutomationElement* element,
                                                          IUIAutomationElement** next) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetPreviousSiblingElement(IUIAutomationElement* element,
                                                              IUIAutomationElement** previous) = 0;
  virtual HRESULT STDMETHODCALLTYPE NormalizeElement(IUIAutomationElement* element,
                                                     IUIAutomationElement** normalized) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  GetParentElementBuildCache(IUIAutomationElement* element, IUIAutomationCacheRequest* cacheRequest,
                             IUIAutomationElement** parent) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetFirstChildElementBuildCache(
      IUIAutomationElement* element, IUIAutomationCacheRequest* cacheRequest,
      IUIAutomationElement** first) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetLastChildElementBuildCache(
      IUIAutomationElement* element, IUIAutomationCacheRequest* cacheRequest,
      IUIAutomationElement** last) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNextSiblingElementBuildCache(
      IUIAutomationElement* element, IUIAutomationCacheRequest* cacheRequest,
      IUIAutomationElement** next) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetPreviousSiblingElementBuildCache(
      IUIAutomationElement* element, IUIAutomationCacheRequest* cacheRequest,
      IUIAutomationElement** previous) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  NormalizeElementBuildCache(IUIAutomationElement* element, IUIAutomationCacheRequest* cacheRequest,
                             IUIAutomationElement** normalized) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Condition(IUIAutomationCondition** condition) = 0;
};

struct IUIAutomation : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE CompareElements(IUIAutomationElement* el1,
                                                    IUIAutomationElement* el2, BOOL* areSame) = 0;
  virtual HRESULT STDMETHODCALLTYPE CompareRuntimeIds(SAFEARRAY* runtimeId1, SAFEARRAY* runtimeId2,
                                                      BOOL* areSame) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetRootElement(IUIAutomationElement** root) = 0;
  virtual HRESULT STDMETHODCALLTYPE ElementFromHandle(HWND hwnd,
                                                      IUIAutomationElement** element) = 0;
  virtual HRESULT STDMETHODCALLTYPE ElementFromPoint(POINT pt, IUIAutomationElement** element) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetFocusedElement(IUIAutomationElement** element) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetRootElementBuildCache(
      IUIAutomationCacheRequest* cacheRequest, IUIAutomationElement** root) = 0;
  virtual HRESULT STDMETHODCALLTYPE ElementFromHandleBuildCache(
      HWND hwnd, IUIAutomationCacheRequest* cacheRequest, IUIAutomationElement** element) = 0;
  virtual HRESULT STDMETHODCALLTYPE ElementFromPointBuildCache(
      POINT pt, IUIAutomationCacheRequest* cacheRequest, IUIAutomationElement** element) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetFocusedElementBuildCache(
      IUIAutomationCacheRequest* cacheRequest, IUIAutomationElement** element) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateTreeWalker(IUIAutomationCondition* pCondition,
                                                     IUIAutomationTreeWalker** walker) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ControlViewWalker(IUIAutomationTreeWalker** walker) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ContentViewWalker(IUIAutomationTreeWalker** walker) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_RawViewWalker(IUIAutomationTreeWalker** walker) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_RawViewCondition(IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  get_ControlViewCondition(IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  get_ContentViewCondition(IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateCacheRequest(IUIAutomationCacheRequest** request) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateTrueCondition(IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateFalseCondition(IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreatePropertyCondition(PROPERTYID propertyId, VARIANT value,
                                                            IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  CreatePropertyConditionEx(PROPERTYID propertyId, VARIANT value, PropertyConditionFlags flags,
                            IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateAndCondition(IUIAutomationCondition* condition1,
                                                       IUIAutomationCondition* condition2,
                                                       IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  CreateAndConditionFromArray(SAFEARRAY* conditions, IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  CreateAndConditionFromNativeArray(IUIAutomationCondition** conditions, int conditionCount,
                                    IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateOrCondition(IUIAutomationCondition* condition1,
                                                      IUIAutomationCondition* condition2,
                                                      IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  CreateOrConditionFromArray(SAFEARRAY* conditions, IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  CreateOrConditionFromNativeArray(IUIAutomationCondition** conditions, int conditionCount,
                                   IUIAutomationCondition** condition) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateNotCondition(IUIAutomationCondition* condition,
                                                       IUIAutomationCondition** negated) = 0;
  virtual HRESULT STDMETHODCALLTYPE AddAutomationEventHandler(
      EVENTID eventId, IUIAutomationElement* element, TreeScope scope,
      IUIAutomationCacheRequest* cacheRequest, IUIAutomationEventHandler* handler) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveAutomationEventHandler(
      EVENTID eventId, IUIAutomationElement* element, IUIAutomationEventHandler* handler) = 0;
  virtual HRESULT STDMETHODCALLTYPE AddPropertyChangedEventHandlerNativeArray(
      IUIAutomationElement* element, TreeScope scope, IUIAutomationCacheRequest* cacheRequest,
      IUIAutomationPropertyChangedEventHandler* handler, PROPERTYID* properties,
      int propertyCount) = 0;
  virtual HRESULT STDMETHODCALLTYPE AddPropertyChangedEventHandler(
      IUIAutomationElement* element, TreeScope scope, IUIAutomationCacheRequest* cacheRequest,
      IUIAutomationPropertyChangedEventHandler* handler, SAFEARRAY* properties) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemovePropertyChangedEventHandler(
      IUIAutomationElement* element, IUIAutomationPropertyChangedEventHandler* handler) = 0;
  virtual HRESULT STDMETHODCALLTYPE AddStructureChangedEventHandler(
      IUIAutomationElement* element, TreeScope scope, IUIAutomationCacheRequest* cacheRequest,
      IUIAutomationStructureChangedEventHandler* handler) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveStructureChangedEventHandler(
      IUIAutomationElement* element, IUIAutomationStructureChangedEventHandler* handler) = 0;
  virtual HRESULT STDMETHODCALLTYPE AddFocusChangedEventHandler(
      IUIAutomationCacheRequest* cacheRequest, IUIAutomationFocusChangedEventHandler* handler) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  RemoveFocusChangedEventHandler(IUIAutomationFocusChangedEventHandler* handler) = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveAllEventHandlers() = 0;
  virtual HRESULT STDMETHODCALLTYPE IntNativeArrayToSafeArray(int* array, int arrayCount,
                                                              SAFEARRAY** safeArray) = 0;
  virtual HRESULT STDMETHODCALLTYPE IntSafeArrayToNativeArray(SAFEARRAY* intArray, int** array,
                                                              int* arrayCount) = 0;
  virtual HRESULT STDMETHODCALLTYPE RectToVariant(RECT rc, VARIANT* var) = 0;
  virtual HRESULT STDMETHODCALLTYPE VariantToRect(VARIANT var, RECT* rc) = 0;
  virtual HRESULT STDMETHODCALLTYPE SafeArrayToRectNativeArray(SAFEARRAY* rects, RECT** rectArray,
                                                               int* rectArrayCount) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateProxyFactoryEntry(
      IUIAutomationProxyFactory* factory, IUIAutomationProxyFactoryEntry** factoryEntry) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  get_ProxyFactoryMapping(IUIAutomationProxyFactoryMapping** factoryMapping) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetPropertyProgrammaticName(PROPERTYID property,
                                                                BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetPatternProgrammaticName(int pattern, BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE PollForPotentialSupportedPatterns(
      IUIAutomationElement* pElement, SAFEARRAY** patternIds, SAFEARRAY** patternNames) = 0;
  virtual HRESULT STDMETHODCALLTYPE PollForPotentialSupportedProperties(
      IUIAutomationElement* pElement, SAFEARRAY** propertyIds, SAFEARRAY** propertyNames) = 0;
  virtual HRESULT STDMETHODCALLTYPE CheckNotSupported(VARIANT value, BOOL* isNotSupported) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReservedNotSupportedValue(IUnknown** notSupportedValue) = 0;
  virtual HRESULT STDMETHODCALLTYPE
  get_ReservedMixedAttributeValue(IUnknown** mixedAttributeValue) = 0;
  virtual HRESULT STDMETHODCALLTYPE ElementFromIAccessible(IAccessible* accessible, int childId,
                                                           IUIAutomationElement** element) = 0;
  virtual HRESULT STDMETHODCALLTYPE ElementFromIAccessibleBuildCache(
      IAccessible* accessible, int childId, IUIAutomationCacheRequest* cacheRequest,
      IUIAutomationElement** element) = 0;
};

struct IUIAutomation2 : IUIAutomation {
  virtual HRESULT STDMETHODCALLTYPE get_AutoSetFocus(BOOL* autoSetFocus) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_AutoSetFocus(BOOL autoSetFocus) = 0;
  /// In milliseconds, like the other limit.
  virtual HRESULT STDMETHODCALLTYPE get_ConnectionTimeout(DWORD* timeout) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_ConnectionTimeout(DWORD timeout) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_TransactionTimeout(DWORD* timeout) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_TransactionTimeout(DWORD timeout) = 0;
};

// mingw-w64 10 has these in uiautomationcoreapi.h, which is not valid C++.
inline constexpr auto UIA_E_ELEMENTNOTAVAILABLE = static_cast<HRESULT>(0x80040201);
inline constexpr auto UIA_E_TIMEOUT = static_cast<HRESULT>(0x80131505);

// Control types, which mingw-w64 10 lacks; under names of our own, since newer headers have macros.
inline constexpr int kHyperlinkControlType = 50005;
inline constexpr int kDataItemControlType = 50029;
inline constexpr int kHeaderItemControlType = 50035;

// Interface and class ids, as published in UIAutomationClient.h.
inline constexpr IID IID_IUIAutomation2 = {
    0x34723aff, 0x0c9d, 0x49d0, {0x98, 0x96, 0x7a, 0xb5, 0x2d, 0xf8, 0xcd, 0x8a}};
inline constexpr IID IID_IUIAutomationTextPattern = {
    0x32eba289, 0x3583, 0x42c9, {0x9c, 0x59, 0x3b, 0x6d, 0x9a, 0x1e, 0x9b, 0x6a}};
/// The client of Windows 8 and later.
inline constexpr CLSID CLSID_CUIAutomation8 = {
    0xe22ad333, 0xb25f, 0x460c, {0x83, 0xd0, 0x05, 0x81, 0x10, 0x73, 0x95, 0xc9}};

}  // namespace nhw32
