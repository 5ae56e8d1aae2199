// An editor on a cell of a viewer: it goes along with every scroll, is cut at the view, and goes away when too little of it
// is left.

#include "vexel/views/editor_event_handler.h"

#include "tests/views/viewer_bench.h"
#include "vexel/scroll/scroll_box.h"

#include <climits>
#include <memory>

using namespace viewer_test;

namespace
{

class CNotify : public CEditorEventHandler::INotify
{
public:
    void EditorHidden() override
    {
        ++m_Hidden;
        if (auto const then = m_Then)
            then();
    }

    int m_Hidden = 0;
    std::function<void()> m_Then;
};

/// Does a deed whenever it has been placed.
class CPlaced : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

    void SetPos(rectangle<int> const& rect, bool force) override
    {
        CVisualElement::SetPos(rect, force);
        if (auto const then = m_Then)
            then();
    }

    std::function<void()> m_Then;
};

constexpr rectangle<int> g_Parked{-10000, -10000, -10000, -10000};

// A viewer of 100 x 100, whose handler is told so, with an editor at (10, 40, 70, 70).
class EditorEventHandler : public testing::Test
{
protected:
    using Rect = rectangle<int>;

    EditorEventHandler()
    {
        m_Editor.SetPos({10, 40, 70, 70}, true);
        m_Rows.AddEventHandler(&m_Handler);
        m_Host.Paint();
        m_Handler.ProcessResize({}, {0, 0, 100, 100}, false);
        m_Handler.SetEditor(&m_Editor);
    }
    std::string Where() { return m_Editor.IsVisible() ? Describe(m_Editor.GetPos()) : "hidden"; }
    std::string Scroll(int dx, int dy)
    {
        m_Handler.ProcessScroll(dx, dy);
        return Where();
    }

    CTestHost m_Host{101, 101};
    CNotify m_Notify;
    CEditorEventHandler m_Handler{&m_Notify};
    CTestRows<IDiscreteItemViewModel>& m_Rows =
        *new CTestRows<IDiscreteItemViewModel>(m_Host.Root(), {10, 10}, alClient);
    CVisualElement& m_Editor = *new CVisualElement(&m_Rows, {5, 5}, alNone);
};

// Twenty rows of 20 pixels in a scroll box on a window of 200 x 120, wider than the view too; an editor on row 2.
class ScrolledEditor : public testing::Test
{
protected:
    using Rect = rectangle<int>;

    ScrolledEditor()
    {
        m_Rows.SetAutoRowHeight(false);
        m_Rows.GetRowViewModel()->SetDefaultItemSize(20);
        m_Rows.GetRowViewModel()->SetCount(20);
        m_Rows.AddEventHandler(&m_Handler);
        m_Box.ConnectElement(&m_Rows, CScrollBox::ctVertical, true);
        m_Host.Focus();
        m_Host.Paint();
        m_Editor.SetPos({10, 40, 70, 60}, true);
        m_Handler.SetEditor(&m_Editor);
        m_Host.Paint();
    }
    std::string Where()
    {
        m_Host.Paint();
        return m_Editor.IsVisible() ? Describe(m_Editor.GetPos()) : "hidden";
    }

    CTestHost m_Host{200, 120};
    CNotify m_Notify;
    CEditorEventHandler m_Handler{&m_Notify};
    CScrollBox& m_Box = *new CScrollBox(m_Host.Root(), {10, 10}, alClient);
    CTestRows<IDiscreteItemViewModel>& m_Rows = *new CTestRows<IDiscreteItemViewModel>(&m_Box, {10, 10}, alClient);
    CVisualElement& m_Editor = *new CVisualElement(&m_Rows, {5, 5}, alNone);
};

}  // namespace

// Taking an editor ----------------------------------------------------------------------------------------------------------

TEST_F(EditorEventHandler, TakesPlaceAndVisibilityOfItsEditor)
{
    CEditorEventHandler fresh(nullptr);
    EXPECT_EQ(fresh.GetEditor(), nullptr);
    EXPECT_EQ(fresh.GetEditorPos(), Rect());
    EXPECT_EQ(m_Handler.GetEditor(), &m_Editor);
    EXPECT_EQ(m_Handler.GetEditorPos(), (Rect{10, 40, 70, 70}));
    m_Editor.SetPos({20, 20, 60, 50}, false);
    m_Handler.SetEditor(&m_Editor);
    EXPECT_EQ(m_Handler.GetEditorPos(), (Rect{10, 40, 70, 70})) << "it is the same one";
    m_Handler.UpdateEditor();
    EXPECT_EQ(m_Handler.GetEditorPos(), (Rect{20, 20, 60, 50}));
}

TEST_F(EditorEventHandler, WithoutAnEditorAScrollDoesNothing)
{
    m_Handler.SetEditor(nullptr);
    EXPECT_EQ(m_Handler.GetEditor(), nullptr);
    m_Handler.UpdateEditor();
    EXPECT_EQ(Scroll(5, 5), "(10, 40, 70, 70)");
    EXPECT_EQ(m_Handler.GetEditorPos(), (Rect{10, 40, 70, 70}));
    EXPECT_EQ(m_Notify.m_Hidden, 0);
}

// Scrolling -----------------------------------------------------------------------------------------------------------------

TEST_F(EditorEventHandler, TheEditorGoesAlong)
{
    EXPECT_EQ(Scroll(3, -7), "(13, 33, 73, 63)");
    EXPECT_EQ(Scroll(-3, 7), "(10, 40, 70, 70)");
    EXPECT_EQ(Scroll(30, 30), "(40, 70, 100, 100)");
}

TEST_F(EditorEventHandler, WhatSticksOutIsCutAtEachSide)
{
    EXPECT_EQ(Scroll(-20, 0), "(0, 40, 50, 70)");
    EXPECT_EQ(m_Handler.GetEditorPos(), (Rect{-10, 40, 50, 70}));
    EXPECT_EQ(Scroll(60, 0), "(50, 40, 100, 70)");
    EXPECT_EQ(Scroll(-40, -50), "(10, 0, 70, 20)");
    EXPECT_EQ(Scroll(0, 90), "(10, 80, 70, 100)");
    EXPECT_EQ(m_Handler.GetEditorPos(), (Rect{10, 80, 70, 110}));
    EXPECT_EQ(Scroll(0, -40), "(10, 40, 70, 70)");
    EXPECT_EQ(m_Notify.m_Hidden, 0);
}

TEST_F(EditorEventHandler, WithLessThanEighteenPixelsLeftItGoesAwayAndTells)
{
    EXPECT_EQ(Scroll(0, -52), "(10, 0, 70, 18)");
    EXPECT_EQ(Scroll(0, -1), "hidden");
    EXPECT_EQ(m_Editor.GetPos(), g_Parked);
    EXPECT_EQ(m_Notify.m_Hidden, 1);
    EXPECT_EQ(m_Handler.GetEditorPos(), (Rect{10, -13, 70, 17}));
    EXPECT_EQ(Scroll(0, -500), "hidden");
    EXPECT_EQ(m_Notify.m_Hidden, 1) << "it is away already";
    EXPECT_EQ(Scroll(0, 501), "(10, 0, 70, 18)");
    EXPECT_EQ(Scroll(0, 52), "(10, 40, 70, 70)");
    EXPECT_EQ(m_Notify.m_Hidden, 1);
}

TEST_F(EditorEventHandler, TheSameHoldsForItsWidth)
{
    EXPECT_EQ(Scroll(-52, 0), "(0, 40, 18, 70)");
    EXPECT_EQ(Scroll(-1, 0), "hidden");
    EXPECT_EQ(m_Editor.GetPos(), g_Parked);
    EXPECT_EQ(Scroll(125, 0), "(82, 40, 100, 70)");
    EXPECT_EQ(Scroll(1, 0), "hidden");
    EXPECT_EQ(m_Notify.m_Hidden, 2);
    EXPECT_EQ(Scroll(300, 300), "hidden");
    EXPECT_EQ(Scroll(-373, -300), "(10, 40, 70, 70)");
}

TEST_F(EditorEventHandler, TheEighteenPixelsScaleWithTheDisplay)
{
    m_Host.SetScale(1.25);  // 22.5
    EXPECT_EQ(Scroll(0, -48), "(10, 0, 70, 22)");
    EXPECT_EQ(Scroll(0, -1), "hidden");
}

TEST_F(EditorEventHandler, AnEditorThatWasHiddenBeforeStaysHidden)
{
    m_Editor.SetVisible(false);
    m_Handler.UpdateEditor();
    EXPECT_EQ(Scroll(0, -10), "hidden");
    EXPECT_EQ(m_Editor.GetPos(), (Rect{10, 30, 70, 60}));
    EXPECT_EQ(Scroll(0, -100), "hidden");
    EXPECT_EQ(m_Editor.GetPos(), (Rect{10, 30, 70, 60})) << "nothing happens to it";
    EXPECT_EQ(Scroll(0, 110), "hidden");
    EXPECT_EQ(m_Editor.GetPos(), (Rect{10, 40, 70, 70}));
    EXPECT_EQ(m_Notify.m_Hidden, 0);
}

TEST_F(EditorEventHandler, AnEditorThatWasShownMeanwhileComesBackShown)
{
    m_Editor.SetVisible(false);
    m_Handler.UpdateEditor();
    m_Editor.SetVisible(true);
    EXPECT_EQ(Scroll(0, -500), "hidden");
    EXPECT_EQ(m_Notify.m_Hidden, 1);
    EXPECT_EQ(Scroll(0, 500), "(10, 40, 70, 70)");
}

TEST_F(EditorEventHandler, ASmallEditorIsNeverShownByAScroll)
{
    m_Editor.SetPos({10, 40, 70, 57}, false);
    m_Handler.UpdateEditor();
    EXPECT_EQ(Scroll(0, 1), "hidden");
    EXPECT_EQ(m_Notify.m_Hidden, 1);
}

TEST_F(EditorEventHandler, ANewViewCutsOtherwise)
{
    m_Handler.ProcessResize({0, 0, 100, 100}, {0, 0, 60, 65}, false);
    EXPECT_EQ(Where(), "(10, 40, 70, 70)") << "not before the next scroll";
    EXPECT_EQ(Scroll(0, 0), "(10, 40, 60, 65)");
    m_Handler.ProcessResize({0, 0, 60, 65}, {0, 0, 100, 100}, false);
    EXPECT_EQ(Scroll(0, 0), "(10, 40, 70, 70)");
}

TEST_F(EditorEventHandler, BeforeItHearsOfAResizeItUsesTheViewersBounds)
{
    CEditorEventHandler late(nullptr);
    m_Rows.AddEventHandler(&late);
    late.SetEditor(&m_Editor);
    late.ProcessScroll(0, -50);
    EXPECT_EQ(Where(), "(10, 0, 70, 20)");
    late.ProcessScroll(0, 90);
    EXPECT_EQ(Where(), "(10, 80, 70, 100)");
}

TEST_F(EditorEventHandler, NobodyNeedsToHear)
{
    CEditorEventHandler quiet(nullptr);
    quiet.ProcessResize({}, {0, 0, 100, 100}, false);
    quiet.SetEditor(&m_Editor);
    quiet.ProcessScroll(0, -500);
    EXPECT_EQ(Where(), "hidden");
    EXPECT_EQ(m_Editor.GetPos(), g_Parked);
}

TEST_F(EditorEventHandler, FarAwayItStaysAway)
{
    EXPECT_EQ(Scroll(INT_MAX, INT_MAX), "hidden");
    EXPECT_EQ(Scroll(INT_MAX, INT_MAX), "hidden");
    EXPECT_EQ(Scroll(INT_MIN, INT_MIN), "hidden");
}

TEST_F(EditorEventHandler, WhoHearsOfItSeesTheEditorParked)
{
    std::string seen;
    m_Notify.m_Then = [&] { seen = Where() + " " + Describe(m_Editor.GetPos()); };
    Scroll(0, -500);
    EXPECT_EQ(seen, "hidden (-10000, -10000, -10000, -10000)");
}

// On a viewer that scrolls --------------------------------------------------------------------------------------------------

TEST_F(ScrolledEditor, EachWayOfScrollingTakesItOutAndBack)
{
    struct SWay
    {
        char const* name;
        std::function<void(int)> go;  // by rows
    };
    SWay const ways[] = {
        {"scroll model",
         [this](int rows) { m_Rows.GetVertScroll()->SetStart(m_Rows.GetVertScroll()->GetStart() + rows); }},
        {"wheel", [this](int rows) { m_Host.Mouse().Wheel(m_Rows, 150, 90, -rows); }},
        {"bar",
         [this](int rows) { m_Box.VertScroll(CScrollEvent::saSetValue, m_Rows.GetVertScroll()->GetStart() + rows); }},
        {"content", [this](int rows) { m_Rows.ScrollContent(0, -20 * rows); }},
    };
    for (SWay const& way : ways)
    {
        SCOPED_TRACE(way.name);
        ASSERT_EQ(Where(), "(10, 40, 70, 60)");
        int const hidden = m_Notify.m_Hidden;
        way.go(3);
        EXPECT_EQ(Where(), "hidden");
        EXPECT_EQ(m_Editor.GetPos(), g_Parked);
        EXPECT_EQ(m_Notify.m_Hidden, hidden + 1);
        way.go(-3);
        EXPECT_EQ(Where(), "(10, 40, 70, 60)");
        EXPECT_EQ(m_Notify.m_Hidden, hidden + 1);
    }
    m_Rows.GetVertScroll()->SetStart(1);
    EXPECT_EQ(Where(), "(10, 20, 70, 40)");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ScrolledEditor, AWindowOfAnotherSizeIsTheViewOfTheNextScroll)
{
    m_Host.Resize(60, 120);
    m_Host.Paint();
    m_Rows.GetVertScroll()->SetStart(1);
    int const right = m_Rows.GetBounds().right;
    EXPECT_LT(right, 60);
    EXPECT_EQ(Where(), "(10, 20, " + std::to_string(right) + ", 40)");
    m_Host.Resize(200, 120);
    m_Host.Paint();
    m_Rows.GetVertScroll()->SetStart(0);
    EXPECT_EQ(Where(), "(10, 40, 70, 60)");
}

// What dies -----------------------------------------------------------------------------------------------------------------

TEST_F(ScrolledEditor, AnEditorThatDiesIsForgotten)
{
    delete &m_Editor;
    EXPECT_EQ(m_Handler.GetEditor(), nullptr);
    m_Rows.GetVertScroll()->SetStart(3);
    m_Host.Paint();
    m_Handler.UpdateEditor();
    EXPECT_EQ(m_Notify.m_Hidden, 0);
}

TEST(EditorEventHandlerLifetime, ViewerEditorHandlerAndControlMayDieInEachCall)
{
    // signals: 0 told of the hiding, 1 the editor's visibility, 2 its placing
    for (int signal = 0; signal < 3; ++signal)
    {
        for (int victim = 0; victim < 4; ++victim)
        {
            for (bool const back : {false, true})
            {
                SCOPED_TRACE(std::to_string(signal) + " " + std::to_string(victim) + " " + std::to_string(back));
                CNotify notify;
                CTestHost host(101, 101);
                auto handler = std::make_unique<CEditorEventHandler>(&notify);
                auto* const rows = new CTestRows<IDiscreteItemViewModel>(host.Root(), {10, 10}, alClient);
                rows->SetAutoRowHeight(false);
                rows->GetRowViewModel()->SetDefaultItemSize(20);
                rows->GetRowViewModel()->SetCount(20);
                rows->AddEventHandler(handler.get());
                auto* const editor = new CPlaced(rows, {5, 5}, alNone);
                host.Paint();
                editor->SetPos({10, 40, 70, 60}, true);
                handler->SetEditor(editor);
                if (back)
                    rows->ScrollContent(0, -100);
                bool fired = false;
                bool rowsLive = true;
                auto const death = Listen(rows->m_SigDestroy, [&](CVisualElement*) { rowsLive = false; });
                auto const kill = [&] {
                    if (fired)
                        return;
                    fired = true;
                    if (victim == 0)
                        delete rows;
                    else if (victim == 1)
                        delete editor;
                    else if (victim == 2)
                        handler.reset();
                    else
                        host.DestroyControl();
                };
                std::unique_ptr<subscriber_base_t> slot;
                if (signal == 0)
                    notify.m_Then = kill;
                else if (signal == 1)
                    slot = Listen(editor->m_SigVisible, [&](CVisualElement*, bool) { kill(); });
                else
                    editor->m_Then = kill;
                rows->ScrollContent(0, back ? 100 : -100);
                EXPECT_TRUE(fired || (back && signal == 0));
                bool const editorLives = rowsLive && !(fired && victim == 1);
                CVisualElement* const expected = handler && editorLives ? editor : nullptr;
                EXPECT_EQ(handler ? handler->GetEditor() : nullptr, expected);
                if (rowsLive)
                    rows->ScrollContent(0, -40);
                if (host.HasControl())
                    host.Paint();
                notify.m_Then = nullptr;
            }
        }
    }
}
