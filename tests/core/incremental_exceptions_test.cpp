// Where painting what waits differs from painting everything, because the rules order it: what the list in
// docs/decisions.md tells, one test each.

#include "vexel/core/base_control.h"
#include "vexel/core/clip_holder.h"
#include "vexel/core/invalid_region.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/base_painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

class CFill : public CVisualElement
{
public:
    CFill(CVisualElement* parent, size<int> const& extent, Alignment alignment, int color)
        : CVisualElement(parent, extent, alignment)
    {
        SetBkColor(color_table[color]);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        painter->FillRect(0, 0, rect.right, rect.bottom);
    }
};

constexpr int g_Red = 6;
constexpr int g_Blue = 4;
constexpr int g_White = 9;
constexpr int g_Yellow = 3;

class IncrementalException : public testing::Test
{
protected:
    // A pixel as it stands, and as a paint of everything makes it.
    void ExpectDifference(int x, int y, int stands, int painted)
    {
        m_Host.Paint();
        EXPECT_EQ(m_Host.PixelAt(x, y), color_table[stands]);
        m_Host.FullPaint();
        EXPECT_EQ(m_Host.PixelAt(x, y), color_table[painted]);
    }

    CTestHost m_Host{60, 40};
    CFill& m_Ground = *new CFill(m_Host.Root(), {0, 0}, alClient, g_White);
};

}  // namespace

TEST_F(IncrementalException, TheLowerOfOverlappingSiblingsCoversTheUpperOne)
{
    auto& lower = *new CFill(&m_Ground, {0, 0}, alNone, g_Red);
    auto& upper = *new CFill(&m_Ground, {0, 0}, alNone, g_Blue);
    lower.SetPos({0, 0, 20, 20}, true);
    upper.SetPos({10, 10, 30, 30}, true);
    m_Host.Paint();

    lower.Update(utElement);

    ExpectDifference(15, 15, g_Red, g_Blue);
}

TEST_F(IncrementalException, AnElementOfNoAlignmentThatIsHiddenStaysOnTheScreen)
{
    auto& sheet = *new CFill(&m_Ground, {0, 0}, alNone, g_Red);
    sheet.SetPos({0, 0, 20, 20}, true);
    m_Host.Paint();

    sheet.SetVisible(false);

    ExpectDifference(5, 5, g_Red, g_White);
}

TEST_F(IncrementalException, ADeletedElementStaysOnTheScreen)
{
    auto& sheet = *new CFill(&m_Ground, {20, 0}, alLeft, g_Red);
    m_Host.Paint();

    delete &sheet;

    ExpectDifference(5, 5, g_Red, g_White);
}

TEST_F(IncrementalException, TheLineOfADockedChildWithoutRoomIsNobodys)
{
    auto& left = *new CFill(&m_Ground, {20, 0}, alLeft, g_Red);
    new CFill(&m_Ground, {0, 0}, alClient, g_Blue);
    m_Host.Paint();

    left.SetSize({0, 0}, false);

    ExpectDifference(0, 5, g_Red, g_White);
}

TEST_F(IncrementalException, OfTwoClientsTheEarlierOneKeepsItsPlace)
{
    auto& first = *new CFill(&m_Ground, {0, 0}, alClient, g_Red);
    m_Host.Paint();
    auto& second = *new CFill(&m_Ground, {0, 0}, alClient, g_Blue);
    m_Host.Paint();
    EXPECT_EQ(first.GetPos(), second.GetPos());

    first.Update(utElement);

    ExpectDifference(5, 5, g_Red, g_Blue);
}

TEST_F(IncrementalException, AnElementThatSticksOutOfItsParentIsNotCut)
{
    auto& left = *new CFill(&m_Ground, {20, 0}, alLeft, g_Yellow);
    auto& sheet = *new CFill(&left, {0, 0}, alNone, g_Red);
    new CFill(&m_Ground, {0, 0}, alClient, g_Blue);
    sheet.SetPos({10, 0, 40, 20}, true);
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(30, 5), color_table[g_Blue]);

    sheet.Update(utElement);

    ExpectDifference(30, 5, g_Red, g_Blue);
}

TEST_F(IncrementalException, AFilledGroundCoversWhatAnElementThatPaintsInStripsTakesForStanding)
{
    class CStrips : public CFill
    {
    public:
        using CFill::CFill;
        bool IsFullRepainted() const override { return false; }

    protected:
        void DrawContent(IPainter* painter) override
        {
            CInvalidRegion const region(GetDrawRect(painter), GetDrawValidRect(painter));
            for (int i = 0; i < region.GetCount(); ++i)
            {
                CClipHolder const clip(painter, region[i]);
                CFill::DrawContent(painter);
            }
        }
    };
    new CStrips(&m_Ground, {20, 0}, alLeft, g_Red);
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(5, 5), color_table[g_Red]);

    m_Ground.Update(utElement);

    ExpectDifference(5, 5, g_White, g_Red);
}
