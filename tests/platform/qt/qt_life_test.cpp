#include "tests/platform/qt/qt_test_kit.h"
#include "vexel/platform/qt/application.h"

#include "vexel/testing/expect_report.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <atomic>
#include <stdexcept>
#include <thread>

namespace vexelbase::qt::test
{

namespace
{

QMouseEvent PressAt(int x, int y)
{
    return QMouseEvent(QEvent::MouseButtonPress, QPointF(x, y), QPointF(x, y), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
}

// Runs a function; counts those alive.
class CWork : public IRunnable
{
public:
    explicit CWork(std::function<void()> work) : m_Work(std::move(work)) { ++s_Alive; }
    ~CWork() override { --s_Alive; }
    bool Run() override
    {
        m_Work();
        return false;
    }

    static inline std::atomic<int> s_Alive{0};

private:
    std::function<void()> m_Work;
};

} // namespace

TEST(QtLife, TheHostGoesFirst)
{
    auto host = std::make_unique<QWidget>();
    std::unique_ptr<ISysWindow> window = HostWindow(host.get());
    CRecorder control(window.get());
    host->show();
    Settle();
    control.Take();

    host.reset();
    EXPECT_TRUE(control.Take().ends_with("destroyed"));
    EXPECT_EQ(control.GetWindow(), nullptr);
    EXPECT_EQ(GetWidget(window.get()), nullptr);
    EXPECT_TRUE(window->IsDestroying());

    // The empty window answers and does nothing.
    window->InvalidateRect(0, 0, 1, 1);
    window->UpdateNow();
    window->SetFocus();
    window->CaptureMouse();
    window->ReleaseMouse();
    window->SetCursor(9);
    window->HideTooltip();
    point<int> at{3, 4};
    window->ScreenToClient(&at);
    EXPECT_FALSE(window->HasFocus());
    EXPECT_EQ(at, (point<int>{3, 4}));
    Settle();
    EXPECT_EQ(control.Take(), "");
}

TEST(QtLife, TheWindowGoesFirst)
{
    QWidget host;
    std::unique_ptr<ISysWindow> window = HostWindow(&host);
    CRecorder control(window.get());
    host.show();
    Settle();
    control.Take();
    ASSERT_EQ(host.findChildren<QWidget*>().size(), 1);

    window.reset();
    EXPECT_EQ(control.Take(), "destroyed");
    EXPECT_EQ(control.GetWindow(), nullptr);
    EXPECT_TRUE(host.findChildren<QWidget*>().isEmpty());
    host.resize(300, 200);
    Settle();
}

TEST(QtLife, TheControlGoesFirst)
{
    QWidget host;
    std::unique_ptr<ISysWindow> window = HostWindow(&host);
    {
        CRecorder control(window.get());
        host.show();
    }
    EXPECT_EQ(window->GetEventTarget(), nullptr);
    Settle();
    QMouseEvent press = PressAt(1, 1);
    QCoreApplication::sendEvent(GetWidget(window.get()), &press);
    EXPECT_TRUE(press.isAccepted());

    CRecorder another(window.get());
    QMouseEvent again = PressAt(2, 2);
    QCoreApplication::sendEvent(GetWidget(window.get()), &again);
    EXPECT_EQ(another.Take(), "down(2,2,0x1,1)");
}

TEST(QtLife, AHandlerMayDeleteTheWindow)
{
    QWidget host;
    std::unique_ptr<ISysWindow> window = HostWindow(&host);
    CRecorder control(window.get());
    host.show();
    Settle();
    control.Take();
    QPointer<QWidget> const child = GetWidget(window.get());
    control.m_Before = [&](std::string const& word)
    {
        if (word.starts_with("down"))
            window.reset();
    };
    QMouseEvent press(QEvent::MouseButtonDblClick, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(child, &press);
    EXPECT_EQ(control.Take(), "down(1,1,0x1,1) destroyed");  // and no double click
    Settle();
    EXPECT_TRUE(child.isNull());
}

TEST(QtLife, AHandlerMayDeleteTheControl)
{
    QWidget host;
    std::unique_ptr<ISysWindow> window = HostWindow(&host);
    auto control = std::make_unique<CRecorder>(window.get());
    host.show();
    Settle();
    control->m_Before = [&](std::string const&) { control.reset(); };
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    QCoreApplication::sendEvent(GetWidget(window.get()), &key);
    EXPECT_EQ(control, nullptr);
    EXPECT_EQ(window->GetEventTarget(), nullptr);
}

TEST(QtLife, AHandlerMayDeleteTheHost)
{
    // Each event as the last one of its host.
    for (QEvent::Type const type : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick, QEvent::KeyPress, QEvent::Wheel,
                                    QEvent::Leave, QEvent::FocusIn, QEvent::PaletteChange})
    {
        auto* host = new QWidget;
        std::unique_ptr<ISysWindow> window = HostWindow(host);
        CRecorder control(window.get());
        host->show();
        Settle();
        control.Take();
        control.m_Before = [&](std::string const&)
        {
            QWidget* const gone = std::exchange(host, nullptr);
            delete gone;
        };
        QWidget* const child = GetWidget(window.get());
        switch (type)
        {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        {
            QMouseEvent event(type, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(child, &event);
            break;
        }
        case QEvent::KeyPress:
        {
            QKeyEvent event(type, Qt::Key_A, Qt::NoModifier, "a");
            QCoreApplication::sendEvent(child, &event);
            break;
        }
        case QEvent::Wheel:
        {
            QWheelEvent event(QPointF(1, 1), QPointF(1, 1), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(child, &event);
            break;
        }
        case QEvent::FocusIn:
        {
            QFocusEvent event(type, Qt::TabFocusReason);
            QCoreApplication::sendEvent(child, &event);
            break;
        }
        default:
        {
            QEvent event(type);
            QCoreApplication::sendEvent(child, &event);
            break;
        }
        }
        EXPECT_EQ(host, nullptr) << type;
        EXPECT_EQ(control.GetWindow(), nullptr) << type;
        control.m_Before = nullptr;
        delete host;
    }
}

TEST(QtLife, AHandlerThatThrowsHarmsNobody)
{
    CHosted hosted;
    hosted.Control().m_Before = [](std::string const& word)
    {
        if (word.starts_with("down"))
            throw std::runtime_error("a test's");
    };
    {
        vexel::test::CExpectException const report("a test's");
        EXPECT_TRUE(hosted.Send(PressAt(1, 2)));
    }
    hosted.Control().m_Before = nullptr;
    hosted.Send(PressAt(3, 4));
    EXPECT_EQ(hosted.Control().Take(), "down(1,2,0x1,1) down(3,4,0x1,1)");
}

TEST(QtLife, APaintThatThrowsHarmsNobody)
{
    CHosted hosted;
    hosted.Control().m_Draw = [](IPainter*) { throw std::runtime_error("while painting"); };
    {
        vexel::test::CExpectException const report("while painting", 2);  // of this paint and the one that it asked for
        hosted.Window().UpdateNow();
        Settle();
    }
    hosted.Control().m_Draw = [](IPainter* painter) { EXPECT_TRUE(painter->IsFullPaint()); };
    hosted.Window().UpdateNow();
    EXPECT_FALSE(hosted.Window().GetPainter()->m_Painting);
}

TEST(QtLife, AWindowFollowsItsHostInALayout)
{
    QWidget top;
    auto* const layout = new QVBoxLayout(&top);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const host = new QWidget(&top);
    layout->addWidget(host);
    top.resize(200, 100);
    std::unique_ptr<ISysWindow> window = HostWindow(host);
    CRecorder control(window.get());
    top.show();
    Settle();
    EXPECT_EQ(window->GetRect(), (rectangle<int>{0, 0, 200, 100}));
    control.Take();

    top.resize(150, 120);
    Settle();
    EXPECT_EQ(window->GetRect(), (rectangle<int>{0, 0, 150, 120}));
    EXPECT_EQ(control.Take(), "resize(150,120)");

    host->setContentsMargins(5, 6, 7, 8);
    Settle();
    EXPECT_EQ(window->GetRect(), (rectangle<int>{0, 0, 138, 106}));
    EXPECT_EQ(GetWidget(window.get())->pos(), QPoint(5, 6));
    EXPECT_EQ(control.Take(), "moved resize(138,106)");
}

TEST(QtLife, AMainWindowHasItsClientSizeBeforeItIsShown)
{
    CApplication application;
    std::unique_ptr<ISysWindow> window = application.CreateMainWindow("Title \xc3\xbc", {320, 120});
    EXPECT_EQ(window->GetRect(), (rectangle<int>{0, 0, 320, 120}));
    EXPECT_FALSE(GetWidget(window.get())->isVisible());
    CRecorder control(window.get());
    Settle();
    EXPECT_TRUE(GetWidget(window.get())->isVisible());
    EXPECT_EQ(GetWidget(window.get())->windowTitle(), QString::fromUtf8("Title \xc3\xbc"));
    EXPECT_GE(control.m_Draws, 1);
}

TEST(QtPosts, RunInOrderAfterThePresentEventAndAreDeleted)
{
    CHosted hosted;
    std::string order;
    hosted.Window().Post(new CWork([&] { order += 'a'; }));
    hosted.Window().Post(new CWork(
        [&]
        {
            order += 'b';
            hosted.Window().Post(new CWork([&] { order += 'd'; }));
        }));
    hosted.Window().Post(new CWork([&] { order += 'c'; }));
    hosted.Window().Post(nullptr);
    EXPECT_EQ(order, "");
    Settle();
    EXPECT_EQ(order, "abcd");
    EXPECT_EQ(CWork::s_Alive, 0);
}

TEST(QtPosts, OfManyThreadsAllArriveEachThreadsInOrder)
{
    CHosted hosted;
    constexpr int threads = 4;
    constexpr int posts = 200;
    std::vector<int> last(threads, -1);
    int count = 0;
    bool ordered = true;
    {
        std::vector<std::jthread> workers;
        for (int t = 0; t < threads; ++t)
            workers.emplace_back(
                [&, t]
                {
                    for (int i = 0; i < posts; ++i)
                        hosted.Window().Post(new CWork(
                            [&, t, i]
                            {
                                auto const index = static_cast<std::size_t>(t);
                                ordered = ordered && last[index] == i - 1;
                                last[index] = i;
                                ++count;
                            }));
                });
    }
    EXPECT_TRUE(RunUntil([&] { return count == threads * posts; }));
    EXPECT_TRUE(ordered);
    EXPECT_EQ(CWork::s_Alive, 0);
}

TEST(QtPosts, DieWithTheWindow)
{
    bool ran = false;
    {
        CHosted hosted;
        hosted.Window().Post(new CWork([&] { ran = true; }));
        EXPECT_EQ(CWork::s_Alive, 1);
    }
    EXPECT_EQ(CWork::s_Alive, 0);
    Settle();
    EXPECT_FALSE(ran);
}

TEST(QtPosts, OfThreadsWhileTheNativeSideGoesAreDeletedUnrun)
{
    auto host = std::make_unique<QWidget>();
    std::unique_ptr<ISysWindow> window = HostWindow(host.get());
    std::atomic<bool> stop{false};
    std::atomic<int> posted{0};
    std::jthread worker(
        [&]
        {
            while (!stop)
            {
                window->Post(new CWork([] {}));
                ++posted;
                std::this_thread::yield();
            }
        });
    EXPECT_TRUE(RunUntil([&] { return posted > 50; }));
    host.reset();
    int const before = posted;
    while (posted < before + 20)
        std::this_thread::yield();
    stop = true;
    worker.join();
    EXPECT_EQ(CWork::s_Alive, 0);
}

TEST(QtPosts, ARunnableMayDeleteTheWindow)
{
    QWidget host;
    std::unique_ptr<ISysWindow> window = HostWindow(&host);
    window->Post(new CWork([&] { window.reset(); }));
    window->Post(new CWork([] { ADD_FAILURE() << "ran after the window"; }));
    Settle();
    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(CWork::s_Alive, 0);
    EXPECT_TRUE(host.findChildren<QWidget*>().isEmpty());
}

} // namespace vexelbase::qt::test
