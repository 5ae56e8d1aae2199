#pragma once

#include "vexel/platform/native_controls.h"
#include "vexel/platform/qt/detail/qt_window.h"

#include <memory>

namespace vexelbase::qt
{

/// A window of the kind Qt::Popup: it takes the focus and every press. A press outside closes it and then goes to what
/// lies there; an escape that its control did not deal with closes it; so does all that makes Qt close popups, such as
/// another program's coming to the front. It closes with its owner, also when that is hidden. All these give the code 0.
class CQtPopup final : public IPopup
{
public:
    explicit CQtPopup(CQtWindow& owner);
    ~CQtPopup() override;

    // From IPopup -------------------------------------------------------------------------------------------------
    ISysWindow* GetWindow() override { return m_Window.get(); }
    ISysWindow* GetOwner() override { return m_Owner; }
    void SetSize(int width, int height) override;
    void Show(point<int> const& screen) override;
    void Close(int code) override;
    bool IsVisible() const override { return m_Visible; }
    int GetCloseCode() const override { return m_Code; }

    // From the windows --------------------------------------------------------------------------------------------
    void Hidden();  ///< The own window, by whomever.
    void OwnerGone();

private:
    std::unique_ptr<CQtWindow> m_Window;
    CQtWindow* m_Owner;
    bool m_Visible = false;
    int m_Code = 0;
};

}  // namespace vexelbase::qt
