#pragma once

#include "vexel/export.h"
#include "vexel/signals/signal.h"
#include "vexel/testing/describe.h"

#include <memory>
#include <string>
#include <vector>

namespace vexel::test
{

/// Writes down what signals fire, in order, with readable arguments (see Describe).
///
///     CSignalLog log(lamp.m_SigLit, "lit");
///     log.Add(other.m_SigMoved, "moved");
///     ...
///     EXPECT_EQ(log.Text(), "lit(true) moved(3, 4)");
///
/// The first argument is left out where it is a pointer to the object that has the signal. Other elements are printed by
/// their given names (Name, CTestHost::Name), else by their classes. Arguments are written as they are when the log's
/// slot is called; slots connected earlier ran before. The log leaves all signals when it dies.
class VEXEL_TESTING_API CSignalLog
{
public:
    CSignalLog();
    template <class... A> CSignalLog(plinth::signal_t<A...>& signal, std::string const& name) : CSignalLog()
    {
        Add(signal, name);
    }
    ~CSignalLog();
    CSignalLog(CSignalLog const&) = delete;
    CSignalLog& operator=(CSignalLog const&) = delete;

    /// Listens to one more signal. `emitter`: the object whose pointer is left out as first argument, for a signal that
    /// lies outside of what the argument's type covers.
    template <class... A>
    CSignalLog& Add(plinth::signal_t<A...>& signal, std::string const& name, void const* emitter = nullptr);

    CSignalLog& Name(CVisualElement const& element, std::string const& name);
    /// An entry of the test's own, so that other things stand in the same order.
    void Note(std::string const& entry) { m_Entries.push_back(entry); }

    std::string Text() const;  ///< Parted by blanks; "clicked()" for a signal without further arguments.
    std::string Take();        ///< Text, then Clear.
    void Clear() { m_Entries.clear(); }
    int Count() const { return static_cast<int>(m_Entries.size()); }
    int Count(std::string const& name) const;  ///< How often this signal fired.
    std::vector<std::string> const& Entries() const { return m_Entries; }

private:
    class CListener : public plinth::subscriber_base_t
    {
    public:
        CListener(CSignalLog& log, std::string const& name, void const* signal, void const* emitter)
            : m_Log(log), m_Name(name), m_Signal(signal), m_Emitter(emitter)
        {
        }
        ~CListener() override;

    protected:
        void Write(std::vector<std::string> const& arguments);
        template <class T> bool IsEmitter(T const& argument) const;

        CSignalLog& m_Log;
        std::string m_Name;
        void const* m_Signal;
        void const* m_Emitter;
    };
    template <class Arguments> class CTypedListener;
    template <class... A> class CTypedListener<plinth::_internal::arguments_t<A...>> final : public CListener
    {
    public:
        using CListener::CListener;
        void Called(A... arguments)
        {
            std::vector<std::string> texts;
            [[maybe_unused]] bool first = true;
            (
                [&](auto const& argument) {
                    if (!first || !this->IsEmitter(argument))
                        texts.push_back(Describe(argument));
                    first = false;
                }(arguments),
                ...);
            this->Write(texts);
        }
    };

    std::vector<std::unique_ptr<CListener>> m_Listeners;
    std::vector<std::string> m_Entries;
};

template <class... A>
CSignalLog& CSignalLog::Add(plinth::signal_t<A...>& signal, std::string const& name, void const* emitter)
{
    using listener = CTypedListener<plinth::_internal::used_arguments_t<A...>>;
    auto made = std::make_unique<listener>(*this, name, &signal, emitter);
    signal.connect(made.get(), &listener::Called);
    m_Listeners.push_back(std::move(made));
    return *this;
}

template <class T> bool CSignalLog::CListener::IsEmitter(T const& argument) const
{
    if constexpr (std::is_pointer_v<T> && std::is_class_v<std::remove_pointer_t<T>> &&
                  detail::Complete<std::remove_pointer_t<T>>)
    {
        if (!argument)
            return false;
        auto const* const start = reinterpret_cast<char const*>(argument);
        auto const* const signal = static_cast<char const*>(m_Signal);
        if (start == m_Emitter)
            return true;
        return start <= signal && signal < start + sizeof(*argument);
    }
    else
        return false;
}

} // namespace vexel::test
