// Every page of the gallery, built, painted and used on the memory backend.

#include "gallery/frame/frame.h"
#include "gallery/frame/log.h"
#include "gallery/options.h"
#include "gallery/pages.h"
#include "vexel/controls/round_bg_button.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

using namespace vexel;
using namespace vexel::test;

namespace gallery
{

namespace
{

// They stay for the whole process.
CWarmUp const g_SharedPictures(&CRoundBgButton::InitStaticBgPictures);

class CLines : public subscriber_base_t
{
public:
    CLines() { CLog::Get().m_SigLine.connect(this, &CLines::Add); }

    bool Has(std::string const& part) const
    {
        return std::any_of(m_Lines.begin(), m_Lines.end(),
                           [&](std::string const& line) { return line.find(part) != std::string::npos; });
    }
    bool IsEmpty() const { return m_Lines.empty(); }

private:
    void Add(std::string const& line) { m_Lines.push_back(line); }

    std::vector<std::string> m_Lines;
};

std::string PageName(testing::TestParamInfo<int> const& info)
{
    return GetPages()[static_cast<std::size_t>(info.param)].name;
}

class GalleryPage : public testing::TestWithParam<int>
{
protected:
    GalleryPage() : m_Frame(m_Host.Control(), {}, {.page = GetParam()}) { m_Host.Paint(); }

    rectangle<int> Area() const
    {
        rectangle<int> rect = m_Frame.GetPageArea()->GetBounds();
        m_Frame.GetPageArea()->ElementToControl(&rect);
        return rect;
    }

    CTestHost m_Host{1000, 700};
    CFrame m_Frame;
};

void CollectEnabled(CVisualElement* element, std::set<bool>& states)
{
    states.insert(element->IsEnabled());
    for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
        CollectEnabled(element->GetChildren()->GetItem(i), states);
}

}  // namespace

TEST_P(GalleryPage, ShowsSomethingOnItsArea)
{
    rectangle<int> const area = Area();
    std::set<std::uint32_t> colors;
    for (int y = area.top; y <= area.bottom; ++y)
        for (int x = area.left; x <= area.right; ++x)
            colors.insert(m_Host.Pixels().Row(y)[x]);

    EXPECT_GE(colors.size(), 3u);
}

TEST_P(GalleryPage, TellsOfItsSignalsWhenItIsUsed)
{
    CLines lines;
    rectangle<int> const area = Area();
    m_Host.Focus();
    for (int y = area.top + 5; y < area.bottom; y += 30)
    {
        for (int x = area.left + 5; x < area.right; x += 45)
        {
            m_Host.Mouse().Click(x, y);
            m_Host.Mouse().Wheel(x, y, 1);
        }
        m_Host.Paint();
    }
    m_Host.Keyboard().Press(vexelbase::vkTab);
    m_Host.Keyboard().Type("a");
    m_Host.Resize(900, 640);
    m_Host.Paint();

    if (GetPages()[static_cast<std::size_t>(GetParam())].name != std::string("flashing"))  // hears of its timer only
    {
        EXPECT_FALSE(lines.IsEmpty());
    }
}

TEST_P(GalleryPage, LooksTheSameWhenPaintedAnew)
{
    rectangle<int> const area = Area();
    for (int i = 0; i < 12; ++i)
    {
        m_Host.Mouse().Click(area.left + 30 + 61 * i, area.top + 30 + 37 * i);
        m_Host.Clock().Advance(170);
        m_Host.Paint();
    }
    CPixelBuffer const shown = m_Host.Pixels();

    m_Host.FullPaint();

    // The page of overlapping sheets repaints their ground at each move, so it is no exception.
    if (GetPages()[static_cast<std::size_t>(GetParam())].name != std::string("repaint"))  // counts its paints
    {
        EXPECT_EQ_PIXELS(shown, m_Host.Pixels());
    }
}

TEST_P(GalleryPage, IsDisabledAsAWholeByTheSwitch)
{
    m_Host.Mouse().Click(*m_Frame.GetEnableSwitch(), 10, 10);

    std::set<bool> states;
    for (int i = 0; i < m_Frame.GetPageArea()->GetChildren()->GetCount(); ++i)
        CollectEnabled(m_Frame.GetPageArea()->GetChildren()->GetItem(i), states);
    EXPECT_EQ(states, std::set<bool>{false});
    m_Host.Paint();
}

INSTANTIATE_TEST_SUITE_P(All, GalleryPage, testing::Range(0, static_cast<int>(GetPages().size())), PageName);

TEST(Gallery, HasPagesWithDifferentNames)
{
    std::set<std::string> names;
    for (SPage const& page : GetPages())
        names.insert(page.name);

    EXPECT_EQ(names.size(), GetPages().size());
    EXPECT_EQ(FindPage("docking"), 0);
    EXPECT_EQ(FindPage("no such page"), -1);
}

TEST(Gallery, ChoosesPagesByMouseAndByKeys)
{
    CTestHost host(1000, 700);
    CFrame frame(host.Control(), {}, {});
    host.Paint();
    host.Focus();

    host.Mouse().Click(50, 28 * 2 + 10);
    EXPECT_EQ(frame.GetState().page, 2);
    host.Keyboard().Press(vexelbase::vkDown);
    EXPECT_EQ(frame.GetState().page, 3);
    host.Keyboard().Press(vexelbase::vkHome);
    EXPECT_EQ(frame.GetState().page, 0);
    host.Keyboard().Press(vexelbase::vkEnd);
    EXPECT_EQ(frame.GetState().page, static_cast<int>(GetPages().size()) - 1);
}

TEST(Gallery, AsksTheProgramForAnotherScaleAndForRepaintsToBeShown)
{
    CTestHost host(1000, 700);
    std::vector<double> scales;
    std::vector<bool> shown;
    CFrame::SHooks hooks;
    hooks.setScale = [&](double scale) { scales.push_back(scale); };
    hooks.setShowRepaints = [&](bool show) { shown.push_back(show); };
    CFrame frame(host.Control(), hooks, {});
    host.Paint();

    host.Mouse().Click(*frame.GetScaleSwitch(), 10, 10);
    host.Mouse().Click(*frame.GetScaleSwitch(), 10, 10);
    host.Mouse().Click(*frame.GetRepaintSwitch(), 10, 10);

    EXPECT_EQ(scales, (std::vector<double>{2.0, 1.0}));
    EXPECT_EQ(shown, std::vector<bool>{true});
}

TEST(Gallery, ATileDroppedOnTheLeftBinIsCounted)
{
    CTestHost host(1000, 700);
    CFrame frame(host.Control(), {}, {.page = FindPage("drag")});
    host.Paint();
    CLines lines;

    host.Mouse().Drag(260, 110, 300, 400);
    host.Paint();
    host.Mouse().Release();
    host.Paint();

    EXPECT_TRUE(lines.Has("signal left.drop("));
    EXPECT_TRUE(lines.Has("signal one.finished(#11"));
}

TEST(GalleryOptions, AreReadFromTheCommandLine)
{
    char const* const words[] = {"vexel-gallery", "--page",        "focus", "--log", "--scale",
                                 "1.5",           "--screenshots", "shots", "--dark"};

    SOptions const options = ReadOptions(9, words);

    EXPECT_EQ(options.error, "");
    EXPECT_EQ(options.page, "focus");
    EXPECT_TRUE(options.log);
    EXPECT_TRUE(options.dark);
    EXPECT_FALSE(options.list);
    EXPECT_EQ(options.scale, 1.5);
    EXPECT_EQ(options.screenshots, "shots");
}

TEST(GalleryOptions, SayWhatIsWrongWithThem)
{
    auto const error = [](std::vector<char const*> words) {
        words.insert(words.begin(), "vexel-gallery");
        return ReadOptions(static_cast<int>(words.size()), words.data()).error;
    };

    EXPECT_EQ(error({"--page"}), "--page needs a value");
    EXPECT_EQ(error({"--nonsense"}), "unknown option --nonsense");
    EXPECT_EQ(error({"--scale", "9"}), "--scale takes a number from 0.5 to 4, not 9");
    EXPECT_EQ(error({"--scale", "two"}), "--scale takes a number from 0.5 to 4, not two");
    EXPECT_EQ(error({"--list"}), "");
}

}  // namespace gallery
