#include "gallery/pages/grid_groups_page.h"

#include "vexel/scroll/scroll_box.h"

#include <limits>

namespace gallery
{

namespace
{

constexpr int s_Rows = std::numeric_limits<int>::max();
constexpr int s_Regions = 25;
constexpr int s_Blocks = 8;   // in each region
constexpr int s_Columns = 5;  // in each block

void Fill(CGroupModel& groups)
{
    int number = 0;
    for (int i = 0; i < s_Regions; ++i)
    {
        CGroup& region = groups.Add("Region " + std::to_string(i + 1), 100);
        for (int j = 0; j < s_Blocks; ++j)
        {
            CGroup& block = region.Add("Block " + std::to_string(j + 1), 100);
            block.m_Expanded = j % 3 != 1;
            for (int k = 0; k < s_Columns; ++k)
                block.Add("Column " + std::to_string(number + k + 1), 100).m_Index = number + k;
            block.m_Index = number;  // collapsed, it stands for its first column
            number += s_Columns;
        }
        region.m_Index = number - s_Blocks * s_Columns;
    }
}

}  // namespace

CGridGroupsPage::CGridGroupsPage() = default;
CGridGroupsPage::~CGridGroupsPage() = default;

void CGridGroupsPage::Build(CVisualElement* parent)
{
    Fill(m_Groups);
    auto* const box = new CScrollBox(parent, {0, 0}, alClient);
    m_Header = new CHeader(box, {0, 60}, alTop);
    m_Grid = new CTextCells<IContinuousItemViewModel>(
        box, {0, 0}, alClient, [this](int row, int column, std::string& text) { text = GetText(row, column); });
    m_Grid->GetRowViewModel()->SetCount(s_Rows);
    m_Header->SetModel(&m_Groups);
    m_Header->RecalculateHeight();
    m_Grid->SetColumnViewModel(m_Header);
    m_Groups.Serve(m_Header);
    box->ConnectElement(m_Grid, CScrollBox::ctBoth, true);
    box->ConnectElement(m_Header, CScrollBox::ctHorizontal, false);

    m_Groups.m_SigMoved.connect(this, &CGridGroupsPage::RepaintAll);
    Report(m_Header->m_SigClicked, "clicked");
    Report(m_Header->m_SigResized, "resized");
    Report(m_Header->m_SigExpanded, "expanded");
    Report(m_Header->m_SigDragOver, "dragOver");
    Report(m_Header->m_SigDropped, "dropped");
    Report(m_Grid->GetRowSelectionModel()->m_SigCurrentChanged, "current row");

    CCellEditing::SCells cells;
    cells.get = [this](int row, int column) { return GetText(row, column); };
    cells.set = [this](int row, int column, std::string const& text) {
        m_Edited[{row, m_Header->VisibleIndex2ModelIndex(column)}] = text;
    };
    cells.choices = [this](int column) -> std::vector<std::string> {
        bool const chooses = m_Header->VisibleIndex2ModelIndex(column) % s_Columns == 3;
        return chooses ? std::vector<std::string>{"none", "some", "all"} : std::vector<std::string>();
    };
    m_Editing = std::make_unique<CCellEditing>(*m_Grid, cells);
    Report(m_Editing->m_SigEdited, "edited");
    Report(m_Editing->m_SigHidden, "editor hidden");
}

std::string CGridGroupsPage::GetText(int row, int column) const
{
    int const number = m_Header->VisibleIndex2ModelIndex(column);
    auto const edited = m_Edited.find({row, number});
    return edited != m_Edited.end() ? edited->second : std::to_string((row + 1LL) * 1000 + number);
}

void CGridGroupsPage::RepaintAll()
{
    m_Grid->GetRowViewModel()->AddDirtyItems(0, s_Rows);
    m_Grid->Update(utElement);
}

}  // namespace gallery
