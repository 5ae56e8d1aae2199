// An animation over pictures: its steps, its size and what it draws.

#include "tests/support/canvas.h"
#include "vexel/platform/picture_animation.h"

#include <gtest/gtest.h>

namespace vexelbase::tests
{

TEST(PictureAnimation, WithoutFramesHasNoSizeAndNoDelayAndDrawsNothing)
{
    CCanvas canvas("rg\n");
    CPictureAnimation animation;

    animation.NextFrame();
    animation.Draw(&canvas.Painter(), 0, 0);

    EXPECT_EQ(animation.GetFrame(), 0);
    EXPECT_EQ(animation.GetSize(), (size<int>{0, 0}));
    EXPECT_EQ(animation.GetDelay(), 0);
    EXPECT_EQ(canvas.Text(), "rg\n");
}

TEST(PictureAnimation, StepsFromTheLastFrameToTheFirst)
{
    CPictureAnimation animation;
    animation.AddFrame(MakePicture("rr\nrr\n"), 30);
    animation.AddFrame(MakePicture("bbb\n"), 70);
    animation.AddFrame(nullptr, 90);

    EXPECT_EQ(animation.GetFrameCount(), 2);
    EXPECT_EQ(animation.GetDelay(), 30);
    animation.NextFrame();
    EXPECT_EQ(animation.GetFrame(), 1);
    EXPECT_EQ(animation.GetDelay(), 70);
    animation.NextFrame();
    EXPECT_EQ(animation.GetFrame(), 0);
}

TEST(PictureAnimation, IsAsWideAndHighAsItsLargestFrames)
{
    CPictureAnimation animation;
    animation.AddFrame(MakePicture("r\nr\n"), 30);
    animation.AddFrame(MakePicture("bbb\n"), 70);

    EXPECT_EQ(animation.GetSize(), (size<int>{3, 2}));
}

TEST(PictureAnimation, DrawsThePresentFrameAtItsPlace)
{
    CCanvas canvas("....\n....\n....\n");
    CPictureAnimation animation;
    animation.AddFrame(MakePicture("rr\nrr\n"), 30);
    animation.AddFrame(MakePicture("gb\n"), 30);

    animation.Draw(&canvas.Painter(), 1, 0);
    EXPECT_EQ(canvas.Text(), ".rr.\n.rr.\n....\n");
    animation.NextFrame();
    animation.Draw(&canvas.Painter(), 2, 2);
    EXPECT_EQ(canvas.Text(), ".rr.\n.rr.\n..gb\n");
}

TEST(PictureAnimation, LeavesWhatTheMaskHasInWhite)
{
    CCanvas canvas("yyy\nccc\n");
    CPictureAnimation animation;
    animation.AddFrame(MakePicture("r#g\n#b#\n"), 30, MakePicture("#.#\n.#.\n"));

    animation.Draw(&canvas.Painter(), 0, 0);

    EXPECT_EQ(canvas.Text(), "ryg\ncbc\n");
}

}  // namespace vexelbase::tests
