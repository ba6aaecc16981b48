// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/windows/processevents.h>

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <limits>

namespace {

bool isWindowOpen()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
        const bool isPassing = window->windowType() == Qt::ToolTip || window->windowType() == Qt::Popup;
        return window->isVisible() && !isPassing;
    });
}

} // namespace

bool OrvProcessEvents(unsigned long longestWait)
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return false;
    QEventLoop events;
    const bool isBusy = events.processEvents(QEventLoop::AllEvents);
    if (!isBusy && longestWait > 0) {
        QTimer limit; // an event like any other, which ends the wait
        limit.setTimerType(Qt::PreciseTimer);
        limit.setSingleShot(true);
        limit.start(int(std::min<unsigned long>(longestWait, std::numeric_limits<int>::max())));
        events.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return isWindowOpen();
}
