#include "vexel/layout/grid_layout.h"

#include "vexel/platform/convert.h"

#include <algorithm>
#include <vector>

namespace vexel
{

IGridLayoutItems::~IGridLayoutItems() = default;

void CGridLayout::Update()
{
    if (!m_Items)
        return;
    m_Size = {};
    int const columns = m_Items->GetColumnCount();
    int const rows = std::max(m_Items->GetRowCount(), 0);
    int x = m_Items->GetLeftMargin();
    if (columns < 1)
        return;

    std::vector<int> heights(static_cast<std::size_t>(rows));
    for (int column = 0; column < columns; ++column)
    {
        int width = 0;
        for (int row = 0; row < rows; ++row)
        {
            for (int k = 0; k < columns; ++k)
            {
                size<int> const extent = m_Items->GetItemSize(row, k);
                if (k == column)
                    width = std::max(width, extent.width);
                int& height = heights[static_cast<std::size_t>(row)];
                if (column == 0)
                    height = std::max(height, extent.height);
            }
        }

        rectangle<int> rect{x, m_Items->GetTopMargin(), AddSaturated(x, width), 0};
        for (int row = 0; row < rows; ++row)
        {
            rect.bottom = AddSaturated(rect.top, heights[static_cast<std::size_t>(row)]);
            m_Items->SetItemRect(row, column, rect);
            if (rect.top != rect.bottom)
                rect.top = SaturateToInt(std::int64_t{rect.bottom} + m_Items->GetRowGap(row) + 1);
        }
        x = SaturateToInt(std::int64_t{x} + width + m_Items->GetColumnGap(column) + 1);
        m_Size = {x, rect.top};
    }
}

}  // namespace vexel
