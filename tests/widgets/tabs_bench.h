#pragma once

#include "tests/support/edge_bench.h"
#include "tests/support/lines_model.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/tabs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace vexel::test
{

/// Notes which tabs are drawn, and where each begins.
class CTestTabs : public CTabs
{
public:
    using CTabs::CTabs;

    std::string m_Drawn;

    int DrawTab(IPainter* painter, int tab, int x) override
    {
        int const advance = CTabs::DrawTab(painter, tab, x);
        m_Drawn += std::to_string(tab) + "@" + std::to_string(x) + "+" + std::to_string(advance) + " ";
        return advance;
    }
};

/// A strip at (10, 30) of the window, 200 wide and 20 high, with tabs of 2, 3, 1 and 4 letters. Its slant is 9, a letter
/// is 8 wide. The tabs are 31, 39, 23 and 47 wide, and begin at 0, 31, 70 and 93; the last one ends at 140.
class CTabsBench : public testing::Test
{
protected:
    explicit CTabsBench(double scale = 1.0) : m_Host(300, 200, scale)
    {
        NameElement(m_Tabs, "strip");
        m_Tabs.SetActiveColor(color_table[3]);
        m_Tabs.SetInactiveColor(color_table[12]);
        m_Tabs.SetModel(&m_Model);
        Place(200, 20);
    }
    void Place(int width, int height)
    {
        m_Tabs.SetPos({10, 30, 10 + width, 30 + height}, true);
        m_Ground.Update(utElement);
        m_Host.Paint();
    }
    PaintLog Repaint()
    {
        m_Tabs.m_Drawn.clear();
        m_Tabs.Update(utElement);
        return m_Host.Paint().Of("strip");
    }
    int HitTest(int x, int y) { return m_Tabs.HitTest({x, y}); }

    CLinesModel m_Model{{"ab", "abc", "a", "abcd"}};
    CTestHost m_Host;
    CSheet& m_Ground = *new CSheet(m_Host.Root(), {0, 0}, alClient);
    CTestTabs& m_Tabs = *new CTestTabs(&m_Ground, {50, 20}, alNone);
};

}  // namespace vexel::test
