#pragma once

#include "gallery/frame/page.h"
#include "vexel/headers/items_model.h"

#include <vector>

namespace vexel
{
class CNotebook;
class CTabs;
}  // namespace vexel

namespace gallery
{

class CSlantedTabsPage : public CPage, public subscriber_base_t
{
public:
    CSlantedTabsPage();
    void Build(CVisualElement* parent) override;

private:
    class CTexts : public IItemsModel
    {
    public:
        explicit CTexts(std::vector<std::string> texts) : m_Texts(std::move(texts)) {}
        int GetItemCount() const override { return static_cast<int>(m_Texts.size()); }
        std::string GetItemCaption(int index) const override { return m_Texts.at(static_cast<std::size_t>(index)); }

    private:
        std::vector<std::string> m_Texts;
    };

    CTabs* AddTabs(CVisualElement* parent, std::string const& name, CTexts& texts, int height);
    void Forbid(CVisualElement*, int before, int tab, bool* allowed);
    void ShowPage(CVisualElement*, int tab);

    CTexts m_Seasons;
    CTexts m_Months;
    CNotebook* m_Notebook = nullptr;
};

}  // namespace gallery
