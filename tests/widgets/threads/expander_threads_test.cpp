// Expanders whose steps are waited for on real threads.

#include "tests/support/leaf.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/expander.h"

#include <gtest/gtest.h>

#include <thread>

using namespace vexel;
using namespace vexel::test;

namespace
{

class ExpanderThreads : public testing::Test
{
protected:
    ExpanderThreads() { CTestHost::System().UseRealThreads(true); }

    CExpander* Make()
    {
        auto* const expander = new CExpander(m_Host.Root(), {30, 10}, alTop);
        expander->SetTitle(new CLeaf(nullptr, {30, 20}, alNone, 1));
        expander->SetBody(new CLeaf(nullptr, {50, 40}, alNone, 2));
        return expander;
    }
    // Until the steps have ended: they come when they come.
    void Finish(CExpander& expander)
    {
        while (expander.IsSizing())
        {
            if (m_Host.RunPending() == 0)
                std::this_thread::yield();
        }
    }

    CTestHost m_Host{200, 200};
};

TEST_F(ExpanderThreads, ReachTheirEndsAndEndTheirThreads)
{
    CExpander& expander = *Make();
    m_Host.Paint();
    expander.Expand(false, true);
    Finish(expander);
    EXPECT_EQ(expander.GetSize().height, 20);
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 0);
    expander.Expand(true, true);
    Finish(expander);
    EXPECT_EQ(expander.GetSize().height, 60);
    m_Host.RunPending();
    EXPECT_EQ(expander.GetSize().height, 60);
}

TEST_F(ExpanderThreads, AreTurnedAroundAndDieWhileTheirThreadPosts)
{
    for (int round = 0; round < 50; ++round)
    {
        CExpander* const expander = Make();
        expander->Expand(false, true);
        while (m_Host.RunPending() == 0)
            std::this_thread::yield();
        expander->Expand(true, true);
        delete expander;
        m_Host.RunPending();
    }
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
}

}  // namespace
