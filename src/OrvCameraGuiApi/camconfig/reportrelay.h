#pragma once

#include <QObject>
#include <QPointer>
#include <QThread>
#include <QVector>

#include <functional>
#include <mutex>
#include <utility>

namespace OrvGui {

/**
 * Brings reports to the thread that it was made on. A key that is reported several times before its event loop runs is
 * received once, so that a storm of reports costs no memory. Keys arrive in the order of their first report.
 */
template <typename Key>
class ReportRelay
{
public:
    using Receive = std::function<void(const Key &key)>;

    /** \a receive is called by the event loop of this thread, until the relay goes. */
    explicit ReportRelay(Receive receive)
        : m_receive(std::move(receive))
    {
    }
    Q_DISABLE_COPY(ReportRelay)

    /** False on the relay's own thread, and nothing happens; true on any other thread: \a key is passed on. */
    bool passOn(const Key &key)
    {
        if (QThread::currentThread() == m_context.thread())
            return false;
        const std::lock_guard<std::mutex> locker(m_mutex);
        if (m_waiting.isEmpty())
            QMetaObject::invokeMethod(
                &m_context, [this] { deliver(); }, Qt::QueuedConnection);
        if (!m_waiting.contains(key))
            m_waiting.append(key);
        return true;
    }

private:
    /** A receiver may destroy the relay. */
    void deliver()
    {
        const QVector<Key> keys = takeWaiting();
        const Receive receive = m_receive;
        const QPointer<QObject> alive(&m_context);
        for (const Key &key : keys) {
            if (alive)
                receive(key);
        }
    }

    QVector<Key> takeWaiting()
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        return std::exchange(m_waiting, {});
    }

    const Receive m_receive;
    std::mutex m_mutex; ///< of the waiting keys; not a QMutex, whose slow path the thread sanitizer cannot see
    QVector<Key> m_waiting;
    QObject m_context;
};

} // namespace OrvGui
