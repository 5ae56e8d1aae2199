#pragma once

#include "vexel/headers/index_translator.h"
#include "vexel/headers/simple_header.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/testing/test_kit.h"
#include "vexel/views/grid_viewer.h"
#include "vexel/views/row_viewer.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// Lists and grids for games: what they show follows from data that move along with the items.

namespace view_game
{

using namespace vexel;

/// Which numbers stand in the rows or columns.
class CLabels
{
public:
    void SetCount(int count)
    {
        while (static_cast<int>(m_Labels.size()) < count)
            m_Labels.push_back(m_Next++);
        m_Labels.resize(static_cast<std::size_t>(std::max(count, 0)));
    }
    void Insert(int at, int count)
    {
        for (int i = 0; i < count; ++i)
            m_Labels.insert(m_Labels.begin() + at + i, m_Next++);
    }
    void Remove(int at, int count) { m_Labels.erase(m_Labels.begin() + at, m_Labels.begin() + at + count); }
    void Move(int from, int to)
    {
        int const label = m_Labels[static_cast<std::size_t>(from)];
        m_Labels.erase(m_Labels.begin() + from);
        m_Labels.insert(m_Labels.begin() + to, label);
    }
    void Change(int at) { m_Labels[static_cast<std::size_t>(at)] = m_Next++; }
    int Get(int at)
    {
        if (at >= static_cast<int>(m_Labels.size()))
            SetCount(at + 1);
        return m_Labels[static_cast<std::size_t>(at)];
    }

private:
    std::vector<int> m_Labels;
    int m_Next = 0;
};

/// Draws an item as a list of an application would: nothing where it stands already; else its number on a colour that
/// tells its state, with marks that depend on its size.
inline void DrawGameItem(CVisualElement const& viewer, IPainter* painter, int number, int state,
                         rectangle<double> const& rect, int skipLeft, int skipTop)
{
    int look = number * 5 + state * 7;
    if ((state & isSelected) != 0 && viewer.IsFocused())
        look += 3;
    if (!viewer.IsEnabled())
        look += 11;
    painter->SetBrush(brush{color_table[1 + look % 26], brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    painter->DrawString({rect.left - skipLeft, rect.top - skipTop, rect.right, rect.bottom}, std::to_string(number),
                        IPainter::AlignLeft | IPainter::AlignTop, -1);
    painter->MoveTo(rect.right, rect.top);
    painter->LineTo(rect.right, rect.bottom);
    painter->MoveTo(rect.left, rect.bottom);
    painter->LineTo(rect.right, rect.bottom);
}

template <class Model> class CGameRows : public CRowViewer<Model>
{
public:
    using CRowViewer<Model>::CRowViewer;
    CLabels m_Rows;
    int m_Skipped = 0;

    void DrawRow(IPainter* painter, int row, int skip, int state, rectangle<double> const& rect,
                 IDirtyItemSet::DirtyType dirty) override
    {
        if (dirty == IDirtyItemSet::dirtyOther)
            ++m_Skipped;
        else
            DrawGameItem(*this, painter, m_Rows.Get(row), state, rect, 0, skip);
    }
};

class CGameGrid : public CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>
{
public:
    using CGridViewer::CGridViewer;
    CLabels m_Rows;
    CLabels m_Columns;
    int m_Skipped = 0;

    void DrawCell(IPainter* painter, int row, int rowSkip, int column, int columnSkip, int state,
                  rectangle<double> const& rect, IDirtyItemSet::DirtyType dirty) override
    {
        if (dirty == IDirtyItemSet::dirtyOther)
            ++m_Skipped;
        else
            DrawGameItem(*this, painter, m_Rows.Get(row) * 10 + m_Columns.Get(column), state, rect, columnSkip,
                         rowSkip);
    }
};

/// A scroll box with headers and a list or grid in it, as the games see it.
class CPanel
{
public:
    virtual ~CPanel() = default;

    // One axis of the viewer.
    struct SAxis
    {
        IBaseItemViewModel* view = nullptr;
        ISelectionModel* selection = nullptr;
        CEventHandlerBase* handler = nullptr;
        CLabels* labels = nullptr;
    };
    virtual SAxis Rows() = 0;
    virtual SAxis Columns() { return {}; }
    virtual void ChangeModels(test::CTestRandom& random) = 0;
    virtual void SetSelectionType(CEventHandlerBase::SelectionType type) = 0;
    virtual void ItemToView(test::CTestRandom& random, int item) = 0;
    virtual int GetSkipped() const = 0;
    virtual void UseSelection(ISelectionModel* model) = 0;

    CScrollBox* m_Box = nullptr;
    CViewerBase* m_Viewer = nullptr;
    CVisualElement* m_OnTop = nullptr;
    std::string m_What;

protected:
    std::vector<std::unique_ptr<IBaseItemsModel>> m_Models;  // those of the application

    template <class Model> Model* Own(std::unique_ptr<Model> model)
    {
        Model* const made = model.get();
        m_Models.push_back(std::move(model));
        return made;
    }
    // A model of the application dies, whoever uses it.
    bool KillOne(test::CTestRandom& random)
    {
        if (m_Models.empty() || !random.Chance(30))
            return false;
        m_Models.erase(m_Models.begin() + random.Index(static_cast<int>(m_Models.size())));
        return true;
    }
    static void Fill(test::CTestRandom& random, IBaseItemViewModel& model, CLabels& labels)
    {
        model.SetDefaultItemSize(random.Int(6, 14));
        int const count = random.Chance(85) ? random.Int(0, 30) : random.Int(0, 3);
        model.SetCount(count);
        labels.SetCount(count);
        for (int i = random.Int(0, 4); i > 0; --i)
            model.SetItemSize(random.Int(0, std::max(count - 1, 0)), random.Int(0, 25));
        if (random.Chance(25))
            model.SetStretchLastItem(true);
    }
    std::unique_ptr<IDiscreteItemViewModel> MakeDiscrete(test::CTestRandom& random, ISelectionModel* selection)
    {
        switch (random.Int(0, 3))
        {
        case 0:
        {
            auto model = std::make_unique<CEqualItemsViewModel>();
            model->SetItemSizeBounds(random.Int(4, 12), random.Chance(50) ? 16 : 1000);
            if (random.Bool())
                model->SetAnchorModel(selection);
            return model;
        }
        case 1:
        {
            auto model = std::make_unique<CNonEqualItemsViewModel>();
            if (random.Bool())
                model->SetAnchorModel(selection);
            return model;
        }
        default:
            return std::make_unique<CDefaultDiscreteItemViewModel>();
        }
    }
};

template <class Model> class CRowsPanel : public CPanel
{
public:
    using Viewer = CGameRows<Model>;
    using Header = CSimpleHeader;

    CRowsPanel(test::CTestRandom& random, CVisualElement* parent, size<int> const& extent, Alignment alignment)
    {
        m_What = CRowViewer<Model>::s_Discrete ? "rows" : "pixel rows";
        m_Box = new CScrollBox(parent, extent, alignment);
        if (random.Chance(60))
        {
            m_Header = new CSimpleHeader(m_Box, {14, 14}, alLeft);
            m_What += " with a header";
        }
        m_Rows = new Viewer(m_Box, {10, 10}, alClient);
        m_Viewer = m_Rows;
        m_Rows->SetAutoRowHeight(random.Chance(30));
        m_Box->ConnectElement(m_Rows, CScrollBox::ctVertical, true);
        if (m_Header)
            m_Box->ConnectElement(m_Header, CScrollBox::ctVertical, false);
        if (random.Chance(70))
            ChangeModels(random);
        else
        {
            Fill(random, *m_Rows->GetRowViewModel(), m_Rows->m_Rows);
            ConnectHeader();
        }
    }

    SAxis Rows() override
    {
        return {m_Rows->GetRowViewModel(), m_Rows->GetRowSelectionModel(), &m_Rows->GetRowHandler(), &m_Rows->m_Rows};
    }
    void ChangeModels(test::CTestRandom& random) override
    {
        if (!KillOne(random))
        {
            if constexpr (CRowViewer<Model>::s_Discrete)
                UseView(random, MakeDiscrete(random, m_Rows->GetRowSelectionModel()));
            else
                UseView(random, std::make_unique<CDefaultColumnViewModel>());
            if (random.Chance(30))
                m_Rows->SetRowSelectionModel(Own(std::make_unique<CDefaultSelectionModel>()));
        }
        ConnectHeader();
    }
    void SetSelectionType(CEventHandlerBase::SelectionType type) override { m_Rows->SetSelectionType(type); }
    void ItemToView(test::CTestRandom& random, int item) override
    {
        random.Bool() ? m_Rows->GetRowHandler().ItemToView(item) : m_Rows->GetRowHandler().CurrentItemToView();
        if (random.Bool())
            m_Rows->GetRowHandler().MakeCurrentVisible(random.Bool());
    }
    int GetSkipped() const override { return m_Rows->m_Skipped; }
    void UseSelection(ISelectionModel* model) override { m_Rows->SetRowSelectionModel(model); }

private:
    template <class T> void UseView(test::CTestRandom& random, std::unique_ptr<T> model)
    {
        if (random.Bool())
        {
            Fill(random, *model, m_Rows->m_Rows);
            m_Rows->SetRowViewModel(Own(std::move(model)));
        }
        else
        {
            m_Rows->SetRowViewModel(Own(std::move(model)));
            Fill(random, *m_Rows->GetRowViewModel(), m_Rows->m_Rows);
        }
    }
    void ConnectHeader()
    {
        if (m_Header)
            m_Header->SetViewModel(m_Rows->GetRowViewModel());
    }

    Viewer* m_Rows = nullptr;
    CSimpleHeader* m_Header = nullptr;
};

class CGridPanel : public CPanel
{
public:
    CGridPanel(test::CTestRandom& random, CVisualElement* parent, size<int> const& extent, Alignment alignment)
    {
        m_What = "grid";
        m_Box = new CScrollBox(parent, extent, alignment);
        if (random.Chance(60))
            m_Top = new CSimpleHeader(m_Box, {14, 14}, alTop);
        if (random.Chance(60))
            m_Left = new CSimpleHeader(m_Box, {14, 14}, alLeft);
        m_Grid = new CGameGrid(m_Box, {10, 10}, alClient);
        m_Viewer = m_Grid;
        m_Grid->SetAutoRowHeight(random.Chance(30));
        m_Box->ConnectElement(m_Grid, CScrollBox::ctBoth, true);
        if (m_Top)
            m_Box->ConnectElement(m_Top, CScrollBox::ctHorizontal, false);
        if (m_Left)
            m_Box->ConnectElement(m_Left, CScrollBox::ctVertical, false);
        if (random.Chance(70))
            ChangeModels(random);
        else
        {
            Fill(random, *m_Grid->GetRowViewModel(), m_Grid->m_Rows);
            Fill(random, *m_Grid->GetColumnViewModel(), m_Grid->m_Columns);
            ConnectHeaders();
        }
    }

    SAxis Rows() override
    {
        return {m_Grid->GetRowViewModel(), m_Grid->GetRowSelectionModel(), &m_Grid->GetRowHandler(), &m_Grid->m_Rows};
    }
    SAxis Columns() override
    {
        return {m_Grid->GetColumnViewModel(), m_Grid->GetColumnSelectionModel(), &m_Grid->GetColumnHandler(),
                &m_Grid->m_Columns};
    }
    void ChangeModels(test::CTestRandom& random) override
    {
        if (!KillOne(random))
        {
            if (random.Bool())
            {
                m_Grid->SetRowViewModel(Own(MakeDiscrete(random, m_Grid->GetRowSelectionModel())));
                Fill(random, *m_Grid->GetRowViewModel(), m_Grid->m_Rows);
            }
            else
            {
                m_Grid->SetColumnViewModel(Own(MakeDiscrete(random, m_Grid->GetColumnSelectionModel())));
                Fill(random, *m_Grid->GetColumnViewModel(), m_Grid->m_Columns);
            }
            if (random.Chance(20))
                m_Grid->SetRowSelectionModel(Own(std::make_unique<CDefaultSelectionModel>()));
            if (random.Chance(20))
                m_Grid->SetColumnSelectionModel(Own(std::make_unique<CDefaultSelectionModel>()));
        }
        ConnectHeaders();
    }
    void SetSelectionType(CEventHandlerBase::SelectionType type) override { m_Grid->SetSelectionType(type); }
    void ItemToView(test::CTestRandom& random, int item) override
    {
        random.Bool() ? m_Grid->GetRowHandler().ItemToView(item) : m_Grid->GetColumnHandler().ItemToView(item);
        if (random.Bool())
            m_Grid->GetColumnHandler().MakeCurrentVisible(random.Bool());
    }
    int GetSkipped() const override { return m_Grid->m_Skipped; }
    void UseSelection(ISelectionModel* model) override { m_Grid->SetRowSelectionModel(model); }

private:
    void ConnectHeaders()
    {
        if (m_Top)
            m_Top->SetViewModel(m_Grid->GetColumnViewModel());
        if (m_Left)
            m_Left->SetViewModel(m_Grid->GetRowViewModel());
    }

    CGameGrid* m_Grid = nullptr;
    CSimpleHeader* m_Top = nullptr;
    CSimpleHeader* m_Left = nullptr;
};

}  // namespace view_game
