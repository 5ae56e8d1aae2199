#include "vexel/platform/memory/memory_node.h"

#include "vexel/platform/memory/memory_system.h"

#include <algorithm>

namespace vexelbase::memory
{

CMemoryNode::CMemoryNode(CMemorySystem& system, CMemoryNode* parent) : m_System(system), m_Parent(parent)
{
    (parent ? parent->m_Children : system.m_TopNodes).push_back(this);
}

CMemoryNode::~CMemoryNode()
{
    LeaveScreen();
}

void CMemoryNode::LeaveScreen()
{
    if (!m_OnScreen)
        return;
    m_OnScreen = false;
    std::erase(m_Parent ? m_Parent->m_Children : m_System.m_TopNodes, this);
    m_Parent = nullptr;
    // What stood in it has no place any more; its owners may still hold it.
    while (!m_Children.empty())
        m_Children.back()->LeaveScreen();
    m_System.NodeGone(this);
}

CMemoryNode* CMemoryNode::GetRootNode()
{
    CMemoryNode* root = this;
    while (root->m_Parent)
        root = root->m_Parent;
    return root;
}

bool CMemoryNode::IsInside(CMemoryNode const* ancestor) const
{
    for (CMemoryNode const* node = this; node; node = node->m_Parent)
    {
        if (node == ancestor)
            return true;
    }
    return false;
}

point<int> CMemoryNode::GetScreenPos() const
{
    point<int> position;
    for (CMemoryNode const* node = this; node; node = node->m_Parent)
    {
        position.x += node->m_Rect.left;
        position.y += node->m_Rect.top;
    }
    return position;
}

bool CMemoryNode::IsNodeVisible() const
{
    for (CMemoryNode const* node = this; node; node = node->m_Parent)
    {
        if (!node->m_Visible || !node->m_OnScreen)
            return false;
    }
    return true;
}

bool CMemoryNode::IsNodeEnabled() const
{
    for (CMemoryNode const* node = this; node; node = node->m_Parent)
    {
        if (!node->m_Enabled)
            return false;
    }
    return true;
}

CMemoryNode* CMemoryNode::Find(point<int> const& screen)
{
    if (!IsNodeVisible())
        return nullptr;
    point<int> const origin = GetScreenPos();
    int const x = screen.x - origin.x;
    int const y = screen.y - origin.y;
    if (x < 0 || y < 0 || x >= m_Rect.Width() || y >= m_Rect.Height())
        return nullptr;
    for (auto child = m_Children.rbegin(); child != m_Children.rend(); ++child)
    {
        if (CMemoryNode* const found = (*child)->Find(screen))
            return found;
    }
    return this;
}

CMemoryWindow* CMemoryNode::GetWindowNode()
{
    return m_Parent ? m_Parent->GetWindowNode() : nullptr;
}

void CMemoryNode::SetNodeEnabled(bool enabled)
{
    if (enabled == m_Enabled)
        return;
    m_Enabled = enabled;
    if (!enabled)
        m_System.NodeHidden(this);
}

void CMemoryNode::NodeButtonDown(CMouseEvent&, bool)
{
    if (TakesFocus())
        m_System.SetFocusNode(this);
}

void CMemoryNode::SetNodeVisible(bool visible)
{
    if (visible == m_Visible)
        return;
    m_Visible = visible;
    if (visible)
        m_System.NodeShown(this);
    else
        m_System.NodeHidden(this);
}

void CMemoryNode::RaiseNode()
{
    std::vector<CMemoryNode*>& siblings = m_Parent ? m_Parent->m_Children : m_System.m_TopNodes;
    auto const place = std::find(siblings.begin(), siblings.end(), this);
    if (place != siblings.end())
        std::rotate(place, place + 1, siblings.end());
}

} // namespace vexelbase::memory
