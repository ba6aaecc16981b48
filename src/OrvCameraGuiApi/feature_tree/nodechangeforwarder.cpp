#include <OrvCameraGuiApi/feature_tree/nodechangeforwarder.h>

#include <QMetaObject>
#include <QThread>

NodeChangeForwarder::NodeChangeForwarder(QObject *context, Handler handler)
    : m_context(context)
    , m_handler(std::move(handler))
{
}

void NodeChangeForwarder::detach()
{
    const QMutexLocker lock(&m_mutex);
    m_context = nullptr;
    m_queued.clear();
}

void NodeChangeForwarder::nodeChanged(GenApi::INode *node)
{
    const GenApi::CValuePtr value(node);
    if (value.IsValid() && !queue(value))
        m_handler(value);
}

/** False when the caller is on the context's thread and the value is to be handled now. */
bool NodeChangeForwarder::queue(GenApi::IValue *value)
{
    const QMutexLocker lock(&m_mutex);
    if (!m_context)
        return true;
    if (m_context->thread() == QThread::currentThread())
        return false;
    const bool eventIsOnItsWay = !m_queued.empty();
    m_queued.insert(value);
    if (!eventIsOnItsWay) {
        const QExplicitlySharedDataPointer<NodeChangeForwarder> self(this);
        QMetaObject::invokeMethod(
            m_context, [self] { self->deliver(); }, Qt::QueuedConnection);
    }
    return true;
}

void NodeChangeForwarder::deliver()
{
    std::set<GenApi::IValue *> changed;
    {
        const QMutexLocker lock(&m_mutex);
        changed.swap(m_queued);
    }
    for (GenApi::IValue *value : changed) {
        // Only this thread detaches, be it from within the handler.
        if (!m_context)
            return;
        m_handler(value);
    }
}
