#include "vexel/platform/qt/detail/qt_system.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/font_face.h"
#include "vexel/platform/qt/detail/native_parts.h"
#include "vexel/platform/qt/detail/qt_device.h"
#include "vexel/platform/qt/detail/qt_timer.h"
#include "vexel/platform/qt/detail/qt_window.h"
#include "vexel/platform/qt/detail/text_engine.h"
#include "vexel/platform/runner.h"
#include "vexel/platform/xpm.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QFont>
#include <QPalette>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <cstdlib>

namespace vexelbase::qt
{

namespace
{

constexpr std::uint32_t White = 0xFFFFFFFFu;

_color ToColor(QColor const& color)
{
    return _color::FromRgb(color.red(), color.green(), color.blue());
}

// How far apart two colours are for the eye, roughly.
int Contrast(QColor const& a, QColor const& b)
{
    return std::abs(qGray(a.rgb()) - qGray(b.rgb()));
}

}  // namespace

// CQtPicture -------------------------------------------------------------------------------------------------------

std::unique_ptr<IPaintDevice> CQtPicture::CreateDevice(CPixelBuffer& pixels) const
{
    return std::make_unique<CQtDevice>(pixels, CQtSystem::Get().GetScale());
}

vexel_ptr<IRasterPicture> CQtPicture::CreateSame(size<int> const& extent) const
{
    return MakeRef<CQtPicture>(extent);
}

// CQtPalette -------------------------------------------------------------------------------------------------------

_color CQtPalette::GetColor(SysColor number) const
{
    if (number < 1 || number >= static_cast<int>(Count))
        return _color(0, true);
    Refresh();
    return m_Colors[static_cast<std::size_t>(number)];
}

void CQtPalette::Refresh() const
{
    if (!qApp && m_Key != -1)
        return;  // the last colours stay
    QPalette const palette = qApp ? QApplication::palette() : QPalette();
    if (m_Key == palette.cacheKey())
        return;
    m_Key = palette.cacheKey();

    auto const set = [&](SysColor number, QPalette::ColorRole role) {
        m_Colors[static_cast<std::size_t>(number)] = ToColor(palette.color(QPalette::Active, role));
    };
    set(scWindow, QPalette::Base);
    set(scWindowText, QPalette::Text);
    set(scFace, QPalette::Window);
    set(scLight, QPalette::Light);
    set(scHalfLight, QPalette::Midlight);
    set(scShadow, QPalette::Dark);
    set(scDarkShadow, QPalette::Shadow);
    set(scControlText, QPalette::WindowText);
    set(scHighlight, QPalette::Highlight);
    set(scHighlightText, QPalette::HighlightedText);
    set(scTooltip, QPalette::ToolTipBase);
    set(scTooltipText, QPalette::ToolTipText);
    set(scLink, QPalette::Link);

    // The shadow is also the text colour of what is disabled. Dark themes have shadows that no text can be read in.
    constexpr int readable = 40;
    if (Contrast(palette.color(QPalette::Active, QPalette::Dark), palette.color(QPalette::Active, QPalette::Window)) <
        readable)
        m_Colors[scShadow] = ToColor(palette.color(QPalette::Disabled, QPalette::WindowText));
}

// CQtSystem --------------------------------------------------------------------------------------------------------

CQtSystem& CQtSystem::Get()
{
    static CQtSystem* const system = new CQtSystem;  // outlives every static object that asks for it
    return *system;
}

void CQtSystem::Install()
{
    if (m_Installed++ > 0)
        return;
    qAddPostRoutine(&CQtSystem::ApplicationGoes);
    m_Before = SetCurrentSystem(this);
}

void CQtSystem::Uninstall()
{
    if (m_Installed == 0 || --m_Installed > 0)
        return;
    if (GetCurrentSystem() == this)
        SetCurrentSystem(m_Before);
    m_Before = nullptr;
}

// Runs while the application object is being destroyed: from here on there are no Qt windows, timers and fonts.
void CQtSystem::ApplicationGoes()
{
    CQtWindow::DestroyAll();
    CQtTimer::StopAll();
    CNativeParts::Get().Clear();
    CTextEngine::Get().Clear();
    CQtSystem& system = Get();
    system.m_Installed = std::min(system.m_Installed, 1);
    system.Uninstall();
}

font CQtSystem::GetDefaultFont()
{
    font result;
    result.family = font::ffSans;
    result.size = 8;
    if (!qApp)
        return result;
    QFont const native = QApplication::font();
    result.name = native.family().toStdString();
    double points = native.pointSizeF();
    if (points <= 0)
    {
        QScreen const* const screen = QGuiApplication::primaryScreen();
        points = native.pixelSize() * 72.0 / (screen ? screen->logicalDotsPerInchY() : 96.0);
    }
    result.size = std::max(1, qRound(points));
    if (native.bold())
        result.style |= font::fsBold;
    if (native.italic())
        result.style |= font::fsItalic;
    return result;
}

int CQtSystem::GetSystemMetric(int metric)
{
    constexpr int fallback = 16;
    if (metric != smScrollBarWidth && metric != smScrollBarHeight)
        return 0;
    if (!qApp)
        return fallback;
    return CeilToInt(QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent) * GetScale());
}

double CQtSystem::GetScreenRatio()
{
    QScreen const* const screen = qApp ? QGuiApplication::primaryScreen() : nullptr;
    return screen ? screen->devicePixelRatio() : 1.0;
}

double CQtSystem::GetScale()
{
    return GetScreenRatio() * m_Zoom;
}

vexel_ptr<ISysTimer> CQtSystem::CreateTimer(int period, int)
{
    return MakeRef<CQtTimer>(period);
}

vexel_ptr<IRasterPicture> CQtSystem::CreateRasterPicture(size<int> const& pictureSize)
{
    return MakeRef<CQtPicture>(pictureSize);
}

vexel_ptr<IRasterPicture> CQtSystem::CreateRasterPicture(XPMBuf const& buffer)
{
    XPMImage const image(buffer);
    size<int> const extent{image.GetWidth(), image.GetHeight()};
    auto picture = MakeRef<CQtPicture>(extent);
    for (int y = 0; y < extent.height; ++y)
    {
        std::uint32_t* const row = picture->GetPixels().Row(y);
        for (int x = 0; x < extent.width; ++x)
        {
            _color const color = image.GetPixel(x, y);
            row[x] = color.m_None ? White : CPixelBuffer::ToPixel(color);
        }
    }
    return picture;
}

vexel_ptr<IRunner> CQtSystem::GetRunner()
{
    return MakeRef<CThreadRunner>();
}

vexel_ptr<ILock> CQtSystem::CreateLock()
{
    return MakeRef<CLock>();
}

rectangle<int> CQtSystem::GetWorkArea(point<int> const& screen)
{
    if (!qApp)
        return {};
    double const scale = GetScreenRatio();
    QScreen const* found =
        QGuiApplication::screenAt(QPoint(FloorToInt(screen.x / scale), FloorToInt(screen.y / scale)));
    if (!found)
        found = QGuiApplication::primaryScreen();
    if (!found)
        return {};
    QRect const area = found->availableGeometry();
    return {FloorToInt(area.x() * scale), FloorToInt(area.y() * scale), FloorToInt((area.x() + area.width()) * scale),
            FloorToInt((area.y() + area.height()) * scale)};
}

void CQtSystem::SetZoom(double factor)
{
    m_Zoom = factor == factor ? std::clamp(factor, 0.25, 8.0) : 1.0;
    RefreshLook();
}

void CQtSystem::RefreshLook()
{
    CNativeParts::Get().Clear();
    RefreshDefaultGUIFont();
}

point<int> CQtSystem::CPointer::GetPos() const
{
    if (!qApp)
        return {};
    double const scale = GetScreenRatio();
    QPoint const position = QCursor::pos();
    return {FloorToInt(position.x() * scale), FloorToInt(position.y() * scale)};
}

void CQtSystem::CClipboard::SetText(std::string const& text)
{
    if (qApp)
        QGuiApplication::clipboard()->setText(ToQString(text));
}

std::string CQtSystem::CClipboard::GetText() const
{
    return qApp ? QGuiApplication::clipboard()->text().toStdString() : std::string();
}

}  // namespace vexelbase::qt
