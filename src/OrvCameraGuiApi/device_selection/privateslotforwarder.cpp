#include <OrvCameraGuiApi/device_selection/privateslotforwarder.h>

#include <QSocketNotifier>

#include <cstdint>

#include <sys/eventfd.h>
#include <unistd.h>

namespace OrvGui {

PrivateSlotForwarder::PrivateSlotForwarder(OrvCameraSelectorDialogPrivate *dialog)
    : d(dialog)
    , m_event(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    if (m_event >= 0) {
        auto *const notifier = new QSocketNotifier(m_event, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [this] { takeNotification(); });
    }
}

PrivateSlotForwarder::~PrivateSlotForwarder()
{
    qDeleteAll(findChildren<QSocketNotifier *>()); // before what it watches
    if (m_event >= 0)
        ::close(m_event);
}

void PrivateSlotForwarder::notify()
{
    const std::uint64_t one = 1;
    if (m_event < 0 || ::write(m_event, &one, sizeof one) != ssize_t(sizeof one))
        Q_EMIT systemChanged();
}

void PrivateSlotForwarder::takeNotification()
{
    std::uint64_t count = 0;
    if (::read(m_event, &count, sizeof count) == ssize_t(sizeof count))
        Q_EMIT systemChanged();
}

} // namespace OrvGui
