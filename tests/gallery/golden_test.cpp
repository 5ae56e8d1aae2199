// Every page of the gallery at every scale and in both themes: built, painted, used and deleted on the memory backend,
// and compared pixel for pixel with its accepted picture in tests/gallery/golden. With VEXEL_GOLDEN=accept those that
// differ are written there instead; `./dev golden` does it.

#include "gallery/frame/frame.h"
#include "gallery/pages.h"
#include "tests/gallery/golden_pictures.h"
#include "tests/gallery/picture_file.h"
#include "vexel/platform/convert.h"
#include "vexel/testing/test_kit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <set>
#include <string>
#include <vector>

using namespace vexel;
using namespace vexel::test;
using testing::ElementsAre;
using testing::HasSubstr;

namespace gallery
{

namespace
{

struct SScale
{
    char const* name;
    double factor;
};

SScale const g_Scales[] = {{"1", 1.0}, {"1.25", 1.25}, {"1.5", 1.5}, {"2", 2.0}};
char const* const g_Themes[] = {"light", "dark"};

/// A page in a theme at a scale.
struct SLook
{
    int page;
    char const* theme;
    SScale scale;

    char const* GetPageName() const { return GetPages()[static_cast<std::size_t>(page)].name; }
    std::string GetName() const { return std::string(GetPageName()) + "_" + theme + "_" + scale.name; }
};

void PrintTo(SLook const& look, std::ostream* out)
{
    *out << look.GetName();
}

std::vector<SLook> AllLooks()
{
    std::vector<SLook> looks;
    for (int page = 0; page < static_cast<int>(GetPages().size()); ++page)
        for (char const* const theme : g_Themes)
            for (SScale const& scale : g_Scales)
                looks.push_back({page, theme, scale});
    return looks;
}

CGoldenPictures TheGoldenPictures()
{
    char const* const wish = std::getenv("VEXEL_GOLDEN");
    return {VEXEL_GOLDEN_PICTURES, VEXEL_FAILED_PICTURES, wish && wish == std::string("accept")};
}

/// The pixels of the area's bounds, which include their right and bottom.
CPixelBuffer Cut(CPixelBuffer const& whole, rectangle<int> const& area)
{
    CPixelBuffer part({area.Width() + 1, area.Height() + 1});
    for (int y = 0; y < part.GetHeight(); ++y)
        vexelbase::CopyPixelRow(part.Row(y), whole.Row(area.top + y) + area.left, part.GetWidth());
    return part;
}

/// The theme, before anything is made in it.
struct STheme
{
    explicit STheme(std::string const& name)
    {
        if (name == "dark")
            CTestHost::System().GetMemoryPalette().SetDark();
    }
};

class GoldenPage : public testing::TestWithParam<SLook>
{
protected:
    GoldenPage() { m_Host.Paint(); }

    double Factor() const { return GetParam().scale.factor; }
    int Pixels(int unscaled) const { return ToInt(unscaled * Factor()); }
    rectangle<int> Area() const
    {
        rectangle<int> rect = m_Frame.GetPageArea()->GetBounds();
        m_Frame.GetPageArea()->ElementToControl(&rect);
        return rect;
    }
    void ClickAbout()
    {
        rectangle<int> const area = Area();
        for (int y = area.top + Pixels(12); y < area.bottom; y += Pixels(97))
            for (int x = area.left + Pixels(15); x < area.right; x += Pixels(83))
                m_Host.Mouse().Click(x, y);
        m_Host.Paint();
    }
    void TabAbout()
    {
        m_Host.Focus();
        for (int i = 0; i < 12; ++i)
        {
            m_Host.Keyboard().Tab(i < 9);
            m_Host.Paint();
        }
    }

    STheme const m_Theme{GetParam().theme};
    CTestHost m_Host{Pixels(1000), Pixels(700), Factor()};
    CFrame m_Frame{m_Host.Control(), {}, {.page = GetParam().page}};
};

}  // namespace

TEST_P(GoldenPage, LooksAsAcceptedAndStandsUse)
{
    std::string const difference = TheGoldenPictures().Check(GetParam().GetName(), Cut(m_Host.Pixels(), Area()));
    EXPECT_TRUE(difference.empty()) << difference;

    ClickAbout();
    TabAbout();

    if (GetParam().GetPageName() != std::string("repaint"))  // counts its paints
    {
        EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    }
}

INSTANTIATE_TEST_SUITE_P(All, GoldenPage, testing::ValuesIn(AllLooks()), [](auto const& look) {
    std::string name = look.param.GetName();
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
});

TEST(GoldenFolder, HasNoPictureWithoutAPage)
{
    std::set<std::string> names;
    for (SLook const& look : AllLooks())
        names.insert(look.GetName());

    EXPECT_THAT(TheGoldenPictures().FindOrphans(names), ElementsAre()) << CGoldenPictures::Advice;
}

// The comparison itself ------------------------------------------------------------------------------------------------

namespace
{

class GoldenPictures : public testing::Test
{
protected:
    GoldenPictures() { std::filesystem::remove_all(m_Place); }
    ~GoldenPictures() override { std::filesystem::remove_all(m_Place); }

    CGoldenPictures Pictures(bool accept = false) const { return {m_Place / "golden", m_Place / "failed", accept}; }
    bool Exists(char const* file) const { return std::filesystem::exists(m_Place / file); }

    // A name of its own: the programs of several build trees may run beside each other.
    std::filesystem::path const m_Place =
        std::filesystem::path(VEXEL_FAILED_PICTURES) / testing::UnitTest::GetInstance()->current_test_info()->name();
    CPixelBuffer m_Picture{{8, 5}, 0xFFFFFFFFu};
};

}  // namespace

TEST_F(GoldenPictures, AreEqualToThemselves)
{
    EXPECT_EQ(Pictures(true).Check("one", m_Picture), "");
    EXPECT_EQ(Pictures().Check("one", m_Picture), "");
    EXPECT_FALSE(Exists("failed"));
}

TEST_F(GoldenPictures, TellOfASinglePixelOfAnotherShade)
{
    static_cast<void>(Pictures(true).Check("one", m_Picture));
    m_Picture.Row(3)[6] = 0xFFFFFFFEu;

    std::string const text = Pictures().Check("one", m_Picture);

    EXPECT_THAT(text, HasSubstr("one: 1 pixel differs, the first one at (6, 3): #FFFFFE instead of #FFFFFF"));
    EXPECT_THAT(text, HasSubstr((m_Place / "failed" / "one.actual.png").string()));
    EXPECT_THAT(text, HasSubstr("./dev golden"));
    EXPECT_EQ_PIXELS(LoadPicture((m_Place / "failed/one.actual.png").string()).value(), m_Picture);
    CPixelBuffer const difference = LoadPicture((m_Place / "failed/one.difference.png").string()).value();
    EXPECT_EQ(difference.Row(3)[6], 0xFFFF0000u);
    EXPECT_EQ(difference.Row(3)[5], 0xFFFFFFFFu);
}

TEST_F(GoldenPictures, TellWhereThePixelsAreThatDiffer)
{
    static_cast<void>(Pictures(true).Check("one", m_Picture));
    m_Picture.Row(1)[4] = 0xFF102030u;
    m_Picture.Row(2)[1] = 0xFF000000u;
    m_Picture.Row(4)[3] = 0xFF000000u;

    EXPECT_THAT(Pictures().Check("one", m_Picture),
                HasSubstr("one: 3 pixels differ, the first one at (4, 1): #102030 instead of #FFFFFF; all of them are "
                          "within (1, 1) to (4, 4)"));
}

TEST_F(GoldenPictures, TellOfAMissingFileAndOfABrokenOneAndOfAnotherSize)
{
    EXPECT_THAT(Pictures().Check("one", m_Picture), HasSubstr("one: there is no golden picture"));
    EXPECT_TRUE(Exists("failed/one.actual.png"));
    EXPECT_FALSE(Exists("failed/one.difference.png"));

    std::filesystem::create_directories(m_Place / "golden");
    std::ofstream(m_Place / "golden/one.png") << "no picture";
    EXPECT_THAT(Pictures().Check("one", m_Picture), HasSubstr("one: the golden picture can't be read"));

    static_cast<void>(Pictures(true).Check("one", CPixelBuffer({7, 5})));
    EXPECT_THAT(Pictures().Check("one", m_Picture), HasSubstr("one: the size is 8 x 5 instead of 7 x 5"));
}

TEST_F(GoldenPictures, ForgetWhatFailedOnceItIsAccepted)
{
    static_cast<void>(Pictures().Check("one", m_Picture));
    EXPECT_EQ(Pictures(true).Check("one", m_Picture), "");
    EXPECT_FALSE(Exists("failed/one.actual.png"));
    EXPECT_EQ(Pictures().Check("one", m_Picture), "");
}

TEST_F(GoldenPictures, WithoutAPageAreOrphans)
{
    static_cast<void>(Pictures(true).Check("one", m_Picture));
    static_cast<void>(Pictures(true).Check("two", m_Picture));
    std::ofstream(m_Place / "golden/one.txt") << "no picture";

    EXPECT_THAT(Pictures().FindOrphans({"one"}), ElementsAre("one.txt", "two.png"));
    EXPECT_THAT(Pictures(true).FindOrphans({"one"}), ElementsAre());
    EXPECT_TRUE(Exists("golden/one.png"));
    EXPECT_FALSE(Exists("golden/two.png"));
}

TEST_F(GoldenPictures, KeepEveryPixelWithFewColoursAndWithMany)
{
    std::filesystem::create_directories(m_Place);
    std::string const file = (m_Place / "colors.png").string();
    for (std::uint32_t colors : {1u, 2u, 3u, 16u, 17u, 256u, 257u, 700u})
    {
        CPixelBuffer picture({37, 41});
        for (std::uint32_t i = 0; i < 37u * 41u; ++i)
            picture.Row(static_cast<int>(i / 37))[i % 37] = 0xFF000000u | (i % colors * 0x010305u & 0xFFFFFFu);
        ASSERT_TRUE(SavePicture(file, picture)) << colors;
        EXPECT_EQ_PIXELS(LoadPicture(file).value(), picture) << colors;
    }
}

}  // namespace gallery
