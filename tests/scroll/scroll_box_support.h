#pragma once

#include "tests/scroll/scroll_support.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/memory/memory_scroll_bar.h"
#include "vexel/scroll/central_part.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace scroll_test
{

/// A pane with models of its own, which writes down the scrolls that it hears of.
class CTestPane : public CCentralPart
{
public:
    explicit CTestPane(CVisualElement* parent, Alignment alignment = alClient)
        : CCentralPart(parent, {10, 10}, alignment)
    {
        m_Horz.m_CutsStart = m_Vert.m_CutsStart = true;
        SetHorzScroll(&m_Horz);
        SetVertScroll(&m_Vert);
    }

    CTestModel m_Horz;
    CTestModel m_Vert;
    CLog m_Calls;
    std::function<void()> m_OnScroll;

    bool ScrollContent(int dx, int dy) override
    {
        m_Calls.Add("scroll(" + test::Describe(dx) + ", " + test::Describe(dy) + ")");
        bool const answer = CCentralPart::ScrollContent(dx, dy);
        if (std::function<void()> const then = m_OnScroll)
            then();  // may delete this pane
        return answer;
    }
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
    }
};

/// The first element of this class below another, or null.
template <class T> T* FindBelow(CVisualElement* element)
{
    for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
    {
        CVisualElement* const child = element->GetChildren()->GetItem(i);
        if (auto* const found = dynamic_cast<T*>(child))
            return found;
        if (T* const found = FindBelow<T>(child))
            return found;
    }
    return nullptr;
}

inline std::string InfoText(IScrollBar const* bar)
{
    using test::Describe;
    SScrollBarInfo info;
    bar->GetInfo(info);
    return Describe(info.minimum) + " to " + Describe(info.maximum) + " by " + Describe(info.lineStep) + ", page " +
           Describe(info.page) + ", at " + Describe(info.position) + (info.inverted ? ", inverted" : "");
}

/// A box that fills a window of 200 x 100, with a pane. Bars are 16 thick.
class CBoxBench : public testing::Test
{
protected:
    void SetRanges(double horzTo, double vertTo)
    {
        m_Pane->m_Horz.m_To = horzTo;
        m_Pane->m_Vert.m_To = vertTo;
        m_Box->RefreshScroll();
    }
    void Connect(double horzTo, double vertTo)
    {
        m_Pane->m_Horz.m_To = horzTo;
        m_Pane->m_Vert.m_To = vertTo;
        m_Box->ConnectElement(m_Pane, CScrollBox::ctBoth, true);
        m_Box->RefreshScroll();
        m_Host.Paint();
        Forget();
    }
    void Forget()
    {
        m_Pane->m_Horz.m_Calls.Take();
        m_Pane->m_Vert.m_Calls.Take();
        m_Pane->m_Calls.Take();
    }
    vexelbase::memory::CMemoryScrollBar* Vert() const
    {
        return dynamic_cast<vexelbase::memory::CMemoryScrollBar*>(m_Box->GetVertBar());
    }
    vexelbase::memory::CMemoryScrollBar* Horz() const
    {
        return dynamic_cast<vexelbase::memory::CMemoryScrollBar*>(m_Box->GetHorzBar());
    }
    CScrollCorner* Corner() const { return FindBelow<CScrollCorner>(m_Box); }
    static std::string Info(IScrollBar const* bar) { return InfoText(bar); }
    /// What of the box is displayable.
    std::string Shown() const
    {
        std::string text;
        auto const add = [&](char const* what) { text += (text.empty() ? "" : " ") + std::string(what); };
        if (m_Box->GetChildren()->GetItem(0)->IsDisplayable())
            add("vertical");
        if (m_Box->GetChildren()->GetItem(1)->IsDisplayable())
            add("horizontal");
        if (Corner()->IsDisplayable())
            add("corner");
        EXPECT_EQ(m_Box->GetVertElement().IsScrollBarVisible(), m_Box->GetChildren()->GetItem(0)->IsVisible());
        EXPECT_EQ(m_Box->GetHorzElement().IsScrollBarVisible(), m_Box->GetChildren()->GetItem(1)->IsVisible());
        return text;
    }

    test::CTestHost m_Host{200, 100};
    CScrollBox* m_Box = new CScrollBox(m_Host.Root(), {10, 10}, alClient);
    CTestPane* m_Pane = new CTestPane(m_Box);
};

}  // namespace scroll_test
