#pragma once

#include "gallery/frame/cell_editing.h"
#include "gallery/frame/group_model.h"
#include "gallery/frame/page.h"
#include "gallery/frame/table.h"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace gallery
{

/// 1,000 columns in groups of groups over two billion rows; the cells can be edited.
class CGridGroupsPage : public CPage, public subscriber_base_t
{
public:
    CGridGroupsPage();
    ~CGridGroupsPage() override;

    void Build(CVisualElement* parent) override;

private:
    void RepaintAll();
    std::string GetText(int row, int column) const;

    CGroupModel m_Groups;
    CHeader* m_Header = nullptr;
    CTextCells<IContinuousItemViewModel>* m_Grid = nullptr;
    std::map<std::pair<int, int>, std::string> m_Edited;  // by row and the column's own number
    std::unique_ptr<CCellEditing> m_Editing;
};

}  // namespace gallery
