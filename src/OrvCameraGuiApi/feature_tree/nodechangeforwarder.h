#pragma once

#include <GenApi/GenApi.h>

#include <QExplicitlySharedDataPointer>
#include <QObject>
#include <QSharedData>

#include <functional>
#include <mutex>
#include <set>

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
    using Handler = std::function<void(GenApi::IValue *)>;

    /** \a handler is called on the thread that \a context lives on, never again after detach(). */
    NodeChangeForwarder(QObject *context, Handler handler);

    /** Drops what is still queued and all that comes later; called on the thread of the context, before it goes. */
    void detach();

    /** Any thread. A node that is no value is passed over. */
    void nodeChanged(GenApi::INode *node);

private:
    class Mailbox;

    bool queue(GenApi::IValue *value);
    void deliver();

    std::mutex m_mutex;
    QObject *m_mailbox; ///< belongs to the context; null once detached
    const Handler m_handler;
    std::set<GenApi::IValue *> m_queued;
};

/** What a node calls when it changes; a pointer in size, as there is one a feature. */
class NodeChangeCallback
{
public:
    explicit NodeChangeCallback(const QExplicitlySharedDataPointer<NodeChangeForwarder> &forwarder)
        : m_forwarder(forwarder)
    {
    }

    void operator()(GenApi::INode *node) const { m_forwarder->nodeChanged(node); }

private:
    QExplicitlySharedDataPointer<NodeChangeForwarder> m_forwarder;
};
