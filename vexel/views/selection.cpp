#include "vexel/views/selection.h"

#include "vexel/platform/convert.h"

#include <algorithm>
#include <iterator>

namespace vexel
{

using Selection = CSelectionTmpl<int>;

bool Selection::IsSelected(int index) const
{
    auto const node = m_Nodes.LowerBound(index);
    return node != m_Nodes.end() && (node->key == index || node->value == selEnd);
}

int Selection::GetSelectedItems() const
{
    if (m_Regular)
        return vexelbase::SaturateToInt(m_Nodes.GetWeight());
    std::int64_t count = 0;
    for (auto node = m_Nodes.begin(); node != m_Nodes.end(); ++node)
    {
        if (node->value == selOne)
            ++count;
        else if (node->value == selBegin)
        {
            std::int64_t const begin = node->key;
            while (node != m_Nodes.end() && node->value != selEnd)
                ++node;
            if (node == m_Nodes.end())
                break;
            count += node->key - begin + 1;
        }
    }
    return vexelbase::SaturateToInt(count);
}

void Selection::Clear()
{
    m_Nodes.Clear();
    m_Regular = true;
}

void Selection::SetItemsSelection(int a, int b, bool select)
{
    if (a == b)
        return select ? SelectOne(a) : DeselectOne(a);
    if (select)
        SelectRun(std::min(a, b), std::max(a, b));
}

void Selection::erase(iterator& place)
{
    place = m_Nodes.Erase(place);
}

void Selection::SelectRun(int low, int high)
{
    auto const near = m_Nodes.LowerBound(std::int64_t{low} - 1);
    if (near == m_Nodes.end() || near->key > std::int64_t{high} + 1)  // no node within reach
    {
        if (near != m_Nodes.end() && near->value == selEnd)
            m_Regular = false;  // but a run around
        m_Nodes.InsertAt(std::next(m_Nodes.InsertAt(near, low, selBegin)), high, selEnd);
        return;
    }
    // What lies between is swallowed; a node at `low` stays.
    auto right = m_Nodes.Erase(m_Nodes.LowerBound(std::int64_t{low} + 1), m_Nodes.LowerBound(high));
    if (right == m_Nodes.end() || right->key > std::int64_t{high} + 1)
        m_Nodes.Insert(high, selEnd);
    else if (right->value == selBegin)
        erase(right);
    else
        m_Nodes.SetValue(right, selEnd);

    auto left = m_Nodes.LowerBound(std::int64_t{low} - 1);
    if (left == m_Nodes.end() || left->key > low)
        m_Nodes.Insert(low, selBegin);
    else if (left->value == selEnd)
        erase(left);
    else
        m_Nodes.SetValue(left, selBegin);

    if (m_Regular)
        CheckRuns(low, high);
}

// Only the nodes around the new run can be out of turn.
void Selection::CheckRuns(int low, int high)
{
    auto node = m_Nodes.LowerBound(std::int64_t{low} - 1);
    bool inside = false;
    if (node != m_Nodes.begin())
        inside = std::prev(node)->value == selBegin;
    for (; node != m_Nodes.end() && m_Regular; ++node)
    {
        m_Regular = inside == (node->value == selEnd);
        inside = node->value == selBegin;
        if (node->key > std::int64_t{high} + 1)
            return;
    }
    if (inside)
        m_Regular = false;
}

void Selection::SelectOne(int index)
{
    std::int64_t const before = std::int64_t{index} - 1;
    std::int64_t const behind = std::int64_t{index} + 1;
    auto near = m_Nodes.LowerBound(before);
    if (near == m_Nodes.end() || (near->key > behind && near->value != selEnd))
    {
        m_Nodes.InsertAt(near, index, selOne);
        return;
    }
    bool const inside = near->value == selEnd && near->key > index;
    if (near->key == index || inside || (near->value == selBegin && near->key == before))
        return;  // is selected

    auto next = m_Nodes.LowerBound(behind);
    bool const hasRight = next != m_Nodes.end() && next->key == behind;
    SelType const right = hasRight ? next->value : selOne;
    if (near->key == before)
    {
        SelType const left = near->value;
        if (hasRight && right == selOne)
            m_Nodes.SetValue(next, selEnd);
        else if (hasRight && right == selBegin)
            m_Nodes.Erase(next);
        // The places before these still hold.
        if (left == selOne)
            m_Nodes.SetValue(near, selBegin);
        else
            near = m_Nodes.Erase(near);
        if (!hasRight)
            m_Nodes.Insert(index, selEnd);
    }
    else
    {
        if (right == selOne)
            m_Nodes.SetValue(next, selEnd);
        else if (right == selBegin)
            m_Nodes.Erase(next);
        m_Nodes.Insert(index, selBegin);
    }
}

void Selection::DeselectOne(int index)
{
    std::int64_t const before = std::int64_t{index} - 1;
    std::int64_t const behind = std::int64_t{index} + 1;
    auto const node = m_Nodes.LowerBound(index);
    if (node == m_Nodes.end())
        return;
    bool const atNode = node->key == index;
    if (node->value != selOne)
    {
        if (!atNode && node->value == selBegin)
            m_Regular = false;  // it isn't selected, and the run behind it is split
        // The ends of the run, as far as they are there.
        auto const none = m_Nodes.end();
        auto const begin = node->value == selBegin ? node : node == m_Nodes.begin() ? none : std::prev(node);
        auto const end = node->value == selEnd ? node : std::next(node);
        bool const splitsLeft = begin != none && begin->key < before;
        bool const splitsRight = end != none && end->key > behind;
        if (end != none && end->key == behind)
            m_Nodes.SetValue(end, selOne);
        if (begin != none && begin->key == before)
            m_Nodes.SetValue(begin, selOne);
        if (splitsRight)
            m_Nodes.Insert(static_cast<int>(behind), selBegin);
        if (splitsLeft)
            m_Nodes.Insert(static_cast<int>(before), selEnd);
    }
    if (atNode)
        m_Nodes.Erase(m_Nodes.Find(index));
    if (IsEmpty())
        m_Regular = true;
}

}  // namespace vexel
