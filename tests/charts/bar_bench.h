#pragma once

#include "tests/support/edge_bench.h"
#include "vexel/charts/bar.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace vexel::test
{

/// Sections with captions "A", "B" ...
class CNames : public IItemsModel
{
public:
    explicit CNames(int count) : m_Count(count) {}

    int m_Count;
    std::string m_Suffix;

    int GetItemCount() const override { return m_Count; }
    std::string GetItemCaption(int index) const override
    {
        EXPECT_TRUE(index >= 0 && index < m_Count) << index;
        return std::string(1, static_cast<char>('A' + index % 26)) + m_Suffix;
    }
};

/// Half a logical unit is two pixels. Steps behind the last one are 1.
class CSteps : public IScrollModel
{
public:
    explicit CSteps(std::vector<double> steps) : m_Steps(std::move(steps)), m_To(static_cast<double>(m_Steps.size())) {}

    std::vector<double> m_Steps;
    double m_From = 0;
    double m_To;
    double m_Start = 0;
    bool m_Fixed = false;
    std::pair<double, int> m_Measure{0.5, 2};

    double GetFrom() const override { return m_From; }
    double GetTo() const override { return m_To; }
    void SetStart(double value) override { m_Start = value; }
    double GetStart() const override { return m_Start; }
    int GetMinScrollDistance() const override { return 1; }
    bool IsFixedStepSize() const override { return m_Fixed; }
    double GetStepSize(double index) const override
    {
        return index >= 0 && index < static_cast<double>(m_Steps.size()) ? m_Steps[static_cast<std::size_t>(index)]
                                                                         : 1.0;
    }
    void SetStepSize(double, double) const override {}
    void SetMeasure(std::pair<double, int> measure) override { m_Measure = measure; }
    std::pair<double, int> GetMeasure() const override { return m_Measure; }
};

using CBarPane = CSheet;  // what it stands beside

/// A bar on a window of 200 x 200, 20 pixels thick and 199 long on whichever side it stands; the rest is a pane. Its
/// sections are 0 to 50, 50 to 110, 110 to 150.
template <class Bar = CBar> class CBarBenchOf : public CEdgeBench
{
protected:
    CTestHost& GetHost() override { return m_Host; }
    CVisualElement& GetStrip() const override { return m_Bar; }
    explicit CBarBenchOf(Alignment side = alTop, int thickness = 20)
        : m_Bar(*new Bar(m_Host.Root(), {thickness, thickness}, side)),
          m_Pane(*new CBarPane(m_Host.Root(), {0, 0}, alClient))
    {
        NameElement(m_Bar, "bar");
        NameElement(m_Pane, "pane");
        m_Bar.SetBkColor(color_table[3]);
        m_Pane.SetBkColor(color_table[9]);
        m_Bar.SetCentralPane(&m_Pane);
        m_Bar.SetHorzScroll(&m_Steps);
        m_Bar.SetVertScroll(&m_Steps);
        m_Bar.SetCategoryModel(&m_Names);
        m_Host.Paint();
    }

    rectangle<double> SpanDouble(double from, double to) const
    {
        return IsUpright() ? rectangle<double>{0, from, 20, to} : rectangle<double>{from, 0, to, 20};
    }
    void Press(int along, int keys = 0, MouseButton button = mbLeft)
    {
        Move(along);
        CHoldKeys const held(m_Host, keys);
        m_Host.Mouse().Press(button);
    }
    void Click(int along, int keys = 0)
    {
        Press(along, keys);
        Release();
    }
    std::string Hit(int along, int across = 10) { return HitAt(At(along, across)); }
    std::string HitAt(point<int> const& place)
    {
        CBar::HitTestResult const hit = m_Bar.HitTest(place);
        return std::to_string(hit.m_Area) + ": " + std::to_string(hit.m_Section) + " " +
               std::to_string(hit.m_NextSection) + " " + std::to_string(hit.m_Hover) +
               (hit.m_FirstHalf ? " first" : "");
    }
    std::string Selected()
    {
        std::vector<int> sections{77};
        m_Bar.GetSelectedSections(sections);
        std::string text;
        for (int const section : sections)
            text += std::to_string(section);
        return text;
    }
    void HearAll(CSignalLog& log)
    {
        log.Add(m_Bar.m_SigSectionDropped, "dropped").Add(m_Bar.m_SigBarResizeAllowed, "barResizeAllowed");
        log.Add(m_Bar.m_SigBarResized, "barResized").Add(m_Bar.m_SigSectionResizeAllowed, "resizeAllowed");
        log.Add(m_Bar.m_SigSectionResizing, "resizing").Add(m_Bar.m_SigSectionResized, "resized");
        log.Add(m_Bar.m_SigDragAllowed, "dragAllowed").Add(m_Bar.m_SigSectionMoved, "moved");
        log.Add(m_Bar.m_SigSectionSwapped, "swapped").Add(m_Bar.m_SigPressAllowed, "pressAllowed");
        log.Add(m_Bar.m_SigSectionClicked, "clicked");
    }
    PaintLog Draw()
    {
        m_Bar.Update(utElement);
        return m_Host.Paint().Of("bar");
    }
    bool IsRepainted() { return !m_Host.Paint().Of("bar").IsEmpty(); }
    /// Only the bar's own gestures: the control starts no drag.
    void KeepFromDragging() { m_Host.Control().GetControl()->SetDragStartSensitivity({10000, 10000}); }
    /// The pane, and with it the strip, is 30 ... 169 along.
    void NarrowPane()
    {
        m_Pane.SetAlignment(alNone);
        m_Pane.SetPos(IsUpright() ? rectangle<int>{40, 30, 160, 169} : rectangle<int>{30, 40, 169, 160}, false);
        m_Host.Paint();
    }

    CNames m_Names{3};
    CSteps m_Steps{{12.5, 15, 10}};
    CTestHost m_Host{200, 200};
    Bar& m_Bar;
    CBarPane& m_Pane;
};

using CBarBench = CBarBenchOf<CBar>;

/// The same on each side.
template <class Bar = CBar> class CBarOnSideOf : public CBarBenchOf<Bar>, public testing::WithParamInterface<Alignment>
{
protected:
    CBarOnSideOf() : CBarBenchOf<Bar>(GetParam()) {}
};

using CBarOnSide = CBarOnSideOf<CBar>;

}  // namespace vexel::test
