#pragma once

#include "tests/support/edge_bench.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/headers/simple_header.h"
#include "vexel/platform/painter.h"
#include "vexel/scroll/scroll_model.h"
#include "vexel/testing/test_kit.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace vexel::test
{

/// Sections with captions "A", "B" ...; what the application keeps of one goes with it when it is moved.
class CSections : public CSimpleHeaderModel
{
public:
    explicit CSections(std::vector<int> widths) : m_Widths(std::move(widths))
    {
        InitStartOrder(static_cast<int>(m_Widths.size()));
    }

    // By model index
    std::vector<int> m_Widths;
    std::vector<int> m_Sorting;
    int m_TextAlign = 0x21;  // left, vertically centred
    int m_ImageIndex = -1;

    std::string Order() const  ///< The captions as they stand, "ABC".
    {
        std::string text;
        for (int i = 0; i < GetItemCount(); ++i)
            text += GetItemCaption(i);
        return text;
    }

    int GetItemCount() const override { return static_cast<int>(m_Widths.size()); }
    std::string GetItemCaption(int index) const override
    {
        int const number = GetModelIndex(index);
        return number < 0 ? "" : std::string(1, static_cast<char>('A' + number % 26));
    }
    int GetItemImageIndex(int) const override { return m_ImageIndex; }
    int GetItemTextAlign(int) const override { return m_TextAlign; }
    std::string GetItemDescr(int index) const override
    {
        int const number = GetModelIndex(index);
        return number < 0 ? "" : "About " + GetItemCaption(index);
    }
    int GetItemWidth(int index) const override
    {
        int const number = GetModelIndex(index);
        return number < 0 ? 0 : m_Widths[static_cast<std::size_t>(number)];
    }
    int GetSortingDirection(int index) const override
    {
        auto const number = static_cast<std::size_t>(GetModelIndex(index));
        return number < m_Sorting.size() ? m_Sorting[number] : 0;
    }
};

/// A range of pixels.
class CPixelScroll : public IPhysicalScrollModel
{
public:
    double m_From = 0;
    double m_To = 1000;
    double m_Start = 0;

    double GetFrom() const override { return m_From; }
    double GetTo() const override { return m_To; }
    void SetStart(double value) override { m_Start = value; }
    double GetStart() const override { return m_Start; }
    int GetMinScrollDistance() const override { return 1; }
};

/// A range of items: `m_Whole` scrolled whole, otherwise by unequal steps.
class CItemScroll : public IScrollModel
{
public:
    std::vector<double> m_Steps;
    double m_To = 10;
    double m_Start = 0;
    bool m_Whole = true;
    int m_Unit = 20;

    double GetFrom() const override { return 0; }
    double GetTo() const override { return m_To; }
    void SetStart(double value) override { m_Start = value; }
    double GetStart() const override { return m_Start; }
    int GetMinScrollDistance() const override { return 1; }
    bool IsFixedStepSize() const override { return false; }
    double GetStepSize(double index) const override
    {
        auto const number = static_cast<std::size_t>(index);
        return number < m_Steps.size() ? m_Steps[number] : 1.0;
    }
    void SetStepSize(double, double) const override {}
    void SetMeasure(std::pair<double, int>) override {}
    std::pair<double, int> GetMeasure() const override { return {1.0, m_Unit}; }
    bool IsInseparableStep() const override { return m_Whole; }
};

using CViewPane = CSheet;  // what it stands beside

/// Tells from outside whether an element asked for a repaint.
inline bool IsRepaintPending(CTestHost& host)
{
    bool const pending = host.IsFramePending();
    host.Paint();
    return pending;
}

/// A header on a window of 200 x 200, 20 pixels thick and 199 long on whichever side it stands; the rest is a pane.
class CHeaderBench : public CEdgeBench
{
protected:
    CTestHost& GetHost() override { return m_Host; }
    CVisualElement& GetStrip() const override { return m_Header; }
    explicit CHeaderBench(Alignment side = alTop, std::vector<int> widths = {50, 60, 40})
        : m_Sections(std::move(widths)), m_Header(*new CSimpleHeader(m_Host.Root(), {20, 20}, side)),
          m_Pane(*new CViewPane(m_Host.Root(), {0, 0}, alClient))
    {
        NameElement(m_Header, "header");
        NameElement(m_Pane, "pane");
        m_Header.SetBkColor(color_table[3]);
        m_Pane.SetBkColor(color_table[9]);
        m_Header.SetCentralPane(&m_Pane);
        m_Header.SetHorzScroll(&m_Scroll);
        m_Header.SetVertScroll(&m_Scroll);
        m_Header.SetModel(&m_Sections);
        m_Host.Paint();
    }

    void Press(int along, MouseButton button = mbLeft)
    {
        Move(along);
        m_Host.Mouse().Press(button);
    }
    std::string Hit(int along, int across = 10)
    {
        CSimpleHeader::HitTestResult const hit = m_Header.HitTest(At(along, across));
        std::string text =
            std::to_string(hit.m_Area) + ": " + std::to_string(hit.m_Section) + " " + std::to_string(hit.m_NextSection);
        return text + " " + Describe(hit.m_Rect);
    }
    void HearAll(CSignalLog& log)
    {
        log.Add(m_Header.m_SigCanResize, "canResize").Add(m_Header.m_SigResizing, "resizing");
        log.Add(m_Header.m_SigResized, "resized").Add(m_Header.m_SigCanDrag, "canDrag");
        log.Add(m_Header.CSimpleHeader::m_SigDragOver, "dragOver").Add(m_Header.m_SigSectionMoved, "moved");
        log.Add(m_Header.m_SigCanPress, "canPress").Add(m_Header.m_SigSectionClicked, "clicked");
        log.Add(m_Header.m_SigDividerDoubleClicked, "double");
    }
    PaintLog Draw()
    {
        m_Header.Update(utElement);
        return m_Host.Paint().Of("header");
    }

    CSections m_Sections;
    CPixelScroll m_Scroll;
    CTestHost m_Host{200, 200};
    CSimpleHeader& m_Header;
    CViewPane& m_Pane;
};

/// The same on each side.
class CHeaderOnSide : public CHeaderBench, public testing::WithParamInterface<Alignment>
{
protected:
    CHeaderOnSide() : CHeaderBench(GetParam()) {}
};

}  // namespace vexel::test
