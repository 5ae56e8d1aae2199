// Random scripts of connects, disconnects, emissions and deaths, also from inside slots, against a plain model: lists of
// entries that are walked by index.

#include "tests/signals/reports.h"
#include "vexel/signals/signal.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <tuple>
#include <vector>

using plinth::signal_t;
using plinth::subscriber_base_t;

namespace
{

constexpr int signal_count = 3;
constexpr int receiver_count = 24;  // more than a signal searches without an index
constexpr int method_count = 2;
constexpr int deepest = 4;

enum class What
{
    connect,
    connectMany,
    connectSignal,
    disconnect,
    disconnectSignal,
    disconnectMany,
    eraseAll,
    emit,
    emitAndCatch,
    deleteReceiver,
    deleteSignal,
    create,
    leaveAll,
    raise,
    count
};

/// One step. In a slot, the slot does as many steps of the script as its step says.
struct SStep
{
    What what;
    int signal;
    int receiver;  ///< Also the other signal, modulo their number.
    int method;
    int burst;  ///< So many steps are done by the next slot that is called.
};

void showValue(SStep const& step, std::ostream& out)
{
    out << "{" << static_cast<int>(step.what) << " s" << step.signal << " r" << step.receiver << " m" << step.method
        << " b" << step.burst << "}";
}

using Calls = std::function<void(int signal, int receiver, int method)>;

/// What a script is run on. A receiver from 100 on is a signal as a slot.
class IWorld
{
public:
    virtual ~IWorld() = default;
    virtual bool HasSignal(int signal) = 0;
    virtual bool HasReceiver(int receiver) = 0;
    virtual void Create(int signal, int receiver) = 0;  ///< Whichever is missing.
    virtual void Connect(int signal, int receiver, int method) = 0;
    virtual void Disconnect(int signal, int receiver, int method) = 0;
    virtual void EraseAll(int signal) = 0;
    virtual void Emit(int signal) = 0;
    virtual void DeleteReceiver(int receiver) = 0;
    virtual void DeleteSignal(int signal) = 0;
    virtual void LeaveAll(int receiver) = 0;
    virtual bool MayDie(int receiver) = 0;
    virtual std::size_t ConnectionCount(int signal) = 0;
    virtual std::size_t NoteCount(int receiver) = 0;
    virtual std::string TakeReports() = 0;

    Calls m_Call;
};

// The model ------------------------------------------------------------------------------------------------------------

class CModel : public IWorld
{
public:
    CModel()
    {
        for (int i = 0; i < signal_count; ++i)
            m_Signals[i] = std::make_shared<SSignal>();
        for (int i = 0; i < receiver_count; ++i)
            m_Alive.insert(i);
    }

    bool HasSignal(int signal) override { return m_Signals[signal] != nullptr; }
    bool HasReceiver(int receiver) override { return m_Alive.count(receiver) != 0; }
    void Create(int signal, int receiver) override
    {
        if (!m_Signals[signal])
            m_Signals[signal] = std::make_shared<SSignal>();
        m_Alive.insert(receiver);
    }

    void Connect(int signal, int receiver, int method) override
    {
        SSignal& s = *m_Signals[signal];
        if (Find(s, receiver, method))
        {
            m_Reports += "299 ";
            return;
        }
        s.entries.push_back({receiver, method, true});
        m_Known[receiver].push_back(signal);
    }

    void Disconnect(int signal, int receiver, int method) override
    {
        SSignal& s = *m_Signals[signal];
        SEntry* const entry = Find(s, receiver, method);
        if (!entry)
        {
            m_Reports += "314 ";
            return;
        }
        entry->live = false;
        Forget(receiver, signal);
        Purge(s);
    }

    void EraseAll(int signal) override
    {
        SSignal& s = *m_Signals[signal];
        for (SEntry& entry : s.entries)
        {
            if (entry.live)
                Forget(entry.receiver, signal);
            entry.live = false;
        }
        Purge(s);
    }

    void Emit(int signal) override
    {
        std::shared_ptr<SSignal> const s = m_Signals[signal];
        ++s->depth;
        for (std::size_t i = 0; i < s->entries.size(); ++i)
        {
            SEntry const entry = s->entries[i];
            if (!entry.live)
                continue;
            try
            {
                if (entry.receiver >= 100)
                    EmitAsSlot(entry.receiver - 100);
                else
                    m_Call(signal, entry.receiver, entry.method);
            }
            catch (...)
            {
                --s->depth;
                Purge(*s);
                throw;
            }
            if (s->dead)
                break;
        }
        --s->depth;
        Purge(*s);
    }

    void DeleteReceiver(int receiver) override
    {
        LeaveAll(receiver);
        m_Alive.erase(receiver);
    }

    void DeleteSignal(int signal) override
    {
        EraseAll(signal);
        m_Signals[signal]->dead = true;
        LeaveAll(100 + signal);
        m_Signals[signal] = nullptr;
    }

    void LeaveAll(int receiver) override
    {
        for (int const signal : m_Known[receiver])
        {
            for (SEntry& entry : m_Signals[signal]->entries)
                entry.live = entry.live && entry.receiver != receiver;
            Purge(*m_Signals[signal]);
        }
        m_Known[receiver].clear();
    }

    /// Not with a connection on a signal that it has forgotten.
    bool MayDie(int receiver) override
    {
        for (int i = 0; i < signal_count; ++i)
        {
            if (!m_Signals[i])
                continue;
            bool const connected =
                std::any_of(m_Signals[i]->entries.begin(), m_Signals[i]->entries.end(),
                            [&](SEntry const& entry) { return entry.live && entry.receiver == receiver; });
            std::vector<int> const& known = m_Known[receiver];
            if (connected && std::find(known.begin(), known.end(), i) == known.end())
                return false;
        }
        return true;
    }

    std::size_t ConnectionCount(int signal) override { return m_Signals[signal]->entries.size(); }
    std::size_t NoteCount(int receiver) override { return m_Known[receiver].size(); }
    std::string TakeReports() override { return std::exchange(m_Reports, std::string()); }

private:
    struct SEntry
    {
        int receiver;
        int method;
        bool live;
    };
    struct SSignal
    {
        std::vector<SEntry> entries;
        int depth = 0;
        bool dead = false;
    };

    void EmitAsSlot(int signal) { Emit(signal); }

    static SEntry* Find(SSignal& signal, int receiver, int method)
    {
        for (SEntry& entry : signal.entries)
        {
            if (entry.live && entry.receiver == receiver && entry.method == method)
                return &entry;
        }
        return nullptr;
    }
    void Forget(int receiver, int signal) { std::erase(m_Known[receiver], signal); }
    static void Purge(SSignal& signal)
    {
        if (signal.depth == 0)
            std::erase_if(signal.entries, [](SEntry const& entry) { return !entry.live; });
    }

    std::map<int, std::shared_ptr<SSignal>> m_Signals;
    std::set<int> m_Alive;
    std::map<int, std::vector<int>> m_Known;
    std::string m_Reports;
};

// The real thing --------------------------------------------------------------------------------------------------------

class CReal : public IWorld
{
public:
    CReal()
    {
        for (int i = 0; i < signal_count; ++i)
            m_Signals[i] = std::make_unique<signal_t<>>();
        for (int i = 0; i < receiver_count; ++i)
            m_Receivers[i] = std::make_unique<CTarget>(*this, i);
    }

    bool HasSignal(int signal) override { return m_Signals[signal] != nullptr; }
    bool HasReceiver(int receiver) override { return m_Receivers[receiver] != nullptr; }
    void Create(int signal, int receiver) override
    {
        if (!m_Signals[signal])
            m_Signals[signal] = std::make_unique<signal_t<>>();
        if (!m_Receivers[receiver])
            m_Receivers[receiver] = std::make_unique<CTarget>(*this, receiver);
    }
    void Connect(int signal, int receiver, int method) override
    {
        if (receiver >= 100)
            m_Signals[signal]->connect(m_Signals[receiver - 100].get(), &signal_t<>::operator());
        else if (method == 0)
            m_Signals[signal]->connect(m_Receivers[receiver].get(), &CTarget::First);
        else
            m_Signals[signal]->connect(m_Receivers[receiver].get(), &CTarget::Second);
    }
    void Disconnect(int signal, int receiver, int method) override
    {
        if (receiver >= 100)
            m_Signals[signal]->disconnect(m_Signals[receiver - 100].get(), &signal_t<>::operator());
        else if (method == 0)
            m_Signals[signal]->disconnect(m_Receivers[receiver].get(), &CTarget::First);
        else
            m_Signals[signal]->disconnect(m_Receivers[receiver].get(), &CTarget::Second);
    }
    void EraseAll(int signal) override { m_Signals[signal]->_erase_all(); }
    void Emit(int signal) override { (*m_Signals[signal])(); }
    void DeleteReceiver(int receiver) override { m_Receivers[receiver].reset(); }
    void DeleteSignal(int signal) override { m_Signals[signal].reset(); }
    void LeaveAll(int receiver) override { m_Receivers[receiver]->disconnect_all_signals(); }
    bool MayDie(int) override { return true; }
    std::size_t ConnectionCount(int signal) override { return m_Signals[signal]->connection_count(); }
    std::size_t NoteCount(int receiver) override
    {
        if (receiver < 100)
            return m_Receivers[receiver]->signal_count();
        return m_Signals[receiver - 100] ? m_Signals[receiver - 100]->signal_count() : 0;
    }
    std::string TakeReports() override
    {
        std::string taken;
        for (; m_Taken < m_Reports.Count(); ++m_Taken)
            taken += std::to_string(m_Reports.All()[m_Taken].line) + " ";
        return taken;
    }

private:
    class CTarget : public subscriber_base_t
    {
    public:
        CTarget(CReal& world, int number) : m_World(world), m_Number(number) {}
        // They may delete their object.
        void First() { m_World.m_Call(-1, m_Number, 0); }
        void Second() { m_World.m_Call(-1, m_Number, 1); }

    private:
        CReal& m_World;
        int m_Number;
    };

    signals_test::CReports m_Reports;
    std::size_t m_Taken = 0;
    std::map<int, std::unique_ptr<CTarget>> m_Receivers;
    std::map<int, std::unique_ptr<signal_t<>>> m_Signals;
};

// The script ------------------------------------------------------------------------------------------------------------

/// Runs the steps on a world and writes down all that can be seen. Whether a receiver may die only the model knows: its
/// answers are noted on the first run and read on the second.
class CRun
{
public:
    CRun(IWorld& world, std::vector<SStep> const& script, std::deque<bool>* mayDie, bool first)
        : m_World(world), m_Script(script), m_MayDie(*mayDie), m_First(first)
    {
        m_World.m_Call = [this](int, int receiver, int method) { Called(receiver, method); };
    }

    std::string Play()
    {
        while (m_Next < m_Script.size())
        {
            try
            {
                Step();
            }
            catch (int)
            {
                m_Log += "! ";
            }
            LookAtAll();
        }
        return m_Log;
    }

private:
    void Called(int receiver, int method)
    {
        m_Log += "r" + std::to_string(receiver) + "." + std::to_string(method) + " ";
        if (++m_Calls > 3000)
            throw 0;  // signals connected in circles
        for (int i = m_Burst; i > 0 && m_Next < m_Script.size(); --i)
            Step();
    }

    bool MayDie(int receiver)
    {
        if (m_First)
        {
            m_MayDie.push_back(m_World.MayDie(receiver));
            return m_MayDie.back();
        }
        if (m_MayDie.empty())
        {
            m_Log += "(another way than the model's) ";
            return false;
        }
        bool const may = m_MayDie.front();
        m_MayDie.pop_front();
        return may;
    }

    void Step()
    {
        SStep const step = m_Script[m_Next++];
        m_Burst = step.burst;
        int const other = 100 + step.receiver % signal_count;
        bool const hasSignal = m_World.HasSignal(step.signal);
        bool const hasReceiver = m_World.HasReceiver(step.receiver);
        bool const hasOther = m_World.HasSignal(other - 100);
        switch (step.what)
        {
        case What::connect:
            if (hasSignal && hasReceiver)
                m_World.Connect(step.signal, step.receiver, step.method);
            break;
        case What::connectMany:
            for (int i = 0; hasSignal && i < receiver_count; ++i)
            {
                if (m_World.HasReceiver(i))
                    m_World.Connect(step.signal, i, step.method);
            }
            break;
        case What::connectSignal:
            // Never to an earlier one, so that emissions end.
            if (hasSignal && hasOther && other - 100 > step.signal)
                m_World.Connect(step.signal, other, 0);
            break;
        case What::disconnect:
            if (hasSignal && hasReceiver)
                m_World.Disconnect(step.signal, step.receiver, step.method);
            break;
        case What::disconnectSignal:
            if (hasSignal && hasOther)
                m_World.Disconnect(step.signal, other, 0);
            break;
        case What::disconnectMany:
            for (int i = step.receiver; hasSignal && i < receiver_count; i += 1 + step.burst)
            {
                if (m_World.HasReceiver(i))
                    m_World.Disconnect(step.signal, i, step.method);
            }
            break;
        case What::eraseAll:
            if (hasSignal)
                m_World.EraseAll(step.signal);
            break;
        case What::emit:
            if (hasSignal && m_Depth < deepest)
                Emit(step.signal);
            break;
        case What::emitAndCatch:
            if (hasSignal && m_Depth < deepest)
            {
                try
                {
                    Emit(step.signal);
                }
                catch (int)
                {
                    m_Log += "caught ";
                }
            }
            break;
        case What::deleteReceiver:
            if (hasReceiver && MayDie(step.receiver))
                m_World.DeleteReceiver(step.receiver);
            break;
        case What::deleteSignal:
            if (hasSignal && MayDie(100 + step.signal))
                m_World.DeleteSignal(step.signal);
            break;
        case What::create:
            m_World.Create(step.signal, step.receiver);
            break;
        case What::leaveAll:
            if (hasReceiver)
                m_World.LeaveAll(step.receiver);
            break;
        case What::raise:
            throw 1;
        case What::count:
            break;
        }
        m_Log += m_World.TakeReports();
    }

    void Emit(int signal)
    {
        m_Log += "s" + std::to_string(signal) + "( ";
        ++m_Depth;
        try
        {
            m_World.Emit(signal);
        }
        catch (...)
        {
            --m_Depth;
            throw;
        }
        --m_Depth;
        m_Log += ") ";
    }

    void LookAtAll()
    {
        for (int i = 0; i < signal_count; ++i)
            m_Log += m_World.HasSignal(i) ? std::to_string(m_World.ConnectionCount(i)) + "," : "-,";
        for (int i = 0; i < receiver_count; ++i)
            m_Log += m_World.HasReceiver(i) ? std::to_string(m_World.NoteCount(i)) + "," : "-,";
        for (int i = 0; i < signal_count; ++i)
            m_Log += m_World.HasSignal(i) ? std::to_string(m_World.NoteCount(100 + i)) + "," : "-,";
        m_Log += "\n";
    }

    IWorld& m_World;
    std::vector<SStep> const& m_Script;
    std::deque<bool>& m_MayDie;
    bool const m_First;
    std::size_t m_Next = 0;
    int m_Burst = 0;
    int m_Depth = 0;
    int m_Calls = 0;
    std::string m_Log;
};

/// Before the end no receiver may keep a connection that it has forgotten: the signals go first.
void PlayAgainstModel(std::vector<SStep> const& script)
{
    std::deque<bool> mayDie;
    CModel model;
    std::string const expected = CRun(model, script, &mayDie, true).Play();
    CReal real;
    std::string const seen = CRun(real, script, &mayDie, false).Play();
    RC_ASSERT(seen == expected);
}

rc::Gen<SStep> AnyStep(int receivers)
{
    return rc::gen::build<SStep>(
        rc::gen::set(&SStep::what,
                     rc::gen::map(rc::gen::weightedElement<int>({{10, static_cast<int>(What::connect)},
                                                                 {2, static_cast<int>(What::connectMany)},
                                                                 {2, static_cast<int>(What::connectSignal)},
                                                                 {6, static_cast<int>(What::disconnect)},
                                                                 {1, static_cast<int>(What::disconnectSignal)},
                                                                 {1, static_cast<int>(What::disconnectMany)},
                                                                 {1, static_cast<int>(What::eraseAll)},
                                                                 {12, static_cast<int>(What::emit)},
                                                                 {3, static_cast<int>(What::emitAndCatch)},
                                                                 {4, static_cast<int>(What::deleteReceiver)},
                                                                 {2, static_cast<int>(What::deleteSignal)},
                                                                 {4, static_cast<int>(What::create)},
                                                                 {1, static_cast<int>(What::leaveAll)},
                                                                 {2, static_cast<int>(What::raise)}}),
                                  [](int what) { return static_cast<What>(what); })),
        rc::gen::set(&SStep::signal, rc::gen::inRange(0, signal_count)),
        rc::gen::set(&SStep::receiver, rc::gen::inRange(0, receivers)),
        rc::gen::set(&SStep::method, rc::gen::inRange(0, method_count)),
        rc::gen::set(&SStep::burst, rc::gen::weightedElement<int>({{5, 0}, {4, 1}, {2, 2}, {1, 5}})));
}

TEST(SignalModel, FewReceiversBehaveAsAListOfEntries)
{
    EXPECT_TRUE(rc::check("scripts over four receivers",
                          [] { PlayAgainstModel(*rc::gen::container<std::vector<SStep>>(AnyStep(4))); }));
}

TEST(SignalModel, LongScriptsBehaveAsAListOfEntries)
{
    EXPECT_TRUE(rc::check("scripts of 300 steps",
                          [] { PlayAgainstModel(*rc::gen::container<std::vector<SStep>>(300, AnyStep(6))); }));
}

TEST(SignalModel, ManyReceiversBehaveAsAListOfEntries)
{
    EXPECT_TRUE(rc::check("scripts that begin with long lists",
                          []
                          {
                              auto script = *rc::gen::container<std::vector<SStep>>(AnyStep(receiver_count));
                              std::vector<SStep> const begin = {{What::connectMany, 0, 0, 0, 1},
                                                                {What::connectMany, 0, 0, 1, 1},
                                                                {What::connectMany, 1, 0, 0, 1}};
                              script.insert(script.begin(), begin.begin(), begin.end());
                              PlayAgainstModel(script);
                          }));
}

}  // namespace
