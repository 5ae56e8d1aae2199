#pragma once

#include "gallery/frame/group_model.h"
#include "gallery/frame/page.h"
#include "vexel/views/item_scroll_model.h"

#include <memory>
#include <vector>

namespace gallery
{

/// Multi-level headers in their looks.
class CHeaderPage : public CPage
{
public:
    CHeaderPage();
    ~CHeaderPage() override;

    void Build(CVisualElement* parent) override;

private:
    struct SStrip
    {
        CGroupModel groups;
        CContinuousItemScrollModel scroll;
    };

    CHeader* Add(CVisualElement* parent, std::string const& title, std::string const& name);

    std::vector<std::unique_ptr<SStrip>> m_Strips;
};

}  // namespace gallery
