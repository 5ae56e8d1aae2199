// A pane with a title strip that is active as its frame is.

#include "vexel/controls/titled_pane.h"

#include "tests/support/scripted_system.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

CVisualElement* AddField(CVisualElement* parent)
{
    auto* const field = new CVisualElement(parent, {10, 10}, alLeft);
    field->SetCanHaveFocus(true);
    return field;
}

// A titled pane at the top with two fields, and a third field below it, which has the focus.
class TitledPane : public testing::Test
{
protected:
    TitledPane()
    {
        m_Host.Name(*m_Pane, "pane");
        m_Host.Name(m_Pane->GetTitle(), "title");
        m_Host.Focus();
        m_Outside->SetFocus(true);
        m_Host.Paint();
    }

    CTestHost m_Host{120, 80};
    CTitledPane* m_Pane = new CTitledPane(m_Host.Root(), {0, 50}, alTop);
    CVisualElement* m_One = AddField(m_Pane);
    CVisualElement* m_Two = AddField(m_Pane);
    CVisualElement* m_Outside = AddField(m_Host.Root());
};

TEST_F(TitledPane, HasItsTitleAtTheTopInsideOfTheFrame)
{
    EXPECT_EQ(m_Pane->GetTitle().GetAlignment(), alTop);
    EXPECT_FALSE(m_Pane->GetTitle().IsDynamic());
    EXPECT_EQ(m_Pane->GetTitle().GetParent(), m_Pane);
    EXPECT_EQ(m_Pane->GetTitle().GetPos().left, 1);
    EXPECT_EQ(m_Pane->GetTitle().GetPos().top, 1);
    EXPECT_EQ(m_Pane->GetTitle().GetPos().right, 118) << "the pane's right edge, 119, is its frame";
    EXPECT_EQ(m_One->GetPos().top, m_Pane->GetTitle().GetPos().bottom + 1);
}

TEST_F(TitledPane, ItsTitleCanStandAtAnotherEdge)
{
    m_Pane->SetTitleAlignment(alLeft);
    m_Host.Paint();

    EXPECT_EQ(m_Pane->GetTitle().GetAlignment(), alLeft);
    EXPECT_EQ(m_Pane->GetTitle().GetPos().top, 1);
    EXPECT_EQ(m_Pane->GetTitle().GetPos().bottom, 49);
}

TEST_F(TitledPane, IsAsTransparentAsItsTitle)
{
    EXPECT_TRUE(m_Pane->IsTransparent());
    m_Pane->GetTitle().SetTransparent(false);
    EXPECT_FALSE(m_Pane->IsTransparent());
}

TEST_F(TitledPane, IsActiveWithItsTitleWhileTheFocusIsInside)
{
    EXPECT_FALSE(m_Pane->GetTitle().IsActive());

    m_One->SetFocus(true);
    EXPECT_TRUE(m_Pane->IsActive());
    EXPECT_TRUE(m_Pane->GetTitle().IsActive());

    m_Outside->SetFocus(true);
    EXPECT_FALSE(m_Pane->IsActive());
    EXPECT_FALSE(m_Pane->GetTitle().IsActive());
}

TEST_F(TitledPane, IsNotRepaintedByAFocusThatMovesInside)
{
    m_One->SetFocus(true);
    m_Host.Paint();

    m_Two->SetFocus(true);

    PaintLog const log = m_Host.Paint();
    EXPECT_TRUE(log.Of("pane").IsEmpty());
    EXPECT_TRUE(log.Of("title").IsEmpty());
    EXPECT_TRUE(m_Pane->GetTitle().IsActive());
}

TEST_F(TitledPane, AClickOnItsInactiveTitleFocusesTheFirstElementInside)
{
    m_Host.Mouse().Click(m_Pane->GetTitle(), 60, 5);

    EXPECT_EQ(m_Host.Control().GetControl()->GetFocusedElement(), m_One);
    EXPECT_TRUE(m_Pane->GetTitle().IsActive());
}

TEST_F(TitledPane, AClickOnItsActiveTitleLeavesTheFocusWhereItIs)
{
    m_Two->SetFocus(true);

    m_Host.Mouse().Click(m_Pane->GetTitle(), 60, 5);

    EXPECT_EQ(m_Host.Control().GetControl()->GetFocusedElement(), m_Two);
}

TEST_F(TitledPane, WithoutAnElementThatTakesTheFocusAClickDoesNothing)
{
    m_One->SetCanHaveFocus(false);
    m_Two->SetEnabled(false);

    m_Host.Mouse().Click(m_Pane->GetTitle(), 60, 5);

    EXPECT_EQ(m_Host.Control().GetControl()->GetFocusedElement(), m_Outside);
    EXPECT_FALSE(m_Pane->GetTitle().IsActive());
}

TEST_F(TitledPane, MayBeDeletedByTheFocusThatItsTitleGives)
{
    struct CDeletes : subscriber_base_t
    {
        void Slot(CVisualElement*) { delete m_Pane; }
        CTitledPane* m_Pane = nullptr;
    } deletes;
    deletes.m_Pane = m_Pane;
    m_One->m_SigGetFocus.connect(&deletes, &CDeletes::Slot);

    m_Host.Mouse().Click(m_Pane->GetTitle(), 60, 5);

    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
}

TEST_F(TitledPane, AnyButtonOnItsInactiveTitleFocusesTheFirstElementInside)
{
    m_Host.Mouse().Press(m_Pane->GetTitle(), 60, 5, mbRight);

    EXPECT_EQ(m_Host.Control().GetControl()->GetFocusedElement(), m_One);
}

TEST_F(TitledPane, AClickOnItsTitleTakesTheNativeFocusToo)
{
    m_Host.Unfocus();
    ASSERT_FALSE(m_Host.Window().HasFocus());

    m_Pane->GetTitle().m_SigButtonDown(&m_Pane->GetTitle(), 60, 5, 1, mbLeft);

    EXPECT_TRUE(m_Host.Window().HasFocus());
    EXPECT_EQ(m_Host.Control().GetControl()->GetFocusedElement(), m_One);
}

TEST_F(TitledPane, TheColourOfItsTitleAloneDecidesWhatAClickDoes)
{
    m_Pane->GetTitle().SetBkColor(ISysPalette::scHighlight);

    m_Host.Mouse().Click(m_Pane->GetTitle(), 60, 5);

    EXPECT_EQ(m_Host.Control().GetControl()->GetFocusedElement(), m_Outside);
}

TEST_F(TitledPane, OnlyFocusThatComesFromOutsideCounts)
{
    for (CVisualElement* const inside : {static_cast<CVisualElement*>(m_Two), static_cast<CVisualElement*>(m_Pane)})
    {
        m_Pane->HandleChildFocusChanged(m_One, inside, true);
        EXPECT_FALSE(m_Pane->IsActive());
        EXPECT_FALSE(m_Pane->GetTitle().IsActive());
    }
    m_Pane->HandleChildFocusChanged(m_One, nullptr, true);
    EXPECT_TRUE(m_Pane->IsActive());
    EXPECT_TRUE(m_Pane->GetTitle().IsActive());
}

TEST_F(TitledPane, ATitleThatLostItsLookGetsItBackWithTheNextFocusFromOutside)
{
    m_One->SetFocus(true);
    m_Pane->GetTitle().SetActive(false);

    m_Pane->HandleChildFocusChanged(m_One, m_Outside, true);

    EXPECT_TRUE(m_Pane->GetTitle().IsActive());
}

TEST_F(TitledPane, PaneOrControlMayBeDeletedInTheChainsOfAClick)
{
    for (bool const control : {false, true})
    {
        for (bool const press : {false, true})
        {
            CTestHost host(120, 80);
            auto* const pane = new CTitledPane(host.Root(), {0, 50}, alTop);
            AddField(pane);
            host.Focus();
            AddField(host.Root())->SetFocus(true);
            host.Paint();
            auto const end = [&] {
                if (control)
                    host.DestroyControl();
                else
                    delete pane;
            };
            auto const pressed = press ? Listen(pane->GetTitle().m_SigButtonDown,
                                                [&](CVisualElement*, int, int, int, MouseButton) { end(); })
                                       : nullptr;
            auto const focused =
                press ? nullptr : Listen(pane->m_SigChildGetFocus, [&](CVisualElement*, CVisualElement*) { end(); });
            ASSERT_FALSE(pane->IsActive());
            host.Mouse().Press(pane->GetTitle(), 60, 5);
            EXPECT_EQ(host.HasControl(), !control);
            EXPECT_TRUE(control || host.Root()->GetChildren()->GetCount() == 1);
        }
    }
}

TEST(FreshTitledPane, WhatIsInsideDoesNotMoveAsItBecomesActive)
{
    for (bool const late : {false, true})
    {
        CTestHost host(120, 80);
        auto* const pane = new CTitledPane(late ? nullptr : host.Root(), {0, 50}, alTop);
        CVisualElement* const field = AddField(pane);
        if (late)
            pane->ReParent(host.Root(), true);
        host.Paint();
        EXPECT_EQ(pane->GetTitle().GetPos(), (rectangle<int>{1, 1, 118, 12})) << "as high as its font asks";
        EXPECT_EQ(field->GetPos().top, 13);

        host.Focus();
        host.Paint();

        EXPECT_TRUE(pane->IsActive());
        EXPECT_EQ(pane->GetTitle().GetPos(), (rectangle<int>{1, 1, 118, 12}));
        EXPECT_EQ(field->GetPos().top, 13);
    }
}

TEST(TitledPaneScale, ItsTitleIsEighteenPixelsTimesTheScaleOnce)
{
    for (double const scale : {1.0, 1.5, 2.0})
    {
        for (bool const automatic : {false, true})
        {
            CTestHost host(200, 100, scale);
            CAutoScaleScope const scaling(automatic);
            int const extent = static_cast<int>(18 * scale);
            CTitledPane alone(nullptr, {0, 50}, alLeft);
            EXPECT_EQ(alone.GetTitle().GetSize(), (size<int>{extent, extent}));
            auto* const pane = new CTitledPane(host.Root(), {0, 50}, alLeft);
            EXPECT_EQ(pane->GetTitle().GetSize().width, extent) << "the height goes by the font";
        }
    }
}

}  // namespace
