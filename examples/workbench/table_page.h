#pragma once

#include "readings.h"
#include "state.h"

#include "vexel/headers/simple_header.h"
#include "vexel/views/grid_viewer.h"

#include <array>

namespace vexel
{
class CCaption;
class CSplitter;
}  // namespace vexel

namespace workbench
{

using namespace vexel;

/// The header's sections: the time and each sensor.
class CReadingColumns : public CSimpleHeaderModel
{
public:
    CReadingColumns() { InitStartOrder(1 + g_SensorCount); }

    int GetItemCount() const override { return 1 + g_SensorCount; }
    std::string GetItemCaption(int section) const override;
    std::string GetItemDescr(int section) const override;
    int GetItemImageIndex(int) const override { return -1; }
    int GetItemTextAlign(int) const override { return IPainter::AlignLeft | IPainter::AlignVCenter; }
    int GetItemWidth(int) const override { return 100; }  // the view model knows better
};

/// A grid over all readings. It computes the cells that it paints, and no other.
class CReadingGrid : public CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>
{
public:
    CReadingGrid(CVisualElement* parent, CReadingColumns& columns);

    signal_t<int> m_SigRowChosen;  ///< Another row is current.
    int GetRowMargin() const override { return 6; }
    std::string GetText(int row, int section) const;
    bool IsCopyToClipboardEnabled() const override { return true; }
    bool HandleCopyToClipboard() const override;

protected:
    void DrawCell(IPainter* painter, int row, int rowSkip, int section, int columnSkip, int state,
                  rectangle<double> const& rect, IDirtyItemSet::DirtyType dirty) override;

private:
    void CurrentChanged(int, int row) { m_SigRowChosen(row); }

    CReadingColumns const& m_Columns;
};

/// The table with its header, a splitter, and the current row at length.
class CTablePage : public CVisualElement
{
public:
    CTablePage(SState const& state);

    signal_t<int> m_SigRowChosen;

    void Save(SState& state) const;
    CReadingGrid& GetGrid() { return *m_Grid; }

private:
    void ShowRow(int row);

    CReadingColumns m_Columns;
    // Children.
    CSimpleHeader* m_Header = nullptr;
    CReadingGrid* m_Grid = nullptr;
    CVisualElement* m_Details = nullptr;
    CCaption* m_Time = nullptr;
    std::array<CCaption*, g_SensorCount> m_Values{};
};

}  // namespace workbench
