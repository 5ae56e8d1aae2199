// Tooltips, context menus, and what runs over the whole tree.

#include "vexel/core/base_control.h"
#include "vexel/core/context_menu.h"
#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <optional>

using namespace vexel;
using namespace vexel::test;

namespace
{

class CAnswering : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

    std::optional<std::string> m_Answer;
    rectangle<int> m_Hot;
    bool m_TakesMenu = false;
    std::string m_Asked;

protected:
    bool HandleOnTooltip(CTooltipEvent* event) override
    {
        m_Asked += std::to_string(event->m_X) + "," + std::to_string(event->m_Y) + " ";
        if (!m_Answer)
            return false;
        event->m_Text = *m_Answer;
        event->m_HotRect = m_Hot;
        return true;
    }
    bool HandleContextMenu(int x, int y) override
    {
        m_Asked += std::to_string(x) + "," + std::to_string(y) + " ";
        return m_TakesMenu;
    }
};

class CMenu : public IContextMenu
{
public:
    void Show(int x, int y, CVisualElement* element) override
    {
        m_Shown += std::to_string(x) + "," + std::to_string(y) + "," + ElementName(element) + " ";
    }
    std::string m_Shown;
};

// box (10, 0, 79, 59) > inner (0, 0, 30, 59)
class Tips : public testing::Test
{
protected:
    Tips()
    {
        NameElement(m_Box, "box");
        NameElement(m_Inner, "inner");
        m_Host.Paint();
    }

    CTestHost m_Host{100, 60};
    CVisualElement& m_Margin = *new CVisualElement(m_Host.Root(), {9, 0}, alLeft);
    CAnswering& m_Box = *new CAnswering(m_Host.Root(), {69, 0}, alLeft);
    CAnswering& m_Inner = *new CAnswering(&m_Box, {30, 0}, alLeft);
    CMenu m_Menu;
};

} // namespace

TEST_F(Tips, AnElementsTextIsShownOverItsRectangle)
{
    m_Inner.SetTooltip("inner tip");
    m_Inner.SetTooltipMultiline(true);

    EXPECT_EQ(m_Host.Tooltip(m_Inner, 5, 6), "inner tip");
    EXPECT_EQ(m_Host.Window().GetTooltip().hotRect, (rectangle<int>{10, 0, 40, 59}));
    EXPECT_TRUE(m_Host.Window().GetTooltip().multiline);
}

TEST_F(Tips, WithoutATextTheParentIsAskedWithItsOwnCoordinates)
{
    m_Box.SetTooltip("box tip");

    EXPECT_EQ(m_Host.Tooltip(m_Inner, 5, 6), "box tip");
    EXPECT_EQ(m_Inner.m_Asked, "5,6 ");
    EXPECT_EQ(m_Box.m_Asked, "5,6 ");
    EXPECT_EQ(m_Host.Window().GetTooltip().hotRect, (rectangle<int>{10, 0, 79, 59}));
}

TEST_F(Tips, AHandlersRectangleIsConvertedToTheControl)
{
    m_Inner.m_Answer = "by hand";
    m_Inner.m_Hot = {1, 2, 3, 4};

    EXPECT_EQ(m_Host.Tooltip(m_Inner, 5, 6), "by hand");
    EXPECT_EQ(m_Host.Window().GetTooltip().hotRect, (rectangle<int>{11, 2, 13, 4}));
}

TEST_F(Tips, AHandlersRectangleOfZerosStaysZero)
{
    m_Inner.m_Answer = "by hand";

    EXPECT_EQ(m_Host.Tooltip(m_Inner, 5, 6), "by hand");
    EXPECT_EQ(m_Host.Window().GetTooltip().hotRect, rectangle<int>());
}

TEST_F(Tips, TheTipTakesTheElementsFont)
{
    font big;
    big.size = 20;
    m_Inner.SetFont(big);
    m_Inner.SetTooltip("big");

    m_Host.Tooltip(m_Inner, 5, 6);

    EXPECT_EQ(m_Host.Window().GetTooltip().textFont.size, 20);
}

TEST_F(Tips, NobodyWithATextShowsNone)
{
    EXPECT_EQ(m_Host.Tooltip(m_Inner, 5, 6), "");
}

TEST_F(Tips, TheSignalComesBeforeTheHandlerAtEachLevel)
{
    CSignalLog log(m_Inner.m_SigTooltip, "inner.tooltip");
    log.Add(m_Box.m_SigTooltip, "box.tooltip");

    m_Host.Tooltip(m_Inner, 5, 6);

    EXPECT_EQ(log.Count("inner.tooltip"), 1);
    EXPECT_EQ(log.Count("box.tooltip"), 1);
}

// Context menu ------------------------------------------------------------------------------------------------------------

TEST_F(Tips, TheMenuOfTheElementUnderThePointerIsShownInControlCoordinates)
{
    m_Inner.SetContextMenu(&m_Menu);
    m_Box.SetContextMenu(&m_Menu);

    m_Host.ContextMenu(m_Inner, 5, 6);

    EXPECT_EQ(m_Menu.m_Shown, "15,6,inner ");
}

TEST_F(Tips, WithoutAMenuTheParentsIsShown)
{
    m_Box.SetContextMenu(&m_Menu);

    m_Host.ContextMenu(m_Inner, 5, 6);

    EXPECT_EQ(m_Menu.m_Shown, "15,6,box ");
}

TEST_F(Tips, AHandlerThatTakesTheMenuEndsTheSearch)
{
    m_Inner.m_TakesMenu = true;
    m_Box.SetContextMenu(&m_Menu);
    CSignalLog log(m_Box.m_SigContextMenu, "box.menu");

    m_Host.ContextMenu(m_Inner, 5, 6);

    EXPECT_EQ(m_Inner.m_Asked, "5,6 ");
    EXPECT_EQ(m_Menu.m_Shown, "");
    EXPECT_EQ(log.Text(), "");
}

TEST_F(Tips, ADisabledElementShowsNoMenuNorDoItsParents)
{
    m_Inner.SetEnabled(false);
    m_Box.SetContextMenu(&m_Menu);

    m_Host.ContextMenu(m_Inner, 5, 6);

    EXPECT_EQ(m_Menu.m_Shown, "");
}

TEST_F(Tips, ADisabledParentEndsTheWayUp)
{
    m_Box.SetContextMenu(&m_Menu);
    m_Box.SetEnabled(false);

    m_Host.ContextMenu(m_Inner, 5, 6);

    EXPECT_EQ(m_Menu.m_Shown, "");
    EXPECT_EQ(m_Inner.m_Asked, "5,6 ");
}

// The whole tree ------------------------------------------------------------------------------------------------------------

TEST_F(Tips, AChangeOfTheDesktopsColoursRepaintsEverything)
{
    CSignalLog log(m_Host.Control().m_SigSysColorChanged, "colors");

    m_Host.SysColorChange();

    EXPECT_EQ(log.Count(), 1);
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(Tips, TheEndOfTheWindowIsToldParentFirst)
{
    CSignalLog log(m_Box.m_SigControlDestroy, "box");
    log.Add(m_Inner.m_SigControlDestroy, "inner");
    log.Add(m_Host.Control().m_SigDestroyed, "destroyed");
    log.Add(m_Host.Control().GetControl()->m_SigWindowDestroyed, "window");

    m_Host.DestroyWindow();

    EXPECT_EQ(log.Text(), "destroyed() box() inner() window()");
    EXPECT_EQ(m_Inner.GetMousePos(), point<int>());
}
