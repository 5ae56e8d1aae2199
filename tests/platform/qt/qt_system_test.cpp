#include "tests/platform/qt/qt_test_kit.h"
#include "vexel/platform/animation.h"
#include "vexel/platform/qt/application.h"
#include "vexel/platform/system.h"
#include "vexel/platform/xpm.h"
#include "vexel/signals/notify.h"

#include "vexel/testing/expect_report.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QPalette>
#include <QProcess>
#include <QScreen>
#include <QStyle>

namespace vexelbase::qt::test
{

namespace
{

class CTicks : public CTimerNotify
{
public:
    void OnTimer(CTimerEvent*) override
    {
        ++m_Count;
        if (m_Then)
            m_Then();
    }

    int m_Count = 0;
    std::function<void()> m_Then;
};

// Puts the application's palette, font and style back.
class CKeepLook
{
public:
    CKeepLook() : m_Palette(QApplication::palette()), m_Font(QApplication::font()) {}
    ~CKeepLook()
    {
        QApplication::setPalette(m_Palette);
        QApplication::setFont(m_Font);
    }

private:
    QPalette m_Palette;
    QFont m_Font;
};

ISystem& System()
{
    return *GetCurrentSystem();
}

}  // namespace

TEST(QtTimer, IsMadeStoppedAndTicksWhenStarted)
{
    vexel_ptr<ISysTimer> timer = System().CreateTimer(1, 0);
    CTicks ticks;
    timer->Subscribe(&ticks, typeid(ITimerNotify), true);
    EXPECT_FALSE(timer->IsRunning());
    Settle();
    EXPECT_EQ(ticks.m_Count, 0);

    timer->SetRunning(true);
    EXPECT_TRUE(timer->IsRunning());
    EXPECT_TRUE(RunUntil([&] { return ticks.m_Count >= 3; }));
    timer->SetRunning(false);
    int const count = ticks.m_Count;
    EXPECT_FALSE(timer->IsRunning());
    Settle();
    EXPECT_EQ(ticks.m_Count, count);
}

TEST(QtTimer, PeriodsBelowOneCountAsOne)
{
    vexel_ptr<ISysTimer> timer = System().CreateTimer(-5, 0);
    CTicks ticks;
    timer->Subscribe(&ticks, typeid(ITimerNotify), true);
    timer->SetRunning(true);
    EXPECT_TRUE(RunUntil([&] { return ticks.m_Count >= 1; }));
    timer->SetPeriod(0);
    EXPECT_TRUE(timer->IsRunning());
    int const count = ticks.m_Count;
    EXPECT_TRUE(RunUntil([&] { return ticks.m_Count > count; }));
}

TEST(QtTimer, ANewPeriodStartsTheWaitAnew)
{
    vexel_ptr<ISysTimer> timer = System().CreateTimer(3600000, 0);
    CTicks ticks;
    timer->Subscribe(&ticks, typeid(ITimerNotify), true);
    timer->SetPeriod(3600000);
    EXPECT_FALSE(timer->IsRunning());  // a stopped one stays so
    timer->SetRunning(true);
    timer->SetPeriod(1);
    EXPECT_TRUE(RunUntil([&] { return ticks.m_Count >= 1; }));
}

TEST(QtTimer, MayGoInItsOwnTick)
{
    vexel_ptr<ISysTimer> timer = System().CreateTimer(1, 0);
    CTicks first;
    CTicks second;
    timer->Subscribe(&first, typeid(ITimerNotify), true);
    timer->Subscribe(&second, typeid(ITimerNotify), true);
    first.m_Then = [&] {
        if (!timer)
            return;
        timer->SetRunning(false);
        timer->Unsubscribe(&first, typeid(ITimerNotify), true);
        timer.reset();
    };
    timer->SetRunning(true);
    EXPECT_TRUE(RunUntil([&] { return first.m_Count == 1; }));
    Settle();
    EXPECT_EQ(first.m_Count, 1);
    EXPECT_FALSE(timer);
}

TEST(QtTimer, AThrowingTickIsReportedAndTheNextOneComes)
{
    vexel_ptr<ISysTimer> timer = System().CreateTimer(1, 0);
    CTicks ticks;
    timer->Subscribe(&ticks, typeid(ITimerNotify), true);
    ticks.m_Then = [&] {
        if (ticks.m_Count == 1)
            throw std::runtime_error("in a tick");
    };
    vexel::test::CExpectException const report("in a tick");
    timer->SetRunning(true);
    EXPECT_TRUE(RunUntil([&] { return ticks.m_Count >= 2; }));
}

TEST(QtSystem, TheClipboardTakesAndGivesText)
{
    System().GetClipboard()->SetText("gr\xc3\xbc\xc3\x9f\x65");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("gr\xc3\xbc\xc3\x9f\x65"));
    EXPECT_EQ(System().GetClipboard()->GetText(), "gr\xc3\xbc\xc3\x9f\x65");
}

TEST(QtSystem, ColorsAreThePalettes)
{
    CKeepLook const keep;
    QPalette palette;
    struct
    {
        ISysPalette::SysColor number;
        QPalette::ColorRole role;
        QRgb value;
    } const cases[] = {
        {ISysPalette::scWindow, QPalette::Base, 0xFF010203},
        {ISysPalette::scWindowText, QPalette::Text, 0xFF111213},
        {ISysPalette::scFace, QPalette::Window, 0xFFF1F2F3},
        {ISysPalette::scLight, QPalette::Light, 0xFF313233},
        {ISysPalette::scHalfLight, QPalette::Midlight, 0xFF414243},
        {ISysPalette::scShadow, QPalette::Dark, 0xFF515253},
        {ISysPalette::scDarkShadow, QPalette::Shadow, 0xFF616263},
        {ISysPalette::scControlText, QPalette::WindowText, 0xFF717273},
        {ISysPalette::scHighlight, QPalette::Highlight, 0xFF818283},
        {ISysPalette::scHighlightText, QPalette::HighlightedText, 0xFF919293},
        {ISysPalette::scTooltip, QPalette::ToolTipBase, 0xFFA1A2A3},
        {ISysPalette::scTooltipText, QPalette::ToolTipText, 0xFFB1B2B3},
        {ISysPalette::scLink, QPalette::Link, 0xFFC1C2C3},
    };
    for (auto const& one : cases)
        palette.setColor(QPalette::All, one.role, QColor(one.value));
    QApplication::setPalette(palette);
    for (auto const& one : cases)
    {
        _color const color = GetSysPalette()->GetColor(one.number);
        EXPECT_EQ(color.Red(), qRed(one.value)) << one.number;
        EXPECT_EQ(color.Green(), qGreen(one.value)) << one.number;
        EXPECT_EQ(color.Blue(), qBlue(one.value)) << one.number;
        EXPECT_FALSE(color.m_None);
    }
    EXPECT_TRUE(GetSysPalette()->GetColor(ISysPalette::scLiteral).m_None);
    EXPECT_TRUE(GetSysPalette()->GetColor(static_cast<ISysPalette::SysColor>(0)).m_None);
    EXPECT_TRUE(GetSysPalette()->GetColor(static_cast<ISysPalette::SysColor>(-1)).m_None);
}

TEST(QtSystem, AShadowThatNobodyCanReadBecomesTheColorOfDisabledText)
{
    CKeepLook const keep;
    QPalette palette;
    palette.setColor(QPalette::All, QPalette::Window, QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::All, QPalette::Dark, QColor(0x18, 0x18, 0x18));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x90, 0x91, 0x92));
    QApplication::setPalette(palette);
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scShadow), _color::FromRgb(0x90, 0x91, 0x92));
}

TEST(QtSystem, AThemeChangeIsToldOnceAndShows)
{
    CKeepLook const keep;
    CHosted hosted;
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::All, QPalette::Window, QColor(0x30, 0x40, 0x50));
    QApplication::setPalette(palette);
    Settle();
    EXPECT_EQ(hosted.Control().Take(), "colors");
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scFace), _color::FromRgb(0x30, 0x40, 0x50));
}

TEST(QtSystem, AProgramMayBeLightOrDarkWhateverTheDesktopIs)
{
    using vexelbase::qt::CApplication;
    CKeepLook const keep;
    CHosted hosted;
    CApplication application;
    auto const brightness = [](ISysPalette::SysColor number) {
        _color const color = GetSysPalette()->GetColor(number);
        return color.Red() + color.Green() + color.Blue();
    };
    _color const before = GetSysPalette()->GetColor(ISysPalette::scFace);

    application.SetTheme(CApplication::Theme::Dark);
    Settle();
    EXPECT_EQ(hosted.Control().Take(), "colors");
    for (ISysPalette::SysColor const ground :
         {ISysPalette::scWindow, ISysPalette::scFace, ISysPalette::scTooltip, ISysPalette::scDarkShadow})
        EXPECT_LT(brightness(ground), 300) << ground;
    for (ISysPalette::SysColor const text : {ISysPalette::scWindowText, ISysPalette::scControlText,
                                             ISysPalette::scTooltipText, ISysPalette::scHighlightText})
        EXPECT_GT(brightness(text), 600) << text;

    application.SetTheme(CApplication::Theme::Light);
    Settle();
    EXPECT_EQ(hosted.Control().Take(), "colors");
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scWindow), _color::FromRgb(255, 255, 255));
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scWindowText), _color::FromRgb(0, 0, 0));

    application.SetTheme(CApplication::Theme::Desktop);
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scFace), before);
}

TEST(QtSystem, TheDefaultFontIsTheApplicationsAndFollowsIt)
{
    CKeepLook const keep;
    CHosted hosted;
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPointSizeF(13);
    font.setBold(true);
    QApplication::setFont(font);
    Settle();
    EXPECT_EQ(hosted.Control().Take(), "colors");
    EXPECT_EQ(GetDefaultGUIFont().name, "DejaVu Serif");
    EXPECT_EQ(GetDefaultGUIFont().size, 13);
    EXPECT_EQ(GetDefaultGUIFont().style, vexelbase::font::fsBold);
    EXPECT_EQ(GetDefaultGUIFont().rotation, 0);
    EXPECT_EQ(GetDefaultGUIFont().factor, 1.0);

    // 20 pixels are 15 points at 96 dots per inch.
    font.setPixelSize(20);
    QApplication::setFont(font);
    Settle();
    EXPECT_EQ(GetDefaultGUIFont().size, qRound(20 * 72.0 / QGuiApplication::primaryScreen()->logicalDotsPerInchY()));
}

TEST(QtSystem, ScrollBarMetricsAreTheStyles)
{
    int const extent = QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    EXPECT_GT(extent, 0);
    EXPECT_EQ(System().GetSystemMetric(0), extent);
    EXPECT_EQ(System().GetSystemMetric(1), extent);
    EXPECT_EQ(System().GetSystemMetric(2), 0);
    EXPECT_EQ(System().GetScale(), 1.0);
}

TEST(QtSystem, TheWorkAreaIsThatOfTheScreenAround)
{
    QRect const available = QGuiApplication::primaryScreen()->availableGeometry();
    rectangle<int> const expected{available.x(), available.y(), available.x() + available.width(),
                                  available.y() + available.height()};
    EXPECT_EQ(System().GetWorkArea({10, 10}), expected);
    EXPECT_EQ(System().GetWorkArea({-100000, 5}), expected);  // none is there: the first screen
}

TEST(QtSystem, PicturesOfXpmTextAreWhiteWhereTheyAreTransparent)
{
    char const* lines[] = {"2 1 2 1", ". c None", "x c #FF8000", ".x"};
    vexel_ptr<IRasterPicture> const picture = System().CreateRasterPicture(XPMBuf(lines, true));
    ASSERT_EQ(picture->GetSize(), (size<int>{2, 1}));
    EXPECT_EQ(picture->GetPixels().Row(0)[0], 0xFFFFFFFFu);
    EXPECT_EQ(picture->GetPixels().Row(0)[1], 0xFFFF8000u);
    vexel_ptr<IRasterPicture> const empty = System().CreateRasterPicture(size<int>{0, 0});
    EXPECT_EQ(empty->GetSize(), (size<int>{0, 0}));
}

TEST(QtSystem, RunnersAreFreshAndLocksWork)
{
    vexel_ptr<IRunner> const first = System().GetRunner();
    vexel_ptr<IRunner> const second = System().GetRunner();
    EXPECT_NE(first.get(), second.get());
    EXPECT_FALSE(first->IsRunning());
    vexel_ptr<ILock> const lock = System().CreateLock();
    lock->Acquire();
    lock->Unlock();
}

namespace
{

constexpr IPainter::ControlElement AllElements[] = {
    IPainter::ceHeaderSection, IPainter::ceCheckChecked, IPainter::ceCheckUnchecked, IPainter::cePushButton,
    IPainter::ceComboArrow,    IPainter::ceDropArrow,    IPainter::ceRadioChecked,   IPainter::ceRadioUnchecked};

vexel_ptr<IRasterPicture> Part(IPainter::ControlElement element, int state, int width, int height)
{
    vexel_ptr<IRasterPicture> picture = System().CreateRasterPicture(size<int>{width, height});
    picture->GetPixels() = CPixelBuffer(size<int>{width, height}, 0xFFFF00FEu);  // a colour of no style
    IPainter& painter = *picture->GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    painter.DrawControlElement(element, 2, 2, width - 3, height - 3, state);
    painter.EndPaint();
    return picture;
}

int CountDifferent(IRasterPicture& a, IRasterPicture& b)
{
    int count = 0;
    for (int y = 0; y < a.GetSize().height; ++y)
        for (int x = 0; x < a.GetSize().width; ++x)
            count += a.GetPixels().Row(y)[x] != b.GetPixels().Row(y)[x] ? 1 : 0;
    return count;
}

}  // namespace

TEST(QtParts, CoverTheirWholeRectangleAndNoMore)
{
    for (IPainter::ControlElement const element : AllElements)
    {
        for (int const state : {0, 1, 2, 4, 6, 8, 10})
        {
            for (size<int> const extent : {size<int>{34, 24}, size<int>{7, 5}, size<int>{5, 60}})
            {
                vexel_ptr<IRasterPicture> const picture = Part(element, state, extent.width, extent.height);
                for (int y = 0; y < extent.height; ++y)
                {
                    for (int x = 0; x < extent.width; ++x)
                    {
                        bool const inside = x >= 2 && y >= 2 && x < extent.width - 2 && y < extent.height - 2;
                        ASSERT_EQ(picture->GetPixels().Row(y)[x] != 0xFFFF00FEu, inside)
                            << element << ' ' << state << ": " << x << ',' << y;
                    }
                }
            }
        }
    }
}

TEST(QtParts, StatesAndKindsLookDifferent)
{
    auto const differ = [](IPainter::ControlElement a, int stateA, IPainter::ControlElement b, int stateB) {
        vexel_ptr<IRasterPicture> const first = Part(a, stateA, 34, 24);
        vexel_ptr<IRasterPicture> const second = Part(b, stateB, 34, 24);
        return CountDifferent(*first, *second);
    };
    EXPECT_EQ(differ(IPainter::cePushButton, 0, IPainter::cePushButton, 0), 0);
    EXPECT_GT(differ(IPainter::cePushButton, 0, IPainter::cePushButton, IPainter::esPressed), 20);
    EXPECT_GT(differ(IPainter::cePushButton, 0, IPainter::cePushButton, IPainter::esHot), 0);
    EXPECT_GT(differ(IPainter::cePushButton, 0, IPainter::cePushButton, IPainter::esFocused), 0);
    EXPECT_GT(differ(IPainter::cePushButton, 0, IPainter::ceComboArrow, 0), 4);
    EXPECT_GT(differ(IPainter::cePushButton, 0, IPainter::ceHeaderSection, 0), 20);
    EXPECT_GT(differ(IPainter::ceCheckChecked, 0, IPainter::ceCheckUnchecked, 0), 4);
    EXPECT_GT(differ(IPainter::ceRadioChecked, 0, IPainter::ceRadioUnchecked, 0), 4);
    EXPECT_GT(differ(IPainter::ceCheckChecked, 0, IPainter::ceCheckChecked, IPainter::esDisabled), 4);
    EXPECT_GT(differ(IPainter::ceRadioChecked, 0, IPainter::ceCheckChecked, 0), 4);
}

TEST(QtParts, AreCutToTheClip)
{
    vexel_ptr<IRasterPicture> const whole = Part(IPainter::cePushButton, 0, 40, 30);
    vexel_ptr<IRasterPicture> const picture = System().CreateRasterPicture(size<int>{40, 30});
    picture->GetPixels() = CPixelBuffer(size<int>{40, 30}, 0xFFFF00FEu);
    IPainter& painter = *picture->GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    painter.SetClipRect(5, 6, 12, 20, false);
    painter.DrawControlElement(IPainter::cePushButton, 2, 2, 37, 27, 0);
    painter.EndPaint();
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            ASSERT_EQ(picture->GetPixels().Row(y)[x],
                      x >= 5 && x <= 12 && y >= 6 && y <= 20 ? whole->GetPixels().Row(y)[x] : 0xFFFF00FEu)
                << x << ',' << y;
}

TEST(QtParts, AFarLargerThanThePictureIsDrawnWhereItShows)
{
    vexel_ptr<IRasterPicture> const picture = System().CreateRasterPicture(size<int>{40, 30});
    picture->GetPixels() = CPixelBuffer(size<int>{40, 30}, 0xFFFF00FEu);
    IPainter& painter = *picture->GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    painter.DrawControlElement(IPainter::ceHeaderSection, -500000, 3, 500000, 26, 0);
    painter.EndPaint();
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            ASSERT_EQ(picture->GetPixels().Row(y)[x] == 0xFFFF00FEu, y < 3 || y > 26) << x << ',' << y;
}

TEST(QtParts, FollowThePalette)
{
    CKeepLook const keep;
    CHosted hosted;  // hears of the change
    vexel_ptr<IRasterPicture> const before = Part(IPainter::cePushButton, 0, 40, 30);
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::All, QPalette::Button, QColor(0x20, 0x80, 0x20));
    palette.setColor(QPalette::All, QPalette::Window, QColor(0x20, 0x80, 0x20));
    QApplication::setPalette(palette);
    Settle();
    vexel_ptr<IRasterPicture> const after = Part(IPainter::cePushButton, 0, 40, 30);
    EXPECT_GT(CountDifferent(*before, *after), 500);
}

// What outlives the application object: run once more in a process of its own, whose end is the test.
namespace
{

struct SLeftOver
{
    vexel_ptr<ISysTimer> timer;
    vexel_ptr<IRasterPicture> picture;
    std::unique_ptr<ISysWindow> window;
    std::unique_ptr<CRecorder> control;

    ~SLeftOver()
    {
        if (!timer)
            return;
        bool const silent = GetCurrentSystem() == nullptr && !timer->IsRunning() && control->GetWindow() == nullptr &&
                            GetWidget(window.get()) == nullptr && window->IsDestroying();
        timer->SetRunning(true);
        window->InvalidateRect(0, 0, 10, 10);
        window->UpdateNow();
        IPainter& painter = *picture->GetPainter();
        painter.BeginPaint(IPainter::ssPaint);
        painter.SetFont(vexelbase::font());
        painter.DrawString({0, 0, 20, 20}, "text", 0, -1);
        painter.DrawControlElement(IPainter::cePushButton, 0, 0, 10, 10, 0);
        painter.EndPaint();
        std::fputs(silent && !timer->IsRunning() ? "left over: silent\n" : "left over: NOT silent\n", stdout);
        std::fflush(stdout);
    }
};

}  // namespace

TEST(QtLeftOver, EverythingMayOutliveTheApplicationObject)
{
    if (qEnvironmentVariableIsSet("VEXEL_TEST_LEFT_OVER"))
    {
        static SLeftOver left;
        left.timer = System().CreateTimer(1, 0);
        left.timer->SetRunning(true);
        left.picture = System().CreateRasterPicture(size<int>{20, 20});
        left.picture->GetPainter()->GetTextSize("text", nullptr);
        CApplication application;
        left.window = application.CreateMainWindow("left over", {50, 50});
        left.control = std::make_unique<CRecorder>(left.window.get());
        Settle();
        return;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("VEXEL_TEST_LEFT_OVER", "1");
    environment.remove("GTEST_TOTAL_SHARDS");
    environment.remove("GTEST_SHARD_INDEX");
    environment.remove("GTEST_OUTPUT");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("/proc/self/exe", {"--gtest_filter=QtLeftOver.EverythingMayOutliveTheApplicationObject"});
    ASSERT_TRUE(process.waitForFinished(60000));
    QByteArray const output = process.readAll();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0) << output.toStdString();
    EXPECT_TRUE(output.contains("[  PASSED  ] 1 test.")) << output.toStdString();
    EXPECT_TRUE(output.contains("left over: silent")) << output.toStdString();
}

}  // namespace vexelbase::qt::test
