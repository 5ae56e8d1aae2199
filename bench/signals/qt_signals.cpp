#include "bench/signals/cases.h"

#include <QObject>

#include <condition_variable>
#include <mutex>
#include <thread>

class QtSender : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void fired(int value);
};

class QtReceiver : public QObject
{
    Q_OBJECT

public:
    long sum = 0;

public Q_SLOTS:
    __attribute__((noinline)) void slot(int value)
    {
        sum += value;
        benchmark::ClobberMemory();
    }
};

namespace bench_signals
{

namespace
{

/// Disconnects by the handle that connect returned, the quicker one of Qt's two ways.
struct qt_peer
{
    using Signal = QtSender;
    using Receiver = QtReceiver;
    using Handle = QMetaObject::Connection;

    static Handle connect(Signal& signal, Receiver& receiver)
    {
        return QObject::connect(&signal, &QtSender::fired, &receiver, &QtReceiver::slot, Qt::DirectConnection);
    }
    static void disconnect(Signal&, Receiver&, Handle& handle) { QObject::disconnect(handle); }
    static void emit_one(Signal& signal) { Q_EMIT signal.fired(1); }
};

/// A process with a user interface has other threads, and libraries take cheaper ways while there is only one. So one
/// sleeps here for the whole run.
class sleeper
{
public:
    sleeper() : m_thread([this] { sleep(); }) {}
    ~sleeper()
    {
        {
            std::lock_guard<std::mutex> const lock(m_mutex);
            m_ends = true;
        }
        m_wake.notify_all();
        m_thread.join();
    }

private:
    void sleep()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_wake.wait(lock, [this] { return m_ends; });
    }

    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_ends = false;
    std::thread m_thread;
};

sleeper const s_sleeper;

bool const registered = [] {
    register_cases<qt_peer>("qt", true);
    return true;
}();

}  // namespace

}  // namespace bench_signals

#include "qt_signals.moc"
