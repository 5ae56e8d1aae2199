// A window whose surface is the backing store itself: what others paint there, and what becomes of it.

#include "tests/platform/qt/qt_test_kit.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/qt/application.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <QBackingStore>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <array>

namespace vexelbase::qt::test
{

namespace
{

constexpr int s_Cell = 8;  // pixels

std::uint32_t CellColor(int column, int row, int salt)
{
    return CPixelBuffer::ToPixel(color_table[9 + (column * 5 + row * 3 + salt) % 18]);
}

// A control of coloured cells that paints what is stale, and its picture as it should be.
class CCells : public CVexelControl
{
public:
    explicit CCells(CBaseWindow& window) : CVexelControl(&window, false), m_Base(window) { Resized(); }

    int m_FullPaints = 0;

    void OnDraw(IPainter* painter) override
    {
        painter->BeginPaint(IPainter::ssPaint);
        bool const all = painter->IsFullPaint();
        m_FullPaints += all ? 1 : 0;
        rectangle<int> const area = m_Base.GetRect();
        if (all)
            std::fill(m_Shown.begin(), m_Shown.end(), 0u);
        for (int y = 0; y < area.bottom; ++y)
            for (int x = 0; x < area.right; ++x)
            {
                std::uint32_t const wanted = CellColor(x / s_Cell, y / s_Cell, m_Salts[Cell(x, y)]);
                std::uint32_t& shown = m_Shown[static_cast<std::size_t>(y * area.right + x)];
                if (std::exchange(shown, wanted) == wanted)
                    continue;
                painter->SetBrush({CPixelBuffer::ToColor(wanted), brush::bsSolid});
                painter->FillRect(x, y, x, y);
            }
        painter->EndPaint();
    }
    void OnResize(CWindowEvent*) override { Resized(); }
    void Change(int x, int y, int salt)
    {
        m_Salts[Cell(x, y)] = salt;
        m_Base.InvalidateRect(x, y, x + 1, y + 1);
    }
    // The pixels move, and what they leave behind or show wrongly is painted.
    void Scroll(rectangle<int> const& area, int dx, int dy)
    {
        m_Base.ScrollPixels(dx, dy, {area.left, area.top, area.right - 1, area.bottom - 1});
        rectangle<int> const all = m_Base.GetRect();
        std::vector<std::uint32_t> const before = m_Shown;
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                if (x + dx >= 0 && y + dy >= 0 && x + dx < all.right && y + dy < all.bottom)
                    m_Shown[static_cast<std::size_t>((y + dy) * all.right + x + dx)] =
                        before[static_cast<std::size_t>(y * all.right + x)];
        m_Base.InvalidateRect(0, 0, 1, 1);
    }
    std::uint32_t GetWanted(int x, int y) const { return CellColor(x / s_Cell, y / s_Cell, m_Salts[Cell(x, y)]); }

private:
    void Resized()
    {
        rectangle<int> const area = m_Base.GetRect();
        m_Shown.assign(static_cast<std::size_t>(area.right * area.bottom), 0u);
    }
    static std::size_t Cell(int x, int y)
    {
        return static_cast<std::size_t>((x / s_Cell) % 32 + 32 * ((y / s_Cell) % 32));
    }

    CBaseWindow& m_Base;
    std::array<int, 1024> m_Salts{};
    std::vector<std::uint32_t> m_Shown;  // what the surface holds, as the control believes
};

// A widget of one colour; one that can be seen through leaves out its left half.
class CPatch : public QWidget
{
public:
    CPatch(QWidget* parent, QRgb color, bool opaque) : QWidget(parent), m_Color(color), m_Opaque(opaque)
    {
        setAttribute(Qt::WA_OpaquePaintEvent, opaque);
    }
    bool Shows(int x) const { return m_Opaque || x >= width() / 2; }
    QRgb const m_Color;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect().adjusted(m_Opaque ? 0 : width() / 2, 0, 0, 0), QColor(m_Color));
    }

private:
    bool const m_Opaque;
};

// A window in a frame of another widget.
class CScene
{
public:
    CScene() : m_Frame(&m_Top, qRgb(1, 2, 3), true)
    {
        m_Top.resize(170, 130);
        m_Frame.setGeometry(11, 7, 150, 110);
        m_Hosted = HostWindow(&m_Frame);
        m_Cells = std::make_unique<CCells>(Base());
        m_Top.show();
        Settle();
        Draw();
    }
    CBaseWindow& Base() { return static_cast<CBaseWindow&>(*m_Hosted); }
    CCells& Cells() { return *m_Cells; }
    QWidget* Widget() { return GetWidget(m_Hosted.get()); }
    bool IsInStore() { return Base().GetPixels().IsOnOther(); }
    void Draw()
    {
        Base().InvalidateRect(0, 0, 1, 1);
        Settle();
    }

    // The first pixel that is not as it should be, of the frame and all that stands in it or over it.
    std::string Check()
    {
        auto* const image = static_cast<QImage*>(m_Top.backingStore()->paintDevice());
        for (int y = 0; y < m_Frame.height(); ++y)
            for (int x = 0; x < m_Frame.width(); ++x)
            {
                QPoint const at = m_Frame.mapTo(&m_Top, QPoint(x, y));
                if (!m_Top.rect().contains(at))
                    continue;
                QRgb const seen = image->pixel(at) | 0xFF000000u;
                if (QRgb const wanted = GetWanted(at); seen != wanted)
                {
                    std::ostringstream text;
                    text << "at " << x << ", " << y << " stands " << std::hex << seen << " in place of " << wanted;
                    return text.str();
                }
            }
        return "";
    }

    QWidget m_Top;
    CPatch m_Frame;
    std::vector<QPointer<CPatch>> m_Patches;  // from below

private:
    QRgb GetWanted(QPoint const& at)
    {
        for (auto patch = m_Patches.rbegin(); patch != m_Patches.rend(); ++patch)
            if (*patch && (*patch)->isVisible())
            {
                // A child of the window's stands below the frame's siblings, wherever it is in the list.
                if ((*patch)->parentWidget() != &m_Top)
                    continue;
                QPoint const inside = (*patch)->mapFrom(&m_Top, at);
                if ((*patch)->rect().contains(inside) && (*patch)->Shows(inside.x()))
                    return (*patch)->m_Color;
            }
        for (auto patch = m_Patches.rbegin(); patch != m_Patches.rend(); ++patch)
            if (*patch && (*patch)->isVisible() && (*patch)->parentWidget() != &m_Top)
            {
                QPoint const inside = (*patch)->mapFrom(&m_Top, at);
                if ((*patch)->rect().contains(inside) && (*patch)->Shows(inside.x()))
                    return (*patch)->m_Color;
            }
        QPoint const inside = Widget()->mapFrom(&m_Top, at);
        return Cells().GetWanted(inside.x(), inside.y());
    }

    std::unique_ptr<ISysWindow> m_Hosted;
    std::unique_ptr<CCells> m_Cells;
};

}  // namespace

TEST(QtBackingStore, IsTheSurfaceOnceItShowsAllOfIt)
{
    CScene scene;
    EXPECT_TRUE(scene.IsInStore());
    scene.Cells().Change(20, 20, 5);
    scene.Base().UpdateNow();
    // Before Qt has been asked for a frame it stands there.
    EXPECT_EQ(scene.Check(), "");
}

TEST(QtBackingStore, MovedPixelsAreMovedThere)
{
    CScene scene;
    ASSERT_TRUE(scene.IsInStore());
    scene.Cells().Scroll({0, 0, 150, 110}, 0, -s_Cell);
    Settle();
    EXPECT_TRUE(scene.IsInStore());
    EXPECT_EQ(scene.Check(), "");
    EXPECT_EQ(scene.Cells().m_FullPaints, 1);
}

TEST(QtBackingStore, AChildThatHidesAllBelowItIsPaintedAgainWhereItWasPaintedOver)
{
    CScene scene;
    auto* const bar = new CPatch(scene.Widget(), qRgb(200, 0, 0), true);
    scene.m_Patches.emplace_back(bar);
    bar->setGeometry(130, 10, 20, 60);
    bar->show();
    Settle();
    scene.Cells().Change(135, 20, 7);
    scene.Cells().Change(20, 20, 7);
    Settle();
    EXPECT_EQ(scene.Check(), "");
    scene.Draw();
    ASSERT_TRUE(scene.IsInStore());
    scene.Cells().Change(135, 20, 9);
    Settle();
    EXPECT_TRUE(scene.IsInStore());
    EXPECT_EQ(scene.Check(), "");
    bar->hide();
    Settle();
    EXPECT_EQ(scene.Check(), "");
}

TEST(QtBackingStore, AChildThatCanBeSeenThroughNeedsASurfaceBelowIt)
{
    CScene scene;
    auto* const glass = new CPatch(scene.Widget(), qRgb(200, 0, 0), false);
    scene.m_Patches.emplace_back(glass);
    glass->setGeometry(30, 10, 40, 40);
    glass->show();
    Settle();
    scene.Cells().Change(35, 20, 7);
    Settle();
    EXPECT_FALSE(scene.IsInStore());
    EXPECT_EQ(scene.Check(), "");
    glass->hide();
    scene.Draw();
    EXPECT_EQ(scene.Check(), "");
    scene.Draw();
    EXPECT_TRUE(scene.IsInStore());
}

TEST(QtBackingStore, PixelsThatMoveBelowAChildMoveOnASurface)
{
    CScene scene;
    auto* const bar = new CPatch(scene.Widget(), qRgb(200, 0, 0), true);
    scene.m_Patches.emplace_back(bar);
    bar->setGeometry(30, 10, 40, 40);
    bar->show();
    Settle();
    scene.Draw();
    ASSERT_TRUE(scene.IsInStore());
    scene.Cells().Scroll({0, 0, 150, 110}, 0, s_Cell);
    Settle();
    EXPECT_EQ(scene.Check(), "");
}

TEST(QtBackingStore, WhatStoodOverItAndWentLeavesNoTrace)
{
    CScene scene;
    ASSERT_TRUE(scene.IsInStore());
    auto* const banner = new CPatch(&scene.m_Top, qRgb(0, 99, 0), true);
    scene.m_Patches.emplace_back(banner);
    banner->setGeometry(20, 20, 60, 50);
    banner->show();
    Settle();
    EXPECT_EQ(scene.Check(), "");
    delete banner;
    Settle();
    EXPECT_EQ(scene.Check(), "");
}

TEST(QtBackingStore, AWindowUnderAnotherWidgetPaintsOnItsOwnSurface)
{
    CScene scene;
    auto* const banner = new CPatch(&scene.m_Top, qRgb(0, 99, 0), true);
    scene.m_Patches.emplace_back(banner);
    banner->setGeometry(20, 20, 60, 50);
    banner->show();
    Settle();
    scene.Cells().Change(30, 30, 4);
    scene.Cells().Change(5, 5, 4);
    Settle();
    EXPECT_FALSE(scene.IsInStore());
    EXPECT_EQ(scene.Check(), "");
}

TEST(QtBackingStore, AMovedWidgetIsPaintedWhereItStandsNow)
{
    CScene scene;
    scene.m_Frame.move(2, 15);
    Settle();
    EXPECT_EQ(scene.Check(), "");
    scene.Cells().Change(30, 30, 4);
    Settle();
    EXPECT_EQ(scene.Check(), "");
}

TEST(QtBackingStore, AResizedTopLevelWidgetBringsAnother)
{
    CScene scene;
    scene.m_Top.resize(400, 300);
    scene.m_Frame.resize(320, 250);
    Settle();
    EXPECT_EQ(scene.Check(), "");
    scene.m_Frame.resize(90, 60);
    scene.m_Top.resize(120, 100);
    Settle();
    EXPECT_EQ(scene.Check(), "");
    scene.Draw();
    EXPECT_TRUE(scene.IsInStore());
}

TEST(QtBackingStore, AHiddenWindowKeepsItsPixels)
{
    CScene scene;
    ASSERT_TRUE(scene.IsInStore());
    scene.m_Frame.hide();
    Settle();
    EXPECT_FALSE(scene.IsInStore());
    scene.m_Top.hide();
    Settle();
    scene.m_Top.show();
    scene.m_Frame.show();
    Settle();
    EXPECT_EQ(scene.Check(), "");
}

TEST(QtBackingStore, AWidgetInAnotherTopLevelWidgetIsPaintedThere)
{
    CScene scene;
    QWidget other;
    other.resize(200, 200);
    other.show();
    ASSERT_TRUE(scene.IsInStore());
    scene.m_Frame.setParent(&other);
    scene.m_Frame.move(5, 5);
    scene.m_Frame.show();
    Settle();
    scene.Cells().Change(20, 20, 5);
    Settle();
    auto* const image = static_cast<QImage*>(other.backingStore()->paintDevice());
    for (int y = 0; y < 110; ++y)
        for (int x = 0; x < 150; ++x)
            ASSERT_EQ(image->pixel(x + 5, y + 5), scene.Cells().GetWanted(x, y)) << x << ", " << y;
    scene.m_Frame.setParent(&scene.m_Top);
}

TEST(QtBackingStore, APictureOfTheWidgetShowsTheSame)
{
    CScene scene;
    ASSERT_TRUE(scene.IsInStore());
    QImage const picture = scene.m_Frame.grab().toImage();
    for (int y = 0; y < 110; ++y)
        for (int x = 0; x < 150; ++x)
            ASSERT_EQ(picture.pixel(x, y) | 0xFF000000u, scene.Cells().GetWanted(x, y)) << x << ", " << y;
    EXPECT_TRUE(scene.IsInStore());
    EXPECT_EQ(scene.Cells().m_FullPaints, 1);
}

TEST(QtBackingStore, PlayedWithAtRandomTheScreenIsAlwaysRight)
{
    vexel::test::CTestRandom random;
    int inStore = 0;
    for (int game = 0; game < 12; ++game)
    {
        CScene scene;
        auto const place = [&](QWidget& patch) {
            patch.setGeometry(random.Int(-10, 120), random.Int(-10, 90), random.Int(5, 60), random.Int(5, 50));
        };
        for (int step = 0; step < 60; ++step)
        {
            int const width = scene.Base().GetRect().right, height = scene.Base().GetRect().bottom;
            QPointer<CPatch> const patch = scene.m_Patches.empty() ? nullptr : random.Pick(scene.m_Patches);
            int const what = random.Int(0, 13);
            switch (what)
            {
            case 0:
            {
                bool const inside = random.Bool();
                auto* const made = new CPatch(inside ? scene.Widget() : &scene.m_Top,
                                              qRgb(random.Int(0, 9), 100, random.Int(0, 9)), random.Chance(70));
                scene.m_Patches.emplace_back(made);
                place(*made);
                made->setVisible(random.Chance(80));
                break;
            }
            case 1:
                if (patch)
                    delete patch.data();
                break;
            case 2:
                if (patch)
                    patch->setVisible(!patch->isVisible());
                break;
            case 3:
                if (patch)
                    place(*patch);
                break;
            case 4:
                if (random.Chance(30))
                    scene.m_Frame.resize(random.Int(60, 170), random.Int(50, 120));
                break;
            case 5:
                if (random.Chance(30))
                    scene.m_Frame.move(random.Int(-5, 30), random.Int(-5, 30));
                break;
            case 6:
                if (random.Chance(30))
                    scene.m_Top.resize(random.Int(150, 200), random.Int(120, 160));
                break;
            case 7:
                if (random.Chance(20))
                {
                    scene.m_Frame.setVisible(false);
                    if (random.Bool())
                        Settle();
                    scene.m_Frame.setVisible(true);
                }
                break;
            case 8:
            case 9:
            {
                rectangle<int> area{random.Int(0, width - 1), random.Int(0, height - 1), 0, 0};
                area.right = random.Int(area.left + 1, width);
                area.bottom = random.Int(area.top + 1, height);
                scene.Cells().Scroll(area, random.Int(-20, 20), random.Int(-20, 20));
                break;
            }
            case 10:
                scene.Widget()->update();
                break;
            default:
                for (int i = random.Int(1, 4); i > 0; --i)
                    scene.Cells().Change(random.Int(0, width - 1), random.Int(0, height - 1), random.Int(0, 30));
                break;
            }
            if (random.Chance(60))
            {
                Settle();
                ASSERT_EQ(scene.Check(), "") << "game " << game << " step " << step << " after " << what;
            }
            inStore += scene.IsInStore() ? 1 : 0;
        }
    }
    EXPECT_GT(inStore, 100);
}

}  // namespace vexelbase::qt::test
