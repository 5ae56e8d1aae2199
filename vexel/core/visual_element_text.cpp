// An element's text, and the clipboard.

#include "vexel/core/visual_element.h"
#include "vexel/platform/system.h"

#include <algorithm>
#include <vector>

namespace vexel
{

std::string CVisualElement::AsString() const
{
    CAliveGuard const alive(this);
    std::string text;
    m_SigAsString(const_cast<CVisualElement*>(this), text);
    if (!text.empty() || !alive)
        return text;
    text = HandleAsString();
    if (!text.empty() || !alive)
        return text;

    std::vector<CVisualElement*> children(m_Children.begin(), m_Children.end());
    std::stable_sort(children.begin(), children.end(), PositionComparer());
    unsigned long const destroyed = s_DestroyCount;
    int lastTop = 0;
    bool lastHasLines = false;
    for (CVisualElement* const child : children)
    {
        if (s_DestroyCount != destroyed && m_Children.GetIndex(child) < 0)
            continue;  // a slot has deleted it
        if (!child->m_Visible)
            continue;
        int const top = child->m_Pos.top;
        std::string const part = child->AsString();
        if (!alive)
            return text;
        if (part.empty())
            continue;
        if (!text.empty())
            text += top != lastTop || lastHasLines ? "\n\n" : "\t";
        text += part;
        lastTop = top;
        lastHasLines = part.find('\n') != std::string::npos;
    }
    return text;
}

bool CVisualElement::CopyToClipboard() const
{
    CAliveGuard const alive(this);
    bool allowed = IsCopyToClipboardEnabled();
    m_SigCopyToClipboard(const_cast<CVisualElement*>(this), allowed);
    return allowed && alive && HandleCopyToClipboard();
}

bool CVisualElement::HandleCopyToClipboard() const
{
    return vexel::CopyToClipboard(this);
}

bool CopyToClipboard(CVisualElement const* element)
{
    std::string const text = element->AsString();
    ISystem* const system = GetCurrentSystem();
    if (text.empty() || !system)
        return false;
    system->GetClipboard()->SetText(text);
    return true;
}

}  // namespace vexel
