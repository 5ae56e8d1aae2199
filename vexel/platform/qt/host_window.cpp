#include "vexel/platform/qt/host_window.h"

#include "vexel/platform/qt/application.h"
#include "vexel/platform/qt/detail/qt_system.h"
#include "vexel/platform/qt/detail/qt_widget.h"
#include "vexel/platform/qt/detail/qt_window.h"

#include <QWidget>

namespace vexelbase::qt
{

std::unique_ptr<ISysWindow> HostWindow(QWidget* host)
{
    if (!GetCurrentSystem())
        CQtSystem::Get().Install();
    auto window = std::make_unique<CQtWindow>(host);
    window->GetWidget()->show();
    return window;
}

QWidget* GetWidget(ISysWindow* window)
{
    auto* const own = dynamic_cast<CQtWindow*>(window);
    return own ? own->GetWidget() : nullptr;
}

}  // namespace vexelbase::qt
