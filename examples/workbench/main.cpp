// A screen as engineers use it: workbench [--log] [--lines COUNT] [--save PICTURE.png] [STATE] keeps its layout in the
// file STATE. With --save the picture is written and the program ends; it needs no display then.

#include "table_page.h"
#include "workbench.h"

#include "vexel/core/base_control.h"
#include "vexel/platform/qt/application.h"
#include "vexel/platform/qt/host_window.h"
#include "vexel/signals/connection.h"

#include <QPixmap>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

namespace
{

std::string GetDefaultStatePath()
{
    char const* const folder = std::getenv("XDG_STATE_HOME");
    char const* const home = std::getenv("HOME");
    std::filesystem::path const base = folder && *folder ? folder : home ? std::string(home) + "/.local/state" : ".";
    std::error_code error;
    std::filesystem::create_directories(base, error);
    return (base / "vexel-workbench").string();
}

}  // namespace

int main(int argc, char** argv)
{
    using vexelbase::qt::CApplication;
    bool log = false;
    int lines = 1000000;
    std::string path, picture;
    for (int i = 1; i < argc; ++i)
        if (std::string_view const argument = argv[i]; argument == "--log")
            log = true;
        else if (argument == "--lines" && i + 1 < argc)
            lines = std::atoi(argv[++i]);
        else if (argument == "--save" && i + 1 < argc)
            picture = argv[++i];
        else
            path = argument;
    if (!picture.empty())
        setenv("QT_QPA_PLATFORM", "offscreen", 0);

    CApplication app(argc, argv);
    auto window = app.CreateMainWindow("Workbench", {1000, 700});
    vexel::CBaseControl control(window.get());
    control.SetCopyShortcut(true);
    workbench::CWorkbench::SHooks hooks;
    hooks.setTheme = [&](workbench::SState::Theme theme) {
        app.SetTheme(theme == workbench::SState::ThemeDark    ? CApplication::Theme::Dark
                     : theme == workbench::SState::ThemeLight ? CApplication::Theme::Light
                                                              : CApplication::Theme::Desktop);
    };
    hooks.quit = [&](int code) { app.Quit(code); };
    workbench::CWorkbench bench(control, *window, path.empty() ? GetDefaultStatePath() : path, hooks);
    vexel::CConnection report(bench.m_SigReport, [&](std::string const& line) {
        if (!log)
            return;
        std::printf("%s\n", line.c_str());
        std::fflush(stdout);
    });
    bench.LoadHistory(lines);
    bench.Start();
    if (!picture.empty())
    {
        vexel::ISelectionModel& rows = *bench.GetTablePage().GetGrid().GetRowSelectionModel();
        rows.SetCurrent(7);
        rows.SetSelectionRange(7, 7);
        app.ProcessEvents();
        window->UpdateNow();
        bool const saved = vexelbase::qt::GetWidget(window.get())->grab().save(QString::fromStdString(picture), "PNG");
        return saved ? 0 : 1;
    }
    int const code = app.Run();
    if (!bench.Save())
        std::fprintf(stderr, "workbench: the layout can't be written\n");
    return code;
}
