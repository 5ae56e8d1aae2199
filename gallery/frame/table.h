#pragma once

#include "vexel/headers/simple_header.h"
#include "vexel/views/grid_viewer.h"
#include "vexel/views/row_viewer.h"

#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace gallery
{

using namespace vexel;

/// How rows and cells of the gallery look: by state, with every second row tinted, a line below, and the current one framed
/// while its view has the focus.
class CCellLook
{
public:
    struct SCell
    {
        int row = 0;
        int state = 0;
        bool focused = false;
        bool firstColumn = true;
        bool lastColumn = true;
    };

    /// `highlight`: each place where it stands in the text is marked; empty: none.
    void Draw(IPainter* painter, rectangle<double> const& rect, SCell const& cell, std::string const& text,
              std::string const& highlight = {}) const;

    int m_TextFlags = IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText;
};

/// A list whose rows are texts.
template <class Model> class CTextRows : public CRowViewer<Model>
{
public:
    using Text = std::function<void(int row, std::string& text)>;

    CTextRows(CVisualElement* parent, size<int> const& extent, Alignment alignment, Text text)
        : CRowViewer<Model>(parent, extent, alignment), m_Text(std::move(text))
    {
        this->AttributeChanged();  // with the own margin
    }
    int GetRowMargin() const override { return 6; }

protected:
    void DrawRow(IPainter* painter, int row, int skip, int state, rectangle<double> const& rect,
                 IDirtyItemSet::DirtyType dirty) override
    {
        if (dirty == IDirtyItemSet::dirtyOther)
            return;
        m_Buffer.clear();
        m_Text(row, m_Buffer);
        rectangle<double> whole = rect;  // also what lies before the view, so that the text stands where it stood
        whole.top -= skip;
        m_Look.Draw(painter, whole, {row, state, this->IsFocused(), true, true}, m_Buffer);
    }

private:
    Text const m_Text;
    CCellLook m_Look;
    std::string m_Buffer;
};

/// A grid whose cells are texts. `ColumnModel`: IDiscreteItemViewModel, columns that scroll whole, or
/// IContinuousItemViewModel, by pixels.
template <class ColumnModel> class CTextCells : public CGridViewer<IDiscreteItemViewModel, ColumnModel>
{
public:
    using Text = std::function<void(int row, int column, std::string& text)>;

    CTextCells(CVisualElement* parent, size<int> const& extent, Alignment alignment, Text text)
        : CGridViewer<IDiscreteItemViewModel, ColumnModel>(parent, extent, alignment), m_Text(std::move(text))
    {
        this->AttributeChanged();  // with the own margin
    }
    void SetHighlight(std::string const& highlight)
    {
        if (highlight == m_Highlight)
            return;
        m_Highlight = highlight;
        this->GetRowViewModel()->AddDirtyItems(0, std::numeric_limits<int>::max());
        this->Update(utElement);
    }
    int GetRowMargin() const override { return 6; }

protected:
    void DrawCell(IPainter* painter, int row, int, int column, int columnSkip, int state, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType dirty) override
    {
        if (dirty == IDirtyItemSet::dirtyOther)
            return;
        m_Buffer.clear();
        m_Text(row, column, m_Buffer);
        rectangle<double> whole = rect;  // also what lies before the view, so that the text stands where it stood
        whole.left -= columnSkip;
        m_Look.Draw(painter, whole, {row, state, this->IsFocused(), column == 0, false}, m_Buffer, m_Highlight);
    }

private:
    Text const m_Text;
    CCellLook m_Look;
    std::string m_Highlight;
    std::string m_Buffer;
};
using CTextGrid = CTextCells<IDiscreteItemViewModel>;

/// Columns with captions, of which one may be sorted.
class CTextHeaderModel : public CSimpleHeaderModel
{
public:
    explicit CTextHeaderModel(int count) { InitStartOrder(count); }

    std::function<std::string(int column)> m_Caption;  ///< By the column's own number.
    int m_SortedColumn = -1;
    int m_Direction = 0;

    int GetItemCount() const override { return m_Count; }
    void SetItemCount(int count) { m_Count = count; }
    std::string GetItemCaption(int index) const override { return m_Caption(VisibleIndex2ModelIndex(index)); }
    int GetItemImageIndex(int) const override { return -1; }
    int GetItemTextAlign(int) const override { return IPainter::AlignLeft | IPainter::AlignVCenter; }
    int GetItemWidth(int) const override { return 100; }
    std::string GetItemDescr(int index) const override { return "Column " + GetItemCaption(index); }
    int GetSortingDirection(int index) const override
    {
        return VisibleIndex2ModelIndex(index) == m_SortedColumn ? m_Direction : 0;
    }
    void Sort(int index);  ///< Upwards, or the other way round if it is sorted already.

private:
    int m_Count = 0;
};

}  // namespace gallery
