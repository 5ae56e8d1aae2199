// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/controls/border.h"
#include "vexel/controls/caption.h"
#include "vexel/controls/control_caption.h"
#include "vexel/controls/titled_pane.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// Where a class that derives from `Base` alone puts its first operation.
template <class Base> std::size_t PlaceBehind()
{
    struct SNext : Base
    {
        using Base::Base;
        virtual void Next() {}
    };
    return Place(&SNext::Next);
}

TEST(ControlsVirtualOrder, OfCaptions)
{
    ExpectOrder(PlaceBehind<CTransparentFlavor<CVisualElement>>(), &CCaption::DrawBackground,
                &CCaption::GetInternalRect, &CCaption::RecalculateSize, &CCaption::GetAutoSizeAdditionalExtent,
                &CCaption::GetDrawingAdditionalExtent, &CCaption::GetImageSize, &CCaption::OnDrawLink);
    EXPECT_EQ(PlaceBehind<CCaption>(), Place(&CCaption::OnDrawLink) + 1);
}

TEST(ControlsVirtualOrder, TheFlavourOfTransparencyAddsNone)
{
    EXPECT_EQ(PlaceBehind<CTransparentFlavor<CVisualElement>>(), PlaceBehind<CVisualElement>());
    EXPECT_EQ(Place(&CCaption::DrawBackground), Place(&CVisualElement::HandleCopyToClipboard) + 1);
}

TEST(ControlsVirtualOrder, OfBevelsAndBorders)
{
    EXPECT_EQ(Place(&CBevel::DrawBackground), PlaceBehind<CVisualElement>());
    EXPECT_EQ(PlaceBehind<CBevel>(), Place(&CBevel::DrawBackground) + 1);
    EXPECT_EQ(PlaceBehind<CBorder>(), PlaceBehind<CBevel>());
}

TEST(ControlsVirtualOrder, OfTitleStrips)
{
    EXPECT_EQ(Place(&CElementCaption::SetActive), PlaceBehind<CBevel>());
    EXPECT_EQ(PlaceBehind<CElementCaption>(), Place(&CElementCaption::SetActive) + 1);
    EXPECT_EQ(PlaceBehind<CControlCaption>(), PlaceBehind<CElementCaption>());
}

TEST(ControlsVirtualOrder, OfPanesWithTitle)
{
    EXPECT_EQ(PlaceBehind<CTitledPane>(), PlaceBehind<CPane>());
}

}  // namespace
