#include "tests/support/monkey_checks.h"

#include "vexel/core/base_control.h"
#include "vexel/core/base_control_imp.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/testing/names.h"
#include "vexel/testing/test_host.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vexel::test
{

using namespace vexelbase;

namespace
{

CBaseControlImp* FindControl(memory::CMemoryWindow const& window)
{
    auto* const host = dynamic_cast<CBaseControl*>(window.GetEventTarget());
    return host ? static_cast<CBaseControlImp*>(host->GetControl()) : nullptr;
}

/// Pointers that may be dead are only compared until they were met in the tree.
class CRemembered
{
public:
    void Add(char const* what, CVisualElement const* element)
    {
        if (element)
            m_Items.push_back({what, element, false});
    }
    void MeetAll(CVisualElement* element)
    {
        for (SItem& item : m_Items)
            item.met = item.met || item.element == element;
        for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
            MeetAll(element->GetChildren()->GetItem(i));
    }
    std::string FindStranger() const
    {
        for (SItem const& item : m_Items)
            if (!item.met)
                return std::string("The control remembers as ") + item.what + " what is not in its tree.";
        return {};
    }

private:
    struct SItem
    {
        char const* what;
        CVisualElement const* element;
        bool met;
    };
    std::vector<SItem> m_Items;
};

std::string FindStranger(CBaseControlImp& control)
{
    CRemembered remembered;
    remembered.Add("the capture", control.GetCapture());
    remembered.Add("the focused element", control.GetFocusedElement());
    remembered.Add("the element that the focus goes to", control.GetFocussingElement());
    remembered.Add("the element under the pointer", control.GetMouseElement());
    remembered.Add("the dragged element", control.GetDraggedElement());
    remembered.Add("the target of the drag", control.GetDragTarget());
    for (CVisualElement const* const element : control.ListUpdates())
        remembered.Add("one to be painted", element);
    for (CVisualElement const* const element : control.ListRearranges())
        remembered.Add("one to be laid out", element);
    if (control.GetContent())
        remembered.MeetAll(control.GetContent());
    return remembered.FindStranger();
}

}  // namespace

std::string CMonkeyChecks::FindStray(bool changed)
{
    std::map<IControl const*, CVisualElement const*> focused;
    for (memory::CMemoryWindow const* const window : CTestHost::System().GetWindows())
    {
        CBaseControlImp* const control = FindControl(*window);
        if (!control)
            continue;
        std::string const stranger = FindStranger(*control);
        if (!stranger.empty())
            return stranger;

        CVisualElement* const now = control->GetFocusedElement();
        focused[control] = now;
        auto const before = m_Focused.find(control);
        bool const moved = before == m_Focused.end() || before->second != now;
        // It may have been disabled since, as all of a page is that was made while the gallery's switch is off.
        if (now && moved && !changed && !(now->GetCanHaveFocus() && now->IsDisplayable()))
            return "The focus went to " + ElementName(now) + ", which is hidden or never has it.";
    }
    m_Focused = std::move(focused);
    return {};
}

std::string CMonkeyChecks::FindPending() const
{
    for (memory::CMemoryWindow const* const window : CTestHost::System().GetWindows())
    {
        bool const painted = window->IsNodeVisible() && !window->IsDrawingLocked() && !window->GetRect().IsEmpty();
        CBaseControlImp* const control = painted ? FindControl(*window) : nullptr;
        if (!control)
            continue;
        if (window->IsFramePending())
            return "A window asks for frames without an end.";
        if (!control->ListUpdates().empty())
            return "Something waits for a repaint after a paint.";
        if (!control->IsRearrangeLocked() && !control->ListRearranges().empty())
            return "Something waits for a layout after a paint.";
    }
    return {};
}

}  // namespace vexel::test
