#include "gallery/pages/flow_grid_page.h"

#include "gallery/frame/panel.h"
#include "vexel/core/dpi.h"
#include "vexel/layout/flow_layout.h"
#include "vexel/layout/grid_layout.h"

#include <string>
#include <vector>

namespace gallery
{

namespace
{

struct STile
{
    size<int> extent;
    rectangle<int> rect;
    int color = 0;
};

std::vector<STile> MakeTiles(int count)
{
    int const colors[] = {21, 23, 24, 25, 26, 27};
    std::vector<STile> tiles;
    for (int i = 0; i < count; ++i)
    {
        STile tile;
        tile.extent = {36 + i * 17 % 60, 20 + i * 7 % 18};
        ApplyDPIScale(tile.extent);
        tile.color = colors[i % 6];
        tiles.push_back(tile);
    }
    return tiles;
}

/// Draws tiles where a layout has put them.
class CTiles : public CPanel
{
public:
    CTiles(CVisualElement* parent, size<int> const& extent, Alignment alignment, int count)
        : CPanel(parent, extent, alignment), m_Tiles(MakeTiles(count))
    {
        ApplyDPIScale(m_Gap);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
        painter->SetTextColor(color_table[1]);
        int number = 0;
        for (STile const& tile : m_Tiles)
        {
            painter->SetBrush({color_table[tile.color], brush::bsSolid});
            painter->FillRect(tile.rect.left, tile.rect.top, tile.rect.right, tile.rect.bottom);
            int const centered = IPainter::AlignHCenter | IPainter::AlignVCenter;
            painter->DrawString(ToDouble(tile.rect), std::to_string(++number).c_str(), centered, -1);
        }
    }

    std::vector<STile> m_Tiles;
    int m_Gap = 8;
};

class CFlow : public CTiles, private IFlowLayoutItems
{
public:
    CFlow(CVisualElement* parent, size<int> const& extent, Alignment alignment) : CTiles(parent, extent, alignment, 24)
    {
        m_Layout.SetItems(this);
    }

    void SetPos(rectangle<int> const& rect, bool force) override
    {
        m_Layout.SetWidth(rect.Width() - m_Gap);
        m_Layout.Update();
        CTiles::SetPos(rect, force);
    }

private:
    int GetItemCount() override { return static_cast<int>(m_Tiles.size()); }
    size<int> GetItemSize(int index) override { return m_Tiles[static_cast<std::size_t>(index)].extent; }
    void SetItemRect(int index, rectangle<int>& rect) override
    {
        STile& tile = m_Tiles[static_cast<std::size_t>(index)];
        tile.rect = {rect.left, rect.top, rect.right, rect.top + tile.extent.height};
    }
    int GetItemGap(int) override { return m_Gap; }
    int GetLineGap() override { return m_Gap; }
    int GetTopMargin() override { return m_Gap; }
    int GetLeftMargin() override { return m_Gap; }

    CFlowLayout m_Layout;
};

constexpr int s_Columns = 5;

class CTileGrid : public CTiles, private IGridLayoutItems
{
public:
    CTileGrid(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CTiles(parent, extent, alignment, 4 * s_Columns)
    {
        m_Layout.SetItems(this);
        m_Layout.Update();
    }

private:
    static std::size_t IndexOf(int row, int column)
    {
        int const index = row * s_Columns + column;
        return static_cast<std::size_t>(index);
    }
    int GetColumnCount() override { return s_Columns; }
    int GetRowCount() override { return static_cast<int>(m_Tiles.size()) / s_Columns; }
    size<int> GetItemSize(int row, int column) override { return m_Tiles[IndexOf(row, column)].extent; }
    void SetItemRect(int row, int column, rectangle<int>& rect) override { m_Tiles[IndexOf(row, column)].rect = rect; }
    int GetColumnGap(int) override { return m_Gap; }
    int GetRowGap(int) override { return m_Gap; }
    int GetTopMargin() override { return m_Gap; }
    int GetLeftMargin() override { return m_Gap; }

    CGridLayout m_Layout;
};

}  // namespace

void CFlowGridPage::Build(CVisualElement* parent)
{
    new CLabel(parent, {0, 24}, alTop, "CFlowLayout: lines break at the element's width");
    auto* const flow = new CFlow(parent, {0, 190}, alTop);
    new CLabel(parent, {0, 24}, alTop, "CGridLayout: rows and columns as large as their largest cells");
    new CTileGrid(parent, {0, 0}, alClient);
    Report(flow->m_SigSize, "flow.size");
}

}  // namespace gallery
