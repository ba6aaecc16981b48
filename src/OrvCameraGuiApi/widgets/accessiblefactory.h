#pragma once

#include <QAccessible>

/** Lets that function be asked for accessible interfaces as long as this lives. */
class AccessibleFactory
{
public:
    explicit AccessibleFactory(QAccessible::InterfaceFactory factory)
        : m_factory(factory)
    {
        QAccessible::installFactory(m_factory);
    }
    ~AccessibleFactory() { QAccessible::removeFactory(m_factory); }
    Q_DISABLE_COPY(AccessibleFactory)

private:
    const QAccessible::InterfaceFactory m_factory;
};
