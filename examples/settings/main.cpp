// Settings of a program that doesn't exist: categories in a list box, their tabs, and on each tab its settings. They are
// kept in the file that is named on the command line.

#include "page.h"
#include "values.h"
#include "vexel/controls/round_bg_button.h"
#include "vexel/controls/tab_pane.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/qt/application.h"

#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace
{

using namespace vexel;
using settings::CChoices;
using settings::CGround;
using settings::CPage;
using settings::CValues;

/// The texts that follow each other in the list of settings, each once.
std::vector<std::string> Gather(std::string settings::SSetting::*part, std::string const& category)
{
    std::vector<std::string> texts;
    for (settings::SSetting const& setting : settings::GetSettings())
        if ((category.empty() || setting.category == category) && (texts.empty() || texts.back() != setting.*part))
            texts.push_back(setting.*part);
    return texts;
}

/// The tabs of a category.
class CTabs : public ITabsModel
{
public:
    void SetTexts(std::vector<std::string> texts)
    {
        m_Texts = std::move(texts);
        m_SigChanged();
    }
    int GetTabCount() const override { return static_cast<int>(m_Texts.size()); }
    std::string GetTabText(int tab) const override { return m_Texts.at(static_cast<std::size_t>(tab)); }
    int GetTabImageIndex(int) const override { return -1; }
    int GetTabTextFlags(int) const override { return IPainter::AlignHCenter | IPainter::AlignVCenter; }
    std::string GetTabTooltip(int tab) const override { return GetTabText(tab); }
    bool HasTabCloseButton(int) const override { return false; }
    int GetTabSpacerWidth(int) const override { return 4; }
    int GetTabSpacerImageIndex(int) const override { return -1; }
    bool IsTabEnabled(int) const override { return true; }
    bool IsTabAnimated(int) const override { return false; }
    vexel_ptr<IAnimation> GetAnimation() const override { return nullptr; }

private:
    std::vector<std::string> m_Texts;
};

class CSettingsWindow : public subscriber_base_t
{
public:
    CSettingsWindow(CVisualElement* root, ISysWindow& window, std::string path)
        : m_Window(window), m_Path(std::move(path)), m_Categories(Gather(&settings::SSetting::category, ""))
    {
        auto* const strip = new CGround(root, {0, 46}, alBottom);
        new CGround(strip, {12, 0}, alLeft);
        new CGround(strip, {0, 8}, alTop);
        new CGround(strip, {0, 8}, alBottom);
        new CGround(strip, {12, 0}, alRight);
        auto* const save = new CRoundBgButton(strip, {110, 0}, alRight);
        save->SetCaption("Save");
        save->SetFgColor(color_table[1]);  // its pictures are light in every theme
        save->m_Clicked.connect(this, &CSettingsWindow::Save);
        m_Message = new CCaption(strip, {0, 0}, alClient);
        m_Message->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText);

        auto* const list = new CListBox(root, {140, 0}, alLeft);
        list->GetViewer().SetModel(&m_Categories);
        list->GetViewer().m_SigItemActivated.connect(this, &CSettingsWindow::ShowCategory);
        m_Pane = new CGround(root, {0, 0}, alClient);
        new CGround(m_Pane, {16, 0}, alLeft);
        new CGround(m_Pane, {0, 8}, alTop);
        auto* const tabs = new CTabPane(m_Pane, {0, 28}, alTop);
        tabs->SetAutoSize(true);
        tabs->SetModel(&m_Tabs);
        tabs->m_SigCurrentTabChanged.connect(this, &CSettingsWindow::ShowTab);
        m_TabPane = tabs;

        Load();
        list->GetViewer().SetCurrentItemEx(0);
        list->GetViewer().SetFocus(false);
    }

private:
    void ShowCategory(int index)
    {
        if (index < 0)
            return;
        m_Category = m_Categories.GetItemCaption(index);
        m_Tabs.SetTexts(Gather(&settings::SSetting::tab, m_Category));
        if (m_TabPane->GetCurrentTab() != 0)
            m_TabPane->SetCurrentTab(0);
        else
            ShowTab(m_TabPane, 0, 0, true);
    }
    void ShowTab(CTabPane*, int tab, int, bool)
    {
        delete std::exchange(m_Page, nullptr);
        if (tab < 0 || tab >= m_Tabs.GetTabCount())
            return;
        m_Page = new CPage(m_Pane, m_Window, m_Values, m_Category, m_Tabs.GetTabText(tab));
        m_Page->m_SigTold.connect(this, &CSettingsWindow::Tell);
    }

    void Load()
    {
        if (m_Path.empty())
            return Tell("No file was named: what you change is not kept.");
        std::ifstream file(m_Path);
        if (!file)
            return Tell(m_Path + " will be made.");
        std::vector<std::string> const complaints = m_Values.Load(file);
        Tell(complaints.empty() ? m_Path : m_Path + ": " + complaints.front());
    }
    void Save(CButton*)
    {
        if (m_Path.empty())
            return Tell("No file was named: nothing was saved.");
        std::ofstream file(m_Path);
        m_Values.Save(file);
        file.close();
        Tell(file ? "Saved in " + m_Path : m_Path + " can't be written.");
    }
    void Tell(std::string const& text) { m_Message->SetCaption(text); }

    ISysWindow& m_Window;
    std::string const m_Path;
    CChoices m_Categories;
    CTabs m_Tabs;
    CValues m_Values;
    std::string m_Category;
    // The tree's
    CCaption* m_Message = nullptr;
    CVisualElement* m_Pane = nullptr;
    CTabPane* m_TabPane = nullptr;
    CPage* m_Page = nullptr;
};

}  // namespace

int main(int argc, char** argv)
{
    vexelbase::qt::CApplication app(argc, argv);
    auto window = app.CreateMainWindow("Settings", {640, 380});
    vexel::CBaseControl control(window.get());
    CSettingsWindow const settings(control.GetContent(), *window, argc > 1 ? argv[1] : "");
    return app.Run();
}
