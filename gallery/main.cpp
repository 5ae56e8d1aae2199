// The gallery: every widget alive, a page each.

#include "gallery/frame/frame.h"
#include "gallery/frame/log.h"
#include "gallery/frame/native_log.h"
#include "gallery/options.h"
#include "gallery/pages.h"
#include "gallery/pages/animation_page.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/qt/application.h"
#include "vexel/platform/qt/host_window.h"
#include "vexel/platform/qt/load_animation.h"
#include "vexel/platform/threads.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QPalette>
#include <QPixmap>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

namespace gallery
{

namespace
{

/// As large as the pages need at this scale.
vexelbase::size<int> GetWindowSize(double scale)
{
    return {vexelbase::ToInt(1000 * scale), vexelbase::ToInt(700 * scale)};
}

/// Work for the window's queue.
class CLater : public vexelbase::IRunnable
{
public:
    explicit CLater(std::function<void()> work) : m_Work(std::move(work)) {}

    bool Run() override
    {
        m_Work();
        return false;
    }

private:
    std::function<void()> const m_Work;
};

/// The window with its control, and the frame that is made anew when the scale changes.
class CProgram
{
public:
    CProgram(vexelbase::qt::CApplication& app, SOptions const& options, int page)
        : m_App(app), m_BaseScale(options.scale),
          m_Window(app.CreateMainWindow("vexel gallery", GetWindowSize(options.scale))), m_Control(m_Window.get()),
          m_NativeLog(m_Control)
    {
        MakeFrame({.page = page});
    }

    bool SavePictures(std::string const& folder, std::string const& only);

private:
    void MakeFrame(CFrame::SState const& state)
    {
        CFrame::SHooks hooks;
        hooks.setScale = [this](double factor) { ChangeScale(factor); };
        hooks.setShowRepaints = [this](bool show) { m_App.SetShowRepaints(show); };
        m_Frame = std::make_unique<CFrame>(m_Control, std::move(hooks), state);
    }
    // Called in a signal of the frame.
    void ChangeScale(double factor)
    {
        m_Window->Post(new CLater([this, factor] {
            CFrame::SState const state = m_Frame->GetState();
            m_Frame.reset();
            m_App.SetZoom(m_BaseScale * factor);
            MakeFrame(state);
        }));
    }

    vexelbase::qt::CApplication& m_App;
    double const m_BaseScale;
    std::unique_ptr<vexelbase::ISysWindow> m_Window;
    vexel::CBaseControl m_Control;
    CNativeLog m_NativeLog;
    std::unique_ptr<CFrame> m_Frame;
};

bool CProgram::SavePictures(std::string const& folder, std::string const& only)
{
    if (!QDir().mkpath(QString::fromStdString(folder)))
    {
        std::fprintf(stderr, "vexel-gallery: can't make the folder %s\n", folder.c_str());
        return false;
    }
    for (SPage const& page : GetPages())
    {
        if (!only.empty() && only != page.name)
            continue;
        m_Frame->SetPage(FindPage(page.name));
        m_Window->UpdateNow();
        // With the native controls, which stand on the window as widgets of their own.
        QPixmap const image = vexelbase::qt::GetWidget(m_Window.get())->grab();
        std::string const file = folder + "/" + page.name + ".png";
        if (!image.save(QString::fromStdString(file)))
        {
            std::fprintf(stderr, "vexel-gallery: can't write %s\n", file.c_str());
            return false;
        }
        std::printf("%s\n", file.c_str());
    }
    return true;
}

vexelbase::vexel_ptr<vexelbase::IAnimation> ReadAnimation(unsigned char const* data, std::size_t bytes)
{
    QByteArray const copy(reinterpret_cast<char const*>(data), static_cast<qsizetype>(bytes));
    QBuffer buffer;
    buffer.setData(copy);
    buffer.open(QIODevice::ReadOnly);
    return vexelbase::qt::LoadAnimation(&buffer);
}

/// Colours for those who like it dark, on desktops of any theme.
QPalette MakeDarkPalette()
{
    QColor const text(0xE8, 0xE8, 0xE8), dim(0x88, 0x88, 0x88);
    QPalette palette(QColor(0x38, 0x3B, 0x40), QColor(0x2D, 0x2F, 0x33));
    palette.setColor(QPalette::Base, QColor(0x20, 0x22, 0x25));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2C));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x65, 0xA8));
    palette.setColor(QPalette::Link, QColor(0x7A, 0xB0, 0xF5));
    palette.setColor(QPalette::ToolTipBase, QColor(0x48, 0x48, 0x38));
    for (QPalette::ColorRole const role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::HighlightedText})
    {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, dim);
    }
    return palette;
}

int Main(int argc, char** argv)
{
    CAnimationPage::SetReader(&ReadAnimation);
    SOptions const options = ReadOptions(argc, argv);
    int const page = options.page.empty() ? 0 : FindPage(options.page);
    if (!options.error.empty() || page < 0)
    {
        std::string const error = options.error.empty() ? "no page " + options.page : options.error;
        std::fprintf(stderr, "vexel-gallery: %s\n%s", error.c_str(), GetUsage());
        return 2;
    }
    if (options.help)
    {
        std::fputs(GetUsage(), stdout);
        return 0;
    }
    if (options.list)
    {
        for (SPage const& each : GetPages())
            std::printf("%-10s %s\n", each.name, each.title);
        return 0;
    }

    bool const pictures = !options.screenshots.empty();
    if (pictures)
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    vexelbase::qt::CApplication app(argc, argv);
    if (options.dark)
        QApplication::setPalette(MakeDarkPalette());
    app.SetZoom(options.scale);
    CLog::Get().SetEcho(options.log);
    CProgram program(app, options, page);
    if (pictures)
        return program.SavePictures(options.screenshots, options.page) ? 0 : 1;
    return app.Run();
}

}  // namespace

}  // namespace gallery

int main(int argc, char** argv)
{
    return gallery::Main(argc, argv);
}
