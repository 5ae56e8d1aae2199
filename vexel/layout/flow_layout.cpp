#include "vexel/layout/flow_layout.h"

#include "vexel/platform/convert.h"

#include <algorithm>
#include <vector>

namespace vexel
{

IFlowLayoutItems::~IFlowLayoutItems() = default;

void CFlowLayout::Update()
{
    if (!m_Items)
        return;
    int x = m_Items->GetLeftMargin();
    int y = m_Items->GetTopMargin();
    int lineHeight = 0;
    int first = 0;
    std::vector<int> widths;  // of the line's items

    int const count = m_Items->GetItemCount();
    for (int i = 0; i < count; ++i)
    {
        size<int> const extent = m_Items->GetItemSize(i);
        bool const fits = AddSaturated(x, extent.width) <= m_Size.width;
        bool const last = i == count - 1;
        if (!fits || last)
        {
            if (fits)
                widths.push_back(extent.width);
            int const left = m_Items->GetLeftMargin();
            rectangle<int> rect{left, y, 0, AddSaturated(y, lineHeight)};
            for (int const width : widths)
            {
                rect.right = AddSaturated(rect.left, width);
                m_Items->SetItemRect(first, rect);
                rect.left = AddSaturated(rect.right, m_Items->GetItemGap(first));
                ++first;
            }
            int const next = SaturateToInt(std::int64_t{y} + lineHeight + m_Items->GetLineGap() + 1);
            if (!fits && last)
            {
                rectangle<int> alone{left, next, AddSaturated(left, extent.width), AddSaturated(next, extent.height)};
                m_Items->SetItemRect(i, alone);
            }
            y = next;
            x = left;
            lineHeight = 0;
            widths.clear();
            first = i;
        }
        x = SaturateToInt(std::int64_t{x} + extent.width + m_Items->GetItemGap(i));
        lineHeight = std::max(lineHeight, extent.height);
        widths.push_back(extent.width);
    }
    m_Size.height = AddSaturated(y, 1);
}

}  // namespace vexel
