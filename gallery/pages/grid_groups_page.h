#pragma once

#include "gallery/frame/group_model.h"
#include "gallery/frame/page.h"
#include "gallery/frame/table.h"

namespace gallery
{

/// 1,000 columns in groups of groups over two billion rows.
class CGridGroupsPage : public CPage, public subscriber_base_t
{
public:
    CGridGroupsPage();
    ~CGridGroupsPage() override;

    void Build(CVisualElement* parent) override;

private:
    void RepaintAll();

    CGroupModel m_Groups;
    CHeader* m_Header = nullptr;
    CTextCells<IContinuousItemViewModel>* m_Grid = nullptr;
};

}  // namespace gallery
