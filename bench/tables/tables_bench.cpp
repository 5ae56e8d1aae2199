// A table of 1280 x 800 pixels, ten columns and rows of 20 pixels, beside QTableView: once with header, bars and lines, and
// once bare, beside a QTableView that is brought down to its delegate. Both paint through a widget's backing store on Qt's
// offscreen platform. `rows` is the number of rows.

#include "bench/application.h"
#include "vexel/core/base_control.h"
#include "vexel/headers/simple_header.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/qt/host_window.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/views/grid_viewer.h"
#include "vexel/views/item_walks.h"

#include <benchmark/benchmark.h>

#include <QAbstractItemDelegate>
#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTableView>

#include <charconv>
#include <functional>
#include <limits>
#include <memory>
#include <string>

namespace
{

using namespace vexel;
using bench::Flush;

constexpr int g_Width = 1280;
constexpr int g_Height = 800;
constexpr int g_RowHeight = 20;
constexpr int g_Columns = 10;
constexpr int g_Margin = 3;

// "r123 c4"; returns the length.
int WriteCell(char* text, int row, int column)
{
    char* end = text;
    *end++ = 'r';
    end = std::to_chars(end, end + 12, row).ptr;
    *end++ = ' ';
    *end++ = 'c';
    end = std::to_chars(end, end + 12, column).ptr;
    return static_cast<int>(end - text);
}

void StartWithFont()
{
    bench::StartApplication();
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    QApplication::setFont(font);
}

// One table and what can be done to it.
class ITable
{
public:
    virtual ~ITable() = default;
    virtual QWidget& Top() = 0;
    virtual void Repaint() = 0;
    virtual int GetStart() = 0;
    virtual void ScrollTo(int row) = 0;  // as its first row
    virtual int GetPage() = 0;           // rows
    virtual void SetCurrent(int row) = 0;
    virtual QWidget& KeyReceiver() = 0;
};

// vexel -----------------------------------------------------------------------------------------------------------------------

class CBenchGrid : public CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>
{
public:
    CBenchGrid(CVisualElement* parent, bool lines) : CGridViewer(parent, {0, 0}, alClient), m_Lines(lines)
    {
        SetAutoRowHeight(false);
    }

protected:
    void DrawCell(IPainter* painter, int row, int, int column, int, int state, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType dirty) override
    {
        if (dirty == IDirtyItemSet::dirtyOther)
            return;
        bool const selected = (state & isSelected) != 0;
        painter->SetBrush({selected ? m_Highlight : m_Ground, brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
        if (m_Lines)
        {
            painter->SetBrush({m_Line, brush::bsSolid});
            painter->FillRect(rect.left, rect.bottom, rect.right, rect.bottom);
            painter->FillRect(rect.right, rect.top, rect.right, rect.bottom);
        }
        painter->SetTextColor(selected ? m_Ground : m_Text);
        char text[32];
        int const length = WriteCell(text, row, column);
        painter->DrawString({rect.left + g_Margin, rect.top, rect.right - g_Margin, rect.bottom}, text,
                            IPainter::AlignVCenter | IPainter::AlignSingleLine, length);
    }

private:
    bool const m_Lines;
    _color const m_Ground{0xFFFFFF};
    _color const m_Text{0x000000};
    _color const m_Line{0xD8D8D8};
    _color const m_Highlight{0xC68C30};
};

class CBenchColumns : public CSimpleHeaderModel
{
public:
    CBenchColumns() { InitStartOrder(g_Columns); }
    int GetItemCount() const override { return g_Columns; }
    std::string GetItemCaption(int index) const override { return std::to_string(index + 1); }
    int GetItemImageIndex(int) const override { return -1; }
    int GetItemTextAlign(int) const override { return IPainter::AlignHCenter | IPainter::AlignVCenter; }
    int GetItemWidth(int) const override { return g_Width / g_Columns; }
};

class CVexelTable : public ITable
{
public:
    CVexelTable(int rows, bool bare)
    {
        m_Top.resize(g_Width, g_Height);
        m_Window = vexelbase::qt::HostWindow(&m_Top);
        m_Control = std::make_unique<CBaseControl>(m_Window.get());
        m_Box = new CScrollBox(m_Control->GetContent(), {0, 0}, alClient);
        if (bare)
        {
            m_Box->GetVertElement().SetPolicy(CScrollElement::spNever);
            m_Box->GetHorzElement().SetPolicy(CScrollElement::spNever);
        }
        auto* const header = bare ? nullptr : new CSimpleHeader(m_Box, {0, 24}, alTop);
        m_Grid = new CBenchGrid(m_Box, !bare);
        m_Grid->GetRowViewModel()->SetDefaultItemSize(g_RowHeight);
        m_Grid->GetRowViewModel()->SetCount(rows);
        m_Grid->GetColumnViewModel()->SetDefaultItemSize(bare ? g_Width / g_Columns : (g_Width - 20) / g_Columns);
        m_Grid->GetColumnViewModel()->SetCount(g_Columns);
        m_Box->ConnectElement(m_Grid, CScrollBox::ctBoth, true);
        if (header)
        {
            header->SetModel(&m_Columns);
            header->SetViewModel(m_Grid->GetColumnViewModel());
            m_Box->ConnectElement(header, CScrollBox::ctHorizontal, false);
        }
        m_Top.show();
        QCoreApplication::processEvents();
        Flush(m_Top);
        m_Grid->SetFocus(true);
        Flush(m_Top);
    }

    QWidget& Top() override { return m_Top; }
    void Repaint() override
    {
        m_Grid->GetRowViewModel()->AddDirtyItems(0, std::numeric_limits<int>::max());
        m_Grid->Update(utElement);
    }
    int GetStart() override { return m_Grid->GetRowViewModel()->GetStartItem(); }
    void ScrollTo(int row) override { m_Box->GetWrappedVertScroll()->SetStart(row); }
    int GetPage() override
    {
        IDiscreteItemViewModel const* const rows = m_Grid->GetRowViewModel();
        return Utils::GetLastVisibleItem(rows) - rows->GetStartItem() + 1;
    }
    void SetCurrent(int row) override
    {
        ISelectionModel* const selection = m_Grid->GetRowSelectionModel();
        selection->SetCurrent(row);
        selection->SetSelectionRange(row, row);
        m_Grid->GetRowHandler().MakeCurrentVisible(true);
    }
    QWidget& KeyReceiver() override { return m_Top.focusWidget() ? *m_Top.focusWidget() : m_Top; }

private:
    CBenchColumns m_Columns;
    QWidget m_Top;
    std::shared_ptr<ISysWindow> m_Window;
    std::unique_ptr<CBaseControl> m_Control;
    CScrollBox* m_Box;
    CBenchGrid* m_Grid;
};

// Qt --------------------------------------------------------------------------------------------------------------------------

class CQtModel : public QAbstractTableModel
{
public:
    explicit CQtModel(int rows) : m_Rows(rows) {}
    int rowCount(QModelIndex const& parent) const override { return parent.isValid() ? 0 : m_Rows; }
    int columnCount(QModelIndex const& parent) const override { return parent.isValid() ? 0 : g_Columns; }
    QVariant data(QModelIndex const& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        char text[32];
        int const length = WriteCell(text, index.row(), index.column());
        return QString::fromLatin1(text, length);
    }

private:
    int const m_Rows;
};

class CLeanDelegate : public QAbstractItemDelegate
{
public:
    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override
    {
        bool const selected = option.state & QStyle::State_Selected;
        if (selected)
            painter->fillRect(option.rect, option.palette.highlight());
        painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(option.rect.adjusted(g_Margin, 0, -g_Margin, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                          index.data().toString());
    }
    QSize sizeHint(QStyleOptionViewItem const&, QModelIndex const&) const override { return {120, g_RowHeight}; }
};

class CQtTable : public ITable
{
public:
    CQtTable(int rows, bool lean) : m_Model(rows)
    {
        m_View.horizontalHeader()->setMinimumSectionSize(20);
        m_View.horizontalHeader()->setDefaultSectionSize(lean ? g_Width / g_Columns : 118);
        m_View.verticalHeader()->setDefaultSectionSize(g_RowHeight);
        m_View.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        m_View.setSelectionBehavior(QAbstractItemView::SelectRows);
        m_View.setWordWrap(false);
        if (lean)
        {
            m_View.setItemDelegate(&m_Delegate);
            m_View.setShowGrid(false);
            m_View.horizontalHeader()->hide();
            m_View.verticalHeader()->hide();
            m_View.setFrameShape(QFrame::NoFrame);
            m_View.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
            m_View.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        }
        m_View.setModel(&m_Model);
        m_View.resize(g_Width, g_Height);
        m_View.show();
        QCoreApplication::processEvents();
        Flush(m_View);
    }

    QWidget& Top() override { return m_View; }
    void Repaint() override { m_View.viewport()->update(); }
    int GetStart() override { return m_View.verticalScrollBar()->value(); }
    void ScrollTo(int row) override { m_View.verticalScrollBar()->setValue(row); }
    int GetPage() override { return m_View.verticalScrollBar()->pageStep(); }
    void SetCurrent(int row) override { m_View.setCurrentIndex(m_Model.index(row, 0)); }
    QWidget& KeyReceiver() override { return m_View; }

private:
    CQtModel m_Model;
    CLeanDelegate m_Delegate;
    QTableView m_View;
};

// Cases -----------------------------------------------------------------------------------------------------------------------

using Maker = std::function<std::unique_ptr<ITable>(int rows)>;

void Down(ITable& table)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(&table.KeyReceiver(), &press);
    Flush(table.Top());
}

void FullRepaint(benchmark::State& state, ITable& table, int)
{
    for (auto _ : state)
    {
        table.Repaint();
        Flush(table.Top());
    }
}

void ScrollRow(benchmark::State& state, ITable& table, int rows)
{
    for (auto _ : state)
    {
        int const next = table.GetStart() + 1;
        table.ScrollTo(next + table.GetPage() < rows ? next : 0);
        Flush(table.Top());
    }
}

void ScrollPage(benchmark::State& state, ITable& table, int rows)
{
    for (auto _ : state)
    {
        int const page = table.GetPage();
        std::int64_t const next = std::int64_t{table.GetStart()} + page;
        table.ScrollTo(next + page < rows ? static_cast<int>(next) : 0);
        Flush(table.Top());
    }
}

void Jump(benchmark::State& state, ITable& table, int rows)
{
    bool middle = false;
    for (auto _ : state)
    {
        middle = !middle;
        table.ScrollTo(middle ? rows / 2 : 0);
        Flush(table.Top());
    }
}

void DownInView(benchmark::State& state, ITable& table, int)
{
    int steps = 0;
    for (auto _ : state)
    {
        if (steps++ % 30 == 0)
        {
            state.PauseTiming();
            table.ScrollTo(0);
            table.SetCurrent(2);
            Flush(table.Top());
            state.ResumeTiming();
        }
        Down(table);
    }
}

void DownScrolling(benchmark::State& state, ITable& table, int rows)
{
    table.SetCurrent(rows / 4);
    Flush(table.Top());
    for (int i = 0; i < 45; ++i)
        Down(table);
    for (auto _ : state)
        Down(table);
}

void Set(benchmark::State& state, Maker const& make, int rows)
{
    for (auto _ : state)
    {
        std::unique_ptr<ITable> table = make(rows);
        benchmark::DoNotOptimize(table.get());
        state.PauseTiming();
        table.reset();
        state.ResumeTiming();
    }
}

using Case = void (*)(benchmark::State&, ITable&, int rows);

void Register(std::string const& item, std::string const& peer, int rows, std::string const& count, Maker const& make)
{
    std::pair<char const*, Case> const cases[] = {{"full_repaint", FullRepaint}, {"scroll_row", ScrollRow},
                                                  {"scroll_page", ScrollPage},   {"jump", Jump},
                                                  {"down", DownInView},          {"down_scrolling", DownScrolling}};
    for (auto const& [name, run] : cases)
        benchmark::RegisterBenchmark((item + "/" + name + "_" + count + "/" + peer).c_str(),
                                     [make, rows, run = run](benchmark::State& state) {
                                         StartWithFont();
                                         std::unique_ptr<ITable> const table = make(rows);
                                         run(state, *table, rows);
                                     })
            ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark((item + "/set_up_" + count + "/" + peer).c_str(), [make,
                                                                                    rows](benchmark::State& state) {
        StartWithFont();
        Set(state, make, rows);
    })->Unit(benchmark::kMicrosecond);
}

[[maybe_unused]] bool const g_Registered = [] {
    Maker const full = [](int rows) { return std::make_unique<CVexelTable>(rows, false); };
    Maker const bare = [](int rows) { return std::make_unique<CVexelTable>(rows, true); };
    Maker const qt = [](int rows) { return std::make_unique<CQtTable>(rows, false); };
    Maker const lean = [](int rows) { return std::make_unique<CQtTable>(rows, true); };
    Register("tables", "vexel", 1000000, "1e6", full);
    Register("tables", "qtableview", 1000000, "1e6", qt);
    Register("tables_bare", "vexel", 1000000, "1e6", bare);
    Register("tables_bare", "qtableview_lean", 1000000, "1e6", lean);
    // The number of rows must not tell: a thousand of them stand as the peer of a thousand millions.
    Register("tables_growth", "vexel", 1000000000, "1e9", full);
    Register("tables_growth", "vexel_1e3_rows", 1000, "1e9", full);
    return true;
}();

}  // namespace
