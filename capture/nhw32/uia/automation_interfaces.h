#pragma once

// First: the others rest on it.
#include <windows.h>

#include <unknwn.h>

#include <oaidl.h>

#include <type_traits>

/// The interfaces of the operating system's UI Automation client, as far as they are called here;
/// the compiler's headers have none. Order of functions, argument types and numbers are those of
/// the system's public interface (UIAutomationClient.h of the Windows SDK); the number behind a
/// function is its place in the table.
namespace nhw32 {

template <int slot>
using Slot = std::integral_constant<int, slot>;

/// Begins every table: the three functions of IUnknown.
struct AutomationInterface : IUnknown {
  void skipped() = delete;
};

/// Continues a table with the places `first` to `last`, whose functions nobody here calls.
template <class Base, int first, int last>
struct Skip : Skip<Base, first, last - 1> {
  using Skip<Base, first, last - 1>::skipped;
  virtual HRESULT STDMETHODCALLTYPE skipped(Slot<last> /*slot*/) { return E_NOTIMPL; }
};

template <class Base, int slot>
struct Skip<Base, slot, slot> : Base {
  using Base::skipped;
  virtual HRESULT STDMETHODCALLTYPE skipped(Slot<slot> /*slot*/) { return E_NOTIMPL; }
};

enum class TextUnit : int { character = 0 };
enum class TextEnd : int { start = 0, end = 1 };

inline constexpr int kProcessIdProperty = 30002;           // UIA_ProcessIdPropertyId
inline constexpr int kPasswordProperty = 30019;            // UIA_IsPasswordPropertyId
inline constexpr int kNativeWindowHandleProperty = 30020;  // UIA_NativeWindowHandlePropertyId
inline constexpr int kTextPattern = 10014;                 // UIA_TextPatternId

inline constexpr auto kElementNotAvailable =
    static_cast<HRESULT>(0x80040201);  // UIA_E_ELEMENTNOTAVAILABLE
inline constexpr auto kAutomationTimeout = static_cast<HRESULT>(0x80131505);  // UIA_E_TIMEOUT

/// A stretch of text (IUIAutomationTextRange).
struct TextRangeCopy : AutomationInterface {
  virtual HRESULT STDMETHODCALLTYPE Clone(struct AutomationTextRange** copy) = 0;  // 3
};
struct TextRangeUnit : Skip<TextRangeCopy, 4, 5> {
  virtual HRESULT STDMETHODCALLTYPE ExpandToEnclosingUnit(TextUnit unit) = 0;  // 6
};
struct TextRangeBoxes : Skip<TextRangeUnit, 7, 9> {
  /// An array of doubles: left, top, width and height of each line's visible part.
  virtual HRESULT STDMETHODCALLTYPE GetBoundingRectangles(SAFEARRAY** rectangles) = 0;  // 10
};
struct AutomationTextRange : Skip<TextRangeBoxes, 11, 11> {
  virtual HRESULT STDMETHODCALLTYPE GetText(int maxLength, BSTR* text) = 0;          // 12
  virtual HRESULT STDMETHODCALLTYPE Move(TextUnit unit, int count, int* moved) = 0;  // 13
  virtual HRESULT STDMETHODCALLTYPE MoveEndpointByUnit(TextEnd end, TextUnit unit, int count,
                                                       int* moved) = 0;  // 14
  virtual HRESULT STDMETHODCALLTYPE MoveEndpointByRange(TextEnd end, AutomationTextRange* other,
                                                        TextEnd otherEnd) = 0;  // 15
};

/// What an element that holds text can tell of it (IUIAutomationTextPattern).
struct AutomationTextPattern : AutomationInterface {
  virtual HRESULT STDMETHODCALLTYPE RangeFromPoint(POINT point,
                                                   AutomationTextRange** range) = 0;  // 3
};

/// A part of a window (IUIAutomationElement).
struct ElementProperties : Skip<AutomationInterface, 3, 9> {
  virtual HRESULT STDMETHODCALLTYPE GetCurrentPropertyValue(int property,
                                                            VARIANT* value) = 0;  // 10
};
struct AutomationElement : Skip<ElementProperties, 11, 13> {
  /// S_OK and no pattern where the element has none.
  virtual HRESULT STDMETHODCALLTYPE GetCurrentPatternAs(int pattern, REFIID iid,
                                                        void** result) = 0;  // 14
};

/// The way from an element to those around it (IUIAutomationTreeWalker).
struct AutomationTreeWalker : AutomationInterface {
  virtual HRESULT STDMETHODCALLTYPE GetParentElement(AutomationElement* element,
                                                     AutomationElement** parent) = 0;  // 3
};

/// The way into UI Automation (IUIAutomation).
struct ClientElements : Skip<AutomationInterface, 3, 5> {
  virtual HRESULT STDMETHODCALLTYPE ElementFromHandle(HWND window,
                                                      AutomationElement** element) = 0;  // 6
  virtual HRESULT STDMETHODCALLTYPE ElementFromPoint(POINT point,
                                                     AutomationElement** element) = 0;  // 7
};
struct ClientWalkers : Skip<ClientElements, 8, 13> {
  virtual HRESULT STDMETHODCALLTYPE get_ControlViewWalker(AutomationTreeWalker** walker) = 0;  // 14
};
struct AutomationClient : Skip<ClientWalkers, 15, 57> {};

/// The same with limits of time, in milliseconds (IUIAutomation2).
struct ClientFocus : Skip<AutomationClient, 58, 58> {
  virtual HRESULT STDMETHODCALLTYPE put_AutoSetFocus(BOOL takesFocus) = 0;  // 59
};
struct ClientConnecting : Skip<ClientFocus, 60, 60> {
  virtual HRESULT STDMETHODCALLTYPE put_ConnectionTimeout(DWORD timeout) = 0;  // 61
};
struct AutomationClient2 : Skip<ClientConnecting, 62, 62> {
  virtual HRESULT STDMETHODCALLTYPE put_TransactionTimeout(DWORD timeout) = 0;  // 63
};

/// IUIAutomation2, in the Windows SDK's UIAutomationClient.h like the other ids.
inline constexpr IID kAutomationClient2Id = {
    0x34723aff, 0x0c9d, 0x49d0, {0x98, 0x96, 0x7a, 0xb5, 0x2d, 0xf8, 0xcd, 0x8a}};
/// IUIAutomationTextPattern.
inline constexpr IID kAutomationTextPatternId = {
    0x32eba289, 0x3583, 0x42c9, {0x9c, 0x59, 0x3b, 0x6d, 0x9a, 0x1e, 0x9b, 0x6a}};
/// CUIAutomation8, the client of Windows 8 and later.
inline constexpr CLSID kAutomationClass8 = {
    0xe22ad333, 0xb25f, 0x460c, {0x83, 0xd0, 0x05, 0x81, 0x10, 0x73, 0x95, 0xc9}};
/// CUIAutomation, the client of earlier ones.
inline constexpr CLSID kAutomationClass = {
    0xff48dba4, 0x60ef, 0x4201, {0xaa, 0x87, 0x54, 0x10, 0x3e, 0xef, 0x59, 0x4e}};

}  // namespace nhw32
