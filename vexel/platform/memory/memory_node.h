#pragma once

#include "vexel/export.h"
#include "vexel/platform/events.h"
#include "vexel/platform/geometry.h"

#include <memory>
#include <vector>

namespace vexelbase::memory
{

class CMemorySystem;
class CMemoryWindow;

/// What stands on the memory backend's screen: windows, popups and native controls. Gets the native events that the
/// system routes. Positions of events are the node's own pixels.
class VEXEL_MEMORY_API CMemoryNode
{
public:
    CMemoryNode(CMemoryNode const&) = delete;
    CMemoryNode& operator=(CMemoryNode const&) = delete;

    CMemorySystem& GetSystem() const { return m_System; }
    CMemoryNode* GetParentNode() const { return m_Parent; }
    CMemoryNode* GetRootNode();
    bool IsInside(CMemoryNode const* ancestor) const;  ///< Is it, or stands in it.
    std::vector<CMemoryNode*> const& GetChildNodes() const { return m_Children; }

    /// In the parent's pixels, for one without a parent screen pixels; right and bottom excluded.
    rectangle<int> const& GetNodeRect() const { return m_Rect; }
    point<int> GetScreenPos() const;
    bool IsNodeVisible() const;  ///< With all its ancestors.
    bool IsNodeEnabled() const;  ///< With all its ancestors.
    /// The deepest visible node at the screen position, of two the upper one; null if it lies outside.
    CMemoryNode* Find(point<int> const& screen);

    virtual bool TakesFocus() const { return true; }  ///< By Tab and, for native controls, by a press.
    /// False: Tab reaches it, if at all, by the tree of the window it stands in, which is also asked where Tab goes on to.
    virtual bool IsTabStop() const { return true; }
    /// The window that it is, or stands in.
    virtual CMemoryWindow* GetWindowNode();

    // Native events -----------------------------------------------------------------------------------------------
    virtual void NodeMouseMove(CMouseEvent&) {}
    virtual void NodeButtonDown(CMouseEvent&, bool doubled);
    virtual void NodeButtonUp(CMouseEvent&) {}
    virtual void NodeWheel(CMouseWheelEvent&) {}
    virtual void NodeHover(CMouseEvent&) {}
    virtual void NodeLeave(CMouseEvent&) {}
    /// True: the key was dealt with, so that a Tab does not move the focus on.
    virtual bool NodeKeyDown(CKeyboardEvent&) { return false; }
    virtual void NodeKeyUp(CKeyboardEvent&) {}
    virtual void NodeChar(CKeyboardEvent&) {}
    virtual void NodeFocus(bool) {}       ///< Got or lost the native focus.
    virtual void NodeTabbedInto(bool) {}  ///< After NodeFocus, where Tab brought it; true: forward.
    virtual void NodeLostCapture() {}
    virtual void NodePaintEnded() {}  ///< A paint of the window it stands in has ended.

    std::weak_ptr<int> GetNodeLife() const { return m_Life; }

protected:
    /// `parent` null: a window of its own.
    CMemoryNode(CMemorySystem& system, CMemoryNode* parent);
    virtual ~CMemoryNode();  ///< Leaves the system: focus, capture and pointer forget it.

    void SetNodeRect(rectangle<int> const& rect) { m_Rect = rect; }
    void SetNodeVisible(bool visible);
    bool IsNodeShown() const { return m_Visible; }  ///< Its own flag alone.
    bool IsOnScreen() const { return m_OnScreen; }  ///< False once the window it stands in is destroyed.
    void SetNodeEnabled(bool enabled);              ///< Disabled, it has neither focus nor capture.
    void RaiseNode();
    /// Leaves parent and system early; children lose their parent.
    void LeaveScreen();

private:
    CMemorySystem& m_System;
    CMemoryNode* m_Parent;
    std::vector<CMemoryNode*> m_Children;  // the last one is the uppermost
    rectangle<int> m_Rect;
    bool m_Visible = true;
    bool m_Enabled = true;
    bool m_OnScreen = true;
    std::shared_ptr<int> m_Life = std::make_shared<int>(0);
};

}  // namespace vexelbase::memory
