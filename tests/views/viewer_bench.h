#pragma once

#include "tests/support/slot.h"
#include "tests/support/text_log.h"
#include "tests/views/items.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"
#include "vexel/views/grid_viewer.h"
#include "vexel/views/row_viewer.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

// Lists that write down what they are asked to draw.

namespace viewer_test
{

using namespace vexel;
using namespace vexel::test;

/// Entries parted by ", ".
class CDrawLog : public CTextLog
{
public:
    CDrawLog() : CTextLog(", ") {}
};

inline std::string DirtyName(IDirtyItemSet::DirtyType dirty)
{
    return dirty == IDirtyItemSet::dirtyItem ? "item" : dirty == IDirtyItemSet::dirtyOther ? "other" : "none";
}

template <class Model> class CTestRows : public CRowViewer<Model>
{
public:
    using CRowViewer<Model>::CRowViewer;

    bool m_WithRects = false;
    CDrawLog m_Draws;  ///< "2 state 3 item" for a row, "empty (0, 20, 99, 50)"
    CDrawLog m_Hooks;
    std::function<void(int)> m_OnDraw;
    std::function<void(int&)> m_OnCurrent;
    int m_Margin = 0;

    void DrawRow(IPainter*, int row, int skip, int state, rectangle<double> const& rect,
                 IDirtyItemSet::DirtyType dirty) override
    {
        m_Draws.Add(std::to_string(row) + (skip ? " skip " + std::to_string(skip) : "") + " state " +
                    std::to_string(state) + (m_WithRects ? " " + Describe(rect) : "") + " " + DirtyName(dirty));
        if (auto const then = m_OnDraw)
            then(row);
    }
    void DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect) override
    {
        m_Draws.Add("empty " + Describe(rect));
        CRowViewer<Model>::DrawRowEmptyArea(painter, rect);
    }
    int GetRowMargin() const override { return m_Margin; }
    void RowViewModelChanged(Model* model) override { m_Hooks.Add(model ? "view model" : "no view model"); }
    void RowSelectionModelChanged(ISelectionModel* old, ISelectionModel* now) override
    {
        m_Hooks.Add(std::string("selection model") + (old && now && old != now ? "" : " the same"));
    }
    void SelectionTypeChanged(CEventHandlerBase::SelectionType type) override
    {
        m_Hooks.Add("type " + std::to_string(type));
    }
    void CurrentRowChanged(int old, int& now) override
    {
        m_Hooks.Add("current " + std::to_string(old) + " to " + std::to_string(now));
        if (m_OnCurrent)
            m_OnCurrent(now);
    }
    using CVisualElement::AttributeChanged;
};

/// A list of ten rows of 10 pixels that fills a window of 100 x 51 and has the focus: the view is 50 high, and one line
/// of row 5 shows.
template <class Model> class CRowsBench : public testing::Test
{
protected:
    using Rows = CTestRows<Model>;

    CRowsBench()
    {
        m_Host.Focus();
        m_Host.Root()->GetControl()->SetDragStartSensitivity({3, 3});
        m_Rows->SetAutoRowHeight(false);
        View().SetDefaultItemSize(10);
        View().SetCount(10);
        m_Rows->SetFocus(true);
        Settle();
    }
    Model& View() { return *m_Rows->GetRowViewModel(); }
    ISelectionModel& Selection() { return *m_Rows->GetRowSelectionModel(); }
    auto& Handler() { return m_Rows->GetRowHandler(); }
    void Settle()
    {
        m_Host.Paint();
        m_Rows->m_Draws.Take();
        m_Rows->m_Hooks.Take();
    }
    std::string Paint()
    {
        m_Rows->m_Draws.Take();
        m_Host.Paint();
        return m_Rows->m_Draws.Take();
    }
    std::string Selected()
    {
        std::string text;
        for (int i = -1; Selection().GetNextSelectedItem(i);)
            text += (text.empty() ? "" : " ") + std::to_string(i);
        return text;
    }
    int Current() { return Selection().GetCurrent(); }
    void Click(int y, int keys = 0, MouseButton button = mbLeft)
    {
        CHoldKeys const hold(m_Host, keys);
        m_Host.Mouse().Click(*m_Rows, 5, y, button);
    }
    void Press(int key, int keys = 0) { m_Host.Keyboard().Press(key, keys); }
    /// Makes an item current and selects it alone.
    void GoTo(int item)
    {
        Selection().ClearSelection();
        Selection().SetCurrent(item);
        Selection().SelectItem(item, true);
        Settle();
    }

    CTestHost m_Host{100, 51};
    Rows* m_Rows = new Rows(m_Host.Root(), {10, 10}, alClient);
};

}  // namespace viewer_test
