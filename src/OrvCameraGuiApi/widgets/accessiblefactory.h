// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAccessible>

/** Registers a factory of accessible interfaces with Qt, from install() until this object is destroyed. */
class AccessibleFactory
{
public:
    explicit AccessibleFactory(QAccessible::InterfaceFactory factory)
        : m_factory(factory)
    {
    }
    ~AccessibleFactory() { QAccessible::removeFactory(m_factory); }
    Q_DISABLE_COPY(AccessibleFactory)

    /**
     * To be called for every widget: an application object takes all factories with it when it goes, and the host may
     * make another one.
     */
    void install() const { QAccessible::installFactory(m_factory); }

private:
    const QAccessible::InterfaceFactory m_factory;
};
