#include "tests/support/recording_element.h"

using namespace vexel;

namespace
{

std::string Mouse(int x, int y)
{
    return std::to_string(x) + ", " + std::to_string(y);
}

std::string Bool(bool value)
{
    return value ? "true" : "false";
}

}  // namespace

CRecordingElement::CRecordingElement(CCallLog& log, std::string const& name, CVisualElement* parent,
                                     size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment), m_Log(log), m_Name(name)
{
    log.Name(this, name);
}

bool CRecordingElement::Handled(char const* what, std::string const& arguments)
{
    Note(what, arguments);
    // The handler may delete this element.
    bool const consume = m_Consume;
    if (auto const handler = m_OnHandler)
        handler(what);
    return consume;
}

void CRecordingElement::SetSize(size<int> const& extent, bool scale)
{
    Note("SetSize", std::to_string(extent.width) + " " + std::to_string(extent.height) + ", " + Bool(scale));
    CVisualElement::SetSize(extent, scale);
}

void CRecordingElement::SetPos(rectangle<int> const& rect, bool force)
{
    Note("SetPos", Text(rect) + ", " + Bool(force));
    CVisualElement::SetPos(rect, force);
}

rectangle<int> CRecordingElement::GetContentRect() const
{
    return m_ContentRect ? *m_ContentRect : CVisualElement::GetContentRect();
}

bool CRecordingElement::IsFullRepainted() const
{
    return m_FullRepainted ? *m_FullRepainted : CVisualElement::IsFullRepainted();
}

void CRecordingElement::DrawContent(IPainter*)
{
    Note("DrawContent");
}

void CRecordingElement::UpdateElement()
{
    Note("UpdateElement");
    if (m_OnUpdateElement)
        m_OnUpdateElement();
}

bool CRecordingElement::ScrollContent(int dx, int dy)
{
    bool const answer = m_ScrollAnswer;  // the element may be gone afterwards
    Note("ScrollContent", Mouse(dx, dy));
    if (m_OnScrollContent)
        m_OnScrollContent();
    return answer;
}

void CRecordingElement::ProcessSetControl(IControl* control)
{
    Note("ProcessSetControl", control ? "control" : "null");
}

void CRecordingElement::AfterSetControl()
{
    Note("AfterSetControl");
}

void CRecordingElement::SetCoordSystem(IPainter*)
{
    Note("SetCoordSystem");
}

void CRecordingElement::SysColorsChanged()
{
    Note("SysColorsChanged");
    if (m_OnHandler)
        m_OnHandler("SysColorsChanged");
}

void CRecordingElement::AttributeChanged()
{
    Note("AttributeChanged");
    CVisualElement::AttributeChanged();
}

void CRecordingElement::ProcessSetVisible(bool visible)
{
    Note("ProcessSetVisible", Bool(visible));
}

void CRecordingElement::ProcessSetParentVisible(bool visible)
{
    Note("ProcessSetParentVisible", Bool(visible));
}

void CRecordingElement::AddNewChild(CVisualElement* child)
{
    Note("AddNewChild", m_Log.NameOf(child));
}

void CRecordingElement::ChangeParent(CVisualElement* oldParent)
{
    Note("ChangeParent", m_Log.NameOf(oldParent));
}

bool CRecordingElement::HandleMouseMove(int x, int y, int, MouseButton)
{
    return Handled("HandleMouseMove", Mouse(x, y));
}

bool CRecordingElement::HandleButtonDown(int x, int y, int, MouseButton)
{
    return Handled("HandleButtonDown", Mouse(x, y));
}

bool CRecordingElement::HandleButtonUp(int x, int y, int, MouseButton)
{
    return Handled("HandleButtonUp", Mouse(x, y));
}

bool CRecordingElement::HandleDoubleClick(int x, int y, int, MouseButton)
{
    return Handled("HandleDoubleClick", Mouse(x, y));
}

bool CRecordingElement::HandleWheel(int x, int y, int, MouseButton, int)
{
    return Handled("HandleWheel", Mouse(x, y));
}

void CRecordingElement::HandleMouseLeave(CVisualElement* next)
{
    Handled("HandleMouseLeave", m_Log.NameOf(next));
}

bool CRecordingElement::HandleKeyDown(int keys, int key)
{
    return Handled("HandleKeyDown", Mouse(keys, key));
}

bool CRecordingElement::HandleKeyUp(int keys, int key)
{
    return Handled("HandleKeyUp", Mouse(keys, key));
}

bool CRecordingElement::HandleChar(char character)
{
    return Handled("HandleChar", std::string(1, character));
}

bool CRecordingElement::HandleOnTooltip(CTooltipEvent* event)
{
    return Handled("HandleOnTooltip", Mouse(event->m_X, event->m_Y));
}

bool CRecordingElement::HandleOnTooltipTrack(CTooltipEvent* event)
{
    return Handled("HandleOnTooltipTrack", Mouse(event->m_X, event->m_Y));
}

bool CRecordingElement::HandleContextMenu(int x, int y)
{
    return Handled("HandleContextMenu", Mouse(x, y));
}

void CRecordingElement::HandleLostFocus(CVisualElement* next)
{
    Handled("HandleLostFocus", m_Log.NameOf(next));
}

void CRecordingElement::HandleControlChangeFocus(bool focused)
{
    Handled("HandleControlChangeFocus", Bool(focused));
}

void CRecordingElement::HandleControlDestroy()
{
    Handled("HandleControlDestroy", "");
}

void CRecordingElement::HandleRefreshPos()
{
    Note("HandleRefreshPos");
    if (m_OnRefreshPos)
        m_OnRefreshPos();
}

void CRecordingElement::ProcessRearrange(CVisualElement** element)
{
    Note("ProcessRearrange", m_Log.NameOf(*element));
    if (m_OnRearrange)
        m_OnRearrange(element);
}

void CRecordingElement::ProcessChange(CVisualElement** element)
{
    Note("ProcessChange", m_Log.NameOf(*element));
    if (m_OnChange)
        m_OnChange(element);
}

bool CRecordingElement::BeforeProcessChange(CVisualElement* element, UpdateType type)
{
    Note("BeforeProcessChange", m_Log.NameOf(element) + ", " + std::to_string(type));
    return m_BeforeChange ? m_BeforeChange(element, type) : true;
}

std::string CRecordingElement::HandleAsString() const
{
    Note("HandleAsString");
    return m_Text;
}

bool CRecordingElement::HandleCopyToClipboard() const
{
    Note("HandleCopyToClipboard");
    return m_CopyAnswer ? *m_CopyAnswer : CVisualElement::HandleCopyToClipboard();
}
