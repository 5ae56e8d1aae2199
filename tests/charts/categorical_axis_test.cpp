// An axis of categories.

#include "tests/charts/axis_bench.h"
#include "tests/support/slot.h"
#include "vexel/charts/categorical_axis.h"

#include <gmock/gmock.h>

#include <limits>

using namespace charts_test;
using testing::Not;

namespace
{

class CNames : public IItemsModel
{
public:
    explicit CNames(std::vector<std::string> names) : m_Names(std::move(names)) {}
    std::vector<std::string> m_Names;

    int GetItemCount() const override { return static_cast<int>(m_Names.size()); }
    std::string GetItemCaption(int index) const override { return m_Names.at(static_cast<std::size_t>(index)); }
};

// Categories of 40 pixels, 5 of them.
class CategoricalAxis : public CAxisBench<CCategoricalAxis>
{
protected:
    CategoricalAxis()
    {
        SetRange(0, 5, 0);
        m_Model.m_Measure = {1.0, 40};
    }
};

// Writes down what it is asked to draw.
class CTellingAxis : public CCategoricalAxis
{
public:
    using CCategoricalAxis::CCategoricalAxis;
    std::string m_Told;
    double m_Shift = 0;

    void DrawBackground(IPainter*) override { m_Told += "background; "; }
    void DrawLine(IPainter* painter, point<double>* position, bool major) override
    {
        m_Told += major ? "line " : "minor ";
        m_Told += Describe(position->x) + "; ";
        CCategoricalAxis::DrawLine(painter, position, major);
    }
    void PrepareAttr(point<double> const& position, double value) override
    {
        m_Told += "prepare " + Describe(position.x) + " " + Describe(position.y) + " " + Describe(value) + "; ";
    }
    void updateCategoryLabelRect(rectangle<double>& rect, double value, double width) override
    {
        m_Told += "move " + Describe(value) + " " + Describe(width) + "; ";
        rect.Offset(m_Shift, 0);
    }
    void drawOneCategoryLabel(IPainter*, rectangle<double> const& rect, std::string const& text, ...) override
    {
        m_Told += "label " + Describe(rect) + " \"" + text + "\"; ";
    }
};

class TellingCategories : public CAxisBench<CTellingAxis>
{
protected:
    TellingCategories()
    {
        SetRange(0, 2, 0);
        m_Model.m_Measure = {1.0, 40};
    }
    std::string Tell()
    {
        m_Axis->m_Told.clear();
        Draw();
        return m_Axis->m_Told;
    }
};

}  // namespace

TEST_F(CategoricalAxis, StartsWithoutAModelAndWithoutALabel)
{
    CCategoricalAxis const axis(nullptr, {30, 20}, alLeft);
    EXPECT_EQ(axis.GetCategoryModel(), nullptr);
    EXPECT_TRUE(axis.GetLastLabelRect().IsZero());
    EXPECT_EQ(axis.GetAlignment(), alLeft);
    EXPECT_TRUE(axis.IsTextConverted());
    EXPECT_TRUE(axis.IsTextRotated());
}

// Captions ----------------------------------------------------------------------------------------------------------------

TEST_F(CategoricalAxis, WithoutAModelCategoriesAreShownByNumber)
{
    EXPECT_EQ(m_Axis->getCaption(3), "3");
    EXPECT_EQ(m_Axis->getCaption(-2.5), "-2.5");
    EXPECT_EQ(m_Axis->getCaption(1e6), "1e+06");
    EXPECT_EQ(m_Axis->getCaption(123456), "123456");
    EXPECT_EQ(Drawing(Draw()), R"(
tick 0 0 - 0 5
"0" -0.1 8 0.1 46 0x14C
tick 1 0 - 1 5
"1" 0.9 8 1.1 46 0x14C
tick 2 0 - 2 5
"2" 1.9 8 2.1 46 0x14C
tick 3 0 - 3 5
"3" 2.9 8 3.1 46 0x14C
tick 4 0 - 4 5
"4" 3.9 8 4.1 46 0x14C
)");
    EXPECT_TRUE(m_Axis->GetMajorTicks().empty());
    EXPECT_TRUE(m_Axis->GetMinorTicks().empty());
    EXPECT_EQ(m_Axis->GetStep(), 1.0);
}

TEST_F(CategoricalAxis, AModelNamesThem)
{
    CNames names({"red", "blue", "", "green", "grey"});
    m_Axis->SetCategoryModel(&names);
    EXPECT_EQ(m_Axis->GetCategoryModel(), &names);
    EXPECT_EQ(m_Axis->getCaption(1.9), "blue");
    EXPECT_EQ(Labels(Draw()), "\"red\" -0.3 8 0.3 46 0x14C\n\"blue\" 0.6 8 1.4 46 0x14C\n\"\" 2 8 2 46 0x14C\n"
                              "\"green\" 2.5 8 3.5 46 0x14C\n\"grey\" 3.6 8 4.4 46 0x14C");
    m_Axis->SetCategoryModel(nullptr);
    EXPECT_THAT(Draw(), Draws("DrawString \"4\"*"));
}

TEST_F(TellingCategories, AnEmptyCaptionHasNoTickButPassesThroughItsLabel)
{
    CNames names({"red", ""});
    m_Axis->SetCategoryModel(&names);
    EXPECT_EQ(Tell(), "background; "
                      "line 0; prepare 0 5 0; move 0 1; label (-0.3, 8, 0.3, 46) \"red\"; "
                      "prepare 1 0 1; move 1 1; label (1, 8, 1, 46) \"\"; ");
    EXPECT_EQ(m_Axis->GetLastLabelRect(), (rectangle<double>{1, 8, 1, 46}));
}

TEST_F(CategoricalAxis, RepaintsForAnotherModelAndForItsChanges)
{
    CNames names({"red", "blue", "", "green", "grey"});
    m_Host.Paint();
    m_Axis->SetCategoryModel(&names);
    EXPECT_EQ(m_Host.Paint().Elements(), "CCategoricalAxis");
    m_Axis->SetCategoryModel(&names);
    EXPECT_FALSE(m_Host.IsFramePending());
    names.m_Names[0] = "pink";
    names.m_SigChanged();
    EXPECT_THAT(m_Host.Paint(), Draws("DrawString \"pink\"*"));
    m_Axis->SetCategoryModel(nullptr);
    EXPECT_EQ(m_Host.Paint().Elements(), "CCategoricalAxis");
    names.m_SigChanged();
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(CategoricalAxis, ForgetsAModelThatDies)
{
    {
        CNames names({"red", "blue", "", "green", "grey"});
        m_Axis->SetCategoryModel(&names);
        m_Host.Paint();
    }
    EXPECT_EQ(m_Axis->GetCategoryModel(), nullptr);
    EXPECT_THAT(m_Host.Paint(), Draws("DrawString \"0\"*").Then("DrawString \"4\"*"));
}

TEST_F(CategoricalAxis, MayDieWhileItsModelTellsOfAChange)
{
    CNames names({"red", "blue", "", "green", "grey"});
    auto const before = Listen(names.m_SigChanged, [&] { delete std::exchange(m_Axis, nullptr); });
    m_Axis->SetCategoryModel(&names);
    m_Host.Paint();
    names.m_SigChanged();
    EXPECT_EQ(m_Axis, nullptr);
    m_Host.Paint();
    names.m_SigChanged();

    Make(alBottom);
    CCategoricalAxis* const second = m_Axis;
    second->SetCategoryModel(&names);
    m_Axis = nullptr;
    names.m_SigChanged();
    EXPECT_EQ(second->GetCategoryModel(), &names);
    m_Axis = second;
}

TEST_F(CategoricalAxis, MayDieWhileItsModelDies)
{
    auto names = std::make_unique<CNames>(std::vector<std::string>{"red"});
    auto const before = Listen(names->m_SigDestroy, [&](IItemsModel*) { delete std::exchange(m_Axis, nullptr); });
    m_Axis->SetCategoryModel(names.get());
    names.reset();
    EXPECT_EQ(m_Axis, nullptr);
    m_Host.Paint();
}

// Places ------------------------------------------------------------------------------------------------------------------

TEST_F(CategoricalAxis, TheWalkBeginsWithTheFirstWholeCategoryInView)
{
    SetRange(0, 5, 1.5);
    EXPECT_THAT(Draw(), Draws("MoveTo 2 0").Then("DrawString \"2\" 1.9 8 2.1 46 0x14C"));
    EXPECT_THAT(Draw(), Not(Draws("DrawString \"1\"*")));
    SetRange(0, 5, 2);
    EXPECT_THAT(Draw(), Draws("MoveTo 2 0").Then("DrawString \"2\"*"));
    EXPECT_THAT(Draw(), Not(Draws("DrawString \"1\"*")));
}

TEST_F(CategoricalAxis, TheWalkEndsWithTheRangeEvenIfRoomRemains)
{
    SetRange(0, 3, 0);
    PaintLog log = Draw();
    EXPECT_EQ(log.Count("DrawString*"), 3);
    EXPECT_THAT(log, Draws("DrawString \"2\"*"));
    SetRange(0, 2.5, 0);
    EXPECT_EQ(Draw().Count("DrawString*"), 3);
    SetRange(3, 0, 0);  // the larger end counts
    EXPECT_EQ(Draw().Count("DrawString*"), 3);
}

TEST_F(CategoricalAxis, TheWalkEndsWithTheView)
{
    SetRange(0, 100, 10);
    PaintLog const log = Draw();
    EXPECT_EQ(log.Count("DrawString*"), 6);  // both ends of the view have one
    EXPECT_THAT(log, Draws("DrawString \"10\"*").Then("DrawString \"15\"*"));
}

TEST_F(CategoricalAxis, CategoriesStandTheirStepsApart)
{
    m_Model.m_Steps = {2, 0.5, 1};
    EXPECT_EQ(Drawing(Draw()), R"(
tick 0 0 - 0 5
"0" -0.1 8 0.1 46 0x14C
tick 2 0 - 2 5
"1" 1.9 8 2.1 46 0x14C
tick 2.5 0 - 2.5 5
"2" 2.4 8 2.6 46 0x14C
tick 3.5 0 - 3.5 5
"3" 3.4 8 3.6 46 0x14C
tick 4.5 0 - 4.5 5
"4" 4.4 8 4.6 46 0x14C
)");
}

TEST_F(TellingCategories, CategoriesWithoutEndComeToOne)
{
    class CStanding : public CTestModel
    {
    public:
        using CTestModel::CTestModel;
        double GetStepSize(double) const override { return 0; }
    } standing(0, 1e9, 0);
    m_Axis->SetHorzScroll(&standing);
    Tell();
    std::string const& told = m_Axis->m_Told;
    EXPECT_NE(told.find("\"99999\""), std::string::npos);
    EXPECT_EQ(told.find("\"100000\""), std::string::npos);
}

TEST_F(CategoricalAxis, RangesThatAreNoNumbersDrawNothingOrWhatShows)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    SetRange(0, 5, nan);
    EXPECT_EQ(Drawing(Draw()), "\n");
    SetRange(0, 5, HUGE_VAL);
    EXPECT_EQ(Drawing(Draw()), "\n");
    SetRange(0, 5, -HUGE_VAL);
    EXPECT_EQ(Drawing(Draw()), "\n");
    SetRange(0, 5, 1e300);
    EXPECT_EQ(Drawing(Draw()), "\n");
    SetRange(0, HUGE_VAL, 0);
    EXPECT_EQ(Draw().Count("DrawString*"), 6);
}

TEST_F(CategoricalAxis, TurnsWithItsEdge)
{
    SetRange(0, 1, 0);
    Make(alTop);
    EXPECT_EQ(Drawing(Draw()), "\ntick 0 0 - 0 5\n\"0\" -0.1 8 0.1 46 0x15C\n");
    Make(alLeft);
    PaintLog const left = Draw();
    EXPECT_EQ(Drawing(left), "\ntick 0 0 - 5 0\n\"0\" 8 -0.1 46 0.1 0x162\n");
    EXPECT_THAT(left, Draws("SetFont * rotation 2700").Then("MoveTo*").Then("SetFont*"));
    Make(alRight);
    EXPECT_EQ(Drawing(Draw()), "\ntick 0 0 - 5 0\n\"0\" 8 -0.1 46 0.1 0x161\n");
    m_Axis->SetRotateText(false);
    EXPECT_THAT(Draw(), Not(Draws("SetFont * rotation*")));
}

TEST_F(CategoricalAxis, TicksBeginAtTheAxisOffset)
{
    SetRange(0, 1, 0);
    m_Axis->SetAxisOffset(4);
    EXPECT_EQ(Drawing(Draw()), "\ntick 0 4 - 0 9\n\"0\" -0.1 8 0.1 46 0x14C\n");
    m_Axis->SetAxisOffset(31);
    EXPECT_EQ(Drawing(Draw()), "\n");
}

// Rectangles --------------------------------------------------------------------------------------------------------------

TEST_F(CategoricalAxis, ALabelsRectangleIsAsDeepAsTheElementIsLong)
{
    auto* const axis = new CCategoricalAxis(m_Host.Root(), {70, 30}, alBottom);
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->SetFont(axis->GetFont());
    EXPECT_EQ(axis->getCategoryLabelRect(painter, {100, 5}, 12, 1), (rectangle<double>{92, 8, 108, 86}));
    axis->SetAlignment(alLeft);
    EXPECT_EQ(axis->getCategoryLabelRect(painter, {5, 100}, 12, 1), (rectangle<double>{8, 96, 46, 104}));
    EXPECT_TRUE(axis->GetLastLabelRect().IsZero());
}

TEST_F(TellingCategories, ASubclassMayMoveALabel)
{
    m_Axis->m_Shift = 0.5;
    EXPECT_EQ(Tell(), "background; line 0; prepare 0 5 0; move 0 1; label (0.4, 8, 0.6, 46) \"0\"; "
                      "line 1; prepare 1 5 1; move 1 1; label (1.4, 8, 1.6, 46) \"1\"; ");
    EXPECT_EQ(m_Axis->GetLastLabelRect(), (rectangle<double>{1.4, 8, 1.6, 46}));
}

TEST_F(CategoricalAxis, NothingIsDrawnWithoutARoomAndTheBackgroundAloneWithoutAModel)
{
    m_Axis->SetHorzScroll(nullptr);
    PaintLog const log = Draw();
    EXPECT_EQ(Drawing(log), "\n");
    EXPECT_THAT(log, Draws("SetClipRect 0 0 239 30").Then("FillRect 0 0 239 30").Then("ResetClip"));

    CCategoricalAxis flat(nullptr, {30, 30}, alBottom);
    flat.SetPos({0, 0, 100, 0}, false);
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssMeasure);
    flat.DrawContent(painter);
    EXPECT_TRUE(painter->GetClipRect().IsZero());
    painter->EndPaint();
}

TEST_F(CategoricalAxis, TheClipStandsBeforeTheBackgroundAndTheFontComesBack)
{
    SetRange(0, 1, 0);
    Make(alRight);
    EXPECT_THAT(Draw(), Draws("SetClipRect 0 0 30 139")
                            .Then("FillRect 0 0 30 139")
                            .Then("SetCoordSystem 3*")
                            .Then("SetFont * rotation 2700")
                            .Then("MoveTo*")
                            .Then("SetFont \"Square\" 8")
                            .Then("ResetClip"));
}
