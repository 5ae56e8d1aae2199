#pragma once

#include "tests/headers/header_bench.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/views/grid_viewer.h"

namespace vexel::test
{

/// A grid whose cells show by their colour which row and section they belong to.
class CSectionGrid : public CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>
{
public:
    CSectionGrid(CVisualElement* parent, CSections const* sections)
        : CGridViewer(parent, {0, 0}, alClient), m_Sections(sections)
    {}

    CSections const* m_Sections;  ///< Null: none.

    void DrawCell(IPainter* painter, int row, int, int column, int, int, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType dirty) override
    {
        if (dirty == IDirtyItemSet::dirtyOther)
            return;
        int const number = m_Sections ? m_Sections->GetModelIndex(column) : column;
        brush fill;
        fill.color = color_table[9 + (row + 3 * std::max(number, 0)) % 18];
        painter->SetBrush(fill);
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
        fill.color = GetBkColor();
        painter->SetBrush(fill);
    }
};

}  // namespace vexel::test
