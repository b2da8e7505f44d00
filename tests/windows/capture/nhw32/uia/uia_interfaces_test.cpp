#include "capture/nhw32/uia/uia_interfaces.h"

#include <gtest/gtest.h>
#include <objbase.h>

#include <array>
#include <cstring>
#include <string>

namespace {

using nhw32::IUIAutomation2;
using nhw32::IUIAutomationCacheRequest;
using nhw32::IUIAutomationElement;
using nhw32::IUIAutomationTextPattern;
using nhw32::IUIAutomationTextRange;
using nhw32::IUIAutomationTreeWalker;

/// The index of a function in its vtable. The compiler represents a pointer to a virtual function
/// as one more than the offset in bytes.
template <class Function>
std::size_t slotOf(Function function) {
  std::size_t distance = 0;
  std::memcpy(&distance, &function, sizeof distance);
  return (distance - 1) / sizeof(void*);
}

std::wstring textOf(REFGUID id) {
  std::array<wchar_t, 39> text{};
  EXPECT_EQ(StringFromGUID2(id, text.data(), static_cast<int>(text.size())), 39);
  return text.data();
}

TEST(UiaInterfaces, HaveThePublishedIds) {
  EXPECT_EQ(textOf(nhw32::IID_IUIAutomation2), L"{34723AFF-0C9D-49D0-9896-7AB52DF8CD8A}");
  EXPECT_EQ(textOf(nhw32::IID_IUIAutomationTextPattern), L"{32EBA289-3583-42C9-9C59-3B6D9A1E9B6A}");
  EXPECT_EQ(textOf(nhw32::CLSID_CUIAutomation8), L"{E22AD333-B25F-460C-83D0-0581107395C9}");
}

TEST(UiaInterfaces, HaveThePublishedNumbers) {
  EXPECT_EQ(UIA_TextPatternId, 10014);
  EXPECT_EQ(UIA_BoundingRectanglePropertyId, 30001);
  EXPECT_EQ(UIA_ProcessIdPropertyId, 30002);
  EXPECT_EQ(UIA_ControlTypePropertyId, 30003);
  EXPECT_EQ(UIA_NamePropertyId, 30005);
  EXPECT_EQ(UIA_IsPasswordPropertyId, 30019);
  EXPECT_EQ(UIA_NativeWindowHandlePropertyId, 30020);
  EXPECT_EQ(UIA_IsValuePatternAvailablePropertyId, 30043);
  EXPECT_EQ(UIA_ValueValuePropertyId, 30045);
  EXPECT_EQ(nhw32::kHyperlinkControlType, 50005);
  EXPECT_EQ(nhw32::kDataItemControlType, 50029);
  EXPECT_EQ(nhw32::kHeaderItemControlType, 50035);
  EXPECT_EQ(nhw32::TextUnit_Line, 3);
}

TEST(UiaInterfaces, BeginWithIUnknown) {
  EXPECT_EQ(slotOf(&IUIAutomationElement::AddRef), 1U);
  EXPECT_EQ(slotOf(&IUIAutomationElement::Release), 2U);
}

TEST(UiaInterfaces, HaveTheFunctionsOfTheClientInTheirSlots) {
  EXPECT_EQ(slotOf(&IUIAutomation2::ElementFromHandle), 6U);
  EXPECT_EQ(slotOf(&IUIAutomation2::ElementFromPoint), 7U);
  EXPECT_EQ(slotOf(&IUIAutomation2::ElementFromPointBuildCache), 11U);
  EXPECT_EQ(slotOf(&IUIAutomation2::get_ControlViewWalker), 14U);
  EXPECT_EQ(slotOf(&IUIAutomation2::get_RawViewCondition), 17U);
  EXPECT_EQ(slotOf(&IUIAutomation2::CreateCacheRequest), 20U);
  EXPECT_EQ(slotOf(&IUIAutomation2::ElementFromIAccessibleBuildCache), 57U);
  EXPECT_EQ(slotOf(&IUIAutomation2::get_AutoSetFocus), 58U);
  EXPECT_EQ(slotOf(&IUIAutomation2::put_AutoSetFocus), 59U);
  EXPECT_EQ(slotOf(&IUIAutomation2::get_ConnectionTimeout), 60U);
  EXPECT_EQ(slotOf(&IUIAutomation2::put_ConnectionTimeout), 61U);
  EXPECT_EQ(slotOf(&IUIAutomation2::get_TransactionTimeout), 62U);
  EXPECT_EQ(slotOf(&IUIAutomation2::put_TransactionTimeout), 63U);
}

TEST(UiaInterfaces, HaveTheFunctionsOfRequestsInTheirSlots) {
  EXPECT_EQ(slotOf(&IUIAutomationCacheRequest::AddProperty), 3U);
  EXPECT_EQ(slotOf(&IUIAutomationCacheRequest::AddPattern), 4U);
  EXPECT_EQ(slotOf(&IUIAutomationCacheRequest::put_TreeFilter), 9U);
  EXPECT_EQ(slotOf(&IUIAutomationCacheRequest::put_AutomationElementMode), 11U);
}

TEST(UiaInterfaces, HaveTheFunctionsOfElementsInTheirSlots) {
  EXPECT_EQ(slotOf(&IUIAutomationElement::GetCurrentPropertyValue), 10U);
  EXPECT_EQ(slotOf(&IUIAutomationElement::GetCachedPropertyValue), 12U);
  EXPECT_EQ(slotOf(&IUIAutomationElement::GetCachedPatternAs), 15U);
  EXPECT_EQ(slotOf(&IUIAutomationElement::GetCachedChildren), 19U);
  EXPECT_EQ(slotOf(&IUIAutomationTreeWalker::GetParentElementBuildCache), 9U);
  EXPECT_EQ(slotOf(&IUIAutomationTreeWalker::get_Condition), 15U);
}

TEST(UiaInterfaces, HaveTheFunctionsOfTextInTheirSlots) {
  EXPECT_EQ(slotOf(&IUIAutomationTextPattern::RangeFromPoint), 3U);
  EXPECT_EQ(slotOf(&IUIAutomationTextPattern::get_SupportedTextSelection), 8U);
  EXPECT_EQ(slotOf(&IUIAutomationTextRange::Clone), 3U);
  EXPECT_EQ(slotOf(&IUIAutomationTextRange::ExpandToEnclosingUnit), 6U);
  EXPECT_EQ(slotOf(&IUIAutomationTextRange::GetBoundingRectangles), 10U);
  EXPECT_EQ(slotOf(&IUIAutomationTextRange::GetText), 12U);
  EXPECT_EQ(slotOf(&IUIAutomationTextRange::Move), 13U);
  EXPECT_EQ(slotOf(&IUIAutomationTextRange::MoveEndpointByUnit), 14U);
  EXPECT_EQ(slotOf(&IUIAutomationTextRange::MoveEndpointByRange), 15U);
  EXPECT_EQ(slotOf(&IUIAutomationTextRange::GetChildren), 20U);
}

}  // namespace
