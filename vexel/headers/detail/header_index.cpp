#include "vexel/headers/detail/header_index.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace vexel::detail
{

namespace
{

constexpr int LowestBit(int value)
{
    return value & -value;
}

}  // namespace

CHeaderIndex::SSize& CHeaderIndex::SSize::operator+=(SSize const& other)
{
    width += other.width;
    leaves += other.leaves;
    return *this;
}

CHeaderIndex::SSize& CHeaderIndex::SSize::operator-=(SSize const& other)
{
    width -= other.width;
    leaves -= other.leaves;
    return *this;
}

// Building ------------------------------------------------------------------------------------------------------------------

void CHeaderIndex::Build(IHeaderModel* model)
{
    ++m_Version;
    m_Model = model;
    m_Nodes.assign(1, {});
    m_Items.assign(1, nullptr);
    m_Levels = 1;
    int const top = model ? model->GetChildCount() : 0;
    for (int i = 0; i < top; ++i)
        Append(model->GetChild(i), 0);
    // Level by level, so that children of one parent follow each other.
    int levelEnd = GetNodeCount();
    for (int node = 1; node < GetNodeCount(); ++node)
    {
        if (node == levelEnd)
        {
            ++m_Levels;
            levelEnd = GetNodeCount();
        }
        IHeaderItem* const item = GetItem(node);
        int const count = item->GetChildCount();
        for (int i = 0; i < count; ++i)
            Append(item->GetChild(i), node);
        int const state = item->GetExpandState();
        SNode& self = At(node);
        self.collapsed = state == IHeaderItem::esCollapsed;
        if (IsVisualLeaf(node))
            self.width = std::max(item->GetWidth(), 0);
    }
    // Children come before their parents here, and the last sibling first: its sums are passed on when all is known.
    for (int node = GetNodeCount() - 1; node > 0; --node)
        At(GetParent(node)).below += GetSize(node);
    for (int node = 1; node < GetNodeCount(); ++node)
    {
        SNode const& parent = At(GetParent(node));
        int const place = node - parent.firstChild + 1;
        At(node).sum += GetSize(node);
        if (int const next = place + LowestBit(place); next <= parent.childCount)
            At(parent.firstChild + next - 1).sum += At(node).sum;
    }
}

void CHeaderIndex::Append(IHeaderItem* item, int parent)
{
    if (!item)
        return;
    int const node = GetNodeCount();
    SNode& above = At(parent);
    if (above.childCount++ == 0)
        above.firstChild = node;
    m_Nodes.emplace_back().parent = parent;
    m_Items.push_back(item);
}

// Sections ------------------------------------------------------------------------------------------------------------------

bool CHeaderIndex::IsShown(int node) const
{
    for (int above = GetParent(node); above > 0; above = GetParent(above))
        if (At(above).collapsed)
            return false;
    return true;
}

CHeaderIndex::SSize CHeaderIndex::GetBeforeInParent(int node) const
{
    int const first = GetFirstChild(GetParent(node));
    SSize sum;
    for (int place = node - first; place > 0; place -= LowestBit(place))
        sum += At(first + place - 1).sum;
    return sum;
}

CHeaderIndex::SSize CHeaderIndex::GetBefore(int node) const
{
    SSize sum;
    for (; node > 0; node = GetParent(node))
        sum += GetBeforeInParent(node);
    return sum;
}

int CHeaderIndex::GetLastLeaf(int node) const
{
    while (node == 0 || !IsVisualLeaf(node))
        node = GetLastChild(node);
    return node;
}

// Search --------------------------------------------------------------------------------------------------------------------

int CHeaderIndex::Find(IHeaderItem const* item) const
{
    std::vector<IHeaderContainer const*> path;
    IHeaderContainer const* above = item;
    for (; above && above != m_Model; above = above->GetParent())
    {
        path.push_back(above);
        if (static_cast<int>(path.size()) > m_Levels)
            return -1;
    }
    if (!above || path.empty())
        return -1;
    int node = 0;
    for (auto wanted = path.rbegin(); wanted != path.rend(); ++wanted)
    {
        auto const begin = m_Items.begin() + GetFirstChild(node);
        auto const end = begin + GetChildCount(node);
        auto const found = std::find_if(begin, end, [&](IHeaderItem const* child) {
            return static_cast<IHeaderContainer const*>(child) == *wanted;
        });
        if (found == end)
            return -1;
        node = static_cast<int>(found - m_Items.begin());
    }
    return node;
}

// Goes over the children as long as the sum of those passed is let through. The child to stop at, behind the last one where
// all are passed; `before` takes the sum of those passed.
template <class Passes> int CHeaderIndex::Descend(int parent, Passes const& passes, SSize& before) const
{
    int const first = GetFirstChild(parent);
    int const count = GetChildCount(parent);
    int passed = 0;
    for (auto step = std::bit_floor(static_cast<unsigned>(count)); step > 0; step /= 2)
    {
        int const next = passed + static_cast<int>(step);
        if (next > count)
            continue;
        SSize sum = before;
        sum += At(first + next - 1).sum;
        if (!passes(sum))
            continue;
        before = sum;
        passed = next;
    }
    return first + passed;
}

int CHeaderIndex::FindLeaf(int column) const
{
    if (column < 0 || column >= GetTotal().leaves)
        return -1;
    SSize before;
    int node = 0;
    do
        node = Descend(
            node, [&](SSize const& sum) { return sum.leaves <= column; }, before);
    while (!IsVisualLeaf(node));
    return node;
}

int CHeaderIndex::FindLeafAt(std::int64_t position) const
{
    if (position < 0 || position >= GetTotal().width)
        return -1;
    SSize before;
    int node = 0;
    do
        node = Descend(
            node, [&](SSize const& sum) { return sum.width <= position; }, before);
    while (!IsVisualLeaf(node));
    return node;
}

int CHeaderIndex::FindChildAt(int parent, std::int64_t position) const
{
    if (GetChildCount(parent) == 0)
        return -1;
    SSize before;
    int const node = Descend(
        parent, [&](SSize const& sum) { return sum.width <= position; }, before);
    return std::min(node, GetLastChild(parent));
}

// Changes -------------------------------------------------------------------------------------------------------------------

void CHeaderIndex::UpdateWidth(int node)
{
    SSize const old = GetSize(node);
    At(node).width = std::max(GetItem(node)->GetWidth(), 0);
    Change(node, old, GetSize(node));
}

void CHeaderIndex::UpdateState(int node)
{
    SSize const old = GetSize(node);
    IHeaderItem const* const item = GetItem(node);
    At(node).collapsed = item->GetExpandState() == IHeaderItem::esCollapsed;
    if (IsVisualLeaf(node))
        At(node).width = std::max(item->GetWidth(), 0);
    Change(node, old, GetSize(node));
}

// Goes up as long as those above are expanded; a collapsed one looks the same as before.
void CHeaderIndex::Change(int node, SSize const& old, SSize const& now)
{
    SSize change = now;
    change -= old;
    while (node > 0)
    {
        int const parent = GetParent(node);
        int const first = GetFirstChild(parent);
        int const count = GetChildCount(parent);
        for (int place = node - first + 1; place <= count; place += LowestBit(place))
            At(first + place - 1).sum += change;
        At(parent).below += change;
        if (parent > 0 && At(parent).collapsed)
            return;
        node = parent;
    }
}

// Geometry ------------------------------------------------------------------------------------------------------------------

std::int64_t CHeaderGeometry::FloorToInt64(double value)
{
    constexpr double limit = 4e18;
    if (!(value > -limit))  // not a number, too
        return static_cast<std::int64_t>(-limit);
    return static_cast<std::int64_t>(std::floor(std::min(value, limit)));
}

rectangle<double> CHeaderGeometry::GetRect(int node) const
{
    if (!m_Index.IsShown(node))
        return {};
    std::vector<int> path;
    for (; node > 0; node = m_Index.GetParent(node))
        path.push_back(node);
    SPlace place = GetTop();
    for (auto step = path.rbegin(); step != path.rend(); ++step)
        place = GetPlace(place, *step, place.left + static_cast<double>(m_Index.GetBeforeInParent(*step).width));
    return path.empty() ? rectangle<double>() : GetRect(place, path.front());
}

rectangle<double> CHeaderGeometry::GetRest() const
{
    double const left = m_Strip.left + static_cast<double>(m_Index.GetTotal().width);
    return {left, m_Strip.top, m_Strip.right, m_Strip.bottom};
}

}  // namespace vexel::detail
