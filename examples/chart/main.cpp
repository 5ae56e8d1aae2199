// Plots columns of a file of comma-separated values: chart [--save PICTURE.png] FILE.csv [COLUMN...]
// The first column goes along. Drag and wheel move and zoom the plot, a double click shows all of it. With --save the
// picture is written and the program ends; it needs no display then.

#include "chart_view.h"

#include "vexel/core/base_control.h"
#include "vexel/platform/qt/application.h"
#include "vexel/platform/qt/host_window.h"

#include <QPixmap>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace
{

bool Save(vexelbase::ISysWindow& window, std::string const& path)
{
    window.UpdateNow();
    return vexelbase::qt::GetWidget(&window)->grab().save(QString::fromStdString(path), "PNG");
}

int Fail(std::string const& what)
{
    std::fprintf(stderr, "chart: %s\n", what.c_str());
    return 1;
}

}  // namespace

int main(int argc, char** argv)
{
    std::string path, picture;
    std::vector<std::string> columns;
    for (int i = 1; i < argc; ++i)
        if (std::string_view(argv[i]) == "--save" && i + 1 < argc)
            picture = argv[++i];
        else if (path.empty())
            path = argv[i];
        else
            columns.emplace_back(argv[i]);
    if (path.empty() && !picture.empty())
        return Fail("usage: chart [--save PICTURE.png] FILE.csv [COLUMN...]");
    std::ifstream file(path);
    if (!file && !path.empty())
        return Fail("can't read " + path);

    if (!picture.empty() && !std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    vexelbase::qt::CApplication app(argc, argv);
    std::string const name = std::filesystem::path(path).filename().string();
    auto window = app.CreateMainWindow(name.empty() ? "Chart" : name + " - Chart", {900, 560});
    vexel::CBaseControl control(window.get());
    chart::CChartView view(control.GetContent(), chart::ReadNumbers(file), columns);
    if (!view.GetUnknown().empty())
        return Fail("there is no column " + view.GetUnknown().front());
    if (!picture.empty())
        return Save(*window, picture) ? 0 : Fail("can't write " + picture);

    if (path.empty())
        view.Tell("Start it with a file: chart FILE.csv");
    std::string const target = path.empty() ? "chart.png" : path + ".png";
    vexel::CConnection const save(
        view.m_SigSave, [&] { view.Tell(Save(*window, target) ? "Saved as " + target : "Can't write " + target); });
    return app.Run();
}
