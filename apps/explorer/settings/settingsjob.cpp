// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "settingsjob.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>
#include <QProgressBar>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

SettingsJob::SettingsJob(const QString &title, Work work, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_label(new QLabel(this))
    , m_bar(new QProgressBar(this))
{
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal); // the dialogs of the camera, too, would write behind wrong selectors
    m_label->setTextFormat(Qt::PlainText); // the camera has a part in it
    m_bar->setRange(0, 0);
    m_bar->setAccessibleName(title);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &SettingsJob::reject);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_bar);
    layout->addStretch();
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);

    constexpr int period = 50; // milliseconds
    auto *const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &SettingsJob::update);
    timer->start(period);
    m_thread = std::thread([this, work = std::move(work)] { run(work); });
}

SettingsJob::~SettingsJob()
{
    join();
}

void SettingsJob::interrupt()
{
    m_isInterrupted = true;
}

void SettingsJob::join()
{
    interrupt();
    if (m_thread.joinable())
        m_thread.join();
}

void SettingsJob::reject()
{
    interrupt();
}

/** In the thread. */
void SettingsJob::run(const Work &work)
{
    QElapsedTimer busy;
    busy.start();
    const auto progress = [&](int done, int total, const QByteArray &feature) {
        if (m_isInterrupted)
            throw SettingsInterrupted();
        note(done, total, feature);
        constexpr int turn = 5; // milliseconds
        if (busy.elapsed() < turn)
            return;
        QThread::msleep(1); // the lock of the node map is not fair: the windows get it here
        busy.restart();
    };
    m_failure = failureOf([&] {
        try {
            work(progress);
        } catch (const SettingsInterrupted &) {
            // What has been done is known to the work.
        }
    });
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void SettingsJob::customEvent(QEvent *)
{
    Q_EMIT ended();
}

void SettingsJob::note(int done, int total, const QByteArray &feature)
{
    const std::lock_guard locker(m_mutex);
    m_done = done;
    m_total = total;
    m_feature = feature;
}

void SettingsJob::update()
{
    const std::lock_guard locker(m_mutex);
    m_bar->setRange(0, m_total);
    m_bar->setValue(m_done);
    m_label->setText(m_isInterrupted ? tr("Ending...") : QString::fromUtf8(m_feature));
}
