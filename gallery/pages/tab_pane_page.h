#pragma once

#include "gallery/frame/page.h"
#include "vexel/controls/tab_pane.h"

#include <memory>
#include <string>
#include <vector>

namespace gallery
{

/// Tabs that are written down one by one.
class CTabList : public ITabsModel
{
public:
    struct STab
    {
        std::string text;
        int image = -1;
        bool close = false;
        int spacerImage = -1;
        bool enabled = true;
        bool animated = false;
    };

    std::vector<STab> m_Tabs;
    vexel_ptr<IAnimation> m_Frames;

    int GetTabCount() const override { return static_cast<int>(m_Tabs.size()); }
    std::string GetTabText(int tab) const override { return Get(tab).text; }
    int GetTabImageIndex(int tab) const override { return Get(tab).image; }
    int GetTabTextFlags(int tab) const override;
    std::string GetTabTooltip(int tab) const override;
    bool HasTabCloseButton(int tab) const override { return Get(tab).close; }
    int GetTabSpacerWidth(int) const override { return 0; }
    int GetTabSpacerImageIndex(int tab) const override { return Get(tab).spacerImage; }
    bool IsTabEnabled(int tab) const override { return Get(tab).enabled; }
    bool IsTabAnimated(int tab) const override { return Get(tab).animated; }
    vexel_ptr<IAnimation> GetAnimation() const override { return m_Frames; }

private:
    STab const& Get(int tab) const { return m_Tabs[static_cast<std::size_t>(tab)]; }
};

class CTabPanePage : public CPage
{
public:
    ~CTabPanePage() override;

    void Build(CVisualElement* parent) override;

private:
    class CScrolledTabs;

    CTabList& AddTabs(std::initializer_list<char const*> texts);

    std::vector<std::unique_ptr<CTabList>> m_Lists;
};

}  // namespace gallery
