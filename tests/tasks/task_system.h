#pragma once

#include "tests/support/scripted_system.h"
#include "tests/support/text_log.h"
#include "vexel/platform/events.h"
#include "vexel/signals/notify.h"
#include "vexel/tasks/gui_task.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tasks_test
{

using namespace vexel;

using CLog = vexel::test::CTextLog;

/// A timer that ticks when the test says so, and writes down what is done to it.
class CLoggedTimer : public CImplEventSender<ISysTimer>
{
public:
    CLoggedTimer(CLog& log, int* alive) : m_Log(log), m_Alive(alive)
    {
        ++*m_Alive;
        SetSupportedEvent(typeid(ITimerNotify));
    }
    ~CLoggedTimer() override { --*m_Alive; }

    void Tick()
    {
        vexel_ptr<CLoggedTimer> const self(this);
        CTimerEvent event;
        Fire<&ITimerNotify::OnTimer>(*this, &event, true);
    }

    bool IsRunning() const override { return m_Running; }
    void SetPeriod(int milliseconds) override { m_Log.Add("period(" + std::to_string(milliseconds) + ")"); }
    void SetRunning(bool running) override
    {
        m_Log.Add(running ? "run" : "stop");
        m_Running = running;
    }
    bool Subscribe(INotify* subscriber, std::type_info const& type, bool notify) override
    {
        m_Log.Add(std::string("subscribe(") + (type == typeid(ITimerNotify) ? "timer" : "other") +
                  (notify ? ", notify)" : ")"));
        return CImplEventSender<ISysTimer>::Subscribe(subscriber, type, notify);
    }
    bool Unsubscribe(INotify* subscriber, std::type_info const& type, bool notify) override
    {
        m_Log.Add(notify ? "unsubscribe(notify)" : "unsubscribe()");
        return CImplEventSender<ISysTimer>::Unsubscribe(subscriber, type, notify);
    }
    bool Unsubscribe(INotify* subscriber, bool notify) override
    {
        m_Log.Add(notify ? "unsubscribe(notify)" : "unsubscribe()");
        return CImplEventSender<ISysTimer>::Unsubscribe(subscriber, notify);
    }

private:
    CLog& m_Log;
    int* m_Alive;
    bool m_Running = false;
};

class CLoggedLock : public ILock
{
public:
    CLoggedLock(CLog& log, std::string name) : m_Log(log), m_Name(std::move(name)) {}
    void Acquire() override { m_Log.Add(m_Name + "+"); }
    void Unlock() override { m_Log.Add(m_Name + "-"); }

private:
    CLog& m_Log;
    std::string m_Name;
};

/// A runner whose rounds are run by the test.
class CLoggedRunner : public IRunner
{
public:
    explicit CLoggedRunner(CLog& log) : m_Log(log) {}

    bool Round()
    {
        bool const more = m_Runnable->Run();
        m_Running = m_Running && more;
        return more;
    }
    IRunnable* GetRunnable() const { return m_Runnable; }

    void Run(IRunnable* runnable) override
    {
        m_Log.Add("start");
        m_Runnable = runnable;
        m_Running = true;
    }
    void Stop() override
    {
        m_Log.Add("halt");
        m_Running = false;
    }
    bool IsRunning() const override { return m_Running; }
    void SetWait(int milliseconds) override { m_Log.Add("wait(" + std::to_string(milliseconds) + ")"); }

private:
    CLog& m_Log;
    IRunnable* m_Runnable = nullptr;
    bool m_Running = false;
};

/// A queue that is run by the test.
class CLoggedQueue : public ISynchronizer
{
public:
    explicit CLoggedQueue(CLog& log) : m_Log(log) {}

    std::vector<std::unique_ptr<IRunnable>> m_Posted;

    void Run()
    {
        for (auto const& runnable : std::exchange(m_Posted, {}))
            runnable->Run();
    }
    void Post(IRunnable* runnable) override
    {
        m_Log.Add("post");
        m_Posted.emplace_back(runnable);
    }

private:
    CLog& m_Log;
};

/// A machine of such things. Locks are named a, b, c in the order they are made.
class CTaskSystem : public CScriptedSystem
{
public:
    explicit CTaskSystem(CLog& log) : m_Log(log) {}

    CLoggedTimer* m_LastTimer = nullptr;
    int m_Timers = 0;  // that live
    CLoggedRunner* m_LastRunner = nullptr;

    vexel_ptr<ISysTimer> CreateTimer(int period, int option) override
    {
        m_Log.Add("timer(" + std::to_string(period) + ", " + std::to_string(option) + ")");
        m_LastTimer = new CLoggedTimer(m_Log, &m_Timers);
        return vexel_ptr<ISysTimer>(m_LastTimer);
    }
    vexel_ptr<ILock> CreateLock() override
    {
        std::string const name(1, static_cast<char>('a' + m_Locks++));
        m_Log.Add("lock(" + name + ")");
        return vexel_ptr<ILock>(new CLoggedLock(m_Log, name));
    }
    vexel_ptr<IRunner> GetRunner() override
    {
        m_Log.Add("runner");
        m_LastRunner = new CLoggedRunner(m_Log);
        return vexel_ptr<IRunner>(m_LastRunner);
    }

private:
    CLog& m_Log;
    int m_Locks = 0;
};

}  // namespace tasks_test
