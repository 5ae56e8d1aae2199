// The element that shows an image: its size and place, and the animation it runs.

#include "vexel/controls/image.h"

#include "tests/support/slot.h"
#include "tests/support/test_images.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Size = size<int>;
using Point = point<int>;

namespace
{

/// A counter of frames of 6 x 4, each for 50 ms.
class CFrames : public IAnimation
{
public:
    int GetDelay() override { return 50; }
    void NextFrame() override { ++m_Frame; }
    size<int> GetSize() const override { return {6, 4}; }
    void Draw(IPainter* painter, double x, double y) override { painter->SetPixel(x, y, color_table[m_Frame]); }

    int m_Frame = 0;
};

vexel_ptr<IRasterPicture> Picture(int width, int height)
{
    return CTestHost::System().CreateRasterPicture(Size{width, height});
}

// An image element at (0, 0, 59, 30).
class Image : public testing::Test
{
protected:
    Image()
    {
        SetDefAnimationProcess(aptTimer);
        m_Host.Control().SetImageList(&m_Images);
        NameElement(m_Image, "image");
        m_Host.Paint();
    }
    ~Image() override
    {
        SetDefAnimationProcess(aptThread);
        if (m_Host.HasControl())
            m_Host.Control().SetImageList(nullptr);
    }
    PaintLog Draw()
    {
        m_Images.Take();
        m_Image.Update(utElement);
        return m_Host.Paint().Of("image");
    }

    CTestImages m_Images{{{16, 10}, {16, 10}}};
    CTestHost m_Host{60, 40};
    CImage& m_Image = *new CImage(m_Host.Root(), {0, 30}, alTop);
    vexel_ptr<CFrames> m_Frames{new CFrames};
};

}  // namespace

TEST_F(Image, ItStartsWithNothingInTheMiddle)
{
    EXPECT_EQ(m_Image.GetImageIndex(), -1);
    EXPECT_EQ(m_Image.GetRasterPicture(), nullptr);
    EXPECT_EQ(m_Image.GetAnimation(), nullptr);
    EXPECT_FALSE(m_Image.IsAutoSize());
    EXPECT_EQ(m_Image.GetOffset(), rectangle<int>());
    EXPECT_EQ(m_Image.GetImageAlign(), 0x24);
    EXPECT_FALSE(m_Image.IsAssigned());
    EXPECT_FALSE(m_Image.IsAnimated());
    EXPECT_EQ(m_Image.GetImageSize(), Size());
}

TEST_F(Image, AnIndexDropsThePictureAndAPictureTheIndex)
{
    m_Image.SetRasterPicture(Picture(7, 6));
    m_Image.SetImageIndex(0);
    EXPECT_EQ(m_Image.GetRasterPicture(), nullptr);
    EXPECT_EQ(m_Image.GetImageSize(), (Size{16, 10}));
    m_Image.SetRasterPicture(Picture(7, 6));
    EXPECT_EQ(m_Image.GetImageIndex(), -1);
    EXPECT_EQ(m_Image.GetImageSize(), (Size{7, 6}));
    EXPECT_TRUE(m_Image.IsAssigned());
    m_Image.SetImageIndex(-1);  // no change, the picture stays
    EXPECT_NE(m_Image.GetRasterPicture(), nullptr);
    m_Image.Clear();
    EXPECT_FALSE(m_Image.IsAssigned());
}

TEST_F(Image, WithoutAutomaticSizeAChangeRepaints)
{
    m_Image.SetImageIndex(0);
    EXPECT_EQ(m_Image.GetSize(), (Size{0, 30}));
    EXPECT_EQ(m_Host.Paint().Elements(), "image");
    m_Image.SetImageIndex(0);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(Image, AutomaticSizeIsTheImageAndTheOffsets)
{
    m_Image.SetOffset({1, 2, 30, 40});
    m_Image.SetAutoSize(true);
    EXPECT_EQ(m_Image.GetSize(), (Size{31, 42}));
    m_Image.SetImageIndex(0);
    EXPECT_EQ(m_Image.GetSize(), (Size{47, 52}));
    m_Image.SetOffset({});
    EXPECT_EQ(m_Image.GetSize(), (Size{16, 10}));
}

TEST_F(Image, WithAutomaticSizeAnotherImageOfTheSameSizeIsPainted)
{
    m_Image.SetAutoSize(true);
    m_Image.SetImageIndex(0);
    m_Host.Paint();
    m_Image.SetImageIndex(1);
    EXPECT_EQ(m_Host.Paint().Elements(), "image");
}

TEST_F(Image, WithoutAControlTheSizeIsTakenWhenItArrives)
{
    CImage alone(nullptr, {5, 5}, alNone);
    alone.SetAutoSize(true);
    alone.SetRasterPicture(Picture(7, 6));
    EXPECT_EQ(alone.GetSize(), (Size{5, 5}));
    alone.ReParent(m_Host.Root(), false);
    EXPECT_EQ(alone.GetSize(), (Size{7, 6}));
}

TEST_F(Image, TheImageStandsByItsAlignmentInsideTheOffsets)
{
    m_Image.SetOffset({1, 2, 10, 20});
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{17, 1}));  // (59 + 1 - 10 - 16) / 2, (30 + 2 - 20 - 10) / 2
    m_Image.SetImageAlign(IPainter::AlignLeft | IPainter::AlignTop);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{1, 2}));
    m_Image.SetImageAlign(IPainter::AlignRight | IPainter::AlignBottom);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{33, 0}));
    m_Image.SetImageAlign(0);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{17, 1}));
}

TEST_F(Image, AStillImageIsDrawnWithoutAGround)
{
    m_Image.SetImageIndex(0);
    EXPECT_EQ(Draw().Count("FillRect*"), 0);
    EXPECT_EQ(m_Images.Take(), "draw 0 at 21 10");
    m_Image.SetRasterPicture(Picture(7, 6));
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("DrawRasterPicture 7x6 26 12 33 18"));
    EXPECT_EQ(log.Count("FillRect*"), 0);
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(Image, NothingIsDrawnWhereThereIsNothing)
{
    EXPECT_THAT(Draw(), Not(Draws("*Picture*")));
    EXPECT_EQ(m_Images.Take(), "");
}

// Animation ---------------------------------------------------------------------------------------------------------------

TEST_F(Image, ARunningAnimationStepsTellsAndRepaints)
{
    CSignalLog log(m_Image.m_FrameChanged, "frame");
    m_Image.SetAnimation(m_Frames);
    EXPECT_FALSE(m_Image.IsAnimated());
    EXPECT_EQ(m_Image.GetImageSize(), Size());
    m_Image.StartAnimation();
    EXPECT_TRUE(m_Image.IsAnimated());
    EXPECT_EQ(m_Image.GetImageSize(), (Size{6, 4}));
    EXPECT_EQ(log.Take(), "frame()");
    EXPECT_THAT(m_Host.Paint().Of("image"), Draws("FillRect 0 0 59 30").Then("SetPixel 26 13 black"));

    m_Host.Clock().Advance(50);
    EXPECT_EQ(log.Take(), "frame()");
    EXPECT_THAT(m_Host.Paint().Of("image"), Draws("SetPixel 26 13 #8000FF"));

    m_Image.StopAnimation();
    EXPECT_FALSE(m_Image.IsAnimated());
    m_Host.Clock().Advance(500);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(Image, ARunningAnimationGivesItsSize)
{
    m_Image.SetAutoSize(true);
    m_Image.SetRasterPicture(Picture(7, 6));
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    EXPECT_EQ(m_Image.GetSize(), (Size{6, 4}));
    m_Image.StopAnimation();
    EXPECT_EQ(m_Image.GetSize(), (Size{7, 6}));
}

TEST_F(Image, WithoutAnAnimationNothingStartsAndARunningOneGoesOn)
{
    m_Image.StartAnimation();
    EXPECT_FALSE(m_Image.IsAnimated());
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    int const frame = m_Frames->m_Frame;
    m_Image.StartAnimation();
    EXPECT_EQ(m_Frames->m_Frame, frame);
    m_Image.StopAnimation();
    m_Image.StartAnimation();
    EXPECT_EQ(m_Frames->m_Frame, frame + 1);
    EXPECT_TRUE(m_Image.IsAnimated());
}

TEST_F(Image, StartedBeforeItHasAControlItStartsWhenTheControlArrives)
{
    CImage alone(nullptr, {5, 5}, alNone);
    alone.SetAnimation(m_Frames);
    alone.StartAnimation();
    EXPECT_FALSE(alone.IsAnimated());
    alone.ReParent(m_Host.Root(), false);
    EXPECT_TRUE(alone.IsAnimated());
}

TEST_F(Image, HiddenItTakesNoStep)
{
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    m_Image.SetVisible(false);
    EXPECT_FALSE(m_Image.IsUpdatable());
    int const frame = m_Frames->m_Frame;
    m_Host.Clock().Advance(200);
    EXPECT_EQ(m_Frames->m_Frame, frame);
}

TEST_F(Image, OutOfItsControlItStopsAndInTheNextItGoesOn)
{
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    m_Image.ReParent(nullptr, true);
    EXPECT_FALSE(m_Image.IsAnimated());
    m_Image.ReParent(m_Host.Root(), true);
    EXPECT_TRUE(m_Image.IsAnimated());
}

TEST_F(Image, ItsAnimationEndsWithTheWindow)
{
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    m_Host.DestroyWindow();
    EXPECT_FALSE(m_Image.IsAnimated());
}

TEST_F(Image, AnotherAnimationTakesOver)
{
    vexel_ptr<CFrames> const other(new CFrames);
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    m_Image.SetAnimation(other);
    EXPECT_TRUE(m_Image.IsAnimated());
    int const frame = m_Frames->m_Frame;
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Frames->m_Frame, frame);
    EXPECT_EQ(other->m_Frame, 3);
    m_Image.SetAnimation(nullptr);
    EXPECT_FALSE(m_Image.IsAnimated());
}

TEST_F(Image, TheImageMayBeDeletedInAStep)
{
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    auto const end = Listen(m_Image.m_FrameChanged, [&](CImage* image) { delete image; });
    m_Host.Clock().Advance(200);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
}

TEST_F(Image, TheImageMayBeDeletedInItsFirstStep)
{
    m_Image.SetAnimation(m_Frames);
    auto const end = Listen(m_Image.m_FrameChanged, [&](CImage* image) { delete image; });
    m_Image.StartAnimation();
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
    m_Host.Clock().Advance(200);
}

TEST_F(Image, ByThreadTheStepsComeThroughTheWindow)
{
    SetDefAnimationProcess(aptThread);
    CSignalLog log(m_Image.m_FrameChanged, "frame");
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    EXPECT_TRUE(m_Image.IsAnimated());
    m_Host.StepBackground();
    m_Host.RunPending();
    m_Host.Clock().Advance(60);
    m_Host.StepBackground();
    m_Host.RunPending();
    EXPECT_GE(log.Count("frame"), 1);
    m_Image.StopAnimation();
    EXPECT_FALSE(m_Image.IsAnimated());
}

// Details -----------------------------------------------------------------------------------------------------------------

TEST_F(Image, EachSideOfItsAlignmentStandsAlone)
{
    m_Image.SetOffset({1, 2, 10, 20});
    m_Image.SetImageAlign(IPainter::AlignLeft);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{1, 1}));
    m_Image.SetImageAlign(IPainter::AlignRight);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{33, 1}));  // 59 - (10 + 16)
    m_Image.SetImageAlign(IPainter::AlignTop);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{17, 2}));
    m_Image.SetImageAlign(IPainter::AlignBottom);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{17, 0}));  // 30 - (20 + 10)
    m_Image.SetImageAlign(IPainter::AlignLeft | IPainter::AlignRight | IPainter::AlignTop | IPainter::AlignBottom);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{1, 2}));
}

TEST_F(Image, TheMiddleIsRoundedTowardsNothing)
{
    EXPECT_EQ(m_Image.GetDrawStartPos({60, 31}), (Point{0, 0}));    // -1 / 2
    EXPECT_EQ(m_Image.GetDrawStartPos({62, 33}), (Point{-1, -1}));  // -3 / 2
}

TEST_F(Image, OffsetsBeyondAllBoundsDoNotTurnRound)
{
    int const most = std::numeric_limits<int>::max();
    m_Image.SetOffset({most, most, 0, 0});
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{1073741845, 1073741833}));  // (59 + most - 16) / 2
    m_Image.SetRasterPicture(Picture(7, 6));
    m_Image.SetImageAlign(IPainter::AlignLeft | IPainter::AlignTop);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{most, most}));
    EXPECT_THAT(Draw(), Draws("DrawRasterPicture 7x6 2147483647 2147483647 2147483647 2147483647"));
    m_Image.SetOffset({0, 0, most, most});
    m_Image.SetImageAlign(IPainter::AlignRight | IPainter::AlignBottom);
    EXPECT_EQ(m_Image.GetDrawStartPos({16, 10}), (Point{-2147483604, -2147483627}));  // 59 - (most + 16)
    EXPECT_EQ(m_Image.GetDrawStartPos({100, 100}), (Point{-most - 1, -most - 1}));
}

TEST_F(Image, ItIsDrawnWhereItsAlignmentSays)
{
    m_Image.SetOffset({1, 2, 10, 20});
    m_Image.SetImageAlign(IPainter::AlignRight | IPainter::AlignTop);
    m_Image.SetRasterPicture(Picture(7, 6));
    EXPECT_THAT(Draw(), Draws("DrawRasterPicture 7x6 42 2 49 8"));  // 59 - (10 + 7)
    m_Image.SetImageIndex(1);
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 1 at 33 2");
}

TEST_F(Image, PlaceAndAutomaticSizeAreTakenOnAChangeAlone)
{
    m_Image.SetImageAlign(0x24);
    m_Image.SetOffset({});
    m_Image.SetAutoSize(false);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Image.SetImageAlign(0x9);
    EXPECT_EQ(m_Host.Paint().Elements(), "image");
    m_Image.SetOffset({1, 0, 0, 0});
    EXPECT_EQ(m_Host.Paint().Elements(), "image");
    auto const picture = Picture(7, 6);
    m_Image.SetRasterPicture(picture);
    EXPECT_EQ(m_Host.Paint().Elements(), "image");
    m_Image.SetRasterPicture(picture);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(Image, AnImageOfAListThatIsNotThereIsNoImage)
{
    m_Host.Control().SetImageList(nullptr);
    m_Image.SetImageIndex(1);
    EXPECT_EQ(m_Image.GetImageSize(), Size());
    EXPECT_TRUE(m_Image.IsAssigned());
    Draw();
    EXPECT_EQ(m_Images.Take(), "");
    CImage alone(nullptr, {5, 5}, alNone);
    alone.SetImageIndex(1);
    EXPECT_EQ(alone.GetImageSize(), Size());
}

TEST_F(Image, WhileTheWindowGoesAwayItTakesNoSize)
{
    m_Image.SetAutoSize(true);
    auto const take = Listen(m_Image.m_SigControlDestroy, [&](CVisualElement*) { m_Image.SetImageIndex(0); });
    m_Host.DestroyWindow();
    EXPECT_EQ(m_Image.GetImageIndex(), 0);
    EXPECT_EQ(m_Image.GetSize(), Size());
}

TEST_F(Image, TheFrameIsToldBeforeTheRepaintIsAskedFor)
{
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    m_Host.Paint();
    bool pending = true;
    auto const look = Listen(m_Image.m_FrameChanged, [&](CImage*) { pending = m_Host.IsFramePending(); });
    m_Host.Clock().Advance(50);
    EXPECT_FALSE(pending);
    EXPECT_TRUE(m_Host.IsFramePending());
    pending = true;
    m_Host.Paint();
    m_Image.UpdateAnimation();
    EXPECT_FALSE(pending);
    EXPECT_EQ(m_Host.Paint().Elements(), "image");
}

TEST_F(Image, AStartBeforeTheControlIsForgottenByAStop)
{
    CImage alone(nullptr, {5, 5}, alNone);
    alone.SetAnimation(m_Frames);
    alone.StartAnimation();
    alone.StopAnimation();
    alone.ReParent(m_Host.Root(), false);
    EXPECT_FALSE(alone.IsAnimated());
}

TEST_F(Image, AStartWithoutAnAnimationIsForgotten)
{
    CImage alone(nullptr, {5, 5}, alNone);
    alone.StartAnimation();
    alone.SetAnimation(m_Frames);
    alone.ReParent(m_Host.Root(), false);
    EXPECT_FALSE(alone.IsAnimated());
}

TEST_F(Image, AStartThatWaitedHappensOnce)
{
    CImage alone(nullptr, {5, 5}, alNone);
    alone.SetAnimation(m_Frames);
    alone.StartAnimation();
    alone.ReParent(m_Host.Root(), false);
    EXPECT_EQ(m_Frames->m_Frame, 1);
    alone.StopAnimation();
    alone.ReParent(nullptr, false);
    alone.ReParent(m_Host.Root(), false);
    EXPECT_FALSE(alone.IsAnimated());
}

TEST_F(Image, ARunningAnimationStandsBeforeAPictureAndAnIndex)
{
    m_Image.SetImageIndex(0);
    m_Image.SetAnimation(m_Frames);
    EXPECT_EQ(m_Image.GetImageSize(), (Size{16, 10}));
    m_Image.StartAnimation();
    EXPECT_EQ(m_Image.GetImageSize(), (Size{6, 4}));
    EXPECT_THAT(Draw(), Draws("FillRect 0 0 59 30").Then("SetPixel 26 13 *"));
    EXPECT_EQ(m_Images.Take(), "");
    m_Image.SetRasterPicture(Picture(7, 6));
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetPixel 26 13 *"));
    EXPECT_THAT(log, Not(Draws("DrawRasterPicture*")));
    m_Image.SetImageIndex(0);
    m_Image.StopAnimation();
    EXPECT_EQ(Draw().Count("FillRect*"), 0);
    EXPECT_EQ(m_Images.Take(), "draw 0 at 21 10");
}

TEST_F(Image, ItIsUpdatableWhileItIsDisplayable)
{
    EXPECT_TRUE(m_Image.IsUpdatable());
    m_Host.Root()->SetVisible(false);
    EXPECT_FALSE(m_Image.IsUpdatable());
    m_Host.Root()->SetVisible(true);
    EXPECT_TRUE(m_Image.IsUpdatable());
}

TEST_F(Image, ItsSubclassHearsOfEveryNewSize)
{
    class CCounting : public CImage
    {
    public:
        using CImage::CImage;
        void RecalculateSize() override
        {
            ++m_Count;
            CImage::RecalculateSize();
        }
        int Take() { return std::exchange(m_Count, 0); }
        int m_Count = 0;
    };
    CCounting image(nullptr, {5, 5}, alNone);
    image.SetImageIndex(0);
    EXPECT_EQ(image.Take(), 1);
    image.SetImageIndex(0);
    EXPECT_EQ(image.Take(), 0);
    image.SetRasterPicture(Picture(7, 6));
    EXPECT_EQ(image.Take(), 1);
    image.SetOffset({1, 1, 1, 1});
    EXPECT_EQ(image.Take(), 1);
    image.SetOffset({1, 1, 1, 1});
    EXPECT_EQ(image.Take(), 0);
    image.ReParent(m_Host.Root(), false);
    EXPECT_EQ(image.Take(), 1);
    image.SetAnimation(m_Frames);
    image.Take();
    image.StartAnimation();
    EXPECT_EQ(image.Take(), 1);
    image.StopAnimation();
}

TEST_F(Image, TheParentAndTheControlMayBeDeletedInAStep)
{
    auto* const pane = new CVisualElement(m_Host.Root(), {0, 5}, alTop);
    auto* const image = new CImage(pane, {5, 5}, alTop);
    image->SetAnimation(m_Frames);
    image->StartAnimation();
    {
        auto const end = Listen(image->m_FrameChanged, [&](CImage*) { delete pane; });
        m_Host.Clock().Advance(200);
        EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
    }
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    auto const end = Listen(m_Image.m_FrameChanged, [&](CImage*) { m_Host.DestroyControl(); });
    m_Host.Clock().Advance(200);
    EXPECT_FALSE(m_Host.HasControl());
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
}

TEST_F(Image, ItsAnimationMayBeStoppedExchangedOrStartedAgainInAStep)
{
    vexel_ptr<CFrames> const other(new CFrames);
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    int steps = 0;
    auto const act = Listen(m_Image.m_FrameChanged, [&](CImage* image) {
        ++steps;
        if (steps == 1)
            image->SetAnimation(other);
        else if (steps == 3)
        {
            image->StopAnimation();
            image->StartAnimation();
        }
        else if (steps == 5)
            image->StopAnimation();
    });
    m_Host.Clock().Advance(1000);
    EXPECT_FALSE(m_Image.IsAnimated());
    EXPECT_EQ(steps, 5);
    EXPECT_EQ(m_Frames->m_Frame, 2);
    EXPECT_EQ(other->m_Frame, 4);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
}

TEST_F(Image, ADeletedImageTakesItsAnimationAlong)
{
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    delete &m_Image;
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
    m_Host.Clock().Advance(200);
    EXPECT_EQ(m_Frames->m_Frame, 1);
}

TEST_F(Image, ClearedItShowsNothingAndRunsNothing)
{
    m_Image.SetRasterPicture(Picture(7, 6));
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    m_Image.Clear();
    EXPECT_FALSE(m_Image.IsAssigned());
    EXPECT_FALSE(m_Image.IsAnimated());
    EXPECT_EQ(m_Image.GetImageSize(), Size());
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
    EXPECT_EQ(m_Host.Paint().Elements(), "image");
}

TEST_F(Image, AClearForgetsAStartThatWaits)
{
    CImage alone(nullptr, {5, 5}, alNone);
    alone.SetAnimation(m_Frames);
    alone.StartAnimation();
    alone.Clear();
    alone.SetAnimation(m_Frames);
    alone.ReParent(m_Host.Root(), false);
    EXPECT_FALSE(alone.IsAnimated());
}

TEST_F(Image, AStartThatWaitedIsForgottenOnceItHasHappened)
{
    CImage alone(nullptr, {5, 5}, alNone);
    alone.SetAnimation(m_Frames);
    alone.StartAnimation();
    alone.ReParent(m_Host.Root(), false);
    EXPECT_TRUE(alone.IsAnimated());
    alone.SetAnimation(nullptr);
    alone.SetAnimation(m_Frames);
    alone.ReParent(nullptr, false);
    alone.ReParent(m_Host.Root(), false);
    EXPECT_FALSE(alone.IsAnimated());
}

TEST_F(Image, TheImageMayBeDeletedInTheFirstStepOfAnotherAnimation)
{
    vexel_ptr<CFrames> const other(new CFrames);
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    auto const end = Listen(m_Image.m_FrameChanged, [&](CImage* image) { delete image; });
    m_Image.SetAnimation(other);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
}

TEST_F(Image, ByThreadADeletedImageHearsOfNoStepThatIsUnderWay)
{
    SetDefAnimationProcess(aptThread);
    m_Image.SetAnimation(m_Frames);
    m_Image.StartAnimation();
    m_Host.StepBackground();
    m_Host.Clock().Advance(60);
    m_Host.StepBackground();
    int const frame = m_Frames->m_Frame;
    delete &m_Image;
    m_Host.RunPending();
    m_Host.RunBackground();
    EXPECT_EQ(m_Frames->m_Frame, frame);
}
