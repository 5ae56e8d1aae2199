// What a header answers and stores.

#include "tests/headers/header_bench.h"
#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/discrete_item_view_model.h"

#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

using SimpleHeader = CHeaderBench;

}  // namespace

TEST_F(SimpleHeader, ItsDefaults)
{
    CSimpleHeader header(m_Host.Root(), {20, 30}, alLeft);
    EXPECT_EQ(header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(header.GetActiveSection(), -1);
    EXPECT_EQ(header.GetHotSection(), -1);
    EXPECT_EQ(header.GetMinimalSectionWidth(), 15);
    EXPECT_EQ(header.GetModel(), nullptr);
    EXPECT_EQ(header.GetViewModel(), nullptr);
    EXPECT_FALSE(header.IsModelAvailable());
    EXPECT_EQ(header.GetStyle(), 7u);
    EXPECT_FALSE(header.IsLastSectionExpanded());
    EXPECT_TRUE(header.IsTextConverted());
    EXPECT_TRUE(header.IsNativeDrawing());
    EXPECT_EQ(header.GetAlignment(), alLeft);
    EXPECT_EQ(header.GetAlong(3, 4), 4);
    EXPECT_EQ(header.GetSize(), (size<int>{20, 30}));
    EXPECT_EQ(header.GetCursor(), 1);
}

TEST_F(SimpleHeader, WithoutAModelItAnswersNothing)
{
    m_Header.SetModel(nullptr);
    EXPECT_EQ(m_Header.GetSectionCount(), 0);
    EXPECT_EQ(m_Header.GetItemWidth(0), 0);
    EXPECT_EQ(m_Header.GetSortingDirection(0), 0);
    EXPECT_EQ(m_Header.GetItemCaption(0), "");
    EXPECT_EQ(m_Header.GetItemTextAlign(0), 1);
    EXPECT_EQ(m_Header.GetItemImageIndex(0), -1);
    EXPECT_EQ(m_Header.GetItemDescription(0), "");
    EXPECT_FALSE(m_Header.IsModelAvailable());
}

TEST_F(SimpleHeader, TheModelAnswers)
{
    m_Sections.m_Sorting = {0, 2};
    m_Sections.m_TextAlign = 0x22;
    m_Sections.m_ImageIndex = 5;
    EXPECT_EQ(m_Header.GetSectionCount(), 3);
    EXPECT_EQ(m_Header.GetItemWidth(1), 60);
    EXPECT_EQ(m_Header.GetSortingDirection(1), 2);
    EXPECT_EQ(m_Header.GetItemCaption(1), "B");
    EXPECT_EQ(m_Header.GetItemTextAlign(1), 0x22);
    EXPECT_EQ(m_Header.GetItemImageIndex(1), 5);
    EXPECT_EQ(m_Header.GetItemDescription(1), "About B");
    EXPECT_TRUE(m_Header.IsModelAvailable());
}

TEST_F(SimpleHeader, TheViewModelComesFirstForCountAndWidths)
{
    CDefaultColumnViewModel columns;
    columns.SetCount(2);
    columns.SetItemSize(1, 33);
    m_Header.SetViewModel(&columns);
    EXPECT_EQ(m_Header.GetSectionCount(), 2);
    EXPECT_EQ(m_Header.GetItemWidth(0), 20);
    EXPECT_EQ(m_Header.GetItemWidth(1), 33);
    EXPECT_EQ(m_Header.GetItemCaption(1), "B");

    m_Header.SetModel(nullptr);
    EXPECT_TRUE(m_Header.IsModelAvailable());
    EXPECT_EQ(m_Header.GetItemCaption(1), "");
    EXPECT_EQ(Hit(30), "1: 1 1 (20, 0, 52, 20)");

    m_Header.SetViewModel(nullptr);
    EXPECT_FALSE(m_Header.IsModelAvailable());
}

TEST_F(SimpleHeader, AChangeOfAModelRepaintsTheHeader)
{
    CDefaultColumnViewModel columns;
    m_Header.SetViewModel(&columns);
    m_Host.Paint();

    m_Sections.m_SigChanged();
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
    columns.m_SigChanged();
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
    m_Header.OnUpdateModel();
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
}

TEST_F(SimpleHeader, AModelThatWasReplacedIsNotHeardAnyMore)
{
    CSections other({10});
    CDefaultColumnViewModel columns;
    CDefaultColumnViewModel moreColumns;
    m_Header.SetViewModel(&columns);
    m_Header.SetViewModel(&columns);  // a second connection would be reported
    m_Header.SetViewModel(&moreColumns);
    m_Header.SetModel(&m_Sections);
    m_Header.SetModel(&other);
    EXPECT_EQ(m_Header.GetModel(), &other);
    EXPECT_EQ(m_Header.GetViewModel(), &moreColumns);
    m_Host.Paint();

    m_Sections.m_SigChanged();
    columns.m_SigChanged();
    EXPECT_FALSE(m_Host.IsFramePending());
    other.m_SigChanged();
    EXPECT_TRUE(IsRepaintPending(m_Host));
    moreColumns.m_SigChanged();
    EXPECT_TRUE(IsRepaintPending(m_Host));

    m_Header.SetModel(nullptr);
    m_Header.SetViewModel(nullptr);
    m_Host.Paint();
    other.m_SigChanged();
    moreColumns.m_SigChanged();
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(SimpleHeader, ModelsThatDieAreForgotten)
{
    auto sections = std::make_unique<CSections>(std::vector<int>{10});
    auto columns = std::make_unique<CDefaultColumnViewModel>();
    m_Header.SetModel(sections.get());
    m_Header.SetViewModel(columns.get());
    sections.reset();
    EXPECT_EQ(m_Header.GetModel(), nullptr);
    EXPECT_NE(m_Header.GetViewModel(), nullptr);
    columns.reset();
    EXPECT_EQ(m_Header.GetViewModel(), nullptr);
    EXPECT_EQ(Hit(5), "0: 0 0 (0, 0, 0, 0)");
}

TEST_F(SimpleHeader, AModelThatWasReplacedMayDie)
{
    CSections other({10});
    CDefaultColumnViewModel moreColumns;
    {
        CSections first({10});
        CDefaultColumnViewModel columns;
        m_Header.SetModel(&first);
        m_Header.SetViewModel(&columns);
        m_Header.SetModel(&other);
        m_Header.SetViewModel(&moreColumns);
    }
    EXPECT_EQ(m_Header.GetModel(), &other);
    EXPECT_EQ(m_Header.GetViewModel(), &moreColumns);
    m_Header.SetViewModel(nullptr);
}

TEST_F(SimpleHeader, ItDiesBeforeItsModels)
{
    CSections sections({10});
    CDefaultColumnViewModel columns;
    auto header = std::make_unique<CSimpleHeader>(m_Host.Root(), size<int>{20, 20}, alTop);
    header->SetModel(&sections);
    header->SetViewModel(&columns);
    header.reset();
    sections.m_SigChanged();
    columns.m_SigChanged();
}

TEST_F(SimpleHeader, TheMinimalWidthHasABottomThatScales)
{
    m_Header.SetMinimalSectionWidth(0);
    EXPECT_EQ(m_Header.GetMinimalSectionWidth(), 15);
    m_Header.SetMinimalSectionWidth(16);
    EXPECT_EQ(m_Header.GetMinimalSectionWidth(), 16);
    m_Header.SetMinimalSectionWidth(-100);
    EXPECT_EQ(m_Header.GetMinimalSectionWidth(), 15);

    m_Host.SetScale(1.5);
    EXPECT_EQ(m_Header.GetMinimalSectionWidth(), 15);
    m_Header.SetMinimalSectionWidth(3);
    EXPECT_EQ(m_Header.GetMinimalSectionWidth(), 22);  // 22.5
    CSimpleHeader const other(m_Host.Root(), {20, 20}, alTop);
    EXPECT_EQ(other.GetMinimalSectionWidth(), 22);
}

TEST_F(SimpleHeader, AnotherStyleRepaints)
{
    m_Header.SetStyle(7);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Header.SetStyle(CSimpleHeader::hsFlat | CSimpleHeader::hsPress);
    EXPECT_EQ(m_Header.GetStyle(), 10u);
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
}

TEST_F(SimpleHeader, ExpandingTheLastSectionRepaints)
{
    m_Header.ExpandLastSection(false);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Header.ExpandLastSection(true);
    EXPECT_TRUE(m_Header.IsLastSectionExpanded());
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
    m_Header.ExpandLastSection(true);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Header.ExpandLastSection(false);
    EXPECT_FALSE(m_Header.IsLastSectionExpanded());
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(SimpleHeader, WithAViewModelThatDecidesOnTheLastSection)
{
    CDefaultColumnViewModel columns;
    m_Header.SetViewModel(&columns);
    m_Host.Paint();
    m_Header.ExpandLastSection(true);
    EXPECT_FALSE(m_Header.IsLastSectionExpanded());
    EXPECT_FALSE(m_Host.IsFramePending());

    columns.SetStretchLastItem(true);
    EXPECT_TRUE(m_Header.IsLastSectionExpanded());
    m_Header.SetViewModel(nullptr);
    EXPECT_FALSE(m_Header.IsLastSectionExpanded());

    m_Header.ExpandLastSection(true);
    CDefaultColumnViewModel plain;
    m_Header.SetViewModel(&plain);
    EXPECT_FALSE(m_Header.IsLastSectionExpanded());
    m_Header.SetViewModel(nullptr);
    EXPECT_TRUE(m_Header.IsLastSectionExpanded());
}
