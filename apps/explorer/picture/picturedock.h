// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "picturefeed.h"

#include <QDockWidget>
#include <QElapsedTimer>
#include <QIcon>
#include <QTimer>

#include <deque>
#include <future>
#include <memory>
#include <utility>

class CameraSource;
class ElidedLabel;
class HistogramView;
class PictureView;
class QAction;
class QMenu;

/**
 * Shows the pictures of a camera, and what there is to know about them: rate, losses, size, pixel format, the values of
 * the pixel under the mouse, a histogram. Closing it stops the camera. The GUI thread waits for nothing here.
 */
class PictureDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit PictureDock(QWidget *parent = nullptr);
    ~PictureDock() override;

    /**
     * Null if there is no camera; a new one counts as reachable. Pictures of the former one end in the background,
     * which keeps it until then.
     */
    void setCamera(std::shared_ptr<const CameraSource> camera);
    void setReachable(bool reachable);

    /** Ends the pictures, if there are any; the camera may need a moment. */
    void stop();

    /** All commands; toggleViewAction() is for another menu. */
    QMenu *menu() const { return m_menu; }

Q_SIGNALS:
    /** Something has succeeded, for the status bar, or failed, for a message. */
    void told(const QString &message);
    void failed(const QString &message);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createActions();
    QAction *addAction(const char *name, const QString &text, const QString &tip, const QKeySequence &keys);
    void createWidgets();

    void startOrStop();
    void start(quint64 frames);
    bool makeFeed();
    bool isRunning() const;
    void follow();
    void followState();
    void takePicture();
    void showPicture(Picture picture);
    void forget();
    void updateActions();
    void updateNumbers();
    void updateKind();
    void updatePixel();
    void updateTrouble();
    double rate();
    void countValues();
    void save();
    void chooseFile(const std::shared_future<QImage> &image);
    void saveTo(const QString &path, const std::shared_future<QImage> &image);
    void tellUnsaved(const QString &path, const QString &why);

    std::shared_ptr<const CameraSource> m_camera; ///< null also for one without a device
    bool m_isReachable = true;
    std::unique_ptr<PictureFeed> m_feed; ///< made when it is first needed
    OrvStreams::State m_state = OrvStreams::State::Stopped;
    QString m_failure; ///< of the start or of the stream
    std::shared_ptr<const OrvStreams::Frame> m_frame; ///< that is shown
    QString m_remark; ///< about it
    bool m_isCounted = true; ///< it, in the histogram
    QTimer m_clock; ///< for the numbers, while there are pictures
    std::deque<std::pair<qint64, quint64>> m_received; ///< of the last second: milliseconds, and frames by then
    QElapsedTimer m_time;

    const QIcon m_startIcon;
    const QIcon m_stopIcon;
    QMenu *const m_menu;
    QAction *m_start = nullptr;
    QAction *m_oneFrame = nullptr;
    QAction *m_save = nullptr;
    QAction *m_showHistogram = nullptr;
    QList<QAction *> m_zooms;
    PictureView *const m_view;
    HistogramView *const m_histogram;
    ElidedLabel *const m_kind;
    ElidedLabel *const m_numbers;
    ElidedLabel *const m_pixel;
    ElidedLabel *const m_trouble;
};
