// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "picturedock.h"

#include "actions.h"
#include "camerasource.h"
#include "elidedlabel.h"
#include "histogram.h"
#include "picturefile.h"
#include "picturethreads.h"
#include "pictureview.h"
#include "pixelformat.h"

#include <QAction>
#include <QBoxLayout>
#include <QFileDialog>
#include <QMenu>
#include <QToolBar>

#include <functional>
#include <string>
#include <system_error>
#include <utility>

using OrvStreams::State;

namespace {

constexpr int clockTime = 250; // milliseconds; the histogram is no newer either
constexpr qint64 rateTime = 1000; // milliseconds
const QSize iconSize(16, 16);
const QLatin1String suggestedFile("picture.png");

} // namespace

PictureDock::PictureDock(QWidget *parent)
    : QDockWidget(tr("Picture"), parent)
    , m_startIcon(iconOf("start"))
    , m_stopIcon(iconOf("stop"))
    , m_menu(new QMenu(tr("&Picture"), this))
    , m_view(new PictureView(this))
    , m_histogram(new HistogramView(this))
    , m_kind(new ElidedLabel(QStringLiteral("pictureKind"), this))
    , m_numbers(new ElidedLabel(QStringLiteral("pictureNumbers"), this))
    , m_pixel(new ElidedLabel(QStringLiteral("picturePixel"), this))
    , m_trouble(new ElidedLabel(QStringLiteral("pictureTrouble"), this))
{
    setObjectName(QStringLiteral("picture"));
    m_time.start();
    m_clock.setInterval(clockTime);
    connect(&m_clock, &QTimer::timeout, this, [this] {
        updateNumbers();
        countValues();
    });
    connect(m_view, &PictureView::pixelChanged, this, &PictureDock::updatePixel);
    connect(m_view, &PictureView::zoomChanged, this, &PictureDock::updateKind);
    createActions();
    createWidgets();
    setCamera(nullptr);
}

PictureDock::~PictureDock() = default;

QAction *PictureDock::addAction(const char *name, const QString &text, const QString &tip, const QKeySequence &keys)
{
    QAction *const action = m_menu->addAction(iconOf(name), text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    setTip(*action, tip);
    return action;
}

void PictureDock::createActions()
{
    toggleViewAction()->setShortcut(keys(Qt::ControlModifier, Qt::Key_I));
    setTip(*toggleViewAction(), tr("Show the pictures of the camera"));
    m_start = addAction("start", {}, {}, Qt::Key_F9);
    connect(m_start, &QAction::triggered, this, &PictureDock::startOrStop);
    m_oneFrame = addAction("oneframe", tr("&One Frame"), {}, keys(Qt::ShiftModifier, Qt::Key_F9));
    connect(m_oneFrame, &QAction::triggered, this, [this] { start(1); });
    m_menu->addSeparator();
    QAction *const fit = addAction("fit", tr("&Fit"), tr("Show the whole picture"), {});
    connect(fit, &QAction::triggered, m_view, &PictureView::fit);
    QAction *const pixels =
        addAction("pixels", tr("&100 %"), tr("Show a pixel of the picture as one of the screen"), {});
    connect(pixels, &QAction::triggered, m_view, &PictureView::showPixels);
    QAction *const zoomIn =
        addAction("zoomin", tr("Zoom &In"), tr("Show the picture larger"), keys(Qt::ControlModifier, Qt::Key_Plus));
    zoomIn->setShortcuts({keys(Qt::ControlModifier, Qt::Key_Plus),
                          keys(Qt::ControlModifier, Qt::Key_Equal)}); // the same key without Shift
    connect(zoomIn, &QAction::triggered, m_view, &PictureView::zoomIn);
    QAction *const zoomOut =
        addAction("zoomout", tr("Zoom O&ut"), tr("Show the picture smaller"), keys(Qt::ControlModifier, Qt::Key_Minus));
    connect(zoomOut, &QAction::triggered, m_view, &PictureView::zoomOut);
    m_zooms = {fit, pixels, zoomIn, zoomOut};
    m_menu->addSeparator();
    m_showHistogram = addAction("histogram", tr("&Histogram"), tr("Show how often each brightness occurs"), {});
    m_showHistogram->setCheckable(true);
    connect(m_showHistogram, &QAction::toggled, m_histogram, &QWidget::setVisible);
    connect(m_showHistogram, &QAction::toggled, this, &PictureDock::countValues);
    m_save = addAction("savepicture", tr("Save as &PNG..."), tr("Save the picture as it is now"), {});
    connect(m_save, &QAction::triggered, this, &PictureDock::save);
}

void PictureDock::createWidgets()
{
    auto *const contents = new QWidget;
    auto *const layout = new QVBoxLayout(contents);
    layout->setContentsMargins(4, 0, 4, 4);
    layout->setSpacing(3);
    auto *const tools = new QToolBar(contents);
    tools->setIconSize(iconSize);
    tools->addActions({m_start, m_oneFrame});
    tools->addSeparator();
    tools->addActions(m_zooms);
    tools->addSeparator();
    tools->addActions({m_showHistogram, m_save});
    layout->addWidget(tools);
    layout->addWidget(m_view, 1);
    m_histogram->hide();
    layout->addWidget(m_histogram);
    for (ElidedLabel *const label : {m_kind, m_numbers, m_pixel, m_trouble})
        layout->addWidget(label);
    setWidget(contents);
}

void PictureDock::setCamera(std::shared_ptr<const CameraSource> camera)
{
    m_feed.reset();
    m_camera = camera && camera->device() ? std::move(camera) : nullptr;
    m_isReachable = true;
    m_state = State::Stopped;
    m_failure.clear();
    forget();
    updateActions();
}

/** A stream notices by itself that its camera is lost, and what it says about that stays. */
void PictureDock::setReachable(bool reachable)
{
    m_isReachable = reachable;
    updateActions();
}

void PictureDock::closeEvent(QCloseEvent *event)
{
    stop();
    QDockWidget::closeEvent(event);
}

bool PictureDock::isRunning() const
{
    return m_state == State::Starting || m_state == State::Running;
}

void PictureDock::startOrStop()
{
    if (isRunning())
        stop();
    else
        start(0);
}

void PictureDock::start(quint64 frames)
{
    if (!m_camera || !m_isReachable || isRunning())
        return;
    show();
    raise();
    m_failure.clear();
    m_received.clear();
    if (makeFeed())
        m_feed->stream().start(frames);
    follow();
}

bool PictureDock::makeFeed()
{
    if (m_feed)
        return true;
    std::string error;
    std::unique_ptr<OrvStreams::Stream> stream = OrvStreams::Stream::create(*m_camera->device(), &error);
    if (!stream) {
        m_failure = QString::fromStdString(error);
        return false;
    }
    try {
        m_feed = std::make_unique<PictureFeed>(std::move(stream), m_camera);
    } catch (const std::system_error &e) {
        m_failure = QString::fromLocal8Bit(e.what());
        return false;
    }
    connect(m_feed.get(), &PictureFeed::changed, this, &PictureDock::follow);
    return true;
}

void PictureDock::stop()
{
    if (m_feed)
        m_feed->stream().stop();
    follow();
}

/** Whatever has happened on the other threads. */
void PictureDock::follow()
{
    if (m_feed) {
        followState();
        takePicture();
        if (const std::optional<Histogram> histogram = m_feed->takeHistogram())
            m_histogram->setHistogram(*histogram);
    }
    updateTrouble();
}

void PictureDock::followState()
{
    m_failure = QString::fromStdString(m_feed->stream().failure());
    const State state = m_feed->stream().state();
    if (state == m_state)
        return;
    m_state = state;
    if (m_state == State::Stopped)
        m_clock.stop();
    else if (!m_clock.isActive())
        m_clock.start();
    updateActions();
    updateNumbers();
}

void PictureDock::takePicture()
{
    if (std::optional<Picture> picture = m_feed->takePicture())
        showPicture(std::move(*picture));
}

void PictureDock::showPicture(Picture picture)
{
    const bool isFirst = !m_frame;
    m_frame = std::move(picture.frame);
    m_remark = std::move(picture.remark);
    m_isCounted = false;
    QImage former = m_view->setImage(std::move(picture.image));
    m_feed->giveBack(std::move(former));
    updateKind();
    updatePixel();
    if (isFirst || m_save->isEnabled() == m_view->image().isNull())
        updateActions();
    if (isFirst || !m_clock.isActive()) {
        updateNumbers();
        countValues();
    }
}

void PictureDock::forget()
{
    m_clock.stop();
    m_received.clear();
    m_frame.reset();
    m_remark.clear();
    m_isCounted = true;
    m_view->setImage(QImage());
    m_view->fit();
    m_histogram->setHistogram({});
    updateKind();
    updateNumbers();
    updatePixel();
    updateTrouble();
}

/** What cannot be done says why in its tip. */
void PictureDock::updateActions()
{
    const QString obstacle = !m_camera ? tr("There is no camera that could send pictures")
        : !m_isReachable               ? tr("The camera is disconnected")
                                       : QString();
    const bool runs = isRunning();
    m_start->setText(runs ? tr("&Stop") : tr("&Start"));
    m_start->setIcon(runs ? m_stopIcon : m_startIcon);
    m_start->setEnabled(obstacle.isEmpty() || runs);
    setTip(*m_start, runs ? tr("Stop the camera") : obstacle.isEmpty() ? tr("Let the camera send pictures") : obstacle);
    m_oneFrame->setEnabled(obstacle.isEmpty() && !runs);
    setTip(*m_oneFrame, obstacle.isEmpty() ? tr("Let the camera send one picture") : obstacle);
    const bool hasPicture = !m_view->image().isNull();
    m_save->setEnabled(hasPicture);
    for (QAction *const zoom : std::as_const(m_zooms))
        zoom->setEnabled(hasPicture);
    m_view->setHint(!obstacle.isEmpty() ? obstacle : runs ? QString() : tr("F9 starts the camera"));
}

void PictureDock::updateNumbers()
{
    QStringList parts;
    if (m_state == State::Running)
        parts << tr("%L1 frames/s").arg(rate(), 0, 'f', 1);
    if (m_feed) {
        const OrvStreams::Statistics now = m_feed->stream().statistics();
        parts << tr("%L1 received").arg(now.received) << tr("%L1 skipped").arg(now.replaced)
              << tr("%L1 lost").arg(now.lost);
    }
    m_numbers->setText(parts.join(QStringLiteral(", ")));
}

void PictureDock::updateKind()
{
    if (!m_frame)
        return m_kind->setText(QString());
    const QString kind =
        tr("%1 x %2, %3").arg(m_frame->width).arg(m_frame->height).arg(pixelFormatName(m_frame->pixelFormat));
    const QString zoom = tr(", shown at %1 %").arg(m_view->zoom() * 100, 0, 'f', 0);
    m_kind->setText(m_view->image().isNull() ? kind : kind + zoom);
}

/** Over the last second, or so long as there is one. */
double PictureDock::rate()
{
    const qint64 now = m_time.elapsed();
    const quint64 received = m_feed->stream().statistics().received;
    if (!m_received.empty() && received < m_received.back().second)
        m_received.clear(); // started again
    m_received.emplace_back(now, received);
    while (m_received.size() > 2 && now - m_received[1].first >= rateTime)
        m_received.pop_front();
    const qint64 time = now - m_received.front().first;
    const quint64 frames = received - m_received.front().second;
    return time > 0 ? double(frames) * 1000 / double(time) : 0;
}

void PictureDock::updatePixel()
{
    const QPoint pixel = m_view->pixelUnderMouse();
    const QString values = pixelText(rawPicture(m_frame.get()), pixel.x(), pixel.y());
    m_pixel->setText(pixel.x() < 0 ? QString() : tr("(%1, %2) %3").arg(pixel.x()).arg(pixel.y()).arg(values));
}

void PictureDock::updateTrouble()
{
    const QString trouble = m_failure.isEmpty() ? m_remark : m_failure;
    m_trouble->setText(trouble);
    m_trouble->setVisible(!trouble.isEmpty());
}

void PictureDock::countValues()
{
    if (m_isCounted || !m_feed || !m_showHistogram->isChecked() || m_view->image().isNull())
        return;
    m_isCounted = true;
    m_feed->count(m_view->image());
}

void PictureDock::save()
{
    if (!m_frame || m_view->image().isNull())
        return;
    try {
        chooseFile(imageToKeep(m_frame));
    } catch (const std::system_error &e) {
        tellUnsaved(suggestedFile, QString::fromLocal8Bit(e.what()));
    }
}

/** For the picture of this moment, whatever comes meanwhile. */
void PictureDock::chooseFile(const std::shared_future<QImage> &image)
{
    auto *const dialog =
        new QFileDialog(this, tr("Save Picture"), suggestedFile, tr("PNG pictures (*.png);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("png"));
    connect(dialog, &QFileDialog::fileSelected, this, [this, image](const QString &path) { saveTo(path, image); });
    dialog->open();
}

void PictureDock::saveTo(const QString &path, const std::shared_future<QImage> &image)
{
    const auto save = [this, path, image]() -> std::function<void()> {
        const QString failure = savePng(image.get(), path);
        return [this, path, failure] {
            if (failure.isEmpty())
                Q_EMIT told(tr("Saved '%1'.").arg(path));
            else
                tellUnsaved(path, failure);
        };
    };
    try {
        inPictureThread(this, save);
    } catch (const std::system_error &e) {
        tellUnsaved(path, QString::fromLocal8Bit(e.what()));
    }
}

void PictureDock::tellUnsaved(const QString &path, const QString &why)
{
    Q_EMIT failed(tr("Cannot write '%1': %2.").arg(path, why));
}
