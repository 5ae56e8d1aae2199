#pragma once

#include "tests/support/leaf.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/expander.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

namespace vexel::test
{

/// Notes what it is told of, and may do something then.
class CTestExpander : public CExpander
{
public:
    using CExpander::CExpander;
    std::string m_Calls;
    std::function<void()> m_Deed;

    void HandleExpand(bool expand) override
    {
        m_Calls += expand ? "open " : "close ";
        if (m_Deed)
            std::exchange(m_Deed, nullptr)();
    }
};

/// At the top of a window of 200 x 200: a title 20 high and a body of 40, both of 30 and 50 width, in a frame 30 x 10.
class CExpanderBench : public testing::Test
{
protected:
    explicit CExpanderBench(CExpander::ExpandDirection direction = CExpander::ExpandTopBottom)
        : m_Parent(*new CVisualElement(m_Host.Root(), {0, 0}, alClient)),
          m_Expander(*new CTestExpander(&m_Parent, {30, 10}, IsSideways(direction) ? alLeft : alTop)),
          m_Title(*new CLeaf(nullptr, {30, 20}, alNone, 1)), m_Body(*new CLeaf(nullptr, {50, 40}, alNone, 2))
    {
        m_Expander.SetExpandDirection(direction);
        NameElement(m_Expander, "expander");
        NameElement(m_Title, "title");
        NameElement(m_Body, "body");
        m_Expander.SetTitle(&m_Title);
        m_Expander.SetBody(&m_Body);
        auto* const rest = new CLeaf(&m_Parent, {0, 0}, alClient, 3);
        NameElement(*rest, "rest");
        m_Host.Paint();
    }
    static bool IsSideways(CExpander::ExpandDirection direction)
    {
        return direction == CExpander::ExpandLeftRight || direction == CExpander::ExpandRightLeft;
    }
    int Extent() const { return m_Expander.GetSize().height; }
    /// A round of the background, and what it posted.
    void Step()
    {
        m_Host.StepBackground();
        m_Host.RunPending();
        m_Host.Clock().Advance(10);
    }
    bool IsRunning() const { return m_Host.Pending().find("runner") != std::string::npos; }

    CTestHost m_Host{200, 200};
    CVisualElement& m_Parent;
    CTestExpander& m_Expander;
    CLeaf& m_Title;
    CLeaf& m_Body;
};

}  // namespace vexel::test
