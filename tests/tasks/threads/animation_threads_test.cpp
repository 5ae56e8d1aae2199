// Animations by thread and by timer side by side, on real threads.

#include "tests/tasks/threads/thread_queue.h"
#include "vexel/core/base_control.h"
#include "vexel/tasks/animation_process.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <thread>

using namespace tasks_test;
using namespace vexel;
using namespace vexel::test;

namespace
{

std::thread::id const g_GuiThread = std::this_thread::get_id();

// Plain data: whoever touches them from another thread is caught.
class CAnimation : public IAnimation
{
public:
    explicit CAnimation(std::vector<int> delays) : m_Delays(std::move(delays)) {}

    int m_Frame = 0;
    bool m_Dead = false;

    int GetDelay() override
    {
        Check();
        return m_Delays[static_cast<std::size_t>(m_Frame) % m_Delays.size()];
    }
    void NextFrame() override
    {
        Check();
        ++m_Frame;
    }
    size<int> GetSize() const override { return {8, 8}; }
    void Draw(IPainter*, double, double) override {}

private:
    void Check() const
    {
        EXPECT_EQ(std::this_thread::get_id(), g_GuiThread);
        EXPECT_FALSE(m_Dead) << "a step after the end";
    }

    std::vector<int> m_Delays;
};

class CUpdater : public IAnimationProcess::IUpdater
{
public:
    int m_Updates = 0;
    bool m_Wants = true;
    bool m_Dead = false;
    std::function<void()> m_OnUpdate;

    void UpdateAnimation() override
    {
        Check();
        ++m_Updates;
        if (auto const action = m_OnUpdate)
            action();
    }
    bool IsUpdatable() const override
    {
        Check();
        return m_Wants;
    }

private:
    void Check() const
    {
        EXPECT_EQ(std::this_thread::get_id(), g_GuiThread);
        EXPECT_FALSE(m_Dead) << "a step after the end";
    }
};

class AnimationThreads : public testing::Test
{
protected:
    AnimationThreads() { CTestHost::System().UseRealThreads(true); }
    ~AnimationThreads() override { SetDefAnimationProcess(aptThread); }

    CThreadQueue m_Queue;
};

TEST_F(AnimationThreads, OneThatIsStartedFirstRunsOnceItHasAllItNeeds)
{
    CAnimation animation({0, 1});
    CUpdater updater;
    vexel_ptr<IAnimationProcess> const process = CreateAnimationProcess();
    process->SetUpdater(&updater);
    process->StartAnimation();
    process->SetAnimation(&animation);
    process->SetProcessSynchronizer(&m_Queue);
    for (int step = 1; step <= 10; ++step)
    {
        ASSERT_TRUE(m_Queue.Wait(1));
        m_Queue.Run();
        EXPECT_GE(updater.m_Updates, step);
        EXPECT_EQ(updater.m_Updates, animation.m_Frame);
    }
    process->StopAnimation();
    EXPECT_FALSE(process->IsAnimated());
}

TEST_F(AnimationThreads, AStopInterruptsALongWait)
{
    CAnimation animation({24 * 60 * 60 * 1000});
    CUpdater updater;
    vexel_ptr<IAnimationProcess> const process = CreateAnimationProcess();
    process->SetUpdater(&updater);
    process->SetAnimation(&animation);
    process->SetProcessSynchronizer(&m_Queue);
    process->StartAnimation();
    ASSERT_TRUE(m_Queue.Wait(1)) << "the first round does not wait";
    EXPECT_TRUE(process->IsAnimated());
    process->StopAnimation();
    EXPECT_FALSE(process->IsAnimated());
    m_Queue.Run();
    EXPECT_EQ(updater.m_Updates, 1) << "what was queued still comes";
    EXPECT_EQ(m_Queue.GetCount(), 0u);
}

TEST_F(AnimationThreads, AProcessMayBeGivenUpWhileItsThreadPosts)
{
    for (int round = 0; round < 100; ++round)
    {
        CAnimation animation({0});
        CUpdater updater;
        vexel_ptr<IAnimationProcess> process = CreateAnimationProcess();
        process->SetUpdater(&updater);
        process->SetAnimation(&animation);
        process->SetProcessSynchronizer(&m_Queue);
        process->StartAnimation();
        ASSERT_TRUE(m_Queue.Wait(1));
        process.reset();
        updater.m_Dead = animation.m_Dead = true;
        m_Queue.Run();
        EXPECT_EQ(updater.m_Updates, 0);
    }
}

// A widget with an animation of its own.
struct SActor
{
    std::unique_ptr<CAnimation> animation;
    std::unique_ptr<CUpdater> updater = std::make_unique<CUpdater>();
    vexel_ptr<IAnimationProcess> process;
    bool inWindow = false;  // its steps go through the window
};

// Plays processes at random. A process that goes leaves its animation and updater behind, marked as dead.
class CAnimationGame
{
public:
    CAnimationGame(CThreadQueue& queue, CTestRandom& random) : m_Queue(queue), m_Random(random) {}
    ~CAnimationGame()
    {
        while (!m_Actors.empty())
            Destroy(0);
        m_Queue.Run();
        if (m_Host)
            m_Host->RunPending();
    }

    int GetUpdates() const { return m_Updates; }

    void Step()
    {
        switch (m_Random.Int(0, 15))
        {
        case 0:
        case 1:
            if (m_Actors.size() < 6)
                Create();
            break;
        case 2:
            if (!m_Actors.empty())
                Destroy(static_cast<std::size_t>(m_Random.Index(static_cast<int>(m_Actors.size()))));
            break;
        case 3:
        case 4:
            ForOne([](SActor& actor) { actor.process->StartAnimation(); });
            break;
        case 5:
            ForOne([](SActor& actor) { actor.process->StopAnimation(); });
            break;
        case 6:
            ForOne([this](SActor& actor) {
                actor.process->SetAnimation(m_Random.Bool() ? actor.animation.get() : nullptr);
            });
            break;
        case 7:
        case 8:
            ForOne([this](SActor& actor) { GiveSynchronizer(actor); });
            break;
        case 9:
            ForOne([](SActor& actor) { actor.updater->m_Wants = !actor.updater->m_Wants; });
            break;
        case 10:
            ToggleHost();
            break;
        case 11:
            CTestHost::System().Advance(m_Random.Int(1, 5));
            break;
        default:
            m_Queue.Wait(1, std::chrono::milliseconds(1));
            Run();
            break;
        }
    }

private:
    template <class Deed> void ForOne(Deed const& deed)
    {
        if (!m_Actors.empty())
            deed(*m_Random.Pick(m_Actors));
    }
    void Run()
    {
        m_Queue.Run();
        if (m_Host)
            m_Host->RunPending();
    }
    void Create()
    {
        auto actor = std::make_unique<SActor>();
        actor->animation = std::make_unique<CAnimation>(std::vector<int>{m_Random.Int(0, 2), 0, m_Random.Int(1, 3)});
        SetDefAnimationProcess(m_Random.Chance(70) ? aptThread : aptTimer);
        actor->process = CreateAnimationProcess();
        actor->process->SetUpdater(actor->updater.get());
        actor->updater->m_OnUpdate = [this, told = actor.get()] { Updated(*told); };
        if (m_Random.Bool())
            actor->process->StartAnimation();
        actor->process->SetAnimation(actor->animation.get());
        GiveSynchronizer(*actor);
        m_Actors.push_back(std::move(actor));
    }
    // In the step of a process: now and then it is stopped, started again or given up.
    void Updated(SActor& actor)
    {
        ++m_Updates;
        switch (m_Random.Int(0, 9))
        {
        case 0:
            actor.process->StopAnimation();
            break;
        case 1:
            actor.process->StopAnimation();
            actor.process->StartAnimation();
            break;
        case 2:
            for (std::size_t i = 0; i < m_Actors.size(); ++i)
                if (m_Actors[i].get() == &actor)
                    return Destroy(i);
            break;
        default:
            break;
        }
    }
    void Destroy(std::size_t index)
    {
        std::unique_ptr<SActor> actor = std::move(m_Actors[index]);
        m_Actors.erase(m_Actors.begin() + static_cast<std::ptrdiff_t>(index));
        actor->process.reset();
        m_Graves.push_back(std::move(actor));
        // A step under way still returns through the process, but steps no more.
        m_Graves.back()->animation->m_Dead = m_Graves.back()->updater->m_Dead = true;
    }
    void GiveSynchronizer(SActor& actor)
    {
        int const which = m_Random.Int(0, 2);
        actor.inWindow = which == 1 && m_Host;
        actor.process->SetProcessSynchronizer(actor.inWindow ? static_cast<ISynchronizer*>(&m_Host->Window())
                                              : which == 2   ? &m_Queue
                                                             : nullptr);
    }
    // The window comes and goes. Its processes lose it before.
    void ToggleHost()
    {
        if (!m_Host)
        {
            m_Host = std::make_unique<CTestHost>(20, 20);
            return;
        }
        for (auto const& actor : m_Actors)
        {
            if (std::exchange(actor->inWindow, false))
                actor->process->SetProcessSynchronizer(nullptr);
        }
        m_Host.reset();
    }

    CThreadQueue& m_Queue;
    CTestRandom& m_Random;
    std::unique_ptr<CTestHost> m_Host;
    std::vector<std::unique_ptr<SActor>> m_Actors;
    std::vector<std::unique_ptr<SActor>> m_Graves;
    int m_Updates = 0;
};

TEST_F(AnimationThreads, StartedStoppedAndGivenUpAtRandomTheyNeverStepAfterTheirEnd)
{
    CTestRandom random;
    int updates = 0;
    for (int round = 0; round < 10; ++round)
    {
        CAnimationGame game(m_Queue, random);
        for (int step = 0; step < 400; ++step)
            game.Step();
        updates += game.GetUpdates();
    }
    EXPECT_GT(updates, 0);
    EXPECT_EQ(m_Queue.GetCount(), 0u);
}

}  // namespace
