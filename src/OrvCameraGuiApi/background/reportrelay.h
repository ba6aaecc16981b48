// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/background/wakeup.h>

#include <QExplicitlySharedDataPointer>
#include <QSet>
#include <QSharedData>
#include <QVector>

#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace OrvGui {

/**
 * Brings reports of any thread to the thread that the relay was made on, usually the GUI thread. A key says what is
 * reported: a node, a parameter, an event; QSet has to be able to hold it.
 *
 * A key that is reported several times before the event loop runs is received once, so a storm of reports costs no
 * memory. Keys arrive in the order of their first report. The mutex is not held while a receiver runs: reports come
 * with the lock of a node map held, and the order of these two locks never changes.
 *
 * The relay is made and destroyed on its thread. A receiver may destroy it. Reporters outlive it.
 */
template <typename Key>
class ReportRelay
{
    class State;

public:
    using Receive = std::function<void(const Key &key)>;

    /** Kept by a callback, as small as a pointer. It may report while the relay is destroyed, and afterwards. */
    class Reporter
    {
    public:
        /** On the relay's thread \a key is received within the call, on any other by the relay's event loop. */
        void report(const Key &key) const { m_state->report(key); }

    private:
        friend class ReportRelay;

        explicit Reporter(State *state)
            : m_state(state)
        {
        }

        QExplicitlySharedDataPointer<State> m_state;
    };

    /** \a receive is called on this thread, until the relay is destroyed. */
    explicit ReportRelay(Receive receive)
        : m_state(new State(std::move(receive)))
    {
    }
    ~ReportRelay() { m_state->close(); }
    Q_DISABLE_COPY(ReportRelay)

    Reporter reporter() const { return Reporter(m_state.data()); }

    /** False on the relay's own thread, and nothing happens; true on any other thread: \a key is passed on. */
    bool passOn(const Key &key) { return m_state->passOn(key); }

private:
    const QExplicitlySharedDataPointer<State> m_state;
};

template <typename Key>
class ReportRelay<Key>::State : public QSharedData
{
public:
    explicit State(Receive receive)
        : m_thread(std::this_thread::get_id())
        , m_receive(std::move(receive))
        , m_wakeUp(std::make_unique<WakeUp>([this] { deliver(); }))
    {
    }

    void report(const Key &key)
    {
        if (passOn(key) || !m_wakeUp)
            return;
        const QExplicitlySharedDataPointer<State> alive(this); // the receiver may destroy the relay and the reporter
        m_receive(key);
    }

    bool passOn(const Key &key)
    {
        if (std::this_thread::get_id() == m_thread)
            return false;
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_wakeUp || m_known.contains(key))
            return true;
        if (m_waiting.isEmpty())
            m_wakeUp->post();
        m_waiting.append(key);
        m_known.insert(key);
        return true;
    }

    void close()
    {
        std::unique_ptr<WakeUp> wakeUp; // destroyed without the mutex
        const std::lock_guard<std::mutex> lock(m_mutex);
        wakeUp.swap(m_wakeUp);
        m_waiting.clear();
        m_known.clear();
    }

private:
    void deliver()
    {
        const QExplicitlySharedDataPointer<State> alive(this); // a receiver may destroy the relay
        const QVector<Key> keys = takeWaiting();
        for (const Key &key : keys) {
            if (!m_wakeUp)
                return;
            m_receive(key);
        }
    }

    QVector<Key> takeWaiting()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_known.clear();
        return std::exchange(m_waiting, {});
    }

    const std::thread::id m_thread;
    const Receive m_receive;
    std::mutex m_mutex; ///< not a QMutex, whose slow path the thread sanitizer cannot see
    std::unique_ptr<WakeUp> m_wakeUp; ///< null once closed; changes on the relay's thread, with the mutex
    QVector<Key> m_waiting;
    QSet<Key> m_known; ///< the same keys, so that looking one up takes the same time however many wait
};

} // namespace OrvGui
