#pragma once

#include "vexel/export.h"
#include "vexel/platform/exception_report.h"
#include "vexel/platform/memory/memory_node.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/ref_ptr.h"

#include <functional>

namespace vexelbase::memory
{

/// What all native controls of the memory backend share, apart from their interface: their place in the window, and
/// showing and focus that wait for the right moment. A native control paints nothing on the window's surface.
class VEXEL_MEMORY_API CMemoryNativeNode : public CMemoryNode
{
public:
    CMemoryWindow* GetOwnerWindow() { return GetWindowNode(); }  ///< Null once the window is destroyed.

    bool IsWantedVisible() const { return m_WantedVisible; }
    /// Hidden at first. During a paint of the window it takes effect after it.
    void WantVisible(bool visible);
    /// A hidden control gets the focus when it is shown, unless somebody else has taken it meanwhile.
    void WantFocus();
    void WantEnabled(bool enabled);
    void WantTabStop(bool stop) { m_TabStop = stop; }
    bool IsTabStop() const override { return m_TabStop; }
    void Place(int left, int top, int width, int height);
    static int GetCount();  ///< Living native controls of the process.

    void NodePaintEnded() override { ApplyVisible(); }

protected:
    CMemoryNativeNode(CMemorySystem& system, CMemoryNode& parent);
    ~CMemoryNativeNode() override;

    virtual void VisibleChanged(bool) {}
    /// Runs what calls the application's handlers; nothing that they throw gets out, and the control lives until it
    /// ends.
    void Guarded(CBase* self, std::function<void()> const& work);

private:
    void ApplyVisible();

    bool m_WantedVisible = false;
    bool m_TabStop = true;
};

/// A native control with the interface `Interface`: what ICustomControl asks, by the node.
template <class Interface>
class VEXEL_MEMORY_API CMemoryNativeControl : public CImplEventSender<Interface>, public CMemoryNativeNode
{
public:
    CMemoryNativeControl(CMemorySystem& system, CMemoryNode& parent) : CMemoryNativeNode(system, parent) {}

    // From ICustomControl -----------------------------------------------------------------------------------------
    void SetPos(int left, int top, int width, int height) override { Place(left, top, width, height); }
    rectangle<int> GetRect() const override { return GetNodeRect(); }
    void SetVisible(bool visible) override { WantVisible(visible); }
    bool IsVisible() const override { return IsWantedVisible(); }
    void SetFocus() override { WantFocus(); }
    void SetEnabled(bool enabled) override { WantEnabled(enabled); }
    void SetTabStop(bool stop) override { WantTabStop(stop); }

    // From CMemoryNode --------------------------------------------------------------------------------------------
    void NodeFocus(bool has) override
    {
        if (has)
            Do([this] { this->m_SigFocusIn(this); });
    }

protected:
    void Do(std::function<void()> const& work) { Guarded(this, work); }
};

}  // namespace vexelbase::memory
