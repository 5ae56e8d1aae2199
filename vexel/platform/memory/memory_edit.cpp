#include "vexel/platform/memory/memory_edit.h"

#include "vexel/platform/memory/detail/square_font.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/signals/notify.h"

#include <algorithm>

namespace vexelbase::memory
{

namespace
{
constexpr int Margin = 4;        // pixels above and below the text
constexpr int FirstWidth = 100;  // of a new control
} // namespace

// CMemoryTextControl -----------------------------------------------------------------------------------------------

template <class Interface>
CMemoryTextControl<Interface>::CMemoryTextControl(CMemorySystem& system, CMemoryNode& window)
    : CMemoryNativeControl<Interface>(system, window)
{
    this->SetSupportedEvent(typeid(IEditNotify));
    this->Place(0, 0, FirstWidth, 0);
    CMemoryTextControl::Refresh();
}

template <class Interface> void CMemoryTextControl<Interface>::Refresh()
{
    SSquareFont const line(this->GetSystem().GetDefaultFont(), this->GetSystem().GetScale());
    rectangle<int> const rect = this->GetNodeRect();
    this->Place(rect.left, rect.top, rect.Width(), line.ascent + line.descent + 2 * Margin);
}

template <class Interface> void CMemoryTextControl<Interface>::TextChanged()
{
    CChangeTextEvent event;
    this->Do([&] { Fire<&IEditNotify::EditOnChangeText>(*this, &event, true); });
}

template <class Interface> void CMemoryTextControl<Interface>::SetText(std::string const& text)
{
    if (m_Line.SetText(text))
        TextChanged();
}

template <class Interface> void CMemoryTextControl<Interface>::VisibleChanged(bool)
{
    CVisibleChangeEvent event;
    this->Do([&] { Fire<&IEditNotify::EditOnVisibleChange>(*this, &event, true); });
}

template <class Interface> bool CMemoryTextControl<Interface>::NodeKeyDown(CKeyboardEvent& event)
{
    vexel_ptr<CBase> const alive(this);  // a handler may let go of the control
    CEditKeyDownEvent key(event.m_Keys, event.GetVirtualKey());
    this->Do([&] { Fire<&IEditNotify::EditOnKeyDown>(*this, &key, true); });
    if (!key.IsContinue())
        return true;
    if (event.GetVirtualKey() == vkReturn)
    {
        CEvent pressed;
        this->Do([&] { Fire<&IEditNotify::EditOnReturnPress>(*this, &pressed, true); });
        return true;
    }
    return EditingKey(event) || OtherKey(event);
}

template <class Interface> bool CMemoryTextControl<Interface>::EditingKey(CKeyboardEvent const& event)
{
    bool const shift = (event.m_Keys & ksShift) != 0;
    if (event.m_Keys & ksControl)
    {
        switch (event.GetVirtualKey())
        {
        case 'A':
            m_Line.Select(0, m_Line.GetLength());
            return true;
        case 'C':
        case 'X':
            if (m_Line.GetSelectionLength() > 0)
                this->GetSystem().GetClipboard()->SetText(m_Line.GetSelectedText());
            if (event.GetVirtualKey() == 'X' && IsTypingAllowed() && m_Line.GetSelectionLength() > 0 && m_Line.Erase(1))
                TextChanged();
            return true;
        case 'V':
            if (IsTypingAllowed() && m_Line.Insert(this->GetSystem().GetClipboard()->GetText()))
                TextChanged();
            return true;
        default:
            return false;
        }
    }
    switch (event.GetVirtualKey())
    {
    case vkLeft:
        m_Line.MoveCaret(m_Line.GetCaret() - 1, shift);
        return true;
    case vkRight:
        m_Line.MoveCaret(m_Line.GetCaret() + 1, shift);
        return true;
    case vkHome:
        m_Line.MoveCaret(0, shift);
        return true;
    case vkEnd:
        m_Line.MoveCaret(m_Line.GetLength(), shift);
        return true;
    case vkBackspace:
    case vkDelete:
        if (IsTypingAllowed() && m_Line.Erase(event.GetVirtualKey() == vkBackspace ? -1 : 1))
            TextChanged();
        return true;
    default:
        return false;
    }
}

template <class Interface> void CMemoryTextControl<Interface>::NodeChar(CKeyboardEvent& event)
{
    vexel_ptr<CBase> const alive(this);
    CEditKeyDownEvent character(event.m_Keys, 0, event.GetCharacterCode());
    this->Do([&] { Fire<&IEditNotify::EditOnChar>(*this, &character, true); });
    if (character.IsContinue() && IsTypingAllowed() && m_Line.Insert(std::string(1, event.GetCharacterCode())))
        TextChanged();
}

template <class Interface> void CMemoryTextControl<Interface>::NodeWheel(CMouseWheelEvent& event)
{
    CEditMouseWheelEvent wheel;
    wheel.m_Delta = event.m_Delta;
    this->Do([&] { Fire<&IEditNotify::EditOnMouseWheel>(*this, &wheel, true); });
}

template class CMemoryTextControl<IEdit>;
template class CMemoryTextControl<IComboBox>;

// CMemoryComboBox --------------------------------------------------------------------------------------------------

std::string CMemoryComboBox::GetItemText(int index) const
{
    return index >= 0 && index < GetItemCount() ? m_Items[static_cast<std::size_t>(index)] : std::string();
}

void CMemoryComboBox::ClearItems()
{
    m_Items.clear();
    m_Current = -1;
}

void CMemoryComboBox::SetCurrentItem(int index)
{
    m_Current = index >= 0 && index < GetItemCount() ? index : -1;
    if (m_Current >= 0)
        SetText(GetItemText(m_Current));
}

void CMemoryComboBox::Choose(int index)
{
    vexel_ptr<CBase> const alive(this);
    m_Dropped = false;
    SetCurrentItem(index);
}

void CMemoryComboBox::ShowDropDown(bool show)
{
    if (show && !m_Dropped)
        ++m_DropCount;
    m_Dropped = show;
}

void CMemoryComboBox::VisibleChanged(bool visible)
{
    if (!visible)
        m_Dropped = false;
    CMemoryTextControl<IComboBox>::VisibleChanged(visible);
}

void CMemoryComboBox::NodeFocus(bool has)
{
    if (!has)
        m_Dropped = false;
    CMemoryTextControl<IComboBox>::NodeFocus(has);
}

void CMemoryComboBox::NodeButtonDown(CMouseEvent& event, bool doubled)
{
    vexel_ptr<CBase> const alive(this);
    CMemoryTextControl<IComboBox>::NodeButtonDown(event, doubled);
    // The arrow is as wide as the control is high; a box that can only choose opens everywhere.
    bool const onArrow = event.m_X >= GetNodeRect().Width() - GetNodeRect().Height();
    if (event.m_Button == mbLeft && (onArrow || !m_Editable))
        ShowDropDown(!m_Dropped);
}

bool CMemoryComboBox::OtherKey(CKeyboardEvent const& event)
{
    int const key = event.GetVirtualKey();
    if (key == vkEscape && m_Dropped)
    {
        ShowDropDown(false);
        return true;
    }
    if (key != vkDown && key != vkUp)
        return false;
    if (event.m_Keys & ksAlt)
        ShowDropDown(!m_Dropped);
    else if (GetItemCount() > 0)
        SetCurrentItem(std::clamp(m_Current + (key == vkDown ? 1 : -1), 0, GetItemCount() - 1));
    return true;
}

} // namespace vexelbase::memory
