#include "vexel/platform/memory/memory_popup.h"

#include "vexel/platform/memory/memory_system.h"

namespace vexelbase::memory
{

namespace
{
int g_Count = 0;
}

/// The window of a popup: a key that nobody wants closes it.
class CMemoryPopup::CWindow final : public CMemoryWindow
{
public:
    CWindow(CMemoryPopup& popup, CMemorySystem& system)
        : CMemoryWindow(system, {0, 0}, {100, 100}), m_Popup(popup)
    {
        SetNodeVisible(false);
    }

    bool NodeKeyDown(CKeyboardEvent& event) override
    {
        std::weak_ptr<int> const life = GetNodeLife();
        if (CMemoryWindow::NodeKeyDown(event))
            return true;
        if (event.GetVirtualKey() != vkEscape || life.expired())
            return false;
        m_Popup.Close(0);
        return true;
    }
    CMemoryPopup* GetPopup() override { return &m_Popup; }

private:
    CMemoryPopup& m_Popup;
};

CMemoryPopup::CMemoryPopup(CMemoryWindow& owner)
    : m_Window(std::make_unique<CWindow>(*this, owner.GetSystem())), m_Owner(&owner)
{
    ++g_Count;
    owner.AddPopup(*this);
}

CMemoryPopup::~CMemoryPopup()
{
    CMemoryPopup::Close(m_Code);
    if (m_Owner)
        m_Owner->RemovePopup(*this);
    --g_Count;
}

int CMemoryPopup::GetCount()
{
    return g_Count;
}

void CMemoryPopup::OwnerGone()
{
    m_Owner = nullptr;
    Close(m_Code);
}

void CMemoryPopup::SetSize(int width, int height)
{
    m_Window->Resize({width, height});
}

void CMemoryPopup::Show(point<int> const& screen)
{
    if (m_Window->IsDestroying())
        return;
    m_Window->MoveTo(screen);
    if (m_Visible)
        return;
    CMemorySystem& system = m_Window->GetSystem();
    m_Visible = true;
    m_Code = 0;
    m_FocusBefore = system.GetFocusNode();
    m_FocusBeforeLife = m_FocusBefore ? m_FocusBefore->GetNodeLife() : std::weak_ptr<int>();
    m_Window->BringUp();
    if (m_Visible)
        system.SetFocusNode(m_Window.get());
}

void CMemoryPopup::Close(int code)
{
    m_Code = code;
    if (!m_Visible)
        return;
    m_Visible = false;
    CMemorySystem& system = m_Window->GetSystem();
    bool const hadFocus = system.GetFocusNode() && system.GetFocusNode()->IsInside(m_Window.get());
    CMemoryNode* const before = m_FocusBeforeLife.expired() ? nullptr : m_FocusBefore;
    std::weak_ptr<int> const life = before ? before->GetNodeLife() : std::weak_ptr<int>();
    m_Window->Show(false);
    // Hiding runs handlers, which may have deleted this popup.
    if (hadFocus && !system.GetFocusNode() && !life.expired())
        system.SetFocusNode(before);
}

} // namespace vexelbase::memory
