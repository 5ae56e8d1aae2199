#include "tests/antialiasing/pixel_context.h"

#include "vexel/antialiasing/contour.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <string>

namespace antialiasing
{

namespace
{

using tests::CPixelContext;

// Sides --------------------------------------------------------------------------------------------------------------

struct SNeighbours
{
    bool outX, outY, inX, inY;
    unsigned long kind;
};

TEST(ContourSides, TheKindFollowsFromFourNeighbours)
{
    SNeighbours const cases[] = {
        {true, true, true, true, 3},    {true, true, true, false, 1},   {true, true, false, true, 1},
        {true, true, false, false, 1},  {true, false, true, true, 2},   {true, false, true, false, 3},
        {true, false, false, true, 3},  {true, false, false, false, 3}, {false, true, true, true, 2},
        {false, false, true, true, 2},  {false, true, true, false, 3},  {false, false, true, false, 3},
        {false, true, false, true, 3},  {false, true, false, false, 3}, {false, false, false, true, 3},
        {false, false, false, false, 3}};
    for (SNeighbours const& test : cases)
    {
        // The pixel is right of the centre and above it.
        CContour contour;
        if (test.outX)
            contour.m_Contour[{6, 2}] = {};
        if (test.outY)
            contour.m_Solid[{5, 1}] = 0;
        if (test.inX)
            contour.m_Solid[{4, 2}] = 0;
        if (test.inY)
            contour.m_Contour[{5, 3}] = {};
        CContour::Map map{{{5, 2}, {0, 0, 0, 0, 9}}};

        contour.Classify(map, 3, 7);

        EXPECT_EQ((map[{5, 2}].m_Kind), test.kind) << test.outX << test.outY << test.inX << test.inY;
    }
}

TEST(ContourSides, OnTheCentreLineAPixelIsItsOwnNeighbour)
{
    CContour contour;
    contour.m_Contour[{3, 2}] = {};
    contour.m_Contour[{3, 1}] = {};

    contour.Classify(contour.m_Contour, 3, 7);  // outward and inward along x is the pixel itself

    EXPECT_EQ((contour.m_Contour[{3, 2}].m_Kind), 1ul);  // something outside, nothing inside
    EXPECT_EQ((contour.m_Contour[{3, 1}].m_Kind), 2ul);
}

TEST(ContourSides, PartsAreRemovedByKind)
{
    CContour contour;
    CContour::Map map;
    for (unsigned kind = 0; kind < 8; ++kind)
        map[{static_cast<long>(kind), 0}].m_Kind = kind;

    contour.RemoveContourPart(map, 3, 4);

    std::string left;
    for (auto const& [position, pixel] : map)
        left += std::to_string(position.x);
    EXPECT_EQ(left, "04567");
}

class UtmostPoint : public testing::Test
{
protected:
    tagPOINT Find(bool leftmost, int offset, tagRECT const& limit = {-100, -100, 100, 100})
    {
        return CContour::FindUtmostHorzPoint(m_A, m_B, m_C, leftmost, offset, limit);
    }

    std::map<tagPOINT, unsigned long> m_A;
    CContour::Map m_B, m_C;
};

TEST_F(UtmostPoint, TakesTheRowOfTheFirstEntryOutOfBothMaps)
{
    m_A = {{{3, 1}, 0}, {{4, 2}, 0}, {{5, 1}, 0}};
    m_B = {{{1, 1}, {}}, {{1, 2}, {}}, {{9, 1}, {}}};
    m_C = {{{0, 1}, {}}};

    EXPECT_EQ(Find(true, 10), (tagPOINT{11, 1}));

    EXPECT_EQ(m_A.size(), 1u);
    EXPECT_EQ(m_B.size(), 1u);
    EXPECT_EQ(m_C.size(), 1u);  // not walked

    EXPECT_EQ(Find(false, 0), (tagPOINT{4, 2}));
    EXPECT_TRUE(m_A.empty());
    EXPECT_TRUE(m_B.empty());
}

TEST_F(UtmostPoint, TheRightmostOne)
{
    m_A = {{{3, 1}, 0}, {{5, 1}, 0}};
    m_B = {{{9, 1}, {}}};

    EXPECT_EQ(Find(false, -1), (tagPOINT{8, 1}));
}

TEST_F(UtmostPoint, FallsBackToTheOtherMaps)
{
    m_B = {{{1, 4}, {}}, {{2, 4}, {}}};
    m_C = {{{7, 5}, {}}, {{8, 5}, {}}};

    EXPECT_EQ(Find(false, 0), (tagPOINT{2, 4}));
    EXPECT_EQ(Find(true, 0), (tagPOINT{7, 5}));
    EXPECT_EQ(m_C.size(), 1u);
    EXPECT_EQ(Find(true, 0), (tagPOINT{8, 5}));
    EXPECT_EQ(Find(true, 0), (tagPOINT{0x7FFFFFFF, 0}));  // all empty
}

TEST_F(UtmostPoint, TheColumnIsHeldAgainstTheBottomToo)
{
    auto const at = [&](long x, long y, tagRECT const& limit) {
        m_C = {{{x, y}, {}}};
        return Find(true, 0, limit).x;
    };
    tagRECT const wide{2, 3, 8, 20};
    EXPECT_EQ(at(2, 3, wide), 2);
    EXPECT_EQ(at(7, 50, wide), 7);  // the row may be below the bottom
    EXPECT_EQ(at(1, 3, wide), 0x7FFFFFFF);
    EXPECT_EQ(at(8, 3, wide), 0x7FFFFFFF);
    EXPECT_EQ(at(2, 2, wide), 0x7FFFFFFF);
    tagRECT const low{2, 3, 8, 5};
    EXPECT_EQ(at(4, 4, low), 4);
    EXPECT_EQ(at(5, 4, low), 0x7FFFFFFF);
}

// Ambient area -------------------------------------------------------------------------------------------------------

std::string Keys(CContour const& contour)
{
    std::string text;
    for (auto const& [position, colour] : contour.m_Ambient.m_Primary)
        text += "(" + std::to_string(position.x) + "," + std::to_string(position.y) + ")";
    return text;
}

// Which ambient pixel each pixel of the contour has.
std::string Index(CContour const& contour)
{
    std::string text;
    for (auto const& [position, colour] : contour.m_Ambient.m_Secondary)
    {
        text += "(" + std::to_string(position.x) + "," + std::to_string(position.y) + ")";
        for (auto const& [key, value] : contour.m_Ambient.m_Owner->m_Primary)
            if (&value == colour)
                text += ">(" + std::to_string(key.x) + "," + std::to_string(key.y) + ")";
    }
    return text;
}

void Add(CContour& contour, std::initializer_list<tagPOINT> points)
{
    for (tagPOINT const& point : points)
        contour.m_Contour[point] = {};
}

TEST(AmbientArea, IsTheContourMovedWithoutItself)
{
    CContour contour;
    Add(contour, {{1, 1}, {2, 1}, {3, 1}, {5, 1}});
    contour.m_Solid[{4, 1}] = 0;
    contour.m_Overlaid[{6, 1}] = {};
    contour.m_Ambient.m_Primary[{50, 50}] = 1;

    contour.BuildAmbientArea(1, 0, false);
    EXPECT_EQ(Keys(contour), "");  // all of it moved onto itself

    contour.BuildAmbientArea(0, 2, false);
    EXPECT_EQ(Keys(contour), "(1,3)(2,3)(3,3)(5,3)");
    EXPECT_EQ(Index(contour), "(1,1)>(1,3)(2,1)>(2,3)(3,1)>(3,3)(5,1)>(5,3)");
    EXPECT_EQ((contour.m_Ambient.m_Primary.at({1, 3})), NoColor);

    contour.BuildAmbientArea(0, 2, true);
    EXPECT_EQ(Keys(contour), "(1,-1)(1,3)(2,-1)(2,3)(3,-1)(3,3)(5,-1)(5,3)");
    EXPECT_EQ(Index(contour), "(1,1)>(1,-1)(2,1)>(2,-1)(3,1)>(3,-1)(5,1)>(5,-1)");  // ties keep the earlier one
}

TEST(AmbientArea, IsLeftAloneWithoutPixels)
{
    CContour contour;
    contour.m_Ambient.m_Primary[{5, 5}] = 1;

    contour.BuildAmbientArea(1, 1, true);
    contour.BuildAmbientArea(0, 0, 1, 1, true);

    EXPECT_EQ(Keys(contour), "(5,5)");
}

TEST(AmbientArea, MovesAwayFromACentreAndOntoZeroOnItsLines)
{
    CContour contour;
    Add(contour, {{2, 20}, {8, 4}, {5, 10}, {8, 10}});

    contour.BuildAmbientArea(5, 10, 3, 1, false);
    EXPECT_EQ(Keys(contour), "(-1,21)(0,0)(11,0)(11,3)");

    contour.BuildAmbientArea(5, 10, 3, 1, true);
    EXPECT_EQ(Keys(contour), "(-1,21)(0,0)(5,0)(5,5)(5,19)(11,0)(11,3)");
}

TEST(AmbientArea, PixelsAlreadyThereKeepTheirColour)
{
    CContour contour;
    Add(contour, {{1, 1}});
    contour.m_Ambient.m_Primary[{2, 2}] = 7;

    contour.AddAmbientPoints({{{1, 1}, {}}, {{2, 2}, {}}, {{3, 3}, {}}});

    EXPECT_EQ(Keys(contour), "(2,2)(3,3)");
    EXPECT_EQ((contour.m_Ambient.m_Primary[{2, 2}]), 7ul);
    EXPECT_EQ((contour.m_Ambient.m_Primary[{3, 3}]), NoColor);
}

TEST(AmbientArea, TheIndexFindsTheNearestPixel)
{
    CContour contour;
    Add(contour, {{0, 0}, {3, 9}, {4, 0}, {9, 5}});
    auto& area = contour.m_Ambient.m_Primary;
    for (tagPOINT const& point : {tagPOINT{-3, 0}, {0, 4}, {2, 2}, {5, 9}, {6, 0}, {9, 9}, {20, 5}})
        area[point] = 0;

    contour.IndexAmbientPoints();

    // squares: (0,0): 9, 16, 8, ...; (3,9): (5,9) 4; (4,0): (6,0) 4, (2,2) 8; (9,5): (9,9) 16
    EXPECT_EQ(Index(contour), "(0,0)>(2,2)(3,9)>(5,9)(4,0)>(6,0)(9,5)>(9,9)");
}

TEST(AmbientArea, TheIndexTakesWhatLiesBeforeAllPixels)
{
    CContour contour;
    Add(contour, {{10, 0}, {12, 0}});
    contour.m_Ambient.m_Primary[{1, 1}] = 0;
    contour.m_Ambient.m_Primary[{2, 1}] = 0;

    contour.IndexAmbientPoints();

    EXPECT_EQ(Index(contour), "(10,0)>(2,1)(12,0)>(2,1)");
}

TEST(AmbientArea, TheIndexLooksFurtherToTheLeftWhereThatIsNeeded)
{
    CContour contour;
    Add(contour, {{0, 0}, {0, 52}});
    for (tagPOINT const& point : {tagPOINT{-5, 50}, {0, 1}})
        contour.m_Ambient.m_Primary[point] = 0;

    contour.IndexAmbientPoints();

    EXPECT_EQ(Index(contour), "(0,0)>(0,1)(0,52)>(-5,50)");
}

TEST(AmbientArea, TheIndexKeepsWhatItHas)
{
    CContour contour;
    Add(contour, {{0, 0}});
    auto& area = contour.m_Ambient.m_Primary;
    area[{1, 0}] = 0;
    area[{9, 9}] = 0;
    contour.m_Ambient.m_Secondary[{0, 0}] = &area[{9, 9}];

    contour.IndexAmbientPoints();

    EXPECT_EQ(Index(contour), "(0,0)>(9,9)");
}

TEST(AmbientArea, ColoursAreReadOnceAndFoundByPixel)
{
    CContour contour, empty;
    Add(contour, {{1, 1}, {2, 1}});
    contour.BuildAmbientArea(0, 1, false);
    Add(contour, {{7, 7}});
    CPixelContext context(0x111111);
    context.m_Pixels[{2, 2}] = 0x222222;

    contour.UpdateAmbientColors(&context);

    EXPECT_EQ(context.Take(), "get 1,2 get 2,2");
    EXPECT_EQ(contour.GetAmbientColorForPt({1, 1}), 0x111111ul);
    EXPECT_EQ(contour.GetAmbientColorForPt({2, 1}), 0x222222ul);
    EXPECT_EQ(contour.GetAmbientColorForPt({7, 7}), NoColor);
    EXPECT_EQ(empty.GetAmbientColorForPt({1, 1}), NoColor);
}

TEST(AmbientArea, SharingTakesTheOthersPixelsAndKeepsTheOwnIndex)
{
    CContour owner, sharer;
    Add(owner, {{0, 0}});
    owner.BuildAmbientArea(0, 1, false);
    Add(sharer, {{2, 0}});
    sharer.BuildAmbientArea(0, 5, false);

    sharer.ShareAmbientArea(owner);

    EXPECT_EQ(Index(sharer), "(2,0)>(0,1)");
    EXPECT_EQ(sharer.m_Ambient.m_Owner, &owner.m_Ambient);
    EXPECT_EQ(owner.m_Ambient.m_Sharers.size(), 1u);
    EXPECT_EQ(sharer.m_Ambient.m_Saved->size(), 1u);

    // Again: only what is new is looked for.
    Add(sharer, {{3, 0}});
    sharer.ShareAmbientArea(owner);
    EXPECT_EQ(Index(sharer), "(2,0)>(0,1)(3,0)>(0,1)");
    EXPECT_EQ(sharer.m_Ambient.m_Saved->size(), 1u);

    sharer.m_Ambient.detach();
    EXPECT_EQ(Index(sharer), "(2,0)>(2,5)");
}

TEST(AmbientArea, SharingWithAnotherKeepsTheOwnIndexToo)
{
    CContour first, second, sharer;
    Add(first, {{0, 0}});
    first.BuildAmbientArea(0, 1, false);
    Add(second, {{0, 0}});
    second.BuildAmbientArea(0, 2, false);
    Add(sharer, {{2, 0}});
    sharer.BuildAmbientArea(0, 5, false);

    sharer.ShareAmbientArea(first);
    sharer.ShareAmbientArea(second);

    EXPECT_TRUE(first.m_Ambient.m_Sharers.empty());
    EXPECT_EQ(Index(sharer), "(2,0)>(0,2)");
    sharer.m_Ambient.detach();
    EXPECT_EQ(Index(sharer), "(2,0)>(2,5)");
}

TEST(AmbientArea, SharingWithAnEmptyOneOrItselfChangesNothing)
{
    CContour empty, contour;
    Add(contour, {{0, 0}});
    contour.BuildAmbientArea(0, 1, false);

    contour.ShareAmbientArea(empty);
    contour.ShareAmbientArea(contour);

    EXPECT_EQ(contour.m_Ambient.m_Owner, &contour.m_Ambient);
    EXPECT_TRUE(contour.m_Ambient.m_Sharers.empty());
    EXPECT_EQ(Index(contour), "(0,0)>(0,1)");
}

TEST(AmbientArea, OwnersAndSharersDieInAnyOrder)
{
    int order[] = {0, 1, 2};
    do
    {
        std::unique_ptr<CContour> contours[3];
        for (int i = 0; i < 3; ++i)
        {
            contours[i] = std::make_unique<CContour>();
            Add(*contours[i], {{i, 0}});
            contours[i]->BuildAmbientArea(0, i + 1, false);
        }
        contours[1]->ShareAmbientArea(*contours[0]);
        contours[2]->ShareAmbientArea(*contours[0]);
        for (int const i : order)
        {
            contours[i].reset();
            for (int k = 0; k < 3; ++k)
            {
                if (!contours[k])
                    continue;
                bool const shares = k != 0 && contours[0];
                std::string const at = "(" + std::to_string(k) + ",0)>";
                EXPECT_EQ(Index(*contours[k]),
                          shares ? at + "(0,1)" : at + "(" + std::to_string(k) + "," + std::to_string(k + 1) + ")");
                CPixelContext context;
                contours[k]->Draw(&context);
            }
        }
    } while (std::next_permutation(order, order + 3));
}

TEST(AmbientArea, OffsetMovesTheAreaAndAllIndices)
{
    CContour owner, sharer;
    Add(owner, {{0, 0}});
    owner.BuildAmbientArea(0, 1, false);
    Add(sharer, {{2, 0}});
    sharer.BuildAmbientArea(0, 5, false);
    sharer.ShareAmbientArea(owner);

    owner.Offset(10, 20);

    EXPECT_EQ(Keys(owner), "(10,21)");
    EXPECT_EQ(Index(owner), "(10,20)>(10,21)");
    EXPECT_EQ(Index(sharer), "(12,20)>(10,21)");  // the sharer's pixels themselves stay
    EXPECT_EQ(sharer.m_Contour.count({2, 0}), 1u);

    sharer.Offset(100, 0);

    EXPECT_EQ(Keys(sharer), "(102,5)");
    EXPECT_EQ(Index(sharer), "(12,20)>(10,21)");
    sharer.m_Ambient.detach();
    EXPECT_EQ(Index(sharer), "(102,0)>(102,5)");
}

}  // namespace

}  // namespace antialiasing
