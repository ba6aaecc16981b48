#pragma once

#include <GenApi/GenApi.h>

#include <QExplicitlySharedDataPointer>
#include <QMutex>
#include <QObject>
#include <QSharedData>

#include <functional>
#include <set>

/**
 * Brings the changes of nodes to one object's thread, whichever thread reports them. All callbacks of a model share
 * one forwarder; it lives as long as the last of them, so that a change that is just being reported while the model
 * goes finds something to call.
 *
 * A change that is reported on the object's own thread is handed on at once, any other when that thread's event loop
 * runs next; a node that changes again before that is handed on once. The mutex is never held while the handler or
 * GenApi runs: a callback comes with the node map's lock held, and the order of the two locks is always that.
 */
class NodeChangeForwarder : public QSharedData
{
public:
    using Handler = std::function<void(GenApi::IValue *)>;

    /** \a handler is called on the thread of \a context, never again after detach(). */
    NodeChangeForwarder(QObject *context, Handler handler);

    /** Drops what is still queued and all that comes later; called on the thread of the context, before it goes. */
    void detach();

    /** Any thread. A node that is no value is passed over. */
    void nodeChanged(GenApi::INode *node);

private:
    bool queue(GenApi::IValue *value);
    void deliver();

    QMutex m_mutex;
    QObject *m_context;
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
