// Animations that Qt reads.

#include "tests/platform/qt/qt_test_kit.h"
#include "vexel/platform/qt/load_animation.h"

#include "tests/support/canvas.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QTemporaryDir>

namespace vexelbase::qt::test
{

namespace
{

// Three pixels by two: for 200 ms transparent but for a blue pixel in the middle of the first row; for 50 ms red, green,
// blue, and a row of red below.
unsigned char const g_TwoFrames[] = {
    0x47, 0x49, 0x46, 0x38, 0x39, 0x61, 0x03, 0x00, 0x02, 0x00, 0xf0, 0x00, 0x00, 0x00, 0x00, 0xff, 0x00,
    0x00, 0x00, 0x21, 0xf9, 0x04, 0x09, 0x14, 0x00, 0x01, 0x00, 0x21, 0xff, 0x0b, 0x4e, 0x45, 0x54, 0x53,
    0x43, 0x41, 0x50, 0x45, 0x32, 0x2e, 0x30, 0x03, 0x01, 0x00, 0x00, 0x00, 0x2c, 0x00, 0x00, 0x00, 0x00,
    0x03, 0x00, 0x02, 0x00, 0x00, 0x02, 0x03, 0x0c, 0x82, 0x51, 0x00, 0x21, 0xf9, 0x04, 0x00, 0x05, 0x00,
    0x00, 0x00, 0x2c, 0x00, 0x00, 0x00, 0x00, 0x03, 0x00, 0x02, 0x00, 0x81, 0xff, 0x00, 0x00, 0x00, 0xff,
    0x00, 0x00, 0x00, 0xff, 0x00, 0x00, 0x00, 0x02, 0x03, 0x44, 0x04, 0x59, 0x00, 0x3b};

QByteArray TwoFrames()
{
    return QByteArray(reinterpret_cast<char const*>(g_TwoFrames), sizeof g_TwoFrames);
}

void ExpectTwoFrames(vexel_ptr<IAnimation> const& animation)
{
    ASSERT_TRUE(animation);
    EXPECT_EQ(animation->GetSize(), (size<int>{3, 2}));
    tests::CCanvas canvas("ymg\nccc\n");

    EXPECT_EQ(animation->GetDelay(), 200);
    animation->Draw(&canvas.Painter(), 0, 0);
    EXPECT_EQ(canvas.Text(), "ybg\nccc\n");

    animation->NextFrame();
    EXPECT_EQ(animation->GetDelay(), 50);
    animation->Draw(&canvas.Painter(), 0, 0);
    EXPECT_EQ(canvas.Text(), "rgb\nrrr\n");

    animation->NextFrame();
    EXPECT_EQ(animation->GetDelay(), 200);
}

}  // namespace

TEST(QtAnimation, IsReadFromADevice)
{
    QByteArray data = TwoFrames();
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);

    ExpectTwoFrames(LoadAnimation(&buffer));
}

TEST(QtAnimation, IsReadFromAFile)
{
    QTemporaryDir folder;
    QString const path = folder.filePath("two frames.gif");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(TwoFrames());
    file.close();

    ExpectTwoFrames(LoadAnimation(path.toStdString()));
}

TEST(QtAnimation, ThatIsCutShortHasTheFramesBeforeTheCut)
{
    QByteArray data = TwoFrames().left(70);
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);

    vexel_ptr<IAnimation> const animation = LoadAnimation(&buffer);

    ASSERT_TRUE(animation);
    animation->NextFrame();
    EXPECT_EQ(animation->GetDelay(), 200) << "there is no other frame";
}

TEST(QtAnimation, ThatCantBeReadGivesNullAndTheReason)
{
    std::string error;
    EXPECT_FALSE(LoadAnimation("/nowhere/at all.gif", &error));
    EXPECT_NE(error, "");

    QByteArray data = "no picture";
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    error.clear();
    EXPECT_FALSE(LoadAnimation(&buffer, &error));
    EXPECT_NE(error, "");
    EXPECT_FALSE(LoadAnimation(&buffer));
}

}  // namespace vexelbase::qt::test
