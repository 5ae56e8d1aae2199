// The slider: its position in pixels and in points, mouse and keys, its models.

#include "vexel/widgets/slider.h"

#include "tests/support/virtual_order.h"
#include "tests/widgets/slider_bench.h"

#include <limits>

using namespace vexel;
using namespace vexel::test;

namespace
{

class Slider : public CSliderBench, public testing::WithParamInterface<bool>
{
protected:
    Slider() : CSliderBench(GetParam()) {}
    int More() const { return m_Vertical ? vkDown : vkRight; }
    int Less() const { return m_Vertical ? vkUp : vkLeft; }
    CSignalLog& Log()
    {
        m_Log.Clear();
        return m_Log;
    }
    // Both signals, from now on.
    void Hear()
    {
        m_Log.Add(m_Slider.m_PosTracking, "tracking", &m_Slider);
        m_Log.Add(m_Slider.m_PosChanged, "changed", &m_Slider);
    }

    CSignalLog m_Log;
};
INSTANTIATE_TEST_SUITE_P(Direction, Slider, testing::Bool(),
                         [](auto const& param) { return param.param ? "Vertical" : "Horizontal"; });

}  // namespace

// Beginnings ------------------------------------------------------------------------------------------------------------------

TEST(SliderDefaults, AreAsTold)
{
    CSlider slider(nullptr, {50, 20}, alTop);
    EXPECT_EQ(slider.GetSliderPos(), 0);
    EXPECT_EQ(slider.GetModel(), &s_DefSliderModel);
    EXPECT_EQ(slider.GetDrawingModel(), &s_DefSliderDrawingModel);
    EXPECT_TRUE(slider.GetItems().empty());
    EXPECT_TRUE(slider.GetCanHaveFocus());
    EXPECT_TRUE(slider.IsTextConverted());
    EXPECT_EQ(slider.GetSize(), (size<int>{50, 20}));
    EXPECT_EQ(slider.GetAlignment(), alTop);
    EXPECT_EQ(slider.GetState(), 0);
}

TEST(SliderDefaults, ANewOneIsVerticalWhateverItsAlignment)
{
    for (Alignment const alignment : {alNone, alLeft, alRight, alTop, alBottom, alClient})
    {
        CSlider const slider(nullptr, {50, 20}, alignment);
        EXPECT_EQ(slider.GetAlong(1, 2), 2) << alignment;
        EXPECT_EQ(slider.ConvTextAlign(8), 1) << alignment;  // that of the right edge
    }
}

TEST(SliderDefaults, TheDefaultModelGoesFromZeroToOneWithoutPoints)
{
    EXPECT_EQ(s_DefSliderModel.GetMinValue(), 0.0);
    EXPECT_EQ(s_DefSliderModel.GetMaxValue(), 1.0);
    EXPECT_EQ(s_DefSliderModel.GetPointCount(), 0);
    EXPECT_EQ(s_DefSliderModel.GetPointValue(0), 0.0);
    EXPECT_EQ(s_DefSliderModel.GetPointValue(5), 0.0);
    EXPECT_EQ(s_DefSliderModel.GetPointCaption(0), "");
}

TEST(SliderDefaults, APointHasNoCaptionYet)
{
    CSlider::SItem const item;
    EXPECT_EQ(item.index, 0);
    EXPECT_EQ(item.start, 0);
    EXPECT_EQ(item.end, 0x7FFFFFFF);
}

TEST(SliderVirtualOrder, OfTheModels)
{
    ExpectOrder(2, &ISliderModel::GetMinValue, &ISliderModel::GetMaxValue, &ISliderModel::GetPointCount,
                &ISliderModel::GetPointValue, &ISliderModel::GetPointCaption);
    ExpectOrder(2, &ISliderDrawingModel::GetAttr, &ISliderDrawingModel::GetContentRect,
                &ISliderDrawingModel::OnDrawPointCaption, &ISliderDrawingModel::GetPointerSize,
                &ISliderDrawingModel::OnDrawPointer, &ISliderDrawingModel::GetSlotRect,
                &ISliderDrawingModel::OnDrawSlot);
}

TEST(SliderVirtualOrder, OfTheSlider)
{
    EXPECT_EQ(Place(&CSlider::DrawContent), Place(&CVisualElement::DrawContent));
    EXPECT_EQ(Place(&CSlider::HandleMouseMove), Place(&CVisualElement::HandleMouseMove));
    EXPECT_EQ(Place(&CSlider::HandleButtonDown), Place(&CVisualElement::HandleButtonDown));
    EXPECT_EQ(Place(&CSlider::HandleButtonUp), Place(&CVisualElement::HandleButtonUp));
    EXPECT_EQ(Place(&CSlider::HandleKeyDown), Place(&CVisualElement::HandleKeyDown));
    EXPECT_EQ(Place(&CSlider::DrawBackground), Place(&CVisualElement::HandleCopyToClipboard) + 1);
}

TEST_P(Slider, ItsDirectionIsHorizontalByOneValueAlone)
{
    m_Host.Paint();
    m_Slider.SetDirection(CSlider::SliderHorizontal);
    EXPECT_EQ(m_Slider.GetAlong(1, 2), 1);
    EXPECT_EQ(m_Slider.ConvTextAlign(8), 8);  // that of the bottom edge
    for (int const other : {0, 2, -1, 17})
    {
        m_Slider.SetDirection(CSlider::SliderHorizontal);
        m_Slider.SetDirection(static_cast<CSlider::SliderDirection>(other));
        EXPECT_EQ(m_Slider.GetAlong(1, 2), 2) << other;
        EXPECT_EQ(m_Slider.ConvTextAlign(8), 1) << other;
    }
    EXPECT_FALSE(m_Host.IsFramePending());  // the caller repaints
}

// Pixels ----------------------------------------------------------------------------------------------------------------------

TEST_P(Slider, WithoutPointsItCountsThePixelsOfItsTrack)
{
    EXPECT_EQ(m_Slider.GetPointCount(), 175);
    EXPECT_EQ(m_Slider.GetPointValue(0), 0.0);
    EXPECT_DOUBLE_EQ(m_Slider.GetPointValue(87), 0.5);
    EXPECT_DOUBLE_EQ(m_Slider.GetPointValue(174), 1.0);
    EXPECT_DOUBLE_EQ(m_Slider.GetPointValue(348), 2.0);  // also beyond the end
    EXPECT_EQ(m_Slider.GetPointCaption(0), "");
    EXPECT_EQ(m_Slider.GetPointCaption(100), "");
    for (int const point : {0, 1, 174, 175, 1000, -5})
        EXPECT_EQ(m_Slider.CalcPosByPoint(point), point);
}

TEST_P(Slider, PixelsAreValuesOfTheModelsRange)
{
    CPoints range({}, 10, 358);
    m_Slider.SetModel(&range);
    EXPECT_EQ(m_Slider.GetPointCount(), 175);
    EXPECT_DOUBLE_EQ(m_Slider.GetPointValue(0), 10);
    EXPECT_DOUBLE_EQ(m_Slider.GetPointValue(1), 12);
    EXPECT_DOUBLE_EQ(m_Slider.GetPointValue(174), 358);
    EXPECT_EQ(m_Slider.CalcPosByPoint(20), 20);
    m_Slider.SetModel(nullptr);
}

TEST_P(Slider, InPixelsAPointIsLimitedToTheTrack)
{
    EXPECT_EQ(m_Slider.CalcPointByPos(0), 0);
    EXPECT_EQ(m_Slider.CalcPointByPos(100), 100);
    EXPECT_EQ(m_Slider.CalcPointByPos(174), 174);
    EXPECT_EQ(m_Slider.CalcPointByPos(175), 174);
    EXPECT_EQ(m_Slider.CalcPointByPos(std::numeric_limits<int>::max()), 174);
    EXPECT_EQ(m_Slider.CalcPointByPos(-1), 0);
    EXPECT_EQ(m_Slider.CalcPointByPos(std::numeric_limits<int>::min()), 0);
}

TEST_P(Slider, OnATrackOfLengthZeroThereAreNoPointsAndEveryPositionIsIgnored)
{
    Place(24, 39);
    EXPECT_EQ(m_Slider.GetPointCount(), 0);
    EXPECT_EQ(m_Slider.GetPointValue(0), 0.0);
    Hear();
    for (int const position : {0, 1, -1, 100})
        m_Slider.SetSliderPos(position);
    m_Host.Keyboard().Press(More());
    m_Host.Keyboard().Press(Less());
    Press(20, 30);
    Release();
    EXPECT_EQ(m_Slider.GetSliderPos(), 0);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(Slider, ATrackThatIsTurnedInsideOutHasNoPoints)
{
    Place(20, 39);
    EXPECT_EQ(m_Slider.GetPointCount(), 0);
    EXPECT_EQ(m_Slider.GetPointValue(0), 0.0);
}

TEST_P(Slider, OnATrackOfOnePixelTheValueIsNone)
{
    CPoints range({}, 10, 20);
    m_Slider.SetModel(&range);
    Place(25, 39);
    EXPECT_EQ(m_Slider.GetPointCount(), 1);
    EXPECT_EQ(m_Slider.GetPointValue(0), 0.0);
    Place(26, 39);
    EXPECT_EQ(m_Slider.GetPointCount(), 2);
    EXPECT_EQ(m_Slider.GetPointValue(1), 20.0);
    m_Slider.SetModel(nullptr);
}

// Points ----------------------------------------------------------------------------------------------------------------------

TEST_P(Slider, PointsAreSortedByTheirValues)
{
    CPoints points({5, 1, 3}, 0, 10);
    m_Slider.SetModel(&points);
    ASSERT_EQ(m_Slider.GetItems().size(), 3u);
    int const indices[] = {1, 2, 0};
    for (std::size_t i = 0; i < 3; ++i)
    {
        EXPECT_EQ(m_Slider.GetItems()[i].first, 1.0 + 2.0 * static_cast<double>(i));
        EXPECT_EQ(m_Slider.GetItems()[i].second.index, indices[i]);
        EXPECT_EQ(m_Slider.GetItems()[i].second.start, 0);
        EXPECT_EQ(m_Slider.GetItems()[i].second.end, 0x7FFFFFFF);
    }
    EXPECT_EQ(m_Slider.GetPointCount(), 3);
    EXPECT_EQ(m_Slider.GetPointValue(0), 1.0);
    EXPECT_EQ(m_Slider.GetPointValue(2), 5.0);
    EXPECT_EQ(m_Slider.GetPointCaption(0), "p1");
    EXPECT_EQ(m_Slider.GetPointCaption(1), "p2");
    EXPECT_EQ(m_Slider.GetPointCaption(2), "p0");
    for (int const outside : {-1, 3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    {
        EXPECT_EQ(m_Slider.GetPointValue(outside), 0.0);
        EXPECT_EQ(m_Slider.GetPointCaption(outside), "");
        EXPECT_EQ(m_Slider.CalcPosByPoint(outside), 0);
    }
    m_Slider.SetModel(nullptr);
}

TEST_P(Slider, APointLiesWhereItsValueIsOnTheTrack)
{
    UseModel();
    EXPECT_EQ(m_Slider.CalcPosByPoint(0), 0);
    EXPECT_EQ(m_Slider.CalcPosByPoint(1), 87);  // 87.5
    EXPECT_EQ(m_Slider.CalcPosByPoint(2), 175);
}

TEST_P(Slider, AModelThatDoesNotStartAtZeroShiftsItsPoints)
{
    CPoints points({10, 15, 20}, 10, 20);
    m_Slider.SetModel(&points);
    EXPECT_EQ(m_Slider.CalcPosByPoint(0), 175);
    EXPECT_EQ(m_Slider.CalcPosByPoint(1), 262);  // 262.5
    EXPECT_EQ(m_Slider.CalcPosByPoint(2), 350);
    CPoints below({-1}, -2, 0);
    m_Slider.SetModel(&below);
    EXPECT_EQ(m_Slider.CalcPosByPoint(0), -87);
    m_Slider.SetModel(nullptr);
}

TEST_P(Slider, EntriesWithEqualValuesAreAllThere)
{
    CPoints points({1, 1, 0, 1}, 0, 2);
    m_Slider.SetModel(&points);
    ASSERT_EQ(m_Slider.GetPointCount(), 4);
    EXPECT_EQ(m_Slider.GetItems()[0].second.index, 2);
    int sum = 0;
    for (int i = 1; i < 4; ++i)
    {
        EXPECT_EQ(m_Slider.GetPointValue(i), 1.0);
        sum += m_Slider.GetItems()[static_cast<std::size_t>(i)].second.index;
    }
    EXPECT_EQ(sum, 4);  // 0, 1 and 3, in any order
    m_Slider.SetModel(nullptr);
}

TEST_P(Slider, BeforeTheFirstDrawingEveryPlaceIsTheFirstPoints)
{
    CPoints points({5, 1, 3}, 0, 10);
    m_Slider.SetModel(&points);
    m_Slider.SetSliderPos(2);
    EXPECT_EQ(m_Slider.CalcPointByPos(1), 1);  // the first one's index in the model
    EXPECT_EQ(m_Slider.CalcPointByPos(100), 1);
    EXPECT_EQ(m_Slider.CalcPointByPos(0x7FFFFFFE), 1);
    EXPECT_EQ(m_Slider.CalcPointByPos(0), 2);  // not strictly inside
    EXPECT_EQ(m_Slider.CalcPointByPos(0x7FFFFFFF), 2);
    EXPECT_EQ(m_Slider.CalcPointByPos(-1), 2);
    m_Slider.SetModel(nullptr);
}

TEST_P(Slider, TheCaptionsThatWereDrawnLastAreHitStrictlyInside)
{
    UseModel();
    int const ranges[][2] = {{-5, 5}, {82, 92}, {170, 180}};
    for (std::size_t i = 0; i < 3; ++i)
    {
        EXPECT_EQ(m_Slider.GetItems()[i].second.start, ranges[i][0]);
        EXPECT_EQ(m_Slider.GetItems()[i].second.end, ranges[i][1]);
    }
    m_Slider.SetSliderPos(2);
    EXPECT_EQ(m_Slider.CalcPointByPos(-5), 2);
    EXPECT_EQ(m_Slider.CalcPointByPos(-4), 0);
    EXPECT_EQ(m_Slider.CalcPointByPos(4), 0);
    EXPECT_EQ(m_Slider.CalcPointByPos(5), 2);
    EXPECT_EQ(m_Slider.CalcPointByPos(82), 2);
    EXPECT_EQ(m_Slider.CalcPointByPos(83), 1);
    EXPECT_EQ(m_Slider.CalcPointByPos(91), 1);
    EXPECT_EQ(m_Slider.CalcPointByPos(92), 2);
    m_Slider.SetSliderPos(0);
    EXPECT_EQ(m_Slider.CalcPointByPos(170), 0);
    EXPECT_EQ(m_Slider.CalcPointByPos(171), 2);
    EXPECT_EQ(m_Slider.CalcPointByPos(179), 2);
    EXPECT_EQ(m_Slider.CalcPointByPos(180), 0);
    EXPECT_EQ(m_Slider.CalcPointByPos(1000), 0);
}

TEST_P(Slider, ACaptionStandsForTheIndexInTheModel)
{
    CPoints points({1, 0.5, 0});
    m_Slider.SetModel(&points);
    m_Host.Paint();
    EXPECT_EQ(m_Slider.CalcPointByPos(0), 2);
    EXPECT_EQ(m_Slider.CalcPointByPos(87), 1);
    EXPECT_EQ(m_Slider.CalcPointByPos(175), 0);
    m_Slider.SetModel(nullptr);
}

TEST_P(Slider, ACandidateBeyondThePointsIsLimited)
{
    UseModel();
    m_Slider.SetSliderPos(2);
    m_Points.Set({0.5});
    EXPECT_EQ(m_Slider.GetSliderPos(), 2);
    m_Slider.Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(m_Slider.CalcPointByPos(0), 0);  // the present position, limited
    EXPECT_EQ(m_Slider.CalcPointByPos(170), 0);
}

// The position ----------------------------------------------------------------------------------------------------------------

TEST_P(Slider, AChangeIsToldBeforeItIsRepainted)
{
    UseModel();
    std::string heard;
    auto const changed = Listen(m_Slider.m_PosChanged, [&](CSlider* who, double position) {
        EXPECT_EQ(who, &m_Slider);
        EXPECT_EQ(m_Slider.GetSliderPos(), static_cast<int>(position));
        heard += m_Host.IsFramePending() ? "late " : "changed " + std::to_string(m_Slider.GetSliderPos()) + " ";
    });
    auto const tracking = Listen(m_Slider.m_PosTracking, [&](CSlider* who, double position) {
        EXPECT_EQ(who, &m_Slider);
        EXPECT_EQ(m_Slider.GetSliderPos(), static_cast<int>(position));
        heard += m_Host.IsFramePending() ? "late " : "tracking " + std::to_string(m_Slider.GetSliderPos()) + " ";
    });
    m_Slider.SetSliderPos(1);
    EXPECT_EQ(heard, "changed 1 ");
    EXPECT_TRUE(m_Host.IsFramePending());
    m_Host.Paint();
    m_Slider.UpdateSliderPos(2, true);
    EXPECT_EQ(heard, "changed 1 tracking 2 ");
    EXPECT_TRUE(m_Host.IsFramePending());
    m_Host.Paint();
    m_Slider.UpdateSliderPos(0, false);
    EXPECT_EQ(heard, "changed 1 tracking 2 changed 0 ");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(Slider, APositionBeyondTheCountIsIgnoredAndNotLimited)
{
    UseModel();
    m_Slider.SetSliderPos(1);
    m_Host.Paint();
    Hear();
    for (int const position : {3, 4, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), 1})
    {
        m_Slider.SetSliderPos(position);
        m_Slider.UpdateSliderPos(position, true);
    }
    EXPECT_EQ(m_Slider.GetSliderPos(), 1);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Slider.SetModel(nullptr);
    m_Slider.SetSliderPos(175);
    EXPECT_EQ(m_Slider.GetSliderPos(), 1);
    m_Slider.SetSliderPos(174);
    EXPECT_EQ(m_Slider.GetSliderPos(), 174);
    EXPECT_EQ(m_Log.Text(), "changed(174)");
}

TEST_P(Slider, AModelsChangeLeavesThePositionAndRepaintsNothing)
{
    UseModel();
    m_Slider.SetSliderPos(2);
    m_Host.Paint();
    Hear();
    m_Points.Set({0.25});
    EXPECT_EQ(m_Slider.GetItems().size(), 1u);
    EXPECT_EQ(m_Slider.GetItems()[0].second.start, 0);
    EXPECT_EQ(m_Slider.GetItems()[0].second.end, 0x7FFFFFFF);
    EXPECT_EQ(m_Slider.GetSliderPos(), 2);
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_EQ(m_Log.Text(), "");
    m_Slider.Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Places ----------------------------------------------------------------------------------------------------------------------

TEST_P(Slider, ThePointerLiesInTheMiddleOfItsPlaceOnTheTrack)
{
    EXPECT_EQ(m_Slider.CalcPointerRect(Track()), Turned(7, 0, 17, 22));
    m_Slider.SetSliderPos(100);
    EXPECT_EQ(m_Slider.CalcPointerRect(Track()), Turned(107, 0, 117, 22));
    EXPECT_EQ(m_Slider.CalcPointerRect(Turned(50, 30, 90, 45)), Turned(145, 26, 155, 48));  // 7.5 + 30 - 11
    UseModel();
    m_Slider.SetSliderPos(1);
    EXPECT_EQ(m_Slider.CalcPointerRect(Track()), Turned(94, 0, 104, 22));
}

TEST_P(Slider, AnOddTrackPutsThePointerHalfwayAndTheHalfIsTruncated)
{
    EXPECT_EQ(m_Slider.CalcPointerRect(Turned(0, 0, 90, 1)), Turned(-5, -10, 5, 11));  // -10.5 to 11.5
    EXPECT_EQ(m_Slider.CalcPointerRect(Turned(0, 20, 90, 23)), Turned(-5, 10, 5, 32));
}

// The mouse -------------------------------------------------------------------------------------------------------------------

TEST_P(Slider, APressBesideThePointerMovesItThere)
{
    Hear();
    Press(112, 30);
    EXPECT_EQ(m_Slider.GetSliderPos(), 100);
    EXPECT_FALSE(IsCapturing());
    EXPECT_EQ(m_Log.Text(), "changed(100)");
    Release();
    EXPECT_EQ(m_Log.Text(), "changed(100)");
    Press(5, 30);
    EXPECT_EQ(m_Slider.GetSliderPos(), 0);
    Release();
    Press(195, 30);
    EXPECT_EQ(m_Slider.GetSliderPos(), 174);
    Release();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(Slider, APressBesideEveryCaptionLeavesThePosition)
{
    UseModel();
    Hear();
    Press(12 + 40, 30);
    Release();
    EXPECT_EQ(m_Log.Text(), "");
    Press(12 + 90, 30);
    Release();
    EXPECT_EQ(m_Log.Text(), "changed(1)");
    Press(12 + 90, 30);  // the present position
    Release();
    EXPECT_EQ(m_Log.Text(), "changed(1)");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(Slider, APressOnThePointerBeginsADragAndLeavesThePosition)
{
    Hear();
    Press(16, 5);
    EXPECT_TRUE(IsCapturing());
    EXPECT_EQ(m_Slider.GetSliderPos(), 0);
    EXPECT_EQ(m_Log.Text(), "");
    Release();
    EXPECT_FALSE(IsCapturing());
    EXPECT_EQ(m_Log.Text(), "changed(0)");  // also of a drag that came to nothing
}

TEST_P(Slider, ThePointersEdgesBelongToIt)
{
    struct SCase
    {
        int along;
        int across;
        bool hit;
    };
    for (SCase const& place : {SCase{7, 0, true}, {17, 22, true}, {6, 5, false}, {18, 5, false}, {12, 23, false}})
    {
        m_Slider.SetSliderPos(0);
        m_Host.Paint();
        Press(place.along, place.across);
        EXPECT_EQ(IsCapturing(), place.hit) << place.along << " " << place.across;
        Release();
    }
}

TEST_P(Slider, ADragTracksAndItsEndIsAChange)
{
    Hear();
    Press(12, 5);
    Move(50, 5);
    Move(90, 300);
    EXPECT_EQ(m_Slider.GetSliderPos(), 78);
    Move(90, 5);
    EXPECT_EQ(m_Log.Text(), "tracking(38) tracking(78)");
    bool captured = true;
    auto const changed = Listen(m_Slider.m_PosChanged, [&](CSlider*, double) { captured = IsCapturing(); });
    Release();
    EXPECT_EQ(m_Log.Text(), "tracking(38) tracking(78) changed(78)");
    EXPECT_FALSE(captured);
    Move(120, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 78);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(Slider, ADragBeyondTheTrackGoesToItsEnds)
{
    m_Slider.SetSliderPos(50);
    m_Host.Paint();
    Press(62, 5);
    Move(187, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 174);
    Move(12, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 0);
    Move(188, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 174);
    Move(11, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 0);
    Move(280, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 174);
    Move(-9, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 0);
    Release();
}

TEST_P(Slider, InPointsADragBeyondTheTrackGoesToTheFirstAndLastPoint)
{
    CPoints points({0.25, 0.5, 0.75});
    m_Slider.SetModel(&points);
    m_Slider.SetSliderPos(1);
    m_Host.Paint();
    Hear();
    Press(12 + 87, 5);
    Move(12, 5);  // beside all captions
    Move(187, 5);
    EXPECT_EQ(m_Log.Text(), "");
    Move(11, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 0);
    Move(188, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 2);
    Move(12 + 87, 5);
    EXPECT_EQ(m_Slider.GetSliderPos(), 1);
    Release();
    EXPECT_EQ(m_Log.Text(), "tracking(0) tracking(2) tracking(1) changed(1)");
    m_Slider.SetModel(nullptr);
}

TEST_P(Slider, OtherButtonsAreNotActedOn)
{
    Hear();
    for (MouseButton const button : {mbRight, mbMiddle})
    {
        point<int> const beside = At(100, 30);
        point<int> const on = At(12, 5);
        EXPECT_FALSE(m_Slider.HandleButtonDown(beside.x, beside.y, 0, button));
        EXPECT_FALSE(m_Slider.HandleButtonDown(on.x, on.y, 0, button));
        EXPECT_FALSE(IsCapturing());
        EXPECT_FALSE(m_Slider.HandleButtonUp(on.x, on.y, 0, button));
    }
    EXPECT_EQ(m_Log.Text(), "");
    Press(12, 5);
    point<int> const on = At(12, 5);
    EXPECT_FALSE(m_Slider.HandleButtonUp(on.x, on.y, 0, mbRight));
    EXPECT_TRUE(IsCapturing());
    EXPECT_EQ(m_Log.Text(), "");
    Release();
    EXPECT_EQ(m_Log.Text(), "changed(0)");
}

TEST_P(Slider, TheLeftButtonAndMovesAreTaken)
{
    Hear();
    point<int> const beside = At(100, 30);
    EXPECT_TRUE(m_Slider.HandleMouseMove(beside.x, beside.y, 0, mbLeft));
    EXPECT_TRUE(m_Slider.HandleButtonUp(beside.x, beside.y, 0, mbLeft));  // without a drag
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_TRUE(m_Slider.HandleButtonDown(beside.x, beside.y, 1, mbLeft));
    EXPECT_EQ(m_Log.Text(), "changed(88)");
}

TEST_P(Slider, ADisabledOneIsNotMoved)
{
    m_Slider.SetEnabled(false);
    Hear();
    Press(112, 30);
    Release();
    Press(12, 5);
    EXPECT_FALSE(IsCapturing());
    EXPECT_EQ(m_Log.Text(), "");
}

// Keys ------------------------------------------------------------------------------------------------------------------------

TEST_P(Slider, TheArrowsAlongItMoveItByOne)
{
    Hear();
    m_Host.Keyboard().Press(More());
    m_Host.Keyboard().Press(More());
    m_Host.Keyboard().Press(Less());
    EXPECT_EQ(m_Slider.GetSliderPos(), 1);
    EXPECT_EQ(m_Log.Text(), "changed(1) changed(2) changed(1)");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(Slider, KeysStopAtTheEndsWithoutTelling)
{
    UseModel();
    Hear();
    EXPECT_TRUE(m_Slider.HandleKeyDown(0, Less()));
    EXPECT_EQ(m_Log.Text(), "");
    m_Slider.SetSliderPos(2);
    m_Log.Clear();
    EXPECT_TRUE(m_Slider.HandleKeyDown(0, More()));
    EXPECT_EQ(m_Slider.GetSliderPos(), 2);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_TRUE(m_Slider.HandleKeyDown(0, Less()));
    EXPECT_EQ(m_Log.Text(), "changed(1)");
}

TEST_P(Slider, OtherKeysAreLeftToOthers)
{
    m_Slider.SetSliderPos(50);
    Hear();
    int const across[2] = {m_Vertical ? vkLeft : vkUp, m_Vertical ? vkRight : vkDown};
    for (int const key : {across[0], across[1], static_cast<int>(vkHome), static_cast<int>(vkSpace), 65})
        EXPECT_FALSE(m_Slider.HandleKeyDown(0, key)) << key;
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_P(Slider, WithOnePointTheKeysChangeNothing)
{
    CPoints one({0.5});
    m_Slider.SetModel(&one);
    EXPECT_EQ(m_Slider.GetPointCount(), 1);
    Hear();
    EXPECT_TRUE(m_Slider.HandleKeyDown(0, More()));
    EXPECT_TRUE(m_Slider.HandleKeyDown(0, Less()));
    EXPECT_EQ(m_Slider.GetSliderPos(), 0);
    EXPECT_EQ(m_Log.Text(), "");
    m_Slider.SetModel(nullptr);
}

TEST_P(Slider, AKeyBringsAPositionBeyondThePointsBack)
{
    UseModel();
    m_Slider.SetSliderPos(2);
    m_Points.Set({0, 1});
    Hear();
    EXPECT_TRUE(m_Slider.HandleKeyDown(0, More()));  // 3, limited
    EXPECT_EQ(m_Slider.GetSliderPos(), 1);
    EXPECT_EQ(m_Log.Text(), "changed(1)");
}

// Models ----------------------------------------------------------------------------------------------------------------------

TEST_P(Slider, AnotherModelIsReadListenedToAndRepainted)
{
    m_Slider.SetModel(&m_Points);
    EXPECT_EQ(m_Slider.GetModel(), &m_Points);
    EXPECT_EQ(m_Slider.GetPointCount(), 3);
    EXPECT_TRUE(m_Host.IsFramePending());
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    CPoints other({0.1, 0.2});
    m_Slider.SetModel(&other);
    EXPECT_EQ(m_Slider.GetPointCount(), 2);
    m_Points.Set({1});
    EXPECT_EQ(m_Slider.GetPointCount(), 2);
    EXPECT_EQ(m_Slider.GetPointValue(1), 0.2);
    other.Set({0.3});
    EXPECT_EQ(m_Slider.GetPointValue(0), 0.3);
    m_Slider.SetModel(nullptr);
    EXPECT_EQ(m_Slider.GetModel(), &s_DefSliderModel);
    EXPECT_EQ(m_Slider.GetPointCount(), 175);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(Slider, WhileAModelIsReadTheFormerPointsAreGone)
{
    class CLooking : public CPoints
    {
    public:
        explicit CLooking(CSlider& slider) : CPoints({0, 1}), m_Slider(slider) {}
        int GetPointCount() const override
        {
            EXPECT_TRUE(m_Slider.GetItems().empty());
            return CPoints::GetPointCount();
        }

    private:
        CSlider& m_Slider;
    };
    UseModel();
    CLooking looking(m_Slider);
    m_Slider.SetModel(&looking);
    looking.Set({0.5});
    EXPECT_EQ(m_Slider.GetItems().size(), 1u);
    m_Slider.SetModel(nullptr);
}

TEST_P(Slider, AModelThatDiesIsForgotten)
{
    {
        CPoints brief({0, 0.3, 0.6});
        m_Slider.SetModel(&brief);
        m_Slider.SetSliderPos(2);
        m_Host.Paint();
    }
    EXPECT_EQ(m_Slider.GetModel(), &s_DefSliderModel);
    EXPECT_TRUE(m_Slider.GetItems().empty());
    EXPECT_EQ(m_Slider.GetSliderPos(), 2);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(Slider, AFormerModelMayDieWithoutTheSliderCaring)
{
    {
        CPoints brief({0});
        m_Slider.SetModel(&brief);
        UseModel();
    }
    EXPECT_EQ(m_Slider.GetModel(), &m_Points);
    EXPECT_EQ(m_Slider.GetPointCount(), 3);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_P(Slider, TheSharedDefaultModelIsListenedToByAll)
{
    m_Slider.SetSliderPos(5);
    m_Host.Paint();
    s_DefSliderModel.m_SigChanged(&s_DefSliderModel);
    EXPECT_EQ(m_Slider.GetPointCount(), 175);
    EXPECT_EQ(m_Slider.GetSliderPos(), 5);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_P(Slider, AnotherLookIsRepaintedAndNoneIsTheDefault)
{
    class CWide : public CDefSliderDrawingModel
    {
    public:
        size<int> GetPointerSize(ILayout*) const override { return {0, 0}; }
    };
    CWide wide;
    m_Slider.SetDrawingModel(&wide);
    EXPECT_EQ(m_Slider.GetDrawingModel(), &wide);
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(m_Slider.GetPointCount(), 195);  // 199 without 2 at each end
    m_Host.Paint();
    m_Slider.SetDrawingModel(nullptr);
    EXPECT_EQ(m_Slider.GetDrawingModel(), &s_DefSliderDrawingModel);
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(m_Slider.GetPointCount(), 175);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// State -----------------------------------------------------------------------------------------------------------------------

TEST_P(Slider, ItsStateIsOfFocusMouseAndItsOwnFlag)
{
    EXPECT_EQ(m_Slider.GetState(), 2);
    Move(100, 30);
    EXPECT_EQ(m_Slider.GetState(), 6);
    m_Slider.SetEnabled(false);
    EXPECT_EQ(m_Slider.GetState() & 5, 1);
    m_Slider.SetEnabled(true);
    m_Host.Mouse().Leave();
    EXPECT_EQ(m_Slider.GetState() & 5, 0);
    m_Slider.SetFocus(true);
    EXPECT_EQ(m_Slider.GetState(), 2);
    m_Host.Unfocus();
    EXPECT_EQ(m_Slider.GetState(), 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(Slider, APressTakesTheFocus)
{
    auto* const other = new CVisualElement(m_Host.Root(), {5, 5}, alBottom);
    other->SetCanHaveFocus(true);
    other->SetFocus(false);
    EXPECT_EQ(m_Slider.GetState(), 0);
    Press(100, 30);
    EXPECT_EQ(m_Slider.GetState(), 6);
    Release();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}
