// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "featuremap.h"

#include <QDialog>

#include <atomic>
#include <mutex>
#include <thread>

class QLabel;
class QProgressBar;

/**
 * Work on a camera in a thread of its own, and the window that shows how far it is. It keeps people from the other
 * windows meanwhile: selectors move. Closing it interrupts the work, which may take until an access of the camera has
 * ended; the window is there until then.
 */
class SettingsJob : public QDialog
{
    Q_OBJECT

public:
    /** What is done in the thread; interrupted by its progress, which throws. */
    using Work = std::function<void(const SettingsProgress &)>;

    SettingsJob(const QString &title, Work work, QWidget *parent);

    /** Interrupts the work, and waits for it. */
    ~SettingsJob() override;

    /** Soon ended. */
    void interrupt();

    /** Waits for the end of the work; it is not told any more. */
    void join();

    /** Why the work ended in an unexpected way, once it has ended; empty otherwise. */
    const QString &failure() const { return m_failure; }

    void reject() override;

Q_SIGNALS:
    /** The work has ended, in whichever way. Emitted from the event loop. */
    void ended();

protected:
    /** The thread is about to end. */
    void customEvent(QEvent *event) override;

private:
    void run(const Work &work);
    void note(int done, int total, const QByteArray &feature);
    void update();

    QLabel *const m_label;
    QProgressBar *const m_bar;
    std::atomic_bool m_isInterrupted{false};
    std::mutex m_mutex; ///< of the following
    int m_done = 0;
    int m_total = 0;
    QByteArray m_feature;
    QString m_failure; ///< of the thread, until it has ended
    std::thread m_thread;
};
