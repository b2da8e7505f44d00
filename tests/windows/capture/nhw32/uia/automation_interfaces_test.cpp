#include "capture/nhw32/uia/automation_interfaces.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

/// The place of a function in its table. The compiler keeps a pointer to a virtual function as one
/// more than the place's distance in bytes.
template <class Function>
std::size_t slotOf(Function function) {
  std::size_t distance = 0;
  std::memcpy(&distance, &function, sizeof distance);
  return (distance - 1) / sizeof(void*);
}

using nhw32::AutomationClient2;
using nhw32::AutomationElement;
using nhw32::AutomationTextRange;

TEST(AutomationInterfaces, BeginWithIUnknown) {
  EXPECT_EQ(slotOf(&AutomationElement::AddRef), 1U);
  EXPECT_EQ(slotOf(&AutomationElement::Release), 2U);
}

TEST(AutomationInterfaces, HaveTheFunctionsOfTheClientInTheirPlaces) {
  EXPECT_EQ(slotOf(&AutomationClient2::ElementFromHandle), 6U);
  EXPECT_EQ(slotOf(&AutomationClient2::ElementFromPoint), 7U);
  EXPECT_EQ(slotOf(&AutomationClient2::get_ControlViewWalker), 14U);
  EXPECT_EQ(slotOf(&AutomationClient2::put_AutoSetFocus), 59U);
  EXPECT_EQ(slotOf(&AutomationClient2::put_ConnectionTimeout), 61U);
  EXPECT_EQ(slotOf(&AutomationClient2::put_TransactionTimeout), 63U);
}

TEST(AutomationInterfaces, HaveTheFunctionsOfElementsInTheirPlaces) {
  EXPECT_EQ(slotOf(&AutomationElement::GetCurrentPropertyValue), 10U);
  EXPECT_EQ(slotOf(&AutomationElement::GetCurrentPatternAs), 14U);
  EXPECT_EQ(slotOf(&nhw32::AutomationTreeWalker::GetParentElement), 3U);
}

TEST(AutomationInterfaces, HaveTheFunctionsOfTextInTheirPlaces) {
  EXPECT_EQ(slotOf(&nhw32::AutomationTextPattern::RangeFromPoint), 3U);
  EXPECT_EQ(slotOf(&AutomationTextRange::Clone), 3U);
  EXPECT_EQ(slotOf(&AutomationTextRange::ExpandToEnclosingUnit), 6U);
  EXPECT_EQ(slotOf(&AutomationTextRange::GetBoundingRectangles), 10U);
  EXPECT_EQ(slotOf(&AutomationTextRange::GetText), 12U);
  EXPECT_EQ(slotOf(&AutomationTextRange::Move), 13U);
  EXPECT_EQ(slotOf(&AutomationTextRange::MoveEndpointByUnit), 14U);
  EXPECT_EQ(slotOf(&AutomationTextRange::MoveEndpointByRange), 15U);
}

}  // namespace
