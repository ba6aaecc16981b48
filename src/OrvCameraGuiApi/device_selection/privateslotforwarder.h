#pragma once

#include <QObject>

namespace OrvGui {

class OrvCameraSelectorDialogPrivate;

/**
 * Brings what the polling thread has to say to the private part of the dialog, which is no QObject.
 *
 * The thread does not emit itself but wakes the GUI thread through the kernel: the thread sanitizer knows nothing of
 * the lock that guards Qt's list of posted events, and would have to be kept from looking there.
 */
class PrivateSlotForwarder : public QObject
{
    Q_OBJECT

public:
    explicit PrivateSlotForwarder(OrvCameraSelectorDialogPrivate *dialog);
    ~PrivateSlotForwarder() override;

    /** Has systemChanged() emitted soon, once for several calls at once; any thread. */
    void notify();

public Q_SLOTS:
    void onSystemChanged();

Q_SIGNALS:
    void systemChanged();

private:
    void takeNotification();

    OrvCameraSelectorDialogPrivate *const d;
    const int m_event; ///< a descriptor; negative when there is none to be had
};

} // namespace OrvGui
