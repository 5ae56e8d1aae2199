#include "vexel/widgets/configuration_viewer.h"

#include "vexel/core/clip_scope.h"
#include "vexel/core/control.h"
#include "vexel/core/measure_bracket.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"
#include "vexel/views/item_walks.h"

#include <limits>
#include <utility>

namespace vexel
{

namespace
{

double const g_CategoryWidth = 370;  // unscaled
int const g_SmallestView = 9;        // pixels; a view that isn't higher is not laid out yet
int const g_ViewWithoutLayout = 600;

CDefConfigModel& GetEmptyModel()
{
    static auto* const model = new CDefConfigModel;  // outlives static viewers
    return *model;
}

CDefCategoryVis& GetDefaultVisualisation()
{
    static auto* const visualisation = new CDefCategoryVis;
    return *visualisation;
}

// The category at the end of a path; `Set` and `Category` may both be const. Null: the model has no such one any more.
template <class Category, class Set> Category* WalkPath(Set* set, std::vector<int> const& path)
{
    Category* category = nullptr;
    for (int const index : path)
    {
        category = index < set->GetCategoryCount() ? set->GetCategory(index) : nullptr;
        if (!category)
            return nullptr;
        set = category;
    }
    return category;
}

// A path that goes one level down for a scope.
class CDeeper
{
public:
    explicit CDeeper(std::vector<int>& path) : m_Path(path) { m_Path.push_back(0); }
    ~CDeeper() { m_Path.pop_back(); }
    CDeeper(CDeeper const&) = delete;
    CDeeper& operator=(CDeeper const&) = delete;

private:
    std::vector<int>& m_Path;
};

// Nothing of what happens meanwhile reaches the screen.
class CDrawingLock
{
public:
    explicit CDrawingLock(ISysWindow* window) : m_Window(window)
    {
        if (m_Window)
            m_Window->LockDrawing(true);
    }
    ~CDrawingLock()
    {
        if (m_Window)
            m_Window->LockDrawing(false);
    }
    CDrawingLock(CDrawingLock const&) = delete;
    CDrawingLock& operator=(CDrawingLock const&) = delete;

private:
    CAlivePtr<ISysWindow> const m_Window;
};

}  // namespace

// While rows change, editors are arranged at the end and don't scroll.
class CConfigurationViewer::CUpdating
{
public:
    explicit CUpdating(CConfigurationViewer& viewer)
        : m_Alive(&viewer), m_Viewer(viewer), m_Before(std::exchange(viewer.m_Updating, true))
    {}
    ~CUpdating()
    {
        if (m_Alive)
            m_Viewer.m_Updating = m_Before;
    }
    CUpdating(CUpdating const&) = delete;
    CUpdating& operator=(CUpdating const&) = delete;

private:
    CAliveGuard const m_Alive;
    CConfigurationViewer& m_Viewer;
    bool const m_Before;
};

// One opening or closing. What is called meanwhile may begin another one, which then is the last.
class CConfigurationViewer::CTurn
{
public:
    CTurn(CConfigurationViewer& viewer, CAlivePtr<IPainter> const& painter)
        : m_Alive(&viewer), m_Updating(viewer), m_Viewer(viewer), m_Painter(painter), m_Number(++viewer.m_Turns)
    {}

    bool IsOver() const { return !m_Alive || !m_Painter; }  // the viewer or the painter has died
    bool IsLast() const { return !IsOver() && m_Viewer.m_Turns == m_Number; }
    bool IsOvertaken() const { return !IsOver() && m_Viewer.m_Turns != m_Number; }
    IPainter* GetPainter() const { return m_Painter.get(); }

private:
    CAliveGuard const m_Alive;
    CUpdating const m_Updating;
    CConfigurationViewer& m_Viewer;
    CAlivePtr<IPainter> const& m_Painter;
    unsigned int const m_Number;
};

CConfigurationViewer::CConfigurationViewer(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CRowViewer(parent, extent, alignment), m_CategoryWidth(ToDevicePixels(g_CategoryWidth)),
      m_Model(&GetEmptyModel()), m_Visualisation(&GetDefaultVisualisation())
{
    SetAutoRowHeight(false);
    MarkAllDirty();
    Update(utElement);
    SetCanHaveFocus(false);
    GetRowSelectionModel()->ClearSelection();
    SetSelectionType(CEventHandlerBase::stOneItem);
    SetBkColor(ISysPalette::scWindow);
    GetRowViewModel()->m_SigSizeChanged.connect(this, &CConfigurationViewer::ModelScrolledVert);
    GetRowSelectionModel()->m_SigCurrentChanged.connect(this, &CConfigurationViewer::CategoryChanged);
}

CConfigurationViewer::~CConfigurationViewer()
{
    while (GetChildren()->GetCount() > 0)
        GetChildren()->GetItem(0)->ReParent(nullptr, false);
}

ISysWindow* CConfigurationViewer::FindWindow() const
{
    return GetControl() ? GetControl()->GetWindow() : nullptr;
}

IPainter* CConfigurationViewer::FindPainter() const
{
    ISysWindow* const window = FindWindow();
    return window ? window->GetPainter() : nullptr;
}

// The model -------------------------------------------------------------------------------------------------------------------

bool CConfigurationViewer::IsRow(int row) const
{
    return row >= 0 && row < static_cast<int>(m_Categories.size());
}

void CConfigurationViewer::SetModel(IConfigModel* model)
{
    IConfigModel* const old = std::exchange(m_Model, model ? model : &GetEmptyModel());
    CAliveGuard const alive(this);
    try
    {
        if (IPainter* const painter = FindPainter())
        {
            CMeasureBracket const measuring(painter, GetFont(), FindWindow());
            FillCategories(painter);
        }
        else
            FillCategories(nullptr);
    }
    catch (...)
    {
        if (alive)
            m_Model = old;
        throw;
    }
    if (alive)
        GetRowViewModel()->SetCount(static_cast<int>(m_Categories.size()));
    if (alive)
        GetRowSelectionModel()->SetCurrent(-1);
    if (alive)
        UpdateAll();
}

void CConfigurationViewer::FillCategories(IPainter* painter)
{
    CUpdating const updating(*this);
    CAliveGuard const alive(this);
    std::size_t const before = m_Categories.size();
    std::vector<int> path;
    try
    {
        AddCategory(m_Model, path, painter);
    }
    catch (...)
    {
        if (alive)
            m_Categories.resize(before);  // all of them or none
        throw;
    }
}

void CConfigurationViewer::AddCategory(ICategorySet const* set, std::vector<int>& path, IPainter* painter)
{
    if (!set)
        return;
    CAliveGuard const alive(this);
    if (!path.empty())
    {
        int const row = static_cast<int>(m_Categories.size());
        m_Categories.push_back(path);
        m_Unmeasured = m_Unmeasured || !painter;
        auto const* const category = dynamic_cast<IConfigCategory const*>(set);
        if (painter && category)
            GetRowViewModel()->SetItemSize(row, m_Visualisation->GetCollapsedSize(painter, category, m_CategoryWidth));
        if (!alive)
            return;
    }
    CDeeper const deeper(path);
    int const count = set->GetCategoryCount();
    for (int i = 0; i < count && alive; ++i)
    {
        path.back() = i;
        AddCategory(set->GetCategory(i), path, painter);
    }
}

// Rows that came while there was no window.
void CConfigurationViewer::MeasureCategories()
{
    IPainter* const painter = FindPainter();
    if (!painter)
        return;
    CAliveGuard const alive(this);
    {
        CUpdating const updating(*this);
        CMeasureBracket const measuring(painter, GetFont(), FindWindow());
        for (int row = 0; alive && row < static_cast<int>(m_Categories.size()); ++row)
            if (IConfigCategory const* const category = GetCategoryByRow(row))
                GetRowViewModel()->SetItemSize(row,
                                               m_Visualisation->GetCollapsedSize(painter, category, m_CategoryWidth));
    }
    if (!alive)
        return;
    m_Unmeasured = false;
    int const current = GetRowSelectionModel()->GetCurrent();
    if (m_OpenRow >= 0 || current >= 0)
        CategoryChanged(m_OpenRow >= 0 ? m_OpenRow : current, current);
}

void CConfigurationViewer::AfterSetControl()
{
    CAliveGuard const alive(this);
    CRowViewer::AfterSetControl();
    if (alive && m_Unmeasured)
        MeasureCategories();
}

void CConfigurationViewer::SetVisualisation(ICategoryVis* visualisation)
{
    m_Visualisation = visualisation ? visualisation : &GetDefaultVisualisation();
    UpdateAll();
}

void CConfigurationViewer::UpdateAll()
{
    MarkAllDirty();
    Update(utElement);
}

IConfigCategory const* CConfigurationViewer::GetCategoryByRow(int row) const
{
    if (!IsRow(row))
        return nullptr;
    return WalkPath<IConfigCategory const, ICategorySet const>(m_Model, m_Categories[static_cast<std::size_t>(row)]);
}

IConfigCategory* CConfigurationViewer::GetCategoryByRow(int row)
{
    if (!IsRow(row))
        return nullptr;
    return WalkPath<IConfigCategory, ICategorySet>(m_Model, m_Categories[static_cast<std::size_t>(row)]);
}

// Opening and closing -----------------------------------------------------------------------------------------------------------

void CConfigurationViewer::CategoryChanged(int oldRow, int newRow)
{
    CAlivePtr<IPainter> const painter(FindPainter());
    if (!painter)
    {
        m_Unmeasured = true;
        return;
    }
    CTurn const turn(*this, painter);
    CMeasureBracket const measuring(painter.get(), GetFont(), FindWindow());
    if (oldRow != newRow)
        CloseCategory(oldRow, turn);
    if (turn.IsLast())
        OpenCategory(newRow, turn);
    if (turn.IsOvertaken())
        Settle(oldRow, newRow, turn);
}

void CConfigurationViewer::CloseCategory(int row, CTurn const& turn)
{
    if (!IsRow(row))
        return;
    if (m_OpenRow == row)
        m_OpenRow = -1;
    if (IConfigCategory* const category = GetCategoryByRow(row))
        category->Deactivate();
    for (int i = 0; turn.IsLast() && i < GetChildren()->GetCount(); ++i)
        GetChildren()->GetItem(i)->SetVisible(false);
    if (turn.IsLast())
        Collapse(row, turn);
}

void CConfigurationViewer::Collapse(int row, CTurn const& turn)
{
    int const height = m_Visualisation->GetCollapsedSize(turn.GetPainter(), GetCategoryByRow(row), m_CategoryWidth);
    if (turn.IsOver())
        return;
    GetRowViewModel()->SetItemSize(row, height);
    if (!turn.IsOver() && m_OpenRow != row)
        GetRowSelectionModel()->SelectItem(row, false);  // it would look open
}

void CConfigurationViewer::OpenCategory(int row, CTurn const& turn)
{
    if (!IsRow(row))
        return;
    m_OpenRow = row;
    if (IConfigCategory* const category = GetCategoryByRow(row))
        category->Activate();
    if (turn.IsLast())
        Expand(row, turn);
}

void CConfigurationViewer::Expand(int row, CTurn const& turn)
{
    int const size = m_Visualisation->GetExpandedSize(turn.GetPainter(), GetCategoryByRow(row), m_CategoryWidth);
    if (turn.IsOver())
        return;
    GetRowViewModel()->SetItemSize(row, size);
    if (turn.IsOver() || m_OpenRow != row)
        return;
    int const height = GetBounds().bottom > g_SmallestView ? GetBounds().bottom : g_ViewWithoutLayout;
    range<int> const extent = Utils::GetItemIndexRangeEx(GetRowViewModel(), row, {0, height});
    m_Visualisation->ArrangeEditors(turn.GetPainter(), GetCategoryByRow(row), this,
                                    {0.0, static_cast<double>(extent.first), static_cast<double>(m_CategoryWidth),
                                     static_cast<double>(extent.second)});
}

// Another category was opened, or all were closed, in the middle of a turn: what is open now stands as if the turn had ended
// before.
void CConfigurationViewer::Settle(int oldRow, int newRow, CTurn const& turn)
{
    for (int const row : {oldRow, newRow})
        if (!turn.IsOver() && IsRow(row) && row != m_OpenRow)
            Collapse(row, turn);
    // The others keep the focus, and what else they would lose.
    for (int i = 0; !turn.IsOver() && i < GetChildren()->GetCount(); ++i)
        if (CVisualElement* const child = GetChildren()->GetItem(i); !IsOpenEditor(child))
            child->SetVisible(false);
    if (!turn.IsOver() && IsRow(m_OpenRow))
        Expand(m_OpenRow, turn);
}

bool CConfigurationViewer::IsOpenEditor(CVisualElement const* element)
{
    IConfigCategory* const category = GetCategoryByRow(m_OpenRow);
    int const count = category ? category->GetItemCount() : 0;
    for (int i = 0; i < count; ++i)
        if (IConfigItem* const item = category->GetItem(i); item && item->GetEditor() == element)
            return true;
    return false;
}

void CConfigurationViewer::RefreshActiveCategory()
{
    int const current = GetRowSelectionModel()->GetCurrent();
    CategoryChanged(current, current);
}

// Scrolling -----------------------------------------------------------------------------------------------------------------------

void CConfigurationViewer::ModelScrolledVert(int position, int delta, bool* moved)
{
    // Where the pixels were not moved, as they are not below editors, the rows are at other places all the same: all of
    // them, or those behind one that has another height.
    if (*moved || position <= 0)
        ScrollElements(0, delta);
    else
        MoveEditors(0, delta, position);
}

void CConfigurationViewer::ModelScrolledHorz(int, int delta, bool* moved)
{
    if (*moved)
        ScrollElements(delta, 0);
}

void CConfigurationViewer::ScrollElements(int dx, int dy)
{
    MoveEditors(dx, dy, std::numeric_limits<int>::min());
}

// Those whose top isn't above `from`.
void CConfigurationViewer::MoveEditors(int dx, int dy, int from)
{
    if (m_Updating)
        return;
    CAliveGuard const alive(this);
    {
        CDrawingLock const lock(FindWindow());
        for (int i = 0; alive && i < GetChildren()->GetCount(); ++i)
        {
            CVisualElement* const editor = GetChildren()->GetItem(i);
            rectangle<int> rect = editor->GetPos();
            rect.Normalize();
            if (rect.top < from)
                continue;
            editor->SetPos({AddSaturated(rect.left, dx), AddSaturated(rect.top, dy), AddSaturated(rect.right, dx),
                            AddSaturated(rect.bottom, dy)},
                           true);
        }
    }
    ISysWindow* const window = alive ? FindWindow() : nullptr;
    if (!window)
        return;
    rectangle<int> const area = window->GetRect();
    window->InvalidateRect(area.left, area.top, area.right, area.bottom);
}

// Painting ------------------------------------------------------------------------------------------------------------------------

void CConfigurationViewer::OnDraw(IPainter* painter)
{
    if (!IsVisible() || GetBounds().IsEmpty())
        return;
    CAlivePtr<IPainter> const surface(painter);
    // Rows begin above the view and end below it, and a category may be wider than the view.
    CClipScope const clip(surface, GetBounds());
    CRowViewer::OnDraw(painter);
}

// An editor that isn't wholly in view is painted along with the viewer, which cuts it.
void CConfigurationViewer::ProcessChange(CVisualElement** element)
{
    if (*element == this)
        return;
    CVisualElement const* editor = *element;
    while (editor && editor->GetParent() != this)
        editor = editor->GetParent();
    rectangle<int> const bounds = GetBounds();
    rectangle<int> const place = editor ? editor->GetPos() : bounds;
    if (place.left < 0 || place.top < 0 || place.right > bounds.right || place.bottom > bounds.bottom)
        *element = this;
}

void CConfigurationViewer::DrawRow(IPainter* painter, int row, int skip, int state, rectangle<double> const& rect,
                                   IDirtyItemSet::DirtyType dirty)
{
    if (dirty == IDirtyItemSet::dirtyOther && GetRowViewModel()->GetItemType(row) == IDirtyItemSet::dirtyOther)
        return;
    rectangle<double> place = rect;
    place.top -= skip;
    IConfigCategory const* const category = GetCategoryByRow(row);
    if (!category)
        return DrawRowEmptyArea(painter, rect);
    unsigned int const open =
        (state & (isSelected | isCurrent)) != 0 ? ICategoryVis::stOpen | ICategoryVis::stHighlighted : 0u;
    m_Visualisation->Draw(painter, category, place, m_CategoryWidth, open);
}

void CConfigurationViewer::DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect)
{
    painter->SetBrush({GetBkColor(), brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
}

}  // namespace vexel
