#pragma once

#include <QAccessible>

/** Lets that function be asked for accessible interfaces, from install() on and as long as this lives. */
class AccessibleFactory
{
public:
    explicit AccessibleFactory(QAccessible::InterfaceFactory factory)
        : m_factory(factory)
    {
    }
    ~AccessibleFactory() { QAccessible::removeFactory(m_factory); }
    Q_DISABLE_COPY(AccessibleFactory)

    /** To be called for every widget: an application object takes all factories with it, and another may come. */
    void install() const { QAccessible::installFactory(m_factory); }

private:
    const QAccessible::InterfaceFactory m_factory;
};
