// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/background/reportrelay.h>

#include <QObject>

namespace OrvGui {

class OrvCameraSelectorDialogPrivate;

/** Brings reports of the polling thread to the private part of the dialog, through a queued signal. */
class PrivateSlotForwarder : public QObject
{
    Q_OBJECT

public:
    explicit PrivateSlotForwarder(OrvCameraSelectorDialogPrivate *dialog);

    /** Has systemChanged() emitted on the GUI thread, once for several calls that the event loop finds; any thread. */
    void notify();

public Q_SLOTS:
    void onSystemChanged();

Q_SIGNALS:
    void systemChanged();

private:
    enum Event { SystemChanged };

    OrvCameraSelectorDialogPrivate *const d;
    const ReportRelay<Event> m_events;
};

} // namespace OrvGui
