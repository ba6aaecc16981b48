// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/background/wakeup.h>

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace OrvGui {

WakeUp::WakeUp(std::function<void()> action)
    : m_action(std::move(action))
{
}

void WakeUp::post()
{
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

bool WakeUp::event(QEvent *event)
{
    // Every event runs the action, of whatever type: only Qt's own lock, which a sanitizer may not see, orders what the
    // posting thread has written into the event.
    const std::function<void()> action = m_action;
    const bool isHandled = QObject::event(event);
    action();
    return isHandled;
}

} // namespace OrvGui
