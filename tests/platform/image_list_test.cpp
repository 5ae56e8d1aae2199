#include "vexel/platform/image_list.h"

#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/palette.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/system.h"

#include <gtest/gtest.h>

namespace vexelbase::test
{

namespace
{

char const* g_Lines[] = {"2 1 2 1", "r c #FF0000", ". c None", "r."};

// A red and a see-through pixel at 0, a picture of 3 x 2 black pixels at 1, nothing at 2; drawn on white.
class ImageList : public testing::Test
{
protected:
    ImageList()
    {
        m_Black = m_System.CreateRasterPicture({3, 2});
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x)
                m_Black->GetPixels().Row(y)[x] = 0xFF000000u;
        EXPECT_EQ(m_List.Add(XPMImage(XPMBuf(g_Lines, true))), 0);
        EXPECT_EQ(m_List.Add(m_Black), 1);
        EXPECT_EQ(m_List.Add(vexel_ptr<IRasterPicture>()), 2);
        m_Target->GetPainter()->BeginPaint(IPainter::ssPaint);
    }
    ~ImageList() override { m_Target->GetPainter()->EndPaint(); }

    IPainter* Painter() { return m_Target->GetPainter(); }
    std::uint32_t At(int x, int y) { return m_Target->GetPixels().Row(y)[x] & 0xFFFFFFu; }

    memory::CMemorySystem m_System;
    vexel_ptr<IRasterPicture> m_Target = m_System.CreateRasterPicture({8, 8});
    vexel_ptr<IRasterPicture> m_Black;
    CImageList m_List;
};

}  // namespace

TEST_F(ImageList, TellsTheSizesOfItsImages)
{
    EXPECT_EQ(m_List.GetCount(), 3);
    EXPECT_EQ(m_List.GetSize(0), (size<int>{2, 1}));
    EXPECT_EQ(m_List.GetSize(1), (size<int>{3, 2}));
    EXPECT_EQ(m_List.GetSize(2), (size<int>{0, 0}));
    EXPECT_EQ(m_List.GetSize(3), (size<int>{0, 0}));
    EXPECT_EQ(m_List.GetSize(-1), (size<int>{0, 0}));
    m_System.SetScale(2.0);
    EXPECT_EQ(m_List.GetSize(0), (size<int>{4, 2}));
    EXPECT_EQ(m_List.GetSize(1), (size<int>{3, 2}));
}

TEST_F(ImageList, DrawsAnImageAtItsPlace)
{
    m_List.Draw(Painter(), 0, 1, 1);
    EXPECT_EQ(At(1, 1), 0xFF0000u);
    EXPECT_EQ(At(2, 1), 0xFFFFFFu);
    m_List.Draw(Painter(), 1, 4, 4);
    EXPECT_EQ(At(4, 4), 0u);
    EXPECT_EQ(At(6, 5), 0u);
    EXPECT_EQ(At(7, 5), 0xFFFFFFu);
    EXPECT_EQ(At(6, 6), 0xFFFFFFu);
}

TEST_F(ImageList, DrawsNothingWhereThereIsNoImage)
{
    for (int const index : {-1, 2, 3})
    {
        m_List.Draw(Painter(), index, 0, 0);
        m_List.DrawDisabled(Painter(), index, 0, 0);
    }
    m_List.Draw(nullptr, 0, 0, 0);
    m_List.DrawDisabled(nullptr, 0, 0, 0);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            EXPECT_EQ(At(x, y), 0xFFFFFFu);
}

TEST_F(ImageList, ADisabledImageIsGreyAndThePainterIsAsBefore)
{
    m_List.DrawDisabled(Painter(), 0, 0, 0);
    std::uint32_t const pixel = At(0, 0);
    EXPECT_NE(pixel, 0xFF0000u);
    EXPECT_NE(pixel, 0xFFFFFFu);
    EXPECT_FALSE(Painter()->m_DisabledMode);
    m_Black->GetPixels().Row(0)[0] = 0xFF0000FFu;
    m_List.DrawDisabled(Painter(), 1, 0, 4);
    EXPECT_NE(At(0, 4), 0x0000FFu);
    EXPECT_EQ(At(0, 4) & 0xFFu, At(0, 4) >> 16);
}

TEST_F(ImageList, IsEmptyOnceCleared)
{
    m_List.Clear();
    EXPECT_EQ(m_List.GetCount(), 0);
    EXPECT_EQ(m_List.GetSize(0), (size<int>{0, 0}));
}

}  // namespace vexelbase::test
