#pragma once

#include "vexel/export.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/platform/native_controls.h"

#include <memory>

namespace vexelbase::memory
{

/// A popup window. It stands above all other windows and takes the focus; closing gives that back to who had it. A press
/// outside of it closes it before the press is told, and so does an escape that its control did not deal with.
/// It closes with its owner. Closing by the user gives the code 0.
class VEXEL_MEMORY_API CMemoryPopup final : public IPopup
{
public:
    explicit CMemoryPopup(CMemoryWindow& owner);
    ~CMemoryPopup() override;

    CMemoryWindow& GetMemoryWindow() { return *m_Window; }

    // From IPopup -------------------------------------------------------------------------------------------------
    ISysWindow* GetWindow() override { return m_Window.get(); }
    ISysWindow* GetOwner() override { return m_Owner; }
    void SetSize(int width, int height) override;
    void Show(point<int> const& screen) override;
    void Close(int code) override;
    bool IsVisible() const override { return m_Visible; }
    int GetCloseCode() const override { return m_Code; }

    void OwnerGone();  ///< Called by the owner when it is destroyed.

    static int GetCount();  ///< Living popups of the process.

private:
    class CWindow;

    std::unique_ptr<CMemoryWindow> m_Window;
    CMemoryWindow* m_Owner;
    bool m_Visible = false;
    int m_Code = 0;
    CMemoryNode* m_FocusBefore = nullptr;
    std::weak_ptr<int> m_FocusBeforeLife;
};

} // namespace vexelbase::memory
