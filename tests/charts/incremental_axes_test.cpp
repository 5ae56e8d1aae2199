// Axes painted bit by bit look as if painted at once: played with random owners and users.

#include "tests/charts/axis_bench.h"
#include "vexel/charts/categorical_axis.h"
#include "vexel/scroll/central_part.h"
#include "vexel/scroll/scroll_box.h"

#include <algorithm>
#include <deque>

using namespace charts_test;

namespace
{

// A plain area.
class CPlainView : public CCentralPart
{
public:
    explicit CPlainView(CVisualElement* parent) : CCentralPart(parent, {0, 0}, alClient) {}
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->SetBrush({GetBkColor(), brush::bsSolid});
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
    }
};

class CNames : public IItemsModel
{
public:
    int GetItemCount() const override { return 1000; }
    std::string GetItemCaption(int index) const override
    {
        return index % 5 == 3
                   ? std::string()
                   : std::string(static_cast<std::size_t>(1 + index % 3), static_cast<char>('a' + index % 7));
    }
};

// They outlive the host.
struct SModels
{
    CTestModel horz{0, 400, 0};
    CTestModel vert{0, 300, 0};
    CTenfold tenfold;
    CNames names;
};

// A scroll box with axes at some of its edges.
class CAxesGame
{
public:
    CAxesGame(CTestHost& host, CTestRandom& random, SModels& models) : m_Random(random), m_Models(models)
    {
        models.horz.m_CutsStart = models.vert.m_CutsStart = true;
        if (random.Bool())
            std::swap(models.vert.m_From, models.vert.m_To);
        m_Box = new CScrollBox(host.Root(), {0, 0}, alClient);
        for (int count = random.Int(1, 4); count > 0; --count)
        {
            Alignment const side = static_cast<Alignment>(random.Int(alLeft, alBottom));
            size<int> const extent{random.Int(12, 30), random.Int(12, 30)};
            CAxis* axis = nullptr;
            if (random.Chance(30))
            {
                auto* const categories = new CCategoricalAxis(m_Box, extent, side);
                if (random.Bool())
                    categories->SetCategoryModel(&models.names);
                axis = categories;
            }
            else
            {
                axis = new CAxis(m_Box, extent, side);
            }
            axis->SetBkColor(color_table[9 + random.Int(0, 17)]);
            m_Axes.push_back(axis);
        }
        m_View = new CPlainView(m_Box);
        m_View->SetHorzScroll(&models.horz);
        m_View->SetVertScroll(&models.vert);
        m_Box->ConnectElement(m_View, CScrollBox::ctBoth, true);
        for (CAxis* const axis : m_Axes)
        {
            m_Box->ConnectElement(axis, CScrollBox::ctBoth, false);
            axis->SetCentralPane(m_View);
        }
        m_Box->RefreshScroll();
        host.Paint();
    }

    void Step()
    {
        CAxis* const axis = m_Random.Pick(m_Axes);
        switch (m_Random.Int(0, 11))
        {
        case 0:
        case 1:
        case 2:
            m_Box->GetWrappedHorzScroll()->SetStart(m_Random.Int(0, 400));
            return Note("scroll across");
        case 3:
        case 4:
        case 5:
            m_Box->GetWrappedVertScroll()->SetStart(m_Random.Int(0, 300));
            return Note("scroll down");
        case 6:
            // What an application does that zooms.
            (m_Random.Bool() ? m_Models.horz : m_Models.vert).m_Measure = {1.0, m_Random.Int(1, 30)};
            m_Box->RefreshScroll();
            m_View->Update(utElement);
            for (CAxis* const each : m_Axes)
                each->Update(utElement);
            return Note("zoom");
        case 7:
            axis->SetTickMarksSize(m_Random.Int(0, 8), m_Random.Int(0, 5));
            return Note("ticks");
        case 8:
            m_Random.Bool() ? axis->SetAxisOffset(m_Random.Int(-1, 6)) : axis->SetLabelOffset(m_Random.Int(-2, 6));
            return Note("offset");
        case 9:
            m_Random.Bool() ? axis->SetRotateText(m_Random.Bool()) : axis->SetEnabled(m_Random.Bool());
            return Note("text");
        case 10:
            axis->SetUnitConverter(m_Random.Bool() ? &m_Models.tenfold : nullptr);
            axis->Update(utElement);
            return Note("units");
        default:
            m_Random.Bool() ? axis->SetVisible(m_Random.Bool())
                            : axis->SetSize({m_Random.Int(8, 30), m_Random.Int(8, 30)}, false);
            return Note("size");
        }
    }
    std::string History() const
    {
        std::string text = "view at " + Describe(m_View->GetPos()) + "\n";
        for (CAxis const* const axis : m_Axes)
            text += "axis at " + Describe(axis->GetPos()) + ", docked " + Describe(axis->GetAlignment()) + "\n";
        for (std::string const& note : m_Notes)
            text += note + "\n";
        return text;
    }

private:
    void Note(std::string const& what)
    {
        m_Notes.push_back(what);
        if (m_Notes.size() > 20)
            m_Notes.pop_front();
    }

    CTestRandom& m_Random;
    SModels& m_Models;
    CScrollBox* m_Box = nullptr;
    CPlainView* m_View = nullptr;
    std::vector<CAxis*> m_Axes;
    std::deque<std::string> m_Notes;
};

class IncrementalAxes : public testing::TestWithParam<double>
{};

TEST_P(IncrementalAxes, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    for (int game = 0; game < 40; ++game)
    {
        SModels models;
        CTestHost host(random.Int(90, 200), random.Int(90, 160), GetParam());
        CAxesGame axes(host, random, models);
        for (int round = 0; round < 40; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int steps = random.Int(1, 3); steps > 0; --steps)
                    axes.Step();
                host.Paint();
            }
            ASSERT_EQ(host.CompareWithFullPaint(), "") << axes.History();
            if (random.Chance(5))
                host.Resize(random.Int(90, 200), random.Int(90, 160));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalAxes, testing::Values(1.0, 1.5));

}  // namespace
