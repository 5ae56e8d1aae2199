// Painting what waits gives the picture that painting everything gives, with Qt's text and parts too.

#include "tests/platform/qt/qt_test_kit.h"
#include "tests/support/tree_game.h"

#include "vexel/core/base_control.h"
#include "vexel/platform/qt/host_window.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace vexelbase::qt::test
{

TEST(QtIncrementalPaint, GivesTheSamePixelsAsPaintingEverything)
{
    vexel::test::CTestRandom random;
    int steps = 0;
    while (steps < 2400)
    {
        QWidget host;
        host.resize(random.Int(140, 220), random.Int(60, 140));
        std::unique_ptr<ISysWindow> const window = HostWindow(&host);
        vexel::CBaseControl control(window.get());
        host.show();
        Settle();
        auto& surface = static_cast<CBaseWindow&>(*window);
        vexel::test::CTreeGame game(control, surface, random);
        for (int round = 0; round < 40; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int changes = random.Int(1, 5); changes > 0; --changes)
                    game.Step();
                game.Paint();
            }
            std::string const difference = game.CompareWithFullPaint();
            ASSERT_EQ(difference, "");
            if (random.Chance(5))
            {
                host.resize(random.Int(140, 220), random.Int(60, 140));
                Settle();
            }
        }
        steps += game.GetSteps();
    }
}

}  // namespace vexelbase::qt::test
