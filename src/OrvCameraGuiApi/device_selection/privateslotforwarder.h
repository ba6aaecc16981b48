#pragma once

#include <QObject>

namespace OrvGui {

class OrvCameraSelectorDialogPrivate;

/** Brings what the polling thread has to say to the private part of the dialog, which is no QObject. */
class PrivateSlotForwarder : public QObject
{
    Q_OBJECT

public:
    explicit PrivateSlotForwarder(OrvCameraSelectorDialogPrivate *dialog)
        : d(dialog)
    {
    }

public Q_SLOTS:
    void onSystemChanged();

Q_SIGNALS:
    /** Any thread. */
    void systemChanged();

private:
    OrvCameraSelectorDialogPrivate *const d;
};

} // namespace OrvGui
