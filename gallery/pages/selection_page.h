#pragma once

#include "gallery/frame/page.h"
#include "gallery/frame/table.h"

#include <deque>

namespace gallery
{

class CPanel;

class CSelectionPage : public CPage
{
public:
    void Build(CVisualElement* parent) override;

private:
    /// A list, and below it how many of its rows are selected.
    class CCounted : public subscriber_base_t
    {
    public:
        CCounted(CVisualElement* parent, CEventHandlerBase::SelectionType type, std::string const& caption);

        CTextRows<IDiscreteItemViewModel>* GetList() const { return m_List; }

    private:
        void Changed();

        CTextRows<IDiscreteItemViewModel>* m_List;
        CPanel* m_Count;
    };

    std::deque<CCounted> m_Lists;
};

}  // namespace gallery
