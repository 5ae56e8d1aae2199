#include "tests/support/tree_game.h"

#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/core/invalid_region.h"
#include "vexel/core/transparent_flavor.h"
#include "vexel/platform/base_painter.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace vexel::test
{

using namespace vexelbase;

/// What all elements of the game have: a number that decides how they look, and answers to the user.
class CTreeGame::CNode : public CVisualElement
{
public:
    CNode(CVisualElement* parent, size<int> const& extent, Alignment alignment, unsigned long id)
        : CVisualElement(parent, extent, alignment)
    {
        SetId(id);
        SetCanHaveFocus(id % 3 == 0);
        SetBkColor(color_table[9 + id % 18]);
    }

    virtual char const* GetKind() const = 0;
    /// Its children are all of alNone, each in a square of its own.
    bool IsBoard() const { return GetId() % 4 == 3; }
    int m_Square = -1;
    /// Scrolls its content, where it has one.
    virtual void ScrollBy(int, int) {}

protected:
    bool HandleStartDragging(int, int, DragInfo& info) override
    {
        rectangle<int> rect = GetBounds();
        ElementToControl(&rect);
        info.m_Rect = rect;
        info.m_GlobalUpdate = GetId() % 2 == 0;
        return GetId() % 4 == 1;
    }
    bool HandleDragOver(CVisualElement*, int, int, DragInfo&) override { return GetId() % 2 == 0; }
    void HandleDrawDragItem(IPainter* painter, DragInfo& info, bool accepted, CVisualElement*) override
    {
        rectangle<int> rect = info.m_Rect;
        ControlToElement(&rect);
        brush fill;
        fill.color = color_table[accepted ? 13 : 6];
        painter->SetBrush(fill);
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    }
    void HandleMouseHover(CVisualElement*) override { SetHot(true); }
    void HandleMouseLeave(CVisualElement*) override { SetHot(false); }
    bool HandleClick(int, int, int, MouseButton) override
    {
        m_Clicks = (m_Clicks + 1) % 8;
        Update(utElement);
        return true;
    }

    // A frame, a mark in a corner and a text: nothing that a neighbour's picture could be taken for.
    void DrawMarks(IPainter* painter)
    {
        rectangle<int> const rect = GetBounds();
        painter->MoveTo(0, 0);
        painter->LineTo(rect.right, rect.bottom);
        brush hollow;
        hollow.style = brush::bsNone;
        painter->SetBrush(hollow);
        painter->Rectangle(0, 0, rect.right, rect.bottom);
        for (int i = 0; i < m_Clicks; ++i)
            painter->SetPixel(std::min(2 + 2 * i, rect.right), std::min(2, rect.bottom), color_table[6]);
        painter->DrawString({1, 1, rect.right - 1.0, rect.bottom - 1.0}, std::to_string(GetId()),
                            IPainter::AlignHCenter | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
        if (IsFocused())
            painter->FocusRect(1, 1, rect.right - 1, rect.bottom - 1);
    }
    bool IsHot() const { return m_Hot; }

private:
    void SetHot(bool hot)
    {
        m_Hot = hot;
        if (GetId() % 2)
            Update(utElement);
    }

    bool m_Hot = false;
    int m_Clicks = 0;
};

/// Covers its rectangle.
class CTreeGame::CFill : public CNode
{
public:
    using CNode::CNode;
    char const* GetKind() const override { return "fill"; }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        if (IsHot() && GetId() % 2)
        {
            brush fill;
            fill.color = color_table[3];
            painter->SetBrush(fill);
        }
        painter->FillRect(0, 0, rect.right, rect.bottom);
        DrawMarks(painter);
    }
};

/// Draws only marks; what is behind it shines through.
class CTreeGame::CGlass : public CTransparentFlavor<CNode>
{
public:
    CGlass(CVisualElement* parent, size<int> const& extent, Alignment alignment, unsigned long id)
        : CTransparentFlavor<CNode>(parent, extent, alignment, id)
    {
        m_Transparent = true;
    }
    char const* GetKind() const override { return "glass"; }

protected:
    void DrawContent(IPainter* painter) override { DrawMarks(painter); }
};

/// Paints only the strips that don't stand any more; its content can be scrolled by moving pixels.
class CTreeGame::CStrips : public CNode
{
public:
    using CNode::CNode;
    char const* GetKind() const override { return "strips"; }

    bool IsFullRepainted() const override { return false; }

    void ScrollBy(int dx, int dy) override
    {
        m_OffsetX -= dx;
        m_OffsetY -= dy;
        Scroll(dx, dy, false);
    }

    bool ScrollContent(int dx, int dy) override
    {
        if (dx == 0 && dy == 0)
            return false;
        rectangle<int> valid = GetValidRect();
        rectangle<int> area = GetContentRect();
        rectangle<int> const& pos = GetPos();
        bool const reusable =
            std::abs(dx) < valid.Width() && std::abs(dy) < valid.Height() && GetControl() && IsDisplayable();
        if (reusable)
        {
            (dx < 0 ? area.left : area.right) -= dx;
            (dx < 0 ? valid.right : valid.left) += dx;
            (dy < 0 ? area.top : area.bottom) -= dy;
            (dy < 0 ? valid.bottom : valid.top) += dy;
            ElementToControl(&area);
            GetControl()->ScrollContent(dx, dy, {area.left, area.top, area.right, area.bottom});
            valid.Offset(pos.left, pos.top);
            m_Kept = valid;
        }
        else
        {
            m_Kept = {pos.left, pos.top, pos.left, pos.top};
        }
        // The request below empties the valid rectangle; what was moved stands all the same.
        OnChange(this, utElement);
        SetValidRect(m_Kept);
        return false;
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<double> const whole = GetDrawRect(painter);
        rectangle<double> const valid = GetDrawValidRect(painter);
        CInvalidRegion const region(whole, valid);
        for (int i = 0; i < 4; ++i)
        {
            rectangle<double> const strip = region[i];
            if (strip.IsZero())
                continue;
            CClipHolder const clip(painter, strip, {});
            DrawPattern(painter, strip);
        }
    }

private:
    // Squares of 5 pixels in content coordinates, each in a colour of its own.
    void DrawPattern(IPainter* painter, rectangle<double> const& strip)
    {
        constexpr int side = 5;
        int const left = ToInt(strip.left) + m_OffsetX;
        int const top = ToInt(strip.top) + m_OffsetY;
        int const right = ToInt(strip.right) + m_OffsetX;
        int const bottom = ToInt(strip.bottom) + m_OffsetY;
        for (int row = FloorToInt(top / double(side)); row <= FloorToInt(bottom / double(side)); ++row)
        {
            for (int column = FloorToInt(left / double(side)); column <= FloorToInt(right / double(side)); ++column)
            {
                brush fill;
                fill.color = color_table[1 + static_cast<unsigned>(row * 7 + column * 3 + ToInt(double(GetId()))) % 26];
                painter->SetBrush(fill);
                int const x = column * side - m_OffsetX;
                int const y = row * side - m_OffsetY;
                painter->FillRect(x, y, x + side - 1, y + side - 1);
            }
        }
    }

    int m_OffsetX = 0;
    int m_OffsetY = 0;
    rectangle<int> m_Kept;
};

/// Paints nothing itself: what paints in strips stands in such a one, since a filled ground would lose what still stands.
class CTreeGame::CBare : public CNode
{
public:
    using CNode::CNode;
    char const* GetKind() const override { return "bare"; }
};

CTreeGame::CTreeGame(CBaseControl& control, CBaseWindow& window, CTestRandom& random)
    : m_Control(control), m_Window(window), m_Random(random)
{
    // The root paints nothing, so these three cover it for good.
    m_Bare = new CBare(control.GetContent(), {40, 0}, alRight, m_NextId++);
    new CStrips(m_Bare, {0, 0}, alClient, m_NextId++);
    m_NextId = 4;
    m_Base = new CFill(control.GetContent(), {0, 0}, alClient, m_NextId++);
    m_Base->SetCanHaveFocus(false);
}

CTreeGame::~CTreeGame() = default;

// Steps -----------------------------------------------------------------------------------------------------------------

void CTreeGame::Step()
{
    ++m_Steps;
    m_All.clear();
    Collect(m_Control.GetContent());
    int const what = m_Random.Int(1, 100);
    if (what <= 18 && m_All.size() < 30)
        Add();
    else if (what <= 26)
        Remove();
    else if (what <= 50)
        Move();
    else if (what <= 74)
        Change();
    else if (what <= 98)
        UserEvent();
    else
        ResizeWindow();
}

void CTreeGame::Collect(CVisualElement* element)
{
    for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
    {
        CVisualElement* const child = element->GetChildren()->GetItem(i);
        if (element != m_Control.GetContent() && (element != m_Bare || i > 0))
            m_All.push_back(static_cast<CNode*>(child));
        Collect(child);
    }
}

CTreeGame::CNode* CTreeGame::Pick()
{
    return m_All.empty() ? nullptr : m_Random.Pick(m_All);
}

// For all but strips, which have no children either.
CVisualElement* CTreeGame::PickParent()
{
    for (int attempt = 0; attempt < 4 && !m_All.empty(); ++attempt)
    {
        CNode* const node = m_Random.Pick(m_All);
        if (!IsStrips(node))
            return node;
    }
    return m_Base;
}

bool CTreeGame::IsStrips(CNode const* node)
{
    return dynamic_cast<CStrips const*>(node) != nullptr;
}

bool CTreeGame::IsFree(CNode const* node)
{
    return node->GetAlignment() == alNone;
}

// Docks what is not on a board, and gives a place to what is. After a change of parent, or to move on a board.
void CTreeGame::PlaceByParent(CNode* node)
{
    auto* const parent = static_cast<CNode*>(node->GetParent());
    if (!parent->IsBoard())
    {
        if (IsFree(node))
            node->SetAlignment(static_cast<Alignment>(m_Random.Int(alLeft, alClient)));
        return;
    }
    node->SetAlignment(alNone);
    std::vector<int> taken;
    for (int i = 0; i < parent->GetChildren()->GetCount(); ++i)
        if (CVisualElement* const sibling = parent->GetChildren()->GetItem(i); sibling != node)
            taken.push_back(static_cast<CNode*>(sibling)->m_Square);
    do
        node->m_Square = m_Random.Int(0, 39);
    while (std::find(taken.begin(), taken.end(), node->m_Square) != taken.end());
    int const left = node->m_Square % 8 * 12 + m_Random.Int(0, 2);
    int const top = node->m_Square / 8 * 12 + m_Random.Int(0, 2);
    rectangle<int> const& old = node->GetPos();
    if (m_Random.Bool() && !old.IsEmpty())
        node->SetPos({left, top, left + old.Width(), top + old.Height()}, false);  // its pixels go with it
    else
        node->SetPos({left, top, left + m_Random.Int(3, 9), top + m_Random.Int(3, 9)}, true);
    parent->Update(utElement);
}

void CTreeGame::Add()
{
    CVisualElement* parent = PickParent();
    auto const alignment = static_cast<Alignment>(m_Random.Int(alLeft, alClient));
    size<int> const extent{m_Random.Int(1, 40), m_Random.Int(1, 30)};
    CNode* node = nullptr;
    switch (m_Random.Int(0, 4))
    {
    case 0:
        node = new CGlass(parent, extent, alignment, m_NextId++);
        break;
    case 1:
        parent = m_Bare;
        node = new CStrips(parent, extent, static_cast<Alignment>(m_Random.Int(alLeft, alBottom)), m_NextId++);
        break;
    default:
        node = new CFill(parent, extent, alignment, m_NextId++);
        break;
    }
    if (!IsStrips(node))
        PlaceByParent(node);
    m_Log.Note("add " + NameOf(node) + " to " + NameOf(parent));
}

void CTreeGame::Remove()
{
    CNode* const node = Pick();
    if (!node)
        return;
    m_Log.Note("remove " + NameOf(node));
    CVisualElement* const parent = node->GetParent();
    if (m_Random.Bool())
        node->ReParent(nullptr, true);
    delete node;
    parent->OnRearrange(parent->GetChildren()->GetCount() ? parent->GetChildren()->GetItem(0) : parent);
    parent->Update(utElement);
}

void CTreeGame::Move()
{
    CNode* const node = Pick();
    if (!node)
        return;
    switch (m_Random.Int(0, 6))
    {
    case 0:
    case 1:
    {
        size<int> const extent{m_Random.Int(1, 40), m_Random.Int(1, 30)};
        m_Log.Note("size " + NameOf(node) + " " + std::to_string(extent.width) + " " + std::to_string(extent.height));
        node->SetSize(extent, false);
        break;
    }
    case 2:
    {
        auto const alignment = static_cast<Alignment>(m_Random.Int(alLeft, IsStrips(node) ? alBottom : alClient));
        if (IsFree(node))
            break;
        m_Log.Note("dock " + NameOf(node) + " " + std::to_string(alignment));
        node->SetAlignment(alignment);
        break;
    }
    case 3:
    {
        m_Log.Note((node->IsVisible() ? "hide " : "show ") + NameOf(node));
        node->SetVisible(!node->IsVisible());
        if (IsFree(node))
            node->GetParent()->Update(utElement);
        break;
    }
    case 4:
    {
        CVisualElement* const parent = PickParent();
        if (IsStrips(node) || IsAncestor(parent, node) || parent == node->GetParent())
            return;
        m_Log.Note("move " + NameOf(node) + " to " + NameOf(parent));
        CVisualElement* const old = node->GetParent();
        node->ReParent(parent, true);
        old->Update(utElement);
        PlaceByParent(node);
        break;
    }
    case 5:
    {
        IChildren* const children = node->GetParent()->GetChildren();
        int const from = children->GetIndex(node);
        // The first of the bare one stays the first.
        int const first = IsStrips(node) ? 1 : 0;
        int const to = m_Random.Int(first, children->GetCount() - 1);
        m_Log.Note("order " + NameOf(node) + " to " + std::to_string(to));
        children->MoveItem(from, to);
        node->OnRearrange(node);
        node->GetParent()->Update(utElement);
        break;
    }
    default:
        if (IsFree(node))
        {
            PlaceByParent(node);
            m_Log.Note("place " + NameOf(node));
        }
        break;
    }
}

void CTreeGame::Change()
{
    CNode* const node = Pick();
    if (!node)
        return;
    switch (m_Random.Int(0, 9))
    {
    case 0:
        node->SetBkColor(color_table[m_Random.Int(9, 27)]);
        m_Log.Note("colour " + NameOf(node));
        break;
    case 1:
        node->SetFgColor(color_table[m_Random.Int(1, 8)]);
        m_Log.Note("foreground " + NameOf(node));
        break;
    case 2:
        node->SetEnabled(!node->IsEnabled());
        m_Log.Note("enable " + NameOf(node));
        break;
    case 3:
    {
        font changed;
        changed.size = m_Random.Int(0, 1) ? m_Random.Int(5, 12) : 0;
        changed.style = m_Random.Int(0, 3);
        node->SetFont(changed);
        m_Log.Note("font " + NameOf(node));
        break;
    }
    case 4:
        node->Update(utElement);
        m_Log.Note("update " + NameOf(node));
        break;
    case 5:
        m_Control.LockRearrange(true);
        node->SetWidth(m_Random.Int(1, 40), false);
        Move();
        m_Control.LockRearrange(false);
        m_Log.Note("locked width " + NameOf(node));
        break;
    case 6:
        node->ForceRearrange();
        m_Log.Note("force");
        break;
    case 7:
        if (m_Random.Chance(10))
            node->Update(m_Random.Bool() ? utFull : utGlobal);
        break;
    default:
        for (CNode* const each : m_All)
        {
            if (!IsStrips(each) || !m_Random.Bool())
                continue;
            int const dx = m_Random.Int(-12, 12);
            int const dy = m_Random.Int(-12, 12);
            each->ScrollBy(dx, dy);
            m_Log.Note("scroll " + NameOf(each) + " by " + std::to_string(dx) + " " + std::to_string(dy));
            break;
        }
        break;
    }
}

void CTreeGame::UserEvent()
{
    rectangle<int> const rect = m_Window.GetRect();
    switch (m_Random.Int(0, 5))
    {
    case 0:
    case 1:
    {
        m_Pointer = {m_Random.Int(0, std::max(0, rect.right - 1)), m_Random.Int(0, std::max(0, rect.bottom - 1))};
        CMouseEvent event(m_Pointer.x, m_Pointer.y, m_Held, m_Held ? mbLeft : mbNone);
        m_Control.OnMouseMove(&event);
        m_Log.Note("pointer " + std::to_string(m_Pointer.x) + " " + std::to_string(m_Pointer.y));
        break;
    }
    case 2:
    case 3:
    {
        m_Held = m_Held ? 0 : ksLeft;
        CMouseEvent event(m_Pointer.x, m_Pointer.y, m_Held, mbLeft);
        if (m_Held)
            m_Control.OnButtonDown(&event);
        else
            m_Control.OnButtonUp(&event);
        m_Log.Note(m_Held ? "press" : "release");
        break;
    }
    case 4:
    {
        CKeyboardEvent event(m_Random.Bool() ? ksShift : 0, vkTab);
        m_Control.OnKeyDown(&event);
        m_Log.Note("tab");
        break;
    }
    default:
    {
        CMouseEvent event(m_Pointer.x, m_Pointer.y, m_Held, mbNone);
        m_Control.OnLeave(&event);
        m_Log.Note("leave");
        break;
    }
    }
}

// The window is resized by its owner; here the tree alone takes other bounds, as after a layout from outside.
void CTreeGame::ResizeWindow()
{
    m_Control.Rearrange();
    m_Log.Note("rearrange");
}

// Painting --------------------------------------------------------------------------------------------------------------

// The first element below that finds no room in its parent, or is a client beside another one; null if all are well placed.
// Such elements overlap others or leave a line to nobody.
CVisualElement* CTreeGame::FindMisplaced(CVisualElement* element)
{
    IChildren* const children = element->GetChildren();
    rectangle<int> const bounds = element->GetBounds();
    CVisualElement* client = nullptr;
    for (int i = 0; i < children->GetCount(); ++i)
    {
        CVisualElement* const child = children->GetItem(i);
        if (!child->IsVisible())
            continue;
        rectangle<int> const& pos = child->GetPos();
        bool const inside =
            pos.left >= 0 && pos.top >= 0 && pos.right <= bounds.right && pos.bottom <= bounds.bottom && !pos.IsEmpty();
        if (!inside && element != m_Bare && element != m_Control.GetContent())
            return child;
        if (child->GetAlignment() == alClient && std::exchange(client, child))
            return child;
        if (CVisualElement* const found = FindMisplaced(child))
            return found;
    }
    return nullptr;
}

void CTreeGame::Paint()
{
    // The owner of a tree takes out what finds no room.
    for (;;)
    {
        m_Control.GetContent()->ForceRearrange();
        CVisualElement* const misplaced = FindMisplaced(m_Control.GetContent());
        if (!misplaced)
            break;
        m_Log.Note("no room for " + NameOf(misplaced));
        CVisualElement* const parent = misplaced->GetParent();
        misplaced->ReParent(nullptr, true);
        delete misplaced;
        parent->Update(utElement);
    }
    m_Window.UpdateNow();
}

std::string CTreeGame::CompareWithFullPaint()
{
    CPixelBuffer const before = m_Window.GetPixels();
    static_cast<CBasePainter*>(m_Window.GetPainter())->RequestFullPaint();
    m_Window.UpdateNow();
    CPixelBuffer const& after = m_Window.GetPixels();
    if (before.GetSize() != after.GetSize())
        return "the surface has changed its size";
    int differing = 0;
    std::ostringstream text;
    for (int y = 0; y < after.GetHeight(); ++y)
    {
        for (int x = 0; x < after.GetWidth(); ++x)
        {
            if (before.Row(y)[x] == after.Row(y)[x])
                continue;
            if (++differing > 1)
                continue;
            CVisualElement* const element = m_Control.GetContent()->FindVisualElement(x, y);
            text << "first at (" << x << ", " << y << "), on " << NameOf(element) << ": " << std::hex
                 << before.Row(y)[x] << " instead of " << after.Row(y)[x] << std::dec;
        }
    }
    if (differing == 0)
        return {};
    text << ", " << differing << " pixels in all, after step " << m_Steps << "\n"
         << "dragged " << NameOf(m_Control.GetControl()->GetDraggedElement()) << "\n"
         << DescribeTree(m_Control.GetContent(), 0) << "last steps:\n";
    text << m_Log.Text();
    return text.str();
}

// Telling ---------------------------------------------------------------------------------------------------------------

std::string CTreeGame::NameOf(CVisualElement const* element) const
{
    return element ? "#" + std::to_string(element->GetId()) : "nothing";
}

std::string CTreeGame::DescribeTree(CVisualElement* element, int depth) const
{
    rectangle<int> const& pos = element->GetPos();
    rectangle<int> const valid = element->GetValidRect();
    std::ostringstream text;
    text << std::string(static_cast<std::size_t>(depth) * 2, ' ') << NameOf(element);
    if (auto const* const node = dynamic_cast<CNode const*>(element))
        text << " " << node->GetKind();
    text << " dock " << element->GetAlignment() << " at " << pos.left << " " << pos.top << " " << pos.right << " "
         << pos.bottom << " valid " << valid.left << " " << valid.top << " " << valid.right << " " << valid.bottom
         << (element->IsVisible() ? "" : " hidden") << (element->IsEnabled() ? "" : " disabled") << "\n";
    for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
        text << DescribeTree(element->GetChildren()->GetItem(i), depth + 1);
    return text.str();
}

}  // namespace vexel::test
