#include "tests/platform/qt/qt_test_kit.h"

#include <gtest/gtest.h>

#include <QBackingStore>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>

namespace vexelbase::qt::test
{

namespace
{

brush Solid(_color const& color)
{
    brush result;
    result.color = color;
    result.style = brush::bsSolid;
    return result;
}

std::string Text(QRegion const& region)
{
    std::ostringstream text;
    for (QRect const& rect : region)
        text << '[' << rect.x() << ',' << rect.y() << ' ' << rect.width() << 'x' << rect.height() << ']';
    return text.str();
}

void FillAll(IPainter* painter, ISysWindow& window, _color const& color)
{
    painter->SetBrush(Solid(color));
    painter->FillRect(0, 0, window.GetRect().right - 1, window.GetRect().bottom - 1);
}

// What the screen shows of the widget, in device pixels.
QImage Shot(QWidget* widget)
{
    QImage image = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1.0);
    return image;
}

// What stands behind the widget in the pixels of its top-level one, in device pixels; `left`, `top`: where it stands.
QImage Behind(QWidget* widget, int left, int top)
{
    QPaintDevice* const device = widget->backingStore()->paintDevice();
    EXPECT_EQ(device->devType(), int{QInternal::Image});
    double const ratio = widget->devicePixelRatioF();
    QImage image = static_cast<QImage*>(device)->copy(left, top, static_cast<int>(widget->width() * ratio),
                                                      static_cast<int>(widget->height() * ratio));
    image.setDevicePixelRatio(1.0);
    return image;
}

// The tests of other ratios run once more in a process of their own. True in that process.
bool IsAtRatio(char const* ratio)
{
    if (qEnvironmentVariable("VEXEL_TEST_RATIO") == QLatin1String(ratio))
        return true;
    testing::TestInfo const* const info = testing::UnitTest::GetInstance()->current_test_info();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("VEXEL_TEST_RATIO", ratio);
    environment.insert("QT_SCALE_FACTOR", ratio);
    environment.insert("QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough");
    environment.remove("GTEST_TOTAL_SHARDS");
    environment.remove("GTEST_SHARD_INDEX");
    environment.remove("GTEST_OUTPUT");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("/proc/self/exe", {QString("--gtest_filter=%1.%2").arg(info->test_suite_name(), info->name())});
    EXPECT_TRUE(process.waitForFinished(60000));
    QByteArray const output = process.readAll();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0) << output.toStdString();
    EXPECT_TRUE(output.contains("[  PASSED  ] 1 test.")) << output.toStdString();
    return false;
}

}  // namespace

TEST(QtPaint, ManyRequestsBringOneDraw)
{
    CHosted hosted;
    hosted.Control().m_Draws = 0;
    for (int i = 0; i < 5; ++i)
        hosted.Window().InvalidateRect(0, 0, 100, 80);
    EXPECT_EQ(hosted.Control().m_Draws, 0);
    Settle();
    EXPECT_EQ(hosted.Control().m_Draws, 1);
}

TEST(QtPaint, OnlyWhatWasTouchedIsShownAnew)
{
    CHosted hosted;
    CPaintWatch watch(hosted.Widget());
    hosted.Control().m_Draw = [](IPainter* painter) {
        painter->SetBrush(Solid(color_table[6]));
        painter->FillRect(10, 20, 14, 22);  // 5 x 3 pixels
        painter->FillRect(70, 60, 70, 60);
    };
    hosted.Window().InvalidateRect(0, 0, 100, 80);
    Settle();
    EXPECT_EQ(watch.m_Count, 1);
    EXPECT_EQ(Text(watch.m_Region), "[10,20 5x3][70,60 1x1]");
}

TEST(QtPaint, WhatIsPaintedStandsBehindTheTopLevelWidgetToThePixel)
{
    QWidget top;
    top.resize(150, 120);
    QWidget inner(&top);
    inner.setGeometry(7, 9, 100, 80);
    std::unique_ptr<ISysWindow> const window = HostWindow(&inner);
    CRecorder control(window.get());
    top.show();
    Settle();
    control.m_Draw = [&](IPainter* painter) {
        FillAll(painter, *window, color_table[9]);
        painter->SetBrush(Solid(color_table[6]));
        painter->FillRect(10, 20, 14, 22);
        painter->FillRect(99, 79, 99, 79);
    };
    window->UpdateNow();
    Settle();

    QImage const seen = Behind(GetWidget(window.get()), 7, 9);
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 100; ++x)
        {
            bool const red = (x >= 10 && x <= 14 && y >= 20 && y <= 22) || (x == 99 && y == 79);
            ASSERT_EQ(seen.pixel(x, y), red ? 0xFFFF0000u : 0xFFFFFFFFu) << x << ", " << y;
        }
}

TEST(QtPaint, ADrawThatTouchesNothingShowsNothing)
{
    CHosted hosted;
    CPaintWatch watch(hosted.Widget());
    hosted.Control().m_Draws = 0;
    hosted.Control().m_Draw = [](IPainter*) {};
    hosted.Window().InvalidateRect(0, 0, 100, 80);
    Settle();
    EXPECT_EQ(hosted.Control().m_Draws, 1);
    EXPECT_EQ(watch.m_Count, 0);
}

TEST(QtPaint, ReExposureDoesNotAskTheControl)
{
    CHosted hosted;
    hosted.Control().m_Draw = [&](IPainter* painter) { FillAll(painter, hosted.Window(), color_table[4]); };
    hosted.Window().UpdateNow();
    Settle();
    hosted.Control().m_Draws = 0;
    CPaintWatch watch(hosted.Widget());
    hosted.Widget()->update(3, 4, 10, 10);
    Settle();
    EXPECT_EQ(watch.m_Count, 1);
    EXPECT_EQ(hosted.Control().m_Draws, 0);
    EXPECT_EQ(Shot(hosted.Widget()).pixel(50, 40), 0xFF0000FFu);  // blue
}

TEST(QtPaint, NothingHappensWhileNothingChanges)
{
    CHosted hosted;
    hosted.Window().UpdateNow();
    Settle();
    hosted.Control().m_Draws = 0;
    CPaintWatch watch(hosted.Widget());
    Settle();
    EXPECT_EQ(hosted.Control().m_Draws, 0);
    EXPECT_EQ(watch.m_Count, 0);
    // Focus and pointer come and go without a repaint.
    QFocusEvent in(QEvent::FocusIn);
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(hosted.Widget(), &in);
    QCoreApplication::sendEvent(hosted.Widget(), &out);
    Settle();
    EXPECT_EQ(watch.m_Count, 0);
}

TEST(QtPaint, UpdateNowDrawsAtOnce)
{
    CHosted hosted;
    hosted.Control().m_Draws = 0;
    hosted.Window().InvalidateRect(0, 0, 100, 80);
    hosted.Window().UpdateNow();
    EXPECT_EQ(hosted.Control().m_Draws, 1);
    Settle();
    EXPECT_EQ(hosted.Control().m_Draws, 1);
}

TEST(QtPaint, AHiddenWindowWaitsWithItsDraw)
{
    QWidget host;
    host.resize(50, 50);
    std::unique_ptr<ISysWindow> window = HostWindow(&host);
    CRecorder control(window.get());
    Settle();
    EXPECT_EQ(control.m_Draws, 0);
    host.show();
    EXPECT_EQ(control.m_Draws, 1);
    Settle();
    EXPECT_EQ(control.m_Draws, 1);
}

TEST(QtPaint, ALockedWindowShowsItsChangesAtTheEnd)
{
    CHosted hosted;
    hosted.Control().m_Draw = [&](IPainter* painter) { FillAll(painter, hosted.Window(), color_table[6]); };
    CPaintWatch watch(hosted.Widget());
    hosted.Window().LockDrawing(true);
    hosted.Window().LockDrawing(true);
    hosted.Window().InvalidateRect(0, 0, 100, 80);
    hosted.Window().LockDrawing(false);
    Settle();
    EXPECT_EQ(watch.m_Count, 0);
    hosted.Window().LockDrawing(false);
    Settle();
    EXPECT_EQ(watch.m_Count, 1);
    EXPECT_EQ(Shot(hosted.Widget()).pixel(99, 79), 0xFFFF0000u);
}

TEST(QtPaint, ResizingKeepsPixelsAndAsksForAFullPaint)
{
    CHosted hosted;
    hosted.Control().m_Draw = [&](IPainter* painter) { FillAll(painter, hosted.Window(), color_table[6]); };
    hosted.Window().UpdateNow();
    bool full = false;
    hosted.Control().m_Draw = [&](IPainter* painter) { full = painter->IsFullPaint(); };
    hosted.Top().resize(120, 90);
    Settle();
    EXPECT_TRUE(full);
    EXPECT_EQ(hosted.Base().GetPixels().Row(79)[99], 0xFFFF0000u);
    EXPECT_EQ(hosted.Base().GetPixels().Row(80)[99], 0xFFFFFFFFu);
    full = false;
    hosted.Window().UpdateNow();
    EXPECT_FALSE(full);
}

TEST(QtPaint, MovedPixelsReachTheScreen)
{
    CHosted hosted;
    hosted.Control().m_Draw = [&](IPainter* painter) {
        FillAll(painter, hosted.Window(), color_table[9]);
        painter->SetBrush(Solid(color_table[6]));
        painter->FillRect(0, 0, 9, 9);
    };
    hosted.Window().UpdateNow();
    Settle();
    hosted.Control().m_Draws = 0;
    CPaintWatch watch(hosted.Widget());
    hosted.Window().ScrollPixels(0, 20, {0, 0, 9, 9});
    Settle();
    EXPECT_EQ(Text(watch.m_Region), "[0,20 10x10]");
    EXPECT_EQ(hosted.Control().m_Draws, 0);
    QImage const shot = Shot(hosted.Widget());
    EXPECT_EQ(shot.pixel(9, 29), 0xFFFF0000u);
    EXPECT_EQ(shot.pixel(10, 29), 0xFFFFFFFFu);
    EXPECT_EQ(shot.pixel(5, 5), 0xFFFF0000u);
}

TEST(QtPaint, ScreenAndClientAgreeBothWays)
{
    CHosted hosted;
    hosted.Top().move(37, 21);
    Settle();
    point<int> at{5, 6};
    hosted.Window().ClientToScreen(&at);
    EXPECT_EQ(at, (point<int>{42, 27}));
    hosted.Window().ScreenToClient(&at);
    EXPECT_EQ(at, (point<int>{5, 6}));
    point<int> before{0, 0};
    hosted.Window().ScreenToClient(&before);
    EXPECT_EQ(before, (point<int>{-37, -21}));
}

// One logical pixel is one and a quarter on the screen: 101 x 83 become 126.25 x 103.75.
TEST(QtRatio, AtOneAndAQuarterTheSurfaceIsTheScreens)
{
    if (!IsAtRatio("1.25"))
        return;
    ASSERT_EQ(QGuiApplication::primaryScreen()->devicePixelRatio(), 1.25);
    CHosted hosted(101, 83);
    EXPECT_EQ(hosted.Window().GetRect(), (rectangle<int>{0, 0, 126, 104}));

    // A pattern that any stretching or shift would blur.
    hosted.Control().m_Draw = [&](IPainter* painter) {
        FillAll(painter, hosted.Window(), color_table[9]);
        painter->SetBrush(Solid(color_table[1]));
        for (int x = 0; x < 126; x += 2)
            painter->FillRect(x, 0, x, 103);
    };
    hosted.Window().UpdateNow();
    Settle();
    QImage const shot = Shot(hosted.Widget());
    ASSERT_GE(shot.width(), 126);
    ASSERT_GE(shot.height(), 103);
    for (int x = 0; x < 126; ++x)
    {
        ASSERT_EQ(shot.pixel(x, 0), x % 2 == 0 ? 0xFF000000u : 0xFFFFFFFFu) << x;
        ASSERT_EQ(shot.pixel(x, 102), x % 2 == 0 ? 0xFF000000u : 0xFFFFFFFFu) << x;
    }
    for (int x = 126; x < shot.width(); ++x)
        EXPECT_EQ(shot.pixel(x, 50), 0xFFFFFFFFu);  // the last column again, not a gap

    // Pixel (33, 41) lies in Qt's pixels 26.4 to 27.2 and 32.8 to 33.6.
    hosted.Control().m_Draw = [](IPainter* painter) {
        painter->SetBrush(Solid(color_table[6]));
        painter->FillRect(33, 41, 33, 41);
    };
    CPaintWatch watch(hosted.Widget());
    hosted.Window().UpdateNow();
    Settle();
    EXPECT_EQ(Text(watch.m_Region), "[26,32 2x2]");
    EXPECT_EQ(Shot(hosted.Widget()).pixel(33, 41), 0xFFFF0000u);

    // Positions come in the screen's pixels: 40.5 x 1.25 = 50.625.
    QMouseEvent const press(QEvent::MouseButtonPress, QPointF(40.5, 8), QPointF(40.5, 8), Qt::LeftButton,
                            Qt::LeftButton, Qt::NoModifier);
    hosted.Control().Take();
    QCoreApplication::sendEvent(hosted.Widget(), const_cast<QMouseEvent*>(&press));
    EXPECT_EQ(hosted.Control().Take(), "down(50,10,0x1,1)");

    hosted.Top().move(33, 17);  // 41.25, 21.25
    Settle();
    for (int x = 0; x < 126; ++x)
    {
        point<int> at{x, x / 2};
        hosted.Window().ClientToScreen(&at);
        EXPECT_EQ(at, (point<int>{41 + x, 21 + x / 2}));
        hosted.Window().ScreenToClient(&at);
        ASSERT_EQ(at, (point<int>{x, x / 2}));
    }
}

TEST(QtRatio, AtTwoTheSurfaceHasTwicePixels)
{
    if (!IsAtRatio("2"))
        return;
    CHosted hosted(100, 80);
    EXPECT_EQ(hosted.Window().GetRect(), (rectangle<int>{0, 0, 200, 160}));
    EXPECT_EQ(hosted.Window().GetPainter()->GetDPIScale(), 2.0);
    hosted.Control().m_Draw = [&](IPainter* painter) {
        FillAll(painter, hosted.Window(), color_table[9]);
        painter->SetBrush(Solid(color_table[6]));
        painter->FillRect(51, 61, 51, 61);
    };
    hosted.Window().UpdateNow();
    Settle();
    QImage const shot = Shot(hosted.Widget());
    EXPECT_EQ(shot.size(), QSize(200, 160));
    EXPECT_EQ(shot.pixel(51, 61), 0xFFFF0000u);
    EXPECT_EQ(shot.pixel(50, 61), 0xFFFFFFFFu);
    EXPECT_EQ(shot.pixel(52, 61), 0xFFFFFFFFu);
    EXPECT_EQ(Behind(hosted.Widget(), 0, 0), shot);
}

}  // namespace vexelbase::qt::test
