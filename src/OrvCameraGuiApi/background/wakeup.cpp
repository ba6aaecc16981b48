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
    if (event->type() != QEvent::User)
        return QObject::event(event);
    const std::function<void()> action = m_action;
    action();
    return true;
}

} // namespace OrvGui
