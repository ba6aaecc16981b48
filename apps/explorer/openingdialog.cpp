// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "openingdialog.h"

#include <OrvCameraApi/transports.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

using OrvTransports::Step;

namespace {

constexpr int moment = 300; // milliseconds
constexpr int period = 50; // milliseconds
constexpr int steps = 3;

bool isReady(OrvCam::Device &device)
{
    return device.GetCameraParameters(nullptr) != nullptr;
}

} // namespace

OpeningDialog::OpeningDialog(OrvCam::Device &device, const QString &name, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_device(device)
    , m_step(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_failure(new QLabel(this))
{
    setWindowTitle(tr("Open Camera"));
    setModal(true);
    auto *const title = new QLabel(name, this);
    title->setTextFormat(Qt::PlainText);
    m_step->setObjectName(QStringLiteral("step"));
    m_failure->setObjectName(QStringLiteral("failure"));
    m_failure->setTextFormat(Qt::PlainText); // the camera has a part in it
    m_failure->setWordWrap(true);
    m_progress->setRange(0, steps);
    m_progress->setTextVisible(false);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const layout = new QVBoxLayout(this);
    for (QWidget *const widget : {static_cast<QWidget *>(title), static_cast<QWidget *>(m_step),
                                  static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_failure)})
        layout->addWidget(widget);
    layout->addStretch();
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);

    auto *const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &OpeningDialog::update);
    timer->start(period);
    update();
}

void OpeningDialog::update()
{
    const OrvTransports::Progress progress = OrvTransports::progressOf(m_device);
    switch (progress.step) {
    case Step::Connecting:
        m_step->setText(tr("Connecting..."));
        break;
    case Step::Description:
        m_step->setText(tr("Fetching the description..."));
        break;
    case Step::Features:
        m_step->setText(tr("Making the features..."));
        break;
    case Step::Connected:
    case Step::Lost:
        m_step->setText(tr("The camera is not connected."));
        break;
    }
    m_progress->setValue(progress.step == Step::Lost ? 0 : int(progress.step));
    m_failure->setText(QString::fromStdString(progress.failure));
    if (isReady(m_device))
        accept();
}

bool OpeningDialog::waitFor(OrvCam::Device &device, const QString &name, QWidget *parent)
{
    QElapsedTimer clock;
    clock.start();
    while (!isReady(device) && clock.elapsed() < moment) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(5);
    }
    return isReady(device) || OpeningDialog(device, name, parent).exec() == Accepted;
}
