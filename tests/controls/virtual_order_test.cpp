// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/controls/border.h"
#include "vexel/controls/caption.h"
#include "vexel/controls/control_caption.h"
#include "vexel/controls/tab_pane.h"
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

TEST(ControlsVirtualOrder, OfModelsAndLooksOfTabs)
{
    ExpectOrder(2, &ITabsModel::GetTabCount, &ITabsModel::GetTabText, &ITabsModel::GetTabImageIndex,
                &ITabsModel::GetTabTextFlags, &ITabsModel::GetTabTooltip, &ITabsModel::HasTabCloseButton,
                &ITabsModel::GetTabSpacerWidth, &ITabsModel::GetTabSpacerImageIndex, &ITabsModel::IsTabEnabled,
                &ITabsModel::IsTabAnimated, &ITabsModel::GetAnimation);
    ExpectOrder(2, &ITabVisualisation::GetCloseBtnRect, &ITabVisualisation::GetTabContentRect,
                &ITabVisualisation::GetItemOptimalWidth, &ITabVisualisation::GetItemAdditionalHeight,
                &ITabVisualisation::GetItemAdditionalWidth, &ITabVisualisation::DrawBackground,
                &ITabVisualisation::DrawTab, &ITabVisualisation::DrawTabContent, &ITabVisualisation::DrawCloseButton,
                &ITabVisualisation::GetBackgroundColor, &ITabVisualisation::GetTextColor,
                &ITabVisualisation::GetFrameColor, &ITabVisualisation::DrawEmptyArea);
}

TEST(ControlsVirtualOrder, OfTheHandlerOfTabs)
{
    ExpectOrder(Place(&CEventHandler::ProcessScroll) + 1, &CDefTabHandler::SetCurProcessButtonDown,
                &CDefTabHandler::HighlightingMouseMove, &CDefTabHandler::HighlightingMouseLeave,
                &CDefTabHandler::SetCurProcessKeyDown);
    EXPECT_EQ(Place(&CTooltipEventHandler::GetTooltipAttr), Place(&CEventHandler::ProcessScroll) + 1);
}

// Operations that a class has from its second base on take new places behind those of the first, in the order in which
// they are declared. Of these a pointer tells the place in the table of the base alone, so the first table is compared.
TEST(ControlsVirtualOrder, OfThePaneOfTabs)
{
    using Grid = CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>;
    EXPECT_EQ(PlaceBehind<CTransparentFlavor<Grid>>(), PlaceBehind<Grid>());
    ExpectOrder(PlaceBehind<Grid>(), &CTabPane::DrawCell, &CTabPane::GetTooltipAttr, &CTabPane::SetCurProcessButtonDown,
                &CTabPane::HighlightingMouseMove, &CTabPane::HighlightingMouseLeave, &CTabPane::SetCurProcessKeyDown,
                &CTabPane::GetCloseBtnRect, &CTabPane::GetTabContentRect, &CTabPane::GetItemOptimalWidth,
                &CTabPane::GetItemAdditionalHeight, &CTabPane::GetItemAdditionalWidth, &CTabPane::DrawBackground,
                &CTabPane::DrawTab, &CTabPane::DrawTabContent, &CTabPane::DrawCloseButton,
                &CTabPane::GetBackgroundColor, &CTabPane::GetTextColor, &CTabPane::GetFrameColor,
                &CTabPane::UpdateAnimation, &CTabPane::IsUpdatable);
}

}  // namespace
