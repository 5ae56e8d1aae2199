#include "vexel/platform/qt/application.h"

#include "vexel/platform/qt/detail/font_face.h"
#include "vexel/platform/qt/detail/qt_system.h"
#include "vexel/platform/qt/detail/qt_widget.h"
#include "vexel/platform/qt/detail/qt_window.h"

#include <QApplication>

#include <algorithm>

namespace vexelbase::qt
{

struct CApplication::SData
{
    std::unique_ptr<QApplication> application;  // null where the program has its own
};

CApplication::CApplication(int& argc, char** argv) : m_Data(std::make_unique<SData>())
{
    if (!QCoreApplication::instance())
        m_Data->application = std::make_unique<QApplication>(argc, argv);
    CQtSystem::Get().Install();
}

CApplication::CApplication() : m_Data(std::make_unique<SData>())
{
    CQtSystem::Get().Install();
}

CApplication::~CApplication()
{
    if (!m_Data->application)
        CQtSystem::Get().Uninstall();
}

std::unique_ptr<ISysWindow> CApplication::CreateMainWindow(std::string const& title, size<int> const& extent)
{
    auto window = std::make_unique<CQtWindow>(nullptr);
    QWidget* const widget = window->GetWidget();
    widget->setWindowTitle(ToQString(title));
    widget->resize(std::max(1, extent.width), std::max(1, extent.height));
    window->SyncSurface();
    QMetaObject::invokeMethod(
        widget, [widget] { widget->show(); }, Qt::QueuedConnection);
    return window;
}

void CApplication::SetZoom(double factor)
{
    CQtSystem::Get().SetZoom(factor);
    CQtWindow::SyncAllScales();
}

void CApplication::SetShowRepaints(bool show)
{
    CQtWindow::SetShowRepaints(show);
}

int CApplication::Run()
{
    return QApplication::exec();
}

void CApplication::Quit(int code)
{
    QCoreApplication::exit(code);
}

void CApplication::ProcessEvents()
{
    QCoreApplication::processEvents();
}

}  // namespace vexelbase::qt
