#include "vexel/platform/qt/detail/qt_popup.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/qt_system.h"

#include <QWidget>

#include <algorithm>
#include <cmath>

namespace vexelbase::qt
{

namespace
{

constexpr int FirstSide = 100;  // window pixels

// The least extent in Qt's pixels that gives so many pixels of a window.
int ToQtExtent(int pixels, double ratio)
{
    int const nearest = ToInt(std::round(pixels / ratio));
    return std::round(nearest * ratio) < pixels ? nearest + 1 : nearest;
}

}  // namespace

CQtPopup::CQtPopup(CQtWindow& owner) : m_Window(std::make_unique<CQtWindow>(owner.GetWidget(), *this)), m_Owner(&owner)
{
    owner.AddPopup(*this);
    CQtPopup::SetSize(FirstSide, FirstSide);
}

CQtPopup::~CQtPopup()
{
    CQtPopup::Close(m_Code);
    if (m_Owner)
        m_Owner->RemovePopup(*this);
}

void CQtPopup::OwnerGone()
{
    m_Owner = nullptr;
    // Its widget must not go with the owner's.
    if (QWidget* const widget = m_Window->GetWidget())
    {
        Close(m_Code);
        widget->setParent(nullptr, widget->windowFlags());
    }
}

void CQtPopup::SetSize(int width, int height)
{
    QWidget* const widget = m_Window->GetWidget();
    if (!widget)
        return;
    double const ratio = m_Window->GetRatio();
    widget->resize(ToQtExtent(std::max(width, 1), ratio), ToQtExtent(std::max(height, 1), ratio));
    // Qt tells a hidden widget of its size when it is shown.
    if (m_Window->GetWidget())
        m_Window->SyncSurface();
}

void CQtPopup::Show(point<int> const& screen)
{
    QWidget* const widget = m_Window->GetWidget();
    if (!widget || !m_Owner)
        return;
    vexel_ptr<IPopup> const alive(this);
    double const scale = CQtSystem::GetScreenRatio();
    widget->move(ToInt(std::round(screen.x / scale)), ToInt(std::round(screen.y / scale)));
    if (m_Visible || !m_Window->GetWidget())
        return;
    m_Visible = true;
    m_Code = 0;
    widget->setFocus(Qt::PopupFocusReason);  // takes effect when it is shown
    widget->show();
}

void CQtPopup::Close(int code)
{
    m_Code = code;
    if (!std::exchange(m_Visible, false))
        return;
    if (QWidget* const widget = m_Window->GetWidget())
        widget->hide();
}

void CQtPopup::Hidden()
{
    if (std::exchange(m_Visible, false))
        m_Code = 0;
}

}  // namespace vexelbase::qt
