#include <OrvCameraGuiApi/feature_tree/nodechangeforwarder.h>

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

/** Wakes the context's thread. An event tells no more than that there may be something in the queue. */
class NodeChangeForwarder::Mailbox : public QObject
{
public:
    Mailbox(NodeChangeForwarder *forwarder, QObject *parent)
        : QObject(parent)
        , m_forwarder(forwarder)
    {
    }

protected:
    bool event(QEvent *event) override
    {
        const bool isHandled = QObject::event(event);
        // The handler may end in the destruction of the context, and of this object with it.
        const QExplicitlySharedDataPointer<NodeChangeForwarder> forwarder = m_forwarder;
        forwarder->deliver();
        return isHandled;
    }

private:
    const QExplicitlySharedDataPointer<NodeChangeForwarder> m_forwarder;
};

NodeChangeForwarder::NodeChangeForwarder(QObject *context, Handler handler)
    : m_thread(context->thread())
    , m_mailbox(nullptr)
    , m_handler(std::move(handler))
{
    m_mailbox = new Mailbox(this, context);
}

void NodeChangeForwarder::detach()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_mailbox = nullptr;
    m_queued.clear();
}

void NodeChangeForwarder::nodeChanged(void *tag)
{
    if (!queue(tag))
        m_handler(tag);
}

/** False when the caller is on the context's thread and the change is to be handled now. */
bool NodeChangeForwarder::queue(void *tag)
{
    if (m_thread == QThread::currentThread())
        return !m_mailbox;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_mailbox)
        return true;
    const bool eventIsOnItsWay = !m_queued.empty();
    m_queued.insert(tag);
    if (!eventIsOnItsWay)
        QCoreApplication::postEvent(m_mailbox, new QEvent(QEvent::User));
    return true;
}

void NodeChangeForwarder::deliver()
{
    std::set<void *> changed;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        changed.swap(m_queued);
    }
    for (void *tag : changed) {
        // Only this thread detaches, be it from within the handler.
        if (!m_mailbox)
            return;
        m_handler(tag);
    }
}
