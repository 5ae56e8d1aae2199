// What one slot may do to an emission, from each place in the list, in the outermost emission and in a nested one.

#include "tests/signals/receiver.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/signals/signal.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>

using plinth::signal_t;
using signals_test::CReceiver;

namespace
{

enum class Deed
{
    deleteSignal,
    deleteSignalAndThrow,
    deleteSelf,
    deletePrevious,
    deleteNext,
    deleteSelfAndSignal,
    disconnectSelf,
    disconnectPrevious,
    disconnectNext,
    disconnectAll,
    connectNew,
    reconnectSelf,
    emitAgain,
    throwError,
    throwCancel,
};

/// The list is a, b, c, or o, a, b, c in the nested case, where o emits the signal again at its first call. The actor
/// does its deed once, at its first call. Logs: names as they are called, nested emissions in brackets, which o and
/// emitAgain write around theirs; "!" where the emitter caught an exception, which skips closing brackets.
struct SCase
{
    Deed deed;
    char const* name;
    char actor;
    bool nested;
    char const* first;   ///< The log of the emission with the deed.
    char const* second;  ///< The log of another emission, null when the signal is gone.
};

void PrintTo(SCase const& tested, std::ostream* out)
{
    *out << tested.name << " by " << tested.actor << (tested.nested ? " in a nested emission" : "");
}

SCase const cases[] = {
    {Deed::deleteSignal, "DeleteSignal", 'a', false, "a", nullptr},
    {Deed::deleteSignal, "DeleteSignal", 'b', false, "ab", nullptr},
    {Deed::deleteSignal, "DeleteSignal", 'c', false, "abc", nullptr},
    {Deed::deleteSignal, "DeleteSignal", 'a', true, "o(oa)", nullptr},
    {Deed::deleteSignal, "DeleteSignal", 'b', true, "o(oab)", nullptr},
    {Deed::deleteSignal, "DeleteSignal", 'c', true, "o(oabc)", nullptr},

    {Deed::deleteSignalAndThrow, "DeleteSignalAndThrow", 'a', false, "a!", nullptr},
    {Deed::deleteSignalAndThrow, "DeleteSignalAndThrow", 'b', false, "ab!", nullptr},
    {Deed::deleteSignalAndThrow, "DeleteSignalAndThrow", 'c', false, "abc!", nullptr},
    {Deed::deleteSignalAndThrow, "DeleteSignalAndThrow", 'a', true, "o(oa!", nullptr},
    {Deed::deleteSignalAndThrow, "DeleteSignalAndThrow", 'b', true, "o(oab!", nullptr},
    {Deed::deleteSignalAndThrow, "DeleteSignalAndThrow", 'c', true, "o(oabc!", nullptr},

    {Deed::deleteSelf, "DeleteSelf", 'a', false, "abc", "bc"},
    {Deed::deleteSelf, "DeleteSelf", 'b', false, "abc", "ac"},
    {Deed::deleteSelf, "DeleteSelf", 'c', false, "abc", "ab"},
    {Deed::deleteSelf, "DeleteSelf", 'a', true, "o(oabc)bc", "obc"},
    {Deed::deleteSelf, "DeleteSelf", 'b', true, "o(oabc)ac", "oac"},
    {Deed::deleteSelf, "DeleteSelf", 'c', true, "o(oabc)ab", "oab"},

    {Deed::deletePrevious, "DeletePrevious", 'b', false, "abc", "bc"},
    {Deed::deletePrevious, "DeletePrevious", 'c', false, "abc", "ac"},
    {Deed::deletePrevious, "DeletePrevious", 'a', true, "o(oabc)abc", "abc"},  // o's slot is still running
    {Deed::deletePrevious, "DeletePrevious", 'b', true, "o(oabc)bc", "obc"},
    {Deed::deletePrevious, "DeletePrevious", 'c', true, "o(oabc)ac", "oac"},

    {Deed::deleteNext, "DeleteNext", 'a', false, "ac", "ac"},
    {Deed::deleteNext, "DeleteNext", 'b', false, "ab", "ab"},
    {Deed::deleteNext, "DeleteNext", 'a', true, "o(oac)ac", "oac"},
    {Deed::deleteNext, "DeleteNext", 'b', true, "o(oab)ab", "oab"},

    {Deed::deleteSelfAndSignal, "DeleteSelfAndSignal", 'a', false, "a", nullptr},
    {Deed::deleteSelfAndSignal, "DeleteSelfAndSignal", 'b', false, "ab", nullptr},
    {Deed::deleteSelfAndSignal, "DeleteSelfAndSignal", 'c', false, "abc", nullptr},
    {Deed::deleteSelfAndSignal, "DeleteSelfAndSignal", 'a', true, "o(oa)", nullptr},
    {Deed::deleteSelfAndSignal, "DeleteSelfAndSignal", 'c', true, "o(oabc)", nullptr},

    {Deed::disconnectSelf, "DisconnectSelf", 'a', false, "abc", "bc"},
    {Deed::disconnectSelf, "DisconnectSelf", 'b', false, "abc", "ac"},
    {Deed::disconnectSelf, "DisconnectSelf", 'c', false, "abc", "ab"},
    {Deed::disconnectSelf, "DisconnectSelf", 'a', true, "o(oabc)bc", "obc"},
    {Deed::disconnectSelf, "DisconnectSelf", 'b', true, "o(oabc)ac", "oac"},
    {Deed::disconnectSelf, "DisconnectSelf", 'c', true, "o(oabc)ab", "oab"},

    {Deed::disconnectPrevious, "DisconnectPrevious", 'b', false, "abc", "bc"},
    {Deed::disconnectPrevious, "DisconnectPrevious", 'c', false, "abc", "ac"},
    {Deed::disconnectPrevious, "DisconnectPrevious", 'a', true, "o(oabc)abc", "abc"},
    {Deed::disconnectPrevious, "DisconnectPrevious", 'b', true, "o(oabc)bc", "obc"},
    {Deed::disconnectPrevious, "DisconnectPrevious", 'c', true, "o(oabc)ac", "oac"},

    {Deed::disconnectNext, "DisconnectNext", 'a', false, "ac", "ac"},
    {Deed::disconnectNext, "DisconnectNext", 'b', false, "ab", "ab"},
    {Deed::disconnectNext, "DisconnectNext", 'a', true, "o(oac)ac", "oac"},
    {Deed::disconnectNext, "DisconnectNext", 'b', true, "o(oab)ab", "oab"},

    {Deed::disconnectAll, "DisconnectAll", 'a', false, "a", ""},
    {Deed::disconnectAll, "DisconnectAll", 'b', false, "ab", ""},
    {Deed::disconnectAll, "DisconnectAll", 'c', false, "abc", ""},
    {Deed::disconnectAll, "DisconnectAll", 'a', true, "o(oa)", ""},
    {Deed::disconnectAll, "DisconnectAll", 'b', true, "o(oab)", ""},
    {Deed::disconnectAll, "DisconnectAll", 'c', true, "o(oabc)", ""},

    {Deed::connectNew, "ConnectNew", 'a', false, "abcn", "abcn"},
    {Deed::connectNew, "ConnectNew", 'b', false, "abcn", "abcn"},
    {Deed::connectNew, "ConnectNew", 'c', false, "abcn", "abcn"},
    {Deed::connectNew, "ConnectNew", 'a', true, "o(oabcn)abcn", "oabcn"},
    {Deed::connectNew, "ConnectNew", 'b', true, "o(oabcn)abcn", "oabcn"},
    {Deed::connectNew, "ConnectNew", 'c', true, "o(oabcn)abcn", "oabcn"},

    {Deed::reconnectSelf, "ReconnectSelf", 'a', false, "abca", "bca"},
    {Deed::reconnectSelf, "ReconnectSelf", 'b', false, "abcb", "acb"},
    {Deed::reconnectSelf, "ReconnectSelf", 'c', false, "abcc", "abc"},
    {Deed::reconnectSelf, "ReconnectSelf", 'a', true, "o(oabca)bca", "obca"},
    {Deed::reconnectSelf, "ReconnectSelf", 'c', true, "o(oabcc)abc", "oabc"},

    {Deed::emitAgain, "EmitAgain", 'a', false, "a(abc)bc", "abc"},
    {Deed::emitAgain, "EmitAgain", 'b', false, "ab(abc)c", "abc"},
    {Deed::emitAgain, "EmitAgain", 'c', false, "abc(abc)", "abc"},
    {Deed::emitAgain, "EmitAgain", 'a', true, "o(oa(oabc)bc)abc", "oabc"},
    {Deed::emitAgain, "EmitAgain", 'b', true, "o(oab(oabc)c)abc", "oabc"},
    {Deed::emitAgain, "EmitAgain", 'c', true, "o(oabc(oabc))abc", "oabc"},

    {Deed::throwError, "ThrowError", 'a', false, "a!", "abc"},
    {Deed::throwError, "ThrowError", 'b', false, "ab!", "abc"},
    {Deed::throwError, "ThrowError", 'c', false, "abc!", "abc"},
    {Deed::throwError, "ThrowError", 'a', true, "o(oa!", "oabc"},
    {Deed::throwError, "ThrowError", 'b', true, "o(oab!", "oabc"},
    {Deed::throwError, "ThrowError", 'c', true, "o(oabc!", "oabc"},

    {Deed::throwCancel, "ThrowCancel", 'a', false, "a!", "abc"},
    {Deed::throwCancel, "ThrowCancel", 'b', false, "ab!", "abc"},
    {Deed::throwCancel, "ThrowCancel", 'c', false, "abc!", "abc"},
    {Deed::throwCancel, "ThrowCancel", 'a', true, "o(oa!", "oabc"},
    {Deed::throwCancel, "ThrowCancel", 'b', true, "o(oab!", "oabc"},
    {Deed::throwCancel, "ThrowCancel", 'c', true, "o(oabc!", "oabc"},
};

class Disturbance : public testing::TestWithParam<SCase>
{
protected:
    std::string log;
    std::unique_ptr<signal_t<>> signal = std::make_unique<signal_t<>>();
    std::unique_ptr<CReceiver> o = std::make_unique<CReceiver>(log, "o");
    std::unique_ptr<CReceiver> a = std::make_unique<CReceiver>(log, "a");
    std::unique_ptr<CReceiver> b = std::make_unique<CReceiver>(log, "b");
    std::unique_ptr<CReceiver> c = std::make_unique<CReceiver>(log, "c");
    CReceiver n{log, "n"};

    std::unique_ptr<CReceiver>& By(char name) { return name == 'o' ? o : name == 'a' ? a : name == 'b' ? b : c; }
    std::unique_ptr<CReceiver>& Previous(char name) { return name == 'a' ? o : By(static_cast<char>(name - 1)); }
    std::unique_ptr<CReceiver>& Next(char name) { return By(static_cast<char>(name + 1)); }

    void EmitInBrackets()
    {
        log += "(";
        (*signal)();
        log += ")";
    }

    void Do(Deed deed, char actor)
    {
        switch (deed)
        {
        case Deed::deleteSignal:
            return signal.reset();
        case Deed::deleteSignalAndThrow:
            signal.reset();
            throw std::runtime_error("slot");
        case Deed::deleteSelf:
            return By(actor).reset();
        case Deed::deletePrevious:
            return Previous(actor).reset();
        case Deed::deleteNext:
            return Next(actor).reset();
        case Deed::deleteSelfAndSignal:
            By(actor).reset();
            return signal.reset();
        case Deed::disconnectSelf:
            return signal->disconnect(By(actor).get(), &CReceiver::Slot);
        case Deed::disconnectPrevious:
            return signal->disconnect(Previous(actor).get(), &CReceiver::Slot);
        case Deed::disconnectNext:
            return signal->disconnect(Next(actor).get(), &CReceiver::Slot);
        case Deed::disconnectAll:
            return signal->_erase_all();
        case Deed::connectNew:
            return signal->connect(&n, &CReceiver::Slot);
        case Deed::reconnectSelf:
            signal->disconnect(By(actor).get(), &CReceiver::Slot);
            return signal->connect(By(actor).get(), &CReceiver::Slot);
        case Deed::emitAgain:
            return EmitInBrackets();
        case Deed::throwError:
            throw std::runtime_error("slot");
        case Deed::throwCancel:
            throw vexel::cancel_processing();
        }
    }

    std::string Emit()
    {
        log.clear();
        try
        {
            (*signal)();
        }
        catch (std::runtime_error const&)
        {
            log += "!";
        }
        catch (vexel::cancel_processing const&)
        {
            log += "!";
        }
        return log;
    }
};

TEST_P(Disturbance, LeavesTheEmissionThatItShould)
{
    SCase const& tested = GetParam();
    if (tested.nested)
    {
        signal->connect(o.get(), &CReceiver::Slot);
        o->m_Action = [this] {
            o->m_Action = nullptr;
            EmitInBrackets();
        };
    }
    for (CReceiver* receiver : {a.get(), b.get(), c.get()})
        signal->connect(receiver, &CReceiver::Slot);
    CReceiver* const actor = By(tested.actor).get();
    actor->m_Action = [&, actor] {
        actor->m_Action = nullptr;
        Do(tested.deed, tested.actor);
    };

    EXPECT_EQ(Emit(), tested.first);
    if (tested.second)
    {
        ASSERT_TRUE(signal);
        EXPECT_EQ(signal->connection_count(), std::string(tested.second).size()) << "nothing cleared is left";
        EXPECT_EQ(Emit(), tested.second);
    }
    else
    {
        ASSERT_FALSE(signal);
        for (auto const* receiver : {&o, &a, &b, &c})
        {
            if (*receiver)
            {
                EXPECT_EQ((*receiver)->signal_count(), 0u);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Each, Disturbance, testing::ValuesIn(cases), [](auto const& tested) {
    return std::string(tested.param.name) + "By" + tested.param.actor + (tested.param.nested ? "Nested" : "Outermost");
});

}  // namespace
