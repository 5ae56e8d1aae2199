#include "vexel/controls/button_set.h"

#include "vexel/controls/button.h"
#include "vexel/controls/button_captions.h"

#include <utility>

namespace vexel
{

namespace
{

size<int> const g_StartSize{12, 12};
size<int> const g_Gap{6, 6};

}  // namespace

CButtonSet::CButtonSet(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{
    SetVisible(false);
}

void CButtonSet::SetButtons(unsigned int mask)
{
    CAliveGuard const alive(this);
    for (int bit = 1; bit <= 64 && alive; bit *= 2)
    {
        if ((mask & static_cast<unsigned int>(bit)) == 0)
            continue;
        auto const& captions = GetButtonCaptions();
        auto const found = captions.find(bit);
        AddButton(found == captions.end() ? "<Unassigned>" : std::string(found->second), bit);
    }
}

CButton* CButtonSet::AddButton(std::string const& caption, int id)
{
    CAliveGuard const alive(this);
    if (!m_Container)
    {
        m_Container = new CVisualElement(this, g_StartSize, alLeft);
        SetVisible(true);
    }
    else
        new CVisualElement(m_Container, g_Gap, alLeft);  // its parent deletes it
    if (!alive || !m_Container)
        return nullptr;

    auto* const button = new CButton(m_Container, g_StartSize, alLeft);
    CAliveGuard const buttonAlive(button);
    button->SetAutoSize(true);
    button->SetCaption(caption);
    button->SetButtonId(id);
    button->m_Clicked.connect(this, &CButtonSet::ButtonPressed);
    ++m_ButtonCount;
    button->SetId(m_ButtonCount);
    UpdateContainerSize();
    return buttonAlive ? button : nullptr;
}

void CButtonSet::ButtonPressed(CButton* button)
{
    if (button)
        m_ButtonPressed(button->GetButtonId());
}

void CButtonSet::UpdateContainerSize()
{
    if (!GetControl() || !m_Container)
        return;
    CAliveGuard const alive(this);
    IChildren* children = m_Container->GetChildren();
    if (children->GetCount() > 0)
    {
        int const height = children->GetItem(0)->GetSize().height;
        if (GetSize().height != height)
            SetHeight(height, false);
        if (!alive || !m_Container)
            return;
    }
    int width = 0;
    children = m_Container->GetChildren();
    for (int i = 0; i < children->GetCount(); ++i)
        width = AddSaturated(width, children->GetItem(i)->GetSize().width);
    m_Container->SetWidth(width, false);
}

void CButtonSet::ClearButtons()
{
    if (!m_Container)
        return;
    CAliveGuard const alive(this);
    // Slots that are called on the way find the set without buttons already.
    CAlivePtr<CVisualElement> const container(std::exchange(m_Container, nullptr));
    m_ButtonCount = 0;
    for (int i = 0; container && i < container->GetChildren()->GetCount(); ++i)
        container->GetChildren()->GetItem(i)->Update(utRemoved);
    if (container)
        container->ReParent(nullptr, true);
    delete container.get();
    if (alive && !m_Container)
        SetVisible(false);
}

}  // namespace vexel
