// What a slider draws, and what its drawing model is asked for.

#include "tests/support/call_log.h"
#include "tests/support/paint_calls.h"
#include "tests/support/recording_painter.h"
#include "tests/widgets/slider_bench.h"
#include "vexel/platform/border.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <tuple>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

std::string Numbers(rectangle<double> const& rect)
{
    auto const number = [](double value) {
        std::string text = std::to_string(value);
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
        return text;
    };
    return number(rect.left) + " " + number(rect.top) + " " + number(rect.right) + " " + number(rect.bottom);
}

/// Writes down what it is asked for in a paint, and draws as the default does.
class CNotingDrawing : public CDefSliderDrawingModel
{
public:
    mutable std::string m_Calls;
    mutable _color m_TextGround;
    std::function<void(int point, font&, _color&, _color&, int&)> m_Attr;
    double m_Narrower = 0;  ///< So many pixels from both ends of captions.
    ILayout const* m_Layout = nullptr;

    void GetAttr(int point, font& face, _color& text, _color& background, int& state) const override
    {
        m_Calls += "attr " + std::to_string(point) + " state " + std::to_string(state) + "; ";
        if (m_Attr)
            m_Attr(point, face, text, background, state);
    }
    void GetContentRect(int point, int state, rectangle<double>& rect, ILayout* layout) const override
    {
        Note("content", point, state, rect, layout);
        CDefSliderDrawingModel::GetContentRect(point, state, rect, layout);
        layout->GetAlongRef(rect.left, rect.top) += m_Narrower;
        layout->GetAlongRef(rect.right, rect.bottom) -= m_Narrower;
    }
    void OnDrawPointCaption(IPainter* painter, rectangle<double> const& rect, int point, int state,
                            std::string const& caption, ILayout* layout) const override
    {
        Note("caption " + caption, point, state, rect, layout);
        m_TextGround = painter->GetBkColor();
        CDefSliderDrawingModel::OnDrawPointCaption(painter, rect, point, state, caption, layout);
    }
    void OnDrawPointer(IPainter* painter, rectangle<double> const& rect, int state, ILayout* layout) const override
    {
        Note("pointer", -1, state, rect, layout);
        CDefSliderDrawingModel::OnDrawPointer(painter, rect, state, layout);
    }
    void OnDrawSlot(IPainter* painter, rectangle<double> const& rect, int state, ILayout* layout) const override
    {
        Note("slot", -1, state, rect, layout);
        CDefSliderDrawingModel::OnDrawSlot(painter, rect, state, layout);
    }
    std::string Take() { return std::exchange(m_Calls, ""); }

private:
    void Note(std::string const& what, int point, int state, rectangle<double> const& rect, ILayout* layout) const
    {
        m_Calls += what + (point < 0 ? "" : " " + std::to_string(point)) + " at " + Numbers(rect) + " state " +
                   std::to_string(state) + (layout == m_Layout ? "; " : " in a strange layout; ");
    }
};

class SliderPaint : public CSliderBench, public testing::WithParamInterface<bool>
{
protected:
    explicit SliderPaint(double scale = 1.0) : CSliderBench(GetParam(), scale)
    {
        m_Drawing.m_Layout = &m_Slider;
        m_Slider.SetDrawingModel(&m_Drawing);
        m_Slider.SetBkColor(color_table[12]);
        auto* const other = new CVisualElement(&m_Ground, {5, 5}, alNone);
        other->SetCanHaveFocus(true);
        other->SetFocus(false);
        m_Host.Paint();
        m_Drawing.Take();
    }
    ~SliderPaint() override
    {
        m_Slider.SetDrawingModel(nullptr);
        m_Slider.SetModel(nullptr);
    }

    CNotingDrawing m_Drawing;
};
class SliderPaintLarger : public SliderPaint
{
protected:
    SliderPaintLarger() : SliderPaint(1.5) {}
};
class SliderPaintScaled : public SliderPaint
{
protected:
    SliderPaintScaled() : SliderPaint(1.25) {}
};
auto const NameOfDirection = [](auto const& param) { return param.param ? "Vertical" : "Horizontal"; };
INSTANTIATE_TEST_SUITE_P(Direction, SliderPaint, testing::Bool(), NameOfDirection);
INSTANTIATE_TEST_SUITE_P(Direction, SliderPaintScaled, testing::Bool(), NameOfDirection);
INSTANTIATE_TEST_SUITE_P(Direction, SliderPaintLarger, testing::Bool(), NameOfDirection);

// What is drawn on a window by a function. Vertical.
class CProbe : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    std::function<void(IPainter*)> m_Deed;

protected:
    void DrawContent(IPainter* painter) override { m_Deed(painter); }
};
std::vector<std::string> DrawnBy(std::function<void(IPainter*)> const& deed)
{
    CTestHost host(300, 300);
    auto* const probe = new CProbe(host.Root(), {0, 0}, alClient);
    NameElement(*probe, "probe");
    probe->m_Deed = deed;
    return host.Paint().Of("probe").Calls();
}

}  // namespace

// The slider ------------------------------------------------------------------------------------------------------------------

TEST_P(SliderPaint, GroundTrackAndPointerAreDrawnInThisOrder)
{
    PaintLog const log = Repaint();
    EXPECT_EQ(m_Drawing.Take(),
              "slot at " + Text(12, 10, 187, 12) + " state 0; pointer at " + Text(7, 0, 17, 22) + " state 0; ");
    std::vector<std::string> const calls = log.Calls();
    EXPECT_THAT(log, Draws("SetBrush cyan").Then("FillRect " + Text(0, 0, 199, 39)));
    EXPECT_EQ(log.Count("DrawString*"), 0);
}

TEST_P(SliderPaint, TheGroundIsFilledAlsoIfASubclassLeavesTheRestOut)
{
    class CBlank : public CSlider
    {
    public:
        using CSlider::CSlider;
        int m_Grounds = 0;
        void DrawBackground(IPainter* painter) override
        {
            ++m_Grounds;
            painter->FillRect(1, 2, 3, 4);
        }
    };
    auto& blank = *new CBlank(&m_Ground, {5, 5}, alNone);
    NameElement(blank, "blank");
    blank.SetPos({220, 220, 290, 290}, true);
    blank.Update(utElement);
    PaintLog const log = m_Host.Paint().Of("blank");
    EXPECT_EQ(blank.m_Grounds, 1);
    EXPECT_EQ(log.Count("FillRect 1 2 3 4"), 1);
    EXPECT_EQ(log.Count("FillRect 0 0 70 70"), 0);
}

TEST_P(SliderPaint, ThePointerStandsAtThePosition)
{
    m_Slider.SetSliderPos(100);
    m_Host.Paint();
    EXPECT_EQ(m_Drawing.Take(),
              "slot at " + Text(12, 10, 187, 12) + " state 0; pointer at " + Text(107, 0, 117, 22) + " state 0; ");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(SliderPaint, PointsAreAskedForAndDrawnOneByOneByTheirValues)
{
    CPoints points({1, 0.5, 0});
    m_Slider.SetModel(&points);
    m_Host.Paint();
    std::string expected =
        "slot at " + Text(12, 10, 187, 12) + " state 0; pointer at " + Text(7, 0, 17, 22) + " state 0; ";
    // The pointer ends at 22; a letter is 8 high, and 2 more make the band 10 long.
    int const places[] = {7, 94, 182};
    for (int i = 0; i < 3; ++i)
    {
        std::string const index = std::to_string(2 - i);
        int const from = places[i];
        expected += "attr " + index + " state 0; content " + index + " at " + Text(from, 23, from + 10, 39) +
                    " state 0; caption p" + index + " " + index + " at " + Text(from, 25, from + 10, 39) + " state 0; ";
    }
    EXPECT_EQ(m_Drawing.Take(), expected);
    m_Slider.SetModel(nullptr);
}

TEST_P(SliderPaint, CaptionsAreFilledAndTheirTextsCentredAndFitted)
{
    m_Slider.SetFgColor(color_table[6]);
    UseModel();
    PaintLog const log = Repaint();
    char const* const flags = m_Vertical ? " 0x121" : " 0x10C";
    EXPECT_THAT(log, Draws("SetTextColor red")
                         .Then("SetBrush cyan")
                         .Then("FillRect " + Text(7, 25, 17, 39))
                         .Then("DrawStringEx \"p0\" " + Text(7, 29, 17, 39) + flags)
                         .Then("FillRect " + Text(94, 25, 104, 39))
                         .Then("DrawStringEx \"p1\" " + Text(94, 29, 104, 39) + flags)
                         .Then("FillRect " + Text(182, 25, 192, 39))
                         .Then("DrawStringEx \"p2\" " + Text(182, 29, 192, 39) + flags));
    EXPECT_EQ(log.Count("DrawString*"), 3);
}

TEST_P(SliderPaint, AttributesOfOnePointAreItsOwn)
{
    UseModel();
    m_Drawing.m_Attr = [](int point, font& face, _color& text, _color& background, int& state) {
        if (point != 1)
            return;
        face.size = 16;
        text = color_table[4];
        background = color_table[3];
        state |= 8;
    };
    m_Drawing.Take();
    PaintLog const log = Repaint();
    EXPECT_THAT(log, Draws("DrawStringEx \"p0\"*")
                         .Then("SetFont \"Square\" 16")
                         .Then("SetTextColor blue")
                         .Then("SetBrush yellow")
                         .Then("FillRect " + Text(94, 25, 104, 39))
                         .Then("DrawStringEx \"p1\"*")
                         .Then("SetFont \"Square\" 8")
                         .Then("SetTextColor #101010")
                         .Then("SetBrush cyan")
                         .Then("DrawStringEx \"p2\"*"));
    std::string const calls = m_Drawing.Take();
    EXPECT_NE(calls.find("attr 1 state 0; content 1 at " + Text(94, 23, 104, 39) + " state 8; caption p1 1 at " +
                         Text(94, 25, 104, 39) + " state 8;"),
              std::string::npos);
    EXPECT_NE(calls.find("attr 2 state 0; content 2 at " + Text(182, 23, 192, 39) + " state 0;"), std::string::npos);
}

TEST_P(SliderPaint, TheTextsGroundIsAlsoToldToThePainter)
{
    UseModel();
    EXPECT_EQ(m_Drawing.m_TextGround, color_table[12]);
    m_Drawing.m_Attr = [](int, font&, _color&, _color& background, int&) { background = color_table[3]; };
    Repaint();
    EXPECT_EQ(m_Drawing.m_TextGround, color_table[3]);
}

TEST_P(SliderPaint, TheRangesThatAPressHitsAreThoseOfTheLastDrawing)
{
    UseModel();
    m_Drawing.m_Narrower = 2;
    Repaint();
    EXPECT_EQ(m_Slider.GetItems()[1].second.start, 84);
    EXPECT_EQ(m_Slider.GetItems()[1].second.end, 90);
    m_Slider.SetSliderPos(0);
    EXPECT_EQ(m_Slider.CalcPointByPos(84), 0);
    EXPECT_EQ(m_Slider.CalcPointByPos(85), 1);
    m_Drawing.m_Narrower = 0.75;
    Repaint();
    EXPECT_EQ(m_Slider.GetItems()[0].second.start, -4);  // -4.25
    EXPECT_EQ(m_Slider.GetItems()[0].second.end, 4);
    EXPECT_EQ(m_Slider.GetItems()[1].second.start, 82);  // 82.75
    EXPECT_EQ(m_Slider.GetItems()[1].second.end, 91);    // 91.25
}

TEST_P(SliderPaint, TheStateIsHandedToTheDrawing)
{
    m_Slider.SetFocus(true);
    m_Host.Paint();
    EXPECT_NE(m_Drawing.Take().find("state 2; pointer"), std::string::npos);
    Move(100, 35);
    m_Host.Paint();
    EXPECT_NE(m_Drawing.Take().find("state 6; pointer"), std::string::npos);
    m_Host.Mouse().Leave();
    m_Host.Paint();
    EXPECT_NE(m_Drawing.Take().find("state 2; pointer"), std::string::npos);
    m_Host.Unfocus();
    m_Host.Paint();
    EXPECT_NE(m_Drawing.Take().find("state 0; pointer"), std::string::npos);
    m_Slider.SetEnabled(false);
    m_Host.Paint();
    EXPECT_NE(m_Drawing.Take().find("state 1; pointer"), std::string::npos);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(SliderPaint, AFocusedTrackIsFramed)
{
    EXPECT_EQ(Repaint().Count("FocusRect*"), 0);
    m_Slider.SetFocus(true);
    PaintLog const log = m_Host.Paint().Of("slider");
    EXPECT_EQ(CallsFrom(log, "FocusRect"), Text(8, 6, 191, 16));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(SliderPaint, EmptyAndTinyPlacesAreDrawnWithoutHarm)
{
    UseModel();
    for (int along : {0, 1, 5, 24, 25})
        for (int across : {0, 1, 10, 22, 23, 24})
        {
            Place(along, across);
            m_Drawing.Take();
            EXPECT_EQ(m_Host.CompareWithFullPaint(), "") << along << " " << across;
        }
}

TEST_P(SliderPaintScaled, MetricsScaleEachByItself)
{
    // 2.5, 12.5 and 27.5, truncated: 2, 12 and 27. Letters are 10 high.
    Place(199, 59);
    UseModel();
    m_Drawing.Take();
    PaintLog const log = Repaint();
    // The track: 14 from both ends, from (27 - 2) / 2 on across. Its length is 171.
    EXPECT_EQ(m_Slider.GetPointCount(), 3);
    EXPECT_EQ(m_Slider.CalcPosByPoint(2), 171);
    std::string const calls = m_Drawing.Take();
    EXPECT_EQ(calls.substr(0, calls.find("attr")),
              "slot at " + Text(14, 12, 185, 14) + " state 0; pointer at " + Text(8, 0, 20, 27) + " state 0; ");
    EXPECT_NE(calls.find("content 0 at " + Text(8, 28, 20, 59)), std::string::npos) << calls;
    EXPECT_NE(calls.find("caption p0 0 at " + Text(8, 30, 20, 59)), std::string::npos) << calls;
    EXPECT_THAT(log, Draws("DrawStringEx \"p0\" " + Text(8, 35, 20, 59) + "*"));
    m_Slider.SetFocus(true);
    EXPECT_EQ(CallsFrom(m_Host.Paint().Of("slider"), "FocusRect"), Text(9, 7, 190, 19));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(SliderPaintLarger, ACaptionsOddExtentIsHalvedDownward)
{
    // A letter of 12 and 3 more. The track begins at 18, and the pointer ends at 15 - 16 + 33 and a half.
    UseModel();
    std::string const calls = m_Drawing.Take();
    EXPECT_NE(calls.find("pointer at " + Text(11, 0, 26, 33)), std::string::npos) << calls;
    EXPECT_NE(calls.find("content 0 at " + Text(11, 34, 26, 39)), std::string::npos) << calls;
    EXPECT_NE(calls.find("caption p0 0 at " + Text(11, 37, 26, 39)), std::string::npos) << calls;
}

TEST_P(SliderPaint, TheHeightOfALetterDecidesInBothDirections)
{
    class CWideLetters : public CRecordingPainter
    {
    public:
        using CRecordingPainter::CRecordingPainter;
        std::string m_Measured;
        size<double> GetTextSize(std::string const& text, font const*, int, bool, bool) override
        {
            m_Measured = text;
            return {30.9, 8.9};
        }
    };
    UseModel();
    m_Drawing.Take();
    CCallLog log;
    CWideLetters painter(log);
    m_Slider.DrawContent(&painter);
    EXPECT_EQ(painter.m_Measured, "W");
    std::string const calls = m_Drawing.Take();
    EXPECT_NE(calls.find("content 0 at " + Text(7, 23, 17, 39)), std::string::npos) << calls;
}

// The default look ------------------------------------------------------------------------------------------------------------

TEST(SliderDefaultLook, AttributesStayAsTheyAre)
{
    font face;
    face.size = 5;
    _color text = color_table[3];
    _color background = color_table[4];
    int state = 6;
    s_DefSliderDrawingModel.GetAttr(0, face, text, background, state);
    EXPECT_EQ(face.size, 5);
    EXPECT_EQ(text, color_table[3]);
    EXPECT_EQ(background, color_table[4]);
    EXPECT_EQ(state, 6);
}

TEST(SliderDefaultLook, ThePointersSizeIsTurnedByTheLayout)
{
    for (auto const& [scale, small, large] : {std::tuple{1.0, 10, 22}, {1.25, 12, 27}, {1.5, 15, 33}, {2.0, 20, 44}})
    {
        CTestHost const host(100, 100, scale);
        EXPECT_EQ(s_DefSliderDrawingModel.GetPointerSize(CLayoutManager::GetLayout(alBottom)),
                  (size<int>{small, large}));
        EXPECT_EQ(s_DefSliderDrawingModel.GetPointerSize(CLayoutManager::GetLayout(alRight)),
                  (size<int>{large, small}));
        EXPECT_EQ(s_DefSliderDrawingModel.GetPointerSize(nullptr), (size<int>{large, small}));
    }
    CTestHost const reset(10, 10);
}

TEST(SliderDefaultLook, TheTrackLiesInTheMiddleOfThePointersExtentAtTheTop)
{
    CDefSliderDrawingModel const& look = s_DefSliderDrawingModel;
    ILayout* const horizontal = CLayoutManager::GetLayout(alBottom);
    ILayout* const vertical = CLayoutManager::GetLayout(alRight);
    {
        CTestHost const host(100, 100);
        EXPECT_EQ(look.GetSlotRect({0, 0, 199, 39}, horizontal), (rectangle<int>{12, 10, 187, 12}));
        EXPECT_EQ(look.GetSlotRect({0, 0, 39, 199}, vertical), (rectangle<int>{10, 12, 12, 187}));
        EXPECT_EQ(look.GetSlotRect({5, 100, 44, 299}, nullptr), (rectangle<int>{15, 112, 17, 287}));
        EXPECT_EQ(look.GetSlotRect({100, 5, 299, 44}, horizontal), (rectangle<int>{112, 15, 287, 17}));
    }
    {
        CTestHost const host(100, 100, 1.5);  // 3, 15 and 33
        EXPECT_EQ(look.GetSlotRect({0, 0, 199, 39}, horizontal), (rectangle<int>{18, 15, 181, 18}));
        EXPECT_EQ(look.GetSlotRect({0, 0, 39, 199}, vertical), (rectangle<int>{15, 18, 18, 181}));
    }
    {
        CTestHost const host(100, 100, 1.75);  // 3, 17 and 38
        EXPECT_EQ(look.GetSlotRect({0, 0, 199, 39}, horizontal), (rectangle<int>{20, 17, 179, 20}));
        EXPECT_EQ(look.GetSlotRect({0, -100, 199, 39}, horizontal), (rectangle<int>{20, -83, 179, -80}));
    }
    CTestHost const reset(10, 10);
}

TEST(SliderDefaultLook, TheTrackAsksASubclassForItsPointer)
{
    class CThick : public CDefSliderDrawingModel
    {
    public:
        size<int> GetPointerSize(ILayout* layout) const override
        {
            return {ToInt(layout->GetAlong(20, 30)), ToInt(layout->GetAcross(20, 30))};
        }
    };
    CTestHost const host(10, 10);
    EXPECT_EQ(CThick().GetSlotRect({0, 0, 199, 39}, CLayoutManager::GetLayout(alBottom)),
              (rectangle<int>{22, 14, 177, 16}));
}

TEST(SliderDefaultLook, CaptionsBeginTwoPixelsFurtherAcross)
{
    CTestHost const host(10, 10, 1.5);
    rectangle<double> rect{10, 20, 30, 40};
    s_DefSliderDrawingModel.GetContentRect(0, 0, rect, CLayoutManager::GetLayout(alBottom));
    EXPECT_EQ(rect, (rectangle<double>{10, 23, 30, 40}));
    s_DefSliderDrawingModel.GetContentRect(0, 0, rect, CLayoutManager::GetLayout(alRight));
    EXPECT_EQ(rect, (rectangle<double>{13, 23, 30, 40}));
    s_DefSliderDrawingModel.GetContentRect(0, 0, rect, nullptr);
    EXPECT_EQ(rect, (rectangle<double>{16, 23, 30, 40}));
    CTestHost const reset(10, 10);
}

TEST(SliderDefaultLook, ACaptionIsFilledWithTheBrushAndItsTextStandsFourPixelsFurtherIn)
{
    auto const drawn = DrawnBy([](IPainter* painter) {
        painter->SetBrush({color_table[3], brush::bsSolid});
        s_DefSliderDrawingModel.OnDrawPointCaption(painter, {10, 20, 30, 60}, 0, 0, "ab", nullptr);
        s_DefSliderDrawingModel.OnDrawPointCaption(painter, {10, 20, 30, 60}, 0, 0, "ab",
                                                   CLayoutManager::GetLayout(alBottom));
    });
    std::vector<std::string> const expected{"SetBrush yellow", "FillRect 10 20 30 60",
                                            "DrawStringEx \"ab\" 14 20 30 60 0x122",  // as at the left edge
                                            "FillRect 10 20 30 60", "DrawStringEx \"ab\" 10 24 30 60 0x10C"};
    auto const first = std::find(drawn.begin(), drawn.end(), expected.front());
    ASSERT_GE(drawn.end() - first, std::ssize(expected));
    EXPECT_EQ(std::vector<std::string>(first, first + std::ssize(expected)), expected);
}

TEST(SliderDefaultLook, ATextIsBrokenAtBlanksAndLineFeedsOnlyAndIsPlain)
{
    class CPainter : public CRecordingPainter
    {
    public:
        using CRecordingPainter::CRecordingPainter;
        std::string m_Seen;
        size<double> DrawStringEx(rectangle<double> const&, char const* text, int, int count, char const* delimiters,
                                  ITextFormatter* formatter) override
        {
            m_Seen = std::string(text) + "|" + std::to_string(count) + "|" + delimiters + "|" +
                     (formatter ? "formatted" : "plain");
            return {};
        }
    };
    CCallLog log;
    CPainter painter(log);
    s_DefSliderDrawingModel.OnDrawPointCaption(&painter, {0, 0, 9, 9}, 0, 0, "a.b c", nullptr);
    EXPECT_EQ(painter.m_Seen, "a.b c|-1| \n|plain");
}

TEST(SliderDefaultLook, ACaptionWithoutAPainterIsNotDrawn)
{
    s_DefSliderDrawingModel.OnDrawPointCaption(nullptr, {0, 0, 9, 9}, 0, 0, "ab", nullptr);
    s_DefSliderDrawingModel.OnDrawPointCaption(nullptr, {0, 0, 9, 9}, 0, 0, "ab", CLayoutManager::GetLayout(alTop));
}

TEST(SliderDefaultLook, ThePointerIsARaisedThinBoxAndTheTrackASunkenBox)
{
    rectangle<double> const rect{10, 20, 60, 40};
    EXPECT_EQ(DrawnBy([&](IPainter* painter) { s_DefSliderDrawingModel.OnDrawPointer(painter, rect, 7, nullptr); }),
              DrawnBy([&](IPainter* painter) { DrawBorder(painter, rect, bsThinBox, bsRaised, true); }));
    EXPECT_EQ(DrawnBy([&](IPainter* painter) { s_DefSliderDrawingModel.OnDrawSlot(painter, rect, 5, nullptr); }),
              DrawnBy([&](IPainter* painter) { DrawBorder(painter, rect, bsBox, bsSunken, true); }));
}

TEST(SliderDefaultLook, TheFocusIsFramedAroundTheOrderedTrack)
{
    auto const focus = [](rectangle<double> const& rect, int state) {
        for (std::string const& call :
             DrawnBy([&](IPainter* painter) { s_DefSliderDrawingModel.OnDrawSlot(painter, rect, state, nullptr); }))
            if (call.starts_with("FocusRect"))
                return call;
        return std::string();
    };
    EXPECT_EQ(focus({10, 20, 60, 40}, 2), "FocusRect 6 16 64 44");
    EXPECT_EQ(focus({60, 40, 10, 20}, 2), "FocusRect 6 16 64 44");
    EXPECT_EQ(focus({10, 20, 60, 40}, 7), "FocusRect 6 16 64 44");
    EXPECT_EQ(focus({10, 20, 60, 40}, 5), "");
}

TEST(SliderDefaultLook, TheFramesDistanceScalesWithoutBeingTruncated)
{
    CTestHost host(300, 300, 1.375);
    auto* const probe = new CProbe(host.Root(), {0, 0}, alClient);
    NameElement(*probe, "probe");
    probe->m_Deed = [](IPainter* painter) {
        s_DefSliderDrawingModel.OnDrawSlot(painter, {10, 20, 60, 40}, 2, nullptr);
    };
    EXPECT_EQ(CallsFrom(host.Paint().Of("probe"), "FocusRect"), "4.5 14.5 65.5 45.5");
    CTestHost const reset(10, 10);
}

// Robustness ------------------------------------------------------------------------------------------------------------------

TEST_P(SliderPaint, ARangeThatIsEmptyOrNoneIsSurvived)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const infinite = std::numeric_limits<double>::infinity();
    double const huge = std::numeric_limits<double>::max();
    CPoints empty({0, 5, -5, nan}, 5, 5);
    m_Slider.SetModel(&empty);
    for (int i = 0; i < 4; ++i)
    {
        double const value = m_Slider.GetItems()[static_cast<std::size_t>(i)].first;
        if (value == 0 || value != value)
        {
            EXPECT_EQ(m_Slider.CalcPosByPoint(i), 0);
        }
        else
        {
            EXPECT_EQ(m_Slider.CalcPosByPoint(i),
                      value > 0 ? std::numeric_limits<int>::max() : std::numeric_limits<int>::min());
        }
    }
    double const ends[][2] = {{5, 5}, {0, nan}, {nan, 0}, {-infinite, infinite}, {0, huge}, {-huge, huge}, {1, 0}};
    for (auto const& [min, max] : ends)
        for (std::vector<double> const& values :
             {std::vector<double>{}, {5}, {nan}, {infinite, -infinite}, {huge, -huge, 0}, {nan, 1, nan, 0, nan}})
        {
            empty.m_Min = min;
            empty.m_Max = max;
            empty.Set(values);
            for (int position = 0; position < 5; ++position)
            {
                m_Slider.SetSliderPos(position);
                Repaint();
                m_Slider.CalcPointerRect(Track());
                m_Slider.GetPointValue(position);
                Press(100, 35);
                Release();
                Press(12, 5);
                Move(120, 5);
                Release();
            }
        }
    m_Slider.SetModel(nullptr);
}

TEST_P(SliderPaint, ManyValuesThatAreNoNumbersAreSorted)
{
    std::vector<double> values;
    for (int i = 0; i < 2000; ++i)
        values.push_back(i % 3 == 0 ? std::numeric_limits<double>::quiet_NaN() : (i * 7919) % 2000);
    CPoints points(values, 0, 2000);
    m_Slider.SetModel(&points);
    EXPECT_EQ(m_Slider.GetPointCount(), 2000);
    std::vector<int> seen(2000);
    double last = -1;
    for (auto const& [value, item] : m_Slider.GetItems())
    {
        ++seen[static_cast<std::size_t>(item.index)];
        if (value == value)
        {
            EXPECT_LE(last, value);
            last = value;
        }
    }
    EXPECT_EQ(seen, std::vector<int>(2000, 1));
    m_Slider.SetModel(nullptr);
}

TEST_P(SliderPaint, AMillionPointsAreMovedAmong)
{
    std::vector<double> values(1'000'000);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<double>(values.size() - i);
    CPoints points(values, 0, 1e6);
    m_Slider.SetModel(&points);
    EXPECT_EQ(m_Slider.GetPointCount(), 1'000'000);
    m_Slider.SetSliderPos(999'999);
    EXPECT_EQ(m_Slider.GetPointCaption(999'999), "p0");
    EXPECT_EQ(m_Slider.CalcPosByPoint(499'999), 87);
    for (int i = 0; i < 1000; ++i)
        m_Slider.CalcPointByPos(i);
    EXPECT_TRUE(m_Slider.HandleKeyDown(0, m_Vertical ? vkUp : vkLeft));
    EXPECT_EQ(m_Slider.GetSliderPos(), 999'998);
    m_Slider.SetModel(nullptr);
    m_Host.Paint();
}

TEST_P(SliderPaint, HugeAndReversedPlacesAreSurvived)
{
    int const far = std::numeric_limits<int>::max();
    for (rectangle<int> const& place :
         {rectangle<int>{0, 0, far, far}, rectangle<int>{-far, -far, far, far}, rectangle<int>{100, 100, 10, 10},
          rectangle<int>{far - 10, far - 10, far, far}, rectangle<int>{0, 0, 0, 0}})
        for (ISliderModel* const model : {static_cast<ISliderModel*>(nullptr), static_cast<ISliderModel*>(&m_Points)})
        {
            m_Slider.SetModel(model);
            m_Slider.SetPos(place, true);
            Repaint();
            m_Slider.SetSliderPos(far - 1);
            m_Slider.GetPointCount();
            m_Slider.CalcPointerRect(m_Slider.GetBounds());
            m_Slider.HandleButtonDown(far, far, 1, mbLeft);
            m_Slider.HandleKeyDown(0, vkRight);
            m_Slider.HandleKeyDown(0, vkDown);
            m_Slider.HandleMouseMove(-far, -far, 0, mbLeft);
            Repaint();
            m_Slider.SetSliderPos(0);
        }
    m_Slider.SetModel(nullptr);
}

TEST(SliderAlone, WithoutAWindowItStillHasAPosition)
{
    CSlider slider(nullptr, {50, 20}, alTop);
    slider.SetDirection(CSlider::SliderHorizontal);
    slider.SetPos({0, 0, 199, 39}, true);
    CSignalLog log(slider.m_PosChanged, "changed");
    slider.SetSliderPos(5);
    EXPECT_TRUE(slider.HandleKeyDown(0, vkRight));
    EXPECT_TRUE(slider.HandleButtonDown(100, 30, 1, mbLeft));
    EXPECT_TRUE(slider.HandleButtonDown(100, 5, 1, mbLeft));  // on the pointer
    EXPECT_TRUE(slider.HandleMouseMove(50, 5, 1, mbLeft));
    EXPECT_TRUE(slider.HandleButtonUp(50, 5, 0, mbLeft));
    EXPECT_EQ(log.Text(), "changed(5) changed(6) changed(88)");
    EXPECT_EQ(slider.GetState(), 0);
    slider.SetEnabled(false);
    EXPECT_EQ(slider.GetState(), 1);
}
