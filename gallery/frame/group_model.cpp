#include "gallery/frame/group_model.h"

#include "vexel/platform/system.h"

#include <algorithm>

namespace gallery
{

CGroup::CGroup(IHeaderContainer* parent, std::string text, int width)
    : m_Parent(parent), m_Text(std::move(text)), m_Width(static_cast<int>(width * GetSystemScale()))
{}

CGroup& CGroup::Add(std::string text, int width)
{
    int const unscaled = width > 0 ? width : static_cast<int>(m_Width / GetSystemScale());
    m_Children.push_back(std::make_unique<CGroup>(this, std::move(text), unscaled));
    return *m_Children.back();
}

CGroup& CGroupModel::Add(std::string text, int width)
{
    m_Children.push_back(std::make_unique<CGroup>(this, std::move(text), width));
    return *m_Children.back();
}

void CGroupModel::Serve(CHeader* header)
{
    header->m_SigDragOver.connect(this, &CGroupModel::DraggedOver);
    header->m_SigDropped.connect(this, &CGroupModel::Dropped);
    header->m_SigClicked.connect(this, &CGroupModel::Clicked);
    header->m_SigGripDoubleClicked.connect(this, &CGroupModel::DoubleClicked);
}

void CGroupModel::Dropped(CHeader*, IHeaderItem* item, int)
{
    IHeaderContainer* const parent = item->GetParent();
    Groups& siblings = parent == this ? m_Children : static_cast<CGroup*>(parent)->m_Children;
    auto const from =
        std::find_if(siblings.begin(), siblings.end(), [&](auto const& own) { return own.get() == item; });
    if (from == siblings.end())
        return;
    auto const to = siblings.begin() + std::clamp(m_Target, 0, static_cast<int>(siblings.size()));
    if (from < to)
        std::rotate(from, from + 1, to);
    else
        std::rotate(to, from, from + 1);
    m_SigChanged();
    m_SigMoved();
}

void CGroupModel::Clicked(CHeader* header, IHeaderItem* item)
{
    auto* const column = static_cast<CGroup*>(item);
    if (header->GetVisibleIndex(item) < 0)
        return;
    if (m_Sorted && m_Sorted != column)
        m_Sorted->m_Sorting = 0;
    m_Sorted = column;
    column->m_Sorting = column->m_Sorting == 1 ? 2 : 1;
    header->Update(utElement);
}

void CGroupModel::DoubleClicked(CHeader* header, IHeaderItem* item)
{
    header->SetItemSize(header->GetVisibleIndex(item), header->GetItemOptimalWidth(item));
}

}  // namespace gallery
