#include "vexel/platform/qt/application.h"

#include "vexel/platform/qt/detail/font_face.h"
#include "vexel/platform/qt/detail/qt_system.h"
#include "vexel/platform/qt/detail/qt_widget.h"
#include "vexel/platform/qt/detail/qt_window.h"

#include <QApplication>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace vexelbase::qt
{

namespace
{

struct SThemeColors
{
    QRgb window;  // of dialogs: the face of controls
    QRgb text;
    QRgb base;  // of lists and fields
    QRgb button;
    QRgb light;
    QRgb midlight;
    QRgb mid;
    QRgb dark;
    QRgb shadow;
    QRgb highlight;
    QRgb tooltip;
    QRgb link;
    QRgb disabled;
};

SThemeColors const g_Light{0xFFEFEFEF, 0xFF000000, 0xFFFFFFFF, 0xFFEFEFEF, 0xFFFFFFFF, 0xFFE3E3E3, 0xFFB8B8B8,
                           0xFF9F9F9F, 0xFF767676, 0xFF308CC6, 0xFFFFFFDC, 0xFF0000FF, 0xFF8A8A8A};
SThemeColors const g_Dark{0xFF2E2F33, 0xFFE6E6E6, 0xFF1F2023, 0xFF3A3B40, 0xFF5A5B62, 0xFF46474D, 0xFF26272A,
                          0xFF7A7B82, 0xFF101114, 0xFF2F6FB0, 0xFF45464C, 0xFF7FB4F0, 0xFF808288};

QPalette MakePalette(SThemeColors const& colors)
{
    QPalette palette;
    for (auto const& [role, color] : {std::pair{QPalette::Window, colors.window},
                                      {QPalette::WindowText, colors.text},
                                      {QPalette::Base, colors.base},
                                      {QPalette::AlternateBase, colors.midlight},
                                      {QPalette::Text, colors.text},
                                      {QPalette::Button, colors.button},
                                      {QPalette::ButtonText, colors.text},
                                      {QPalette::BrightText, 0xFFFFFFFF},
                                      {QPalette::Light, colors.light},
                                      {QPalette::Midlight, colors.midlight},
                                      {QPalette::Mid, colors.mid},
                                      {QPalette::Dark, colors.dark},
                                      {QPalette::Shadow, colors.shadow},
                                      {QPalette::Highlight, colors.highlight},
                                      {QPalette::HighlightedText, 0xFFFFFFFF},
                                      {QPalette::ToolTipBase, colors.tooltip},
                                      {QPalette::ToolTipText, colors.text},
                                      {QPalette::Link, colors.link},
                                      {QPalette::LinkVisited, colors.link},
                                      {QPalette::PlaceholderText, colors.disabled}})
        palette.setColor(role, QColor::fromRgb(color));
    for (QPalette::ColorRole const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(colors.disabled));
    return palette;
}

}  // namespace

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

void CApplication::SetTheme(Theme theme)
{
    switch (theme)
    {
    case Theme::Light:
        return QApplication::setPalette(MakePalette(g_Light));
    case Theme::Dark:
        return QApplication::setPalette(MakePalette(g_Dark));
    case Theme::Desktop:
        return QApplication::setPalette(QPalette());  // sets nothing, so that the desktop's shows
    }
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
