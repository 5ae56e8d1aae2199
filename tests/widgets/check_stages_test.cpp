// Chains of checks: their order, their signals, and what stages and slots do to a chain that runs.

#include "vexel/widgets/check_stages.h"

#include "tests/support/slot.h"
#include "tests/support/virtual_order.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace vexel;
using namespace vexel::test;

namespace
{

// Notes that it is run and waits, or does something.
class CTestStage : public ICheckStage
{
public:
    CTestStage(CSignalLog& log, std::string const& name) : m_Log(log), m_Name(name) {}

    std::function<void(IStageNotify*)> m_Deed;
    IStageNotify* m_Notify = nullptr;

    void Process(IStageNotify* notify) override
    {
        m_Log.Note(m_Name);
        m_Notify = notify;
        if (m_Deed)
        {
            auto const deed = m_Deed;
            deed(notify);
        }
    }

private:
    CSignalLog& m_Log;
    std::string m_Name;
};

class CChainBench : public testing::Test
{
protected:
    CChainBench()
    {
        m_Log.Add(m_Chain->m_StageStarting, "starting").Add(m_Chain->m_Finished, "finished");
        m_Log.Add(m_Chain->m_Aborted, "aborted");
    }
    void AddAll()
    {
        m_Chain->AddStage(&m_A);
        m_Chain->AddStage(&m_B);
        m_Chain->AddStage(&m_C);
    }
    static void Pass(IStageNotify* notify) { notify->Complete(true); }
    std::string Order()  // of the stages, each of which passes
    {
        m_A.m_Deed = m_B.m_Deed = m_C.m_Deed = &Pass;
        m_Log.Clear();
        m_Chain->StartProcessing();
        std::string order;
        for (std::string const& entry : m_Log.Entries())
            if (entry.size() == 1)
                order += entry;
        m_Log.Clear();
        return order;
    }

    CSignalLog m_Log;
    CTestStage m_A{m_Log, "a"};
    CTestStage m_B{m_Log, "b"};
    CTestStage m_C{m_Log, "c"};
    std::unique_ptr<CCheckStages> m_Chain = std::make_unique<CCheckStages>();
};

using CheckStages = CChainBench;

}  // namespace

TEST(CheckStagesVirtualOrder, EachInterfaceHasOneOperationBehindItsDestructor)
{
    EXPECT_EQ(Place(&ICheckStage::Process), 2u);
    EXPECT_EQ(Place(&IStageNotify::Complete), 2u);
    EXPECT_EQ(Place(&CCheckStages::Complete), 2u);
}

TEST_F(CheckStages, AFreshChainIsEmptyAndStandsBeforeItsFirstStage)
{
    EXPECT_EQ(m_Chain->GetCurrentStage(), -1);
    EXPECT_EQ(m_Chain->GetStageCount(), 0);
}

TEST_F(CheckStages, AnEmptyChainFinishesAtOnce)
{
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Text(), "finished()");
    EXPECT_EQ(m_Chain->GetCurrentStage(), 0);
}

TEST_F(CheckStages, EachStageBeginsWhenTheOneBeforeHasPassed)
{
    AddAll();
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Take(), "starting(0) a");
    EXPECT_EQ(m_Chain->GetCurrentStage(), 0);
    EXPECT_EQ(m_A.m_Notify, m_Chain.get());
    m_A.m_Notify->Complete(true);
    EXPECT_EQ(m_Log.Take(), "starting(1) b");
    EXPECT_EQ(m_Chain->GetCurrentStage(), 1);
    m_B.m_Notify->Complete(true);
    EXPECT_EQ(m_Log.Take(), "starting(2) c");
    m_C.m_Notify->Complete(true);
    EXPECT_EQ(m_Log.Take(), "finished()");
    EXPECT_EQ(m_Chain->GetCurrentStage(), 3);
}

TEST_F(CheckStages, StagesMayPassAtOnce)
{
    AddAll();
    m_A.m_Deed = m_B.m_Deed = m_C.m_Deed = &Pass;
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Text(), "starting(0) a starting(1) b starting(2) c finished()");
}

TEST_F(CheckStages, AStageThatFailsEndsTheChainWhereItStands)
{
    AddAll();
    m_A.m_Deed = &Pass;
    m_B.m_Deed = [](IStageNotify* notify) { notify->Complete(false); };
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Take(), "starting(0) a starting(1) b aborted()");
    EXPECT_EQ(m_Chain->GetCurrentStage(), 1);
    // Whoever completes it once more drives it on.
    m_Chain->Complete(true);
    EXPECT_EQ(m_Log.Take(), "starting(2) c");
}

TEST_F(CheckStages, EachEndThatIsToldCounts)
{
    AddAll();
    m_Chain->Complete(false);
    EXPECT_EQ(m_Log.Take(), "aborted()");
    EXPECT_EQ(m_Chain->GetCurrentStage(), -1);
    m_Chain->Complete(true);
    EXPECT_EQ(m_Log.Take(), "starting(0) a");
    m_Chain->Complete(true);
    m_Chain->Complete(true);
    m_Chain->Complete(true);
    m_Log.Clear();
    m_Chain->Complete(true);
    EXPECT_EQ(m_Log.Take(), "finished()");
    EXPECT_EQ(m_Chain->GetCurrentStage(), 4);
}

TEST_F(CheckStages, EachStartBeginsWithTheFirst)
{
    AddAll();
    m_A.m_Deed = &Pass;
    m_Chain->StartProcessing();
    m_Log.Clear();
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Take(), "starting(0) a starting(1) b");
    EXPECT_EQ(m_Chain->GetCurrentStage(), 1);
}

TEST_F(CheckStages, TheStartGoesThroughTheOverridableEnd)
{
    class CSilentChain : public CCheckStages
    {
    public:
        int m_Completed = 0;
        void Complete(bool ok) override { m_Completed += ok ? 1 : 100; }
    } chain;
    chain.AddStage(&m_A);
    chain.StartProcessing();
    EXPECT_EQ(chain.m_Completed, 1);
    EXPECT_EQ(chain.GetCurrentStage(), -1);
    EXPECT_EQ(m_Log.Text(), "");
}

// The list ----------------------------------------------------------------------------------------------------------------------

TEST_F(CheckStages, AStageGoesBeforeTheOneAtItsPlaceOrToTheEnd)
{
    m_Chain->AddStage(&m_A);
    m_Chain->AddStage(&m_B, 0);
    EXPECT_EQ(Order(), "ba");
    m_Chain->AddStage(&m_C, 1);
    EXPECT_EQ(Order(), "bca");
    m_Chain->Clear();
    m_Chain->AddStage(&m_A, 7);
    m_Chain->AddStage(&m_B, 1);
    m_Chain->AddStage(&m_C, -5);
    EXPECT_EQ(Order(), "abc");
    EXPECT_EQ(m_Chain->GetStageCount(), 3);
    m_Chain->AddStage(&m_B, 2);
    EXPECT_EQ(Order(), "abbc");
}

TEST_F(CheckStages, AStageCanBeRemoved)
{
    AddAll();
    m_Chain->RemoveStage(&m_B);
    EXPECT_EQ(Order(), "ac");
    m_Chain->RemoveStage(&m_B);
    m_Chain->RemoveStage(nullptr);
    EXPECT_EQ(Order(), "ac");
    m_Chain->AddStage(&m_A);
    m_Chain->RemoveStage(&m_A);
    EXPECT_EQ(Order(), "ca");
    m_Chain->Clear();
    EXPECT_EQ(m_Chain->GetStageCount(), 0);
    EXPECT_EQ(Order(), "");
}

TEST_F(CheckStages, NoStageAtAllIsNotTaken)
{
    m_Chain->AddStage(nullptr);
    EXPECT_EQ(m_Chain->GetStageCount(), 0);
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Text(), "finished()");
}

// Changes while it runs ---------------------------------------------------------------------------------------------------------

TEST_F(CheckStages, AChainThatIsClearedAsAStageStartsHasFinished)
{
    AddAll();
    auto const clear = Listen(m_Chain->m_StageStarting, [&](int) { m_Chain->Clear(); });
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Text(), "starting(0) finished()");
}

TEST_F(CheckStages, TheStageThatStandsThereAfterTheSignalIsRun)
{
    AddAll();
    auto const exchange = Listen(m_Chain->m_StageStarting, [&](int) { m_Chain->RemoveStage(&m_A); });
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Take(), "starting(0) b");
    auto const more = Listen(m_Chain->m_StageStarting, [&](int number) {
        if (number == 1)
            m_Chain->AddStage(&m_A, 1);
    });
    m_B.m_Notify->Complete(true);
    EXPECT_EQ(m_Log.Take(), "starting(1) a");
    EXPECT_EQ(m_Chain->GetStageCount(), 3);
}

TEST_F(CheckStages, TheLastStageThatIsRemovedAsItStartsEndsTheChain)
{
    m_Chain->AddStage(&m_A);
    m_Chain->AddStage(&m_B);
    auto const remove = Listen(m_Chain->m_StageStarting, [&](int number) {
        if (number == 1)
            m_Chain->RemoveStage(&m_B);
    });
    m_A.m_Deed = &Pass;
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Text(), "starting(0) a starting(1) finished()");
}

TEST_F(CheckStages, AStageMayChangeItsChain)
{
    AddAll();
    m_A.m_Deed = [&](IStageNotify* notify) {
        m_Chain->Clear();
        m_Chain->AddStage(&m_A);
        m_Chain->AddStage(&m_C);
        notify->Complete(true);
    };
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Text(), "starting(0) a starting(1) c");
}

TEST_F(CheckStages, ASlotMayStartTheChainAnew)
{
    m_Chain->AddStage(&m_A);
    m_A.m_Deed = &Pass;
    int left = 2;
    auto const again = Listen(m_Chain->m_Finished, [&] {
        if (left-- > 0)
            m_Chain->StartProcessing();
    });
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Count("starting"), 3);
    EXPECT_EQ(m_Log.Count("finished"), 3);
}

TEST_F(CheckStages, ASlotThatStartsAnewAsAStageStartsHasItRunTwice)
{
    AddAll();
    bool first = true;
    auto const again = Listen(m_Chain->m_StageStarting, [&](int) {
        if (std::exchange(first, false))
            m_Chain->StartProcessing();
    });
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Text(), "starting(0) starting(0) a a");
    EXPECT_EQ(m_Chain->GetCurrentStage(), 0);
}

// Deletion ----------------------------------------------------------------------------------------------------------------------

TEST_F(CheckStages, AChainMayBeDeletedInEachOfItsSignals)
{
    {
        AddAll();
        auto const end = Listen(m_Chain->m_StageStarting, [&](int) { m_Chain.reset(); });
        m_Chain->StartProcessing();
        EXPECT_EQ(m_Log.Take(), "starting(0)");
    }
    {
        CCheckStages* const chain = new CCheckStages;
        auto const end = Listen(chain->m_Finished, [&] { delete chain; });
        chain->StartProcessing();
    }
    {
        CCheckStages* const chain = new CCheckStages;
        auto const end = Listen(chain->m_Aborted, [&] { delete chain; });
        chain->Complete(false);
    }
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(CheckStages, AStageMayDeleteItsChainAndItself)
{
    auto stage = std::make_unique<CTestStage>(m_Log, "last");
    stage->m_Deed = [&](IStageNotify*) {
        m_Chain.reset();
        stage.reset();
    };
    m_Chain->AddStage(stage.get());
    m_Chain->AddStage(&m_A);
    m_Chain->StartProcessing();
    EXPECT_EQ(m_Log.Text(), "starting(0) last");
}

TEST_F(CheckStages, AStageThatPassesMayBeDeletedInTheNextSignal)
{
    auto stage = std::make_unique<CTestStage>(m_Log, "first");
    stage->m_Deed = &Pass;
    m_Chain->AddStage(stage.get());
    m_Chain->AddStage(&m_A);
    auto const end = Listen(m_Chain->m_StageStarting, [&](int number) {
        if (number != 1)
            return;
        m_Chain->RemoveStage(stage.get());
        stage.reset();
    });
    m_Chain->StartProcessing();
    // What stands at 1 is none any more, now that the first has gone.
    EXPECT_EQ(m_Log.Text(), "starting(0) first starting(1) finished()");
}
