#pragma once

#include <GenApi/GenApi.h>

#include <QExplicitlySharedDataPointer>
#include <QObject>
#include <QSharedData>

#include <atomic>
#include <functional>
#include <mutex>
#include <set>

class QThread;

/**
 * Brings the changes of nodes to one thread, whichever thread reports them. All callbacks of a model share one
 * forwarder; it lives as long as the last of them, so that a change that is just being reported while the model goes
 * finds something to call.
 *
 * A change that is reported on the thread itself is handed on at once, any other when that thread's event loop runs
 * next; a node that changes again before that is handed on once. The mutex is never held while the handler or GenApi
 * runs: a callback comes with the node map's lock held, and the order of the two locks is always that.
 */
class NodeChangeForwarder : public QSharedData
{
public:
    /** Is given the tag of the node's callback, so that it need not look for the node. */
    using Handler = std::function<void(void *tag)>;

    /** \a handler is called on the thread that \a context lives on, never again after detach(). */
    NodeChangeForwarder(QObject *context, Handler handler);

    /** Drops what is still queued and all that comes later; called on the thread of the context, before it goes. */
    void detach();

    /** The node with the callback of that tag has changed; any thread. */
    void nodeChanged(void *tag);

private:
    class Mailbox;

    bool queue(void *tag);
    void deliver();

    const QThread *const m_thread;
    std::mutex m_mutex;
    std::atomic<QObject *> m_mailbox; ///< belongs to the context; null once detached, which only the thread itself does
    const Handler m_handler;
    std::set<void *> m_queued;
};

/** What a node calls when it changes; small, as there is one a feature. */
class NodeChangeCallback
{
public:
    NodeChangeCallback(const QExplicitlySharedDataPointer<NodeChangeForwarder> &forwarder, void *tag)
        : m_forwarder(forwarder)
        , m_tag(tag)
    {
    }

    void operator()(GenApi::INode *) const { m_forwarder->nodeChanged(m_tag); }
    explicit operator bool() const { return m_forwarder.data() != nullptr; } // GenApi asks before it calls

private:
    QExplicitlySharedDataPointer<NodeChangeForwarder> m_forwarder;
    void *m_tag;
};
