// A table of any size in a window: table [--log] FILE shows a file of comma- or tab-separated values.

#include "table_view.h"

#include "vexel/core/base_control.h"
#include "vexel/platform/qt/application.h"
#include "vexel/signals/connection.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string_view>

int main(int argc, char** argv)
{
    auto const start = std::chrono::steady_clock::now();
    vexelbase::qt::CApplication app(argc, argv);
    bool log = false;
    std::string path;
    for (int i = 1; i < argc; ++i)
        if (std::string_view(argv[i]) == "--log")
            log = true;
        else
            path = argv[i];

    std::string const name = std::filesystem::path(path).filename().string();
    auto window = app.CreateMainWindow(name.empty() ? "Table" : name + " - Table", {900, 600});
    vexel::CBaseControl control(window.get());
    control.SetCopyShortcut(true);
    table::CTableView view(control.GetContent(), *window, path);

    vexel::CConnection report(view.m_SigReport, [&](std::string const& line) {
        if (!log)
            return;
        std::chrono::duration<double, std::milli> const passed = std::chrono::steady_clock::now() - start;
        std::printf("[%.0f ms] %s\n", passed.count(), line.c_str());
        std::fflush(stdout);
    });
    view.Start();
    return app.Run();
}
