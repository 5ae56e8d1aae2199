#include "vexel/controls/radio_button.h"

#include <algorithm>

namespace vexel
{

// Radio button --------------------------------------------------------------------------------------------------------------

int CRadioButton::DrawCheckImage(IPainter* painter)
{
    return DrawMark(painter, IsChecked() ? IPainter::ceRadioChecked : IPainter::ceRadioUnchecked);
}

std::string CRadioButton::HandleAsString() const
{
    return (IsChecked() ? "(*) " : "( ) ") + CButton::HandleAsString();
}

// Group -----------------------------------------------------------------------------------------------------------------------

CRadioGroup::~CRadioGroup()
{
    CAliveLink::Forget(this);
}

CRadioButton* CRadioGroup::GetButton(int index) const
{
    return index >= 0 && index < GetCount() ? m_Buttons[static_cast<std::size_t>(index)] : nullptr;
}

void CRadioGroup::Add(CRadioButton* button)
{
    if (!button || std::find(m_Buttons.begin(), m_Buttons.end(), button) != m_Buttons.end())
        return;
    m_Buttons.push_back(button);
    button->m_CheckChanged.connect(this, &CRadioGroup::HandleChecked);
    button->m_SigDestroy.connect(this, &CRadioGroup::ButtonDies);
    if (m_Current == -1 && button->IsChecked())
        SetCurrent(GetCount() - 1);
    else
        button->SetChecked(false);
}

// Slots may delete buttons or the group, or make another one the current; then that one's walk has done the rest.
void CRadioGroup::HandleChecked(CCheckBox* box)
{
    if (!box || !box->IsChecked())
        return;
    CAlivePtr<CRadioGroup> const alive(this);
    CAliveGuard const chosen(box);
    std::vector<CRadioButton*> const buttons = m_Buttons;
    for (CRadioButton* const button : buttons)
    {
        if (!alive || !chosen || !box->IsChecked())
            return;
        auto const place = std::find(m_Buttons.begin(), m_Buttons.end(), button);
        if (place == m_Buttons.end())
            continue;  // died in the walk
        if (button == box)
            ChangeCurrent(static_cast<int>(place - m_Buttons.begin()));
        else
            button->SetChecked(false);
    }
}

void CRadioGroup::SetCurrent(int index)
{
    CAlivePtr<CRadioGroup> const alive(this);
    CRadioButton* const button = GetButton(index);
    if (!button)
    {
        if (CRadioButton* const present = GetButton(m_Current))
            present->SetChecked(false);
        if (alive)
            ChangeCurrent(-1);
        return;
    }
    CAliveGuard const chosen(button);
    button->SetChecked(true);
    if (alive && chosen && button->IsChecked())
        HandleChecked(button);
}

void CRadioGroup::ChangeCurrent(int index)
{
    if (index == m_Current)
        return;
    m_Current = index;
    m_CurrentChanged(this, index);
}

void CRadioGroup::ButtonDies(CVisualElement* element)
{
    auto const place = std::find(m_Buttons.begin(), m_Buttons.end(), element);
    if (place == m_Buttons.end())
        return;
    int const index = static_cast<int>(place - m_Buttons.begin());
    m_Buttons.erase(place);
    if (index < m_Current)
        --m_Current;
    else if (index == m_Current)
        m_Current = -1;  // in silence: a tree may be going down
}

}  // namespace vexel
