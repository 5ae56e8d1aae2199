#pragma once

#include "tests/support/leaf.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/splitter.h"

#include <gtest/gtest.h>

namespace vexel::test
{

/// In a window of 200 x 200: the first sibling 60 thick at an edge, the bar 5 before it, the second one in the rest.
class CSplitterBench : public testing::Test
{
protected:
    explicit CSplitterBench(Alignment edge = alLeft)
        : m_First(*new CLeaf(m_Host.Root(), {60, 60}, edge, 1)), m_Bar(*new CSplitter(m_Host.Root(), {5, 5}, edge)),
          m_Second(*new CLeaf(m_Host.Root(), {0, 0}, alClient, 2))
    {
        NameElement(m_First, "first");
        NameElement(m_Bar, "bar");
        NameElement(m_Second, "second");
        m_Bar.SetElements(&m_First, &m_Second);
        m_Host.Paint();
        m_Log.Add(m_Bar.m_SizeProposed, "proposed");
        m_Log.Add(m_Bar.m_Delta, "delta");
        m_Log.Add(m_Bar.m_Moved, "moved");
        m_Log.Add(m_Bar.m_Finished, "finished");
        m_Log.Add(m_Bar.m_Highlighted, "highlighted");
    }
    bool IsSideways() const { return m_Bar.GetAlignment() == alLeft || m_Bar.GetAlignment() == alRight; }
    int Thickness(CVisualElement const& element) const
    {
        return IsSideways() ? element.GetPos().Width() : element.GetPos().Height();
    }
    void Press() { m_Host.Mouse().Press(m_Bar, 2, 2); }
    /// The pointer, so many pixels away from the edge, from where it holds the bar.
    void Pull(int pixels)
    {
        Alignment const edge = m_Bar.GetAlignment();
        int const by = edge == alRight || edge == alBottom ? -pixels : pixels;
        m_Host.Mouse().Move(m_Bar, IsSideways() ? 2 + by : 2, IsSideways() ? 2 : 2 + by);
    }

    CTestHost m_Host{200, 200};
    CLeaf& m_First;
    CSplitter& m_Bar;
    CLeaf& m_Second;
    CSignalLog m_Log;
};

}  // namespace vexel::test
