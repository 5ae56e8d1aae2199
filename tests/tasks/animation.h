#pragma once

#include "tests/tasks/task_system.h"
#include "vexel/tasks/animation_process.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tasks_test
{

/// An animation whose frames have these delays. It writes down what is asked of it.
class CLoggedAnimation : public IAnimation
{
public:
    CLoggedAnimation(CLog& log, std::vector<int> delays) : m_Delays(std::move(delays)), m_Log(log) {}

    std::vector<int> m_Delays;
    int m_Frame = 0;

    int GetDelay() override
    {
        m_Log.Add("delay");
        return m_Delays[static_cast<std::size_t>(m_Frame)];
    }
    void NextFrame() override
    {
        m_Log.Add("next");
        m_Frame = (m_Frame + 1) % static_cast<int>(m_Delays.size());
    }
    size<int> GetSize() const override { return {8, 8}; }
    void Draw(IPainter*, double, double) override {}

private:
    CLog& m_Log;
};

/// The widget's side of an animation.
class CLoggedUpdater : public IAnimationProcess::IUpdater
{
public:
    explicit CLoggedUpdater(CLog& log) : m_Log(log) {}

    bool m_Wants = true;
    std::function<void()> m_OnUpdate;
    std::function<void()> m_OnQuestion;

    void UpdateAnimation() override
    {
        m_Log.Add("update");
        if (auto const action = m_OnUpdate)
            action();
    }
    bool IsUpdatable() const override
    {
        m_Log.Add("wanted?");
        if (auto const action = m_OnQuestion)
            action();
        return m_Wants;
    }

private:
    CLog& m_Log;
};

/// The kind of process that is made, for a scope.
class CProcessType
{
public:
    explicit CProcessType(AnimationProcessType type) { SetDefAnimationProcess(type); }
    ~CProcessType() { SetDefAnimationProcess(aptThread); }
    CProcessType(CProcessType const&) = delete;
    CProcessType& operator=(CProcessType const&) = delete;
};

}  // namespace tasks_test
