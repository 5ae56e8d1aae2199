#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/testing/signal_log.h"

#include <set>
#include <string>

namespace vexel::test
{

/// Writes its input signals as "name.signal(arguments)" and its handlers as "name:Handler" into one log, in order.
class CHearing : public CVisualElement
{
public:
    CHearing(CSignalLog& log, std::string const& name, CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CVisualElement(parent, extent, alignment), m_Log(log), m_Name(name)
    {
        log.Name(*this, name);
    }

    CHearing& HearMouse()
    {
        m_Log.Add(m_SigButtonDown, m_Name + ".down").Add(m_SigButtonUp, m_Name + ".up").Add(m_SigClick, m_Name + ".click");
        m_Log.Add(m_SigDoubleClick, m_Name + ".double").Add(m_SigWheel, m_Name + ".wheel");
        return *this;
    }
    CHearing& HearPointer()
    {
        m_Log.Add(m_SigMouseMove, m_Name + ".move").Add(m_SigMouseHover, m_Name + ".hover");
        m_Log.Add(m_SigMouseLeave, m_Name + ".leave");
        m_Pointer = true;
        return *this;
    }
    CHearing& HearKeys()
    {
        m_Log.Add(m_SigKeyDown, m_Name + ".keydown").Add(m_SigKeyUp, m_Name + ".keyup").Add(m_SigChar, m_Name + ".char");
        return *this;
    }
    CHearing& HearFocus()
    {
        SetCanHaveFocus(true);
        return HearFocusOfChildren();
    }
    CHearing& HearFocusOfChildren()
    {
        m_Log.Add(m_SigGetFocus, m_Name + ".get").Add(m_SigLostFocus, m_Name + ".lost");
        m_Log.Add(m_SigChildGetFocus, m_Name + ".childget").Add(m_SigChildLostFocus, m_Name + ".childlost");
        m_Focus = true;
        return *this;
    }

    /// The handlers that answer true.
    std::set<std::string> m_Consumes;

protected:
    bool HandleMouseMove(int, int, int, MouseButton) override { return m_Pointer && Handle("Move"); }
    bool HandleButtonDown(int, int, int, MouseButton) override { return Handle("Down"); }
    bool HandleButtonUp(int, int, int, MouseButton) override { return Handle("Up"); }
    bool HandleClick(int, int, int, MouseButton) override { return Handle("Click"); }
    bool HandleDoubleClick(int, int, int, MouseButton) override { return Handle("Double"); }
    bool HandleWheel(int, int, int, MouseButton, int) override { return Handle("Wheel"); }
    void HandleMouseHover(CVisualElement* from) override { Tell(m_Pointer, "Hover", from); }
    void HandleMouseLeave(CVisualElement* to) override { Tell(m_Pointer, "Leave", to); }
    void HandleChildrenMouseHover(CVisualElement* from) override { Tell(m_Pointer, "ChildrenHover", from); }
    void HandleChildrenMouseLeave(CVisualElement* to) override { Tell(m_Pointer, "ChildrenLeave", to); }
    bool HandleKeyDown(int, int) override { return Handle("KeyDown"); }
    bool HandleKeyUp(int, int) override { return Handle("KeyUp"); }
    bool HandleChar(char) override { return Handle("Char"); }
    void HandleGetFocus(CVisualElement* other, bool focused) override
    {
        if (m_Focus)
            m_Log.Note(m_Name + ":GetFocus(" + ElementName(other) + ", " + (focused ? "true" : "false") + ")");
        CVisualElement::HandleGetFocus(other, focused);
    }
    void HandleLostFocus(CVisualElement* other) override { Tell(m_Focus, "LostFocus", other); }
    void HandleChildFocusChanged(CVisualElement* element, CVisualElement* other, bool got) override
    {
        if (m_Focus)
            m_Log.Note(m_Name + ":ChildFocus(" + ElementName(element) + ", " + ElementName(other) + ", " +
                       (got ? "true" : "false") + ")");
    }
    void HandleControlChangeFocus(bool focused) override
    {
        if (m_Focus)
            m_Log.Note(m_Name + ":ControlFocus(" + (focused ? "true" : "false") + ")");
    }

private:
    bool Handle(std::string const& what)
    {
        m_Log.Note(m_Name + ":" + what);
        return m_Consumes.contains(what);
    }
    void Tell(bool wanted, std::string const& what, CVisualElement* other)
    {
        if (wanted)
            m_Log.Note(m_Name + ":" + what + "(" + ElementName(other) + ")");
    }

    CSignalLog& m_Log;
    std::string const m_Name;
    bool m_Pointer = false;
    bool m_Focus = false;
};

} // namespace vexel::test
