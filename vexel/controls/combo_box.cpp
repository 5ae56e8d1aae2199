#include "vexel/controls/combo_box.h"

#include "vexel/controls/detail/arrow_width.h"
#include "vexel/controls/detail/keys.h"
#include "vexel/platform/sys_window.h"

#include <algorithm>

namespace vexel
{

void CComboBox::Init(ISysWindow* window, bool editable)
{
    if (!window)
        return;
    vexel_ptr<IComboBox> const box = window->CreateComboBox(editable);
    box->SetOption(false);
    TakeNativeEdit(box, box.get(), {-1, -1, 0, 1});
    if (m_Bevel)
        return;
    m_Bevel.Watch(new CBevel(this, {1, 1}, alRight));
    int const side = std::max(detail::GetArrowWidth() - 1, 0);
    m_Button.Watch(new CComboButton(this, {}, alRight));
    m_Button->SetSize({side, side}, false);
    m_Button->m_SigButtonDown.connect(this, &CComboBox::OnButtonDown);
}

void CComboBox::GetEditorRect(rectangle<double>& rect) const
{
    if (m_Bevel && m_Button)
        rect.right -= m_Bevel->GetSize().width + m_Button->GetSize().width;
}

void CComboBox::ProcessEditorCommand(EditorCommand command)
{
    CAliveGuard const alive(this);
    bool const idle = command != ecStart;
    if (m_Bevel)
        m_Bevel->SetVisible(idle);
    if (alive && m_Button)
        m_Button->SetVisible(idle);
    if (!alive)
        return;
    CControlEditor::ProcessEditorCommand(command);
    if (alive && !idle && GetComboBox() && !GetComboBox()->IsEditable())
        ShowDropDown();
}

void CComboBox::ShowDropDown()
{
    vexel_ptr<IComboBox> const box(GetComboBox());
    if (box)
        box->ShowDropDown(true);
}

void CComboBox::OnButtonDown(CVisualElement*, int, int, int, MouseButton button)
{
    if (button != mbLeft)
        return;
    CAliveGuard const alive(this);
    ProcessEditorCommand(ecStart);
    if (alive && GetComboBox() && GetComboBox()->IsEditable())
        ShowDropDown();
}

bool CComboBox::HandleKeyDown(int keys, int key)
{
    if (!detail::IsDropKey(keys, key))
        return false;
    CAliveGuard const alive(this);
    ProcessEditorCommand(ecStart);
    if (alive)
        ShowDropDown();
    return true;
}

}  // namespace vexel
