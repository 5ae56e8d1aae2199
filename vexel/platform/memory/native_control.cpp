#include "vexel/platform/memory/native_control.h"

#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/memory/memory_window.h"

#include <algorithm>

namespace vexelbase::memory
{

namespace
{
int g_Count = 0;
}

CMemoryNativeNode::CMemoryNativeNode(CMemorySystem& system, CMemoryNode& parent) : CMemoryNode(system, &parent)
{
    ++g_Count;
    SetNodeVisible(false);
}

CMemoryNativeNode::~CMemoryNativeNode()
{
    --g_Count;
}

int CMemoryNativeNode::GetCount()
{
    return g_Count;
}

void CMemoryNativeNode::WantVisible(bool visible)
{
    m_WantedVisible = visible;
    CMemoryWindow* const window = GetOwnerWindow();
    if (!window || !window->IsInPaint())
        ApplyVisible();
}

void CMemoryNativeNode::ApplyVisible()
{
    if (m_WantedVisible == IsNodeShown())
        return;
    SetNodeVisible(m_WantedVisible);
    VisibleChanged(m_WantedVisible);
}

void CMemoryNativeNode::WantFocus()
{
    if (!IsOnScreen() || !IsNodeEnabled())
        return;
    if (IsNodeVisible())
        GetSystem().SetFocusNode(this);
    else
        GetSystem().FocusWhenShown(this);
}

void CMemoryNativeNode::WantEnabled(bool enabled)
{
    SetNodeEnabled(enabled);
}

void CMemoryNativeNode::Place(int left, int top, int width, int height)
{
    SetNodeRect({left, top, left + std::max(width, 0), top + std::max(height, 0)});
}

void CMemoryNativeNode::Guarded(CBase* self, std::function<void()> const& work)
{
    vexel_ptr<CBase> const alive(self);
    try
    {
        work();
    }
    catch (...)
    {
        ReportException("a handler of a native control");
    }
}

} // namespace vexelbase::memory
