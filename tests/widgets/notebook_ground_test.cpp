// What shows where a notebook has no page to show.

#include "tests/support/leaf.h"
#include "vexel/controls/bevel.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/notebook.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A notebook of three pages on a ground of its own colour.
class NotebookGround : public testing::Test
{
protected:
    NotebookGround()
    {
        m_Ground.SetBkColor(color_table[3]);
        for (int i = 0; i < 3; ++i)
            new CLeaf(&m_Book, {0, 0}, alNone, i);
        m_Host.Paint();
    }
    void Remove(int index) { std::unique_ptr<CVisualElement> const page(m_Book.RemovePage(index)); }

    CTestHost m_Host{100, 100};
    CBevel& m_Ground = *new CBevel(m_Host.Root(), {0, 0}, alClient);
    CNotebook& m_Book = *new CNotebook(&m_Ground, {0, 0}, alClient);
};

}  // namespace

TEST_F(NotebookGround, ShowsWhenTheOnlyPageIsRemoved)
{
    Remove(0);
    Remove(0);
    EXPECT_FALSE(m_Book.IsTransparent());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    Remove(0);
    EXPECT_TRUE(m_Book.IsTransparent());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    EXPECT_EQ(m_Host.PixelAt(50, 50), color_table[3]);
}
