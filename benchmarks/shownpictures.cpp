// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownpictures.h"

#include "measure.h"

#include <camerasource.h>
#include <picture/elidedlabel.h>
#include <picture/picturedock.h>
#include <picture/pictureview.h>

#include <GenApi/GenApi.h>

#include <QAction>
#include <QEvent>
#include <QEventLoop>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QTimer>

#include <ctime>

namespace {

constexpr int rate = 30; // frames/s
constexpr int seconds = 3;
constexpr int repetitions = 3;
constexpr QSize pictureSize(1920, 1080);
constexpr QSize windowSize(1000, 760);

/** Of all threads. */
double processorMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) * 1e-6;
}

void runFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

class PaintCount : public QObject
{
public:
    explicit PaintCount(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

/** Shows an image, fitted, in the same way. */
class PlainView : public QWidget
{
public:
    using QWidget::QWidget;

    QImage image;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(QPoint(0, 0), pictureSize.scaled(size(), Qt::KeepAspectRatio)), image);
    }
};

QAction *actionOf(const PictureDock &dock, const char *name)
{
    return dock.menu()->findChild<QAction *>(QLatin1String(name));
}

/** A window with the pictures of a simulated camera. */
class Live
{
public:
    Live()
    {
        GenApi::INodeMap &map = *m_source->nodeMap();
        GenApi::CEnumerationPtr(map.GetNode("PixelFormat"))->FromString("Mono8");
        GenApi::CBooleanPtr(map.GetNode("AcquisitionFrameRateEnable"))->SetValue(true);
        GenApi::CFloatPtr(map.GetNode("AcquisitionFrameRate"))->SetValue(rate);
        m_window.addDockWidget(Qt::RightDockWidgetArea, &m_dock);
        m_window.resize(windowSize);
        m_dock.setCamera(m_source);
        m_window.show();
    }

    ~Live() { m_dock.setCamera(nullptr); }

    QSize viewSize() const { return view()->size(); }
    QString numbers() const { return m_dock.findChild<ElidedLabel *>(QStringLiteral("pictureNumbers"))->text(); }

    /** Per picture that was shown. */
    double measure()
    {
        actionOf(m_dock, "start")->trigger();
        runFor(500);
        require(view()->image().size() == pictureSize, "no picture of that size has come");
        PaintCount paints(view());
        const double begin = processorMilliseconds();
        runFor(seconds * 1000);
        const double time = processorMilliseconds() - begin;
        actionOf(m_dock, "start")->trigger();
        runFor(100);
        shown += paints.count;
        return time / paints.count;
    }

    int shown = 0;

private:
    PictureView *view() const { return m_dock.findChild<PictureView *>(); }

    const std::shared_ptr<const CameraSource> m_source = openCamera(QString());
    QMainWindow m_window;
    PictureDock m_dock;
};

/** Per image. */
double measurePlain(const QSize &size)
{
    PlainView view;
    view.resize(size);
    view.show();
    QImage image(pictureSize, QImage::Format_Grayscale8);
    int number = 0;
    const auto next = [&] {
        image.fill(++number & 0xFF);
        view.image = image;
        view.update();
    };
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &view, next);
    timer.start(1000 / rate);
    runFor(100);
    PaintCount paints(&view);
    const double begin = processorMilliseconds();
    runFor(seconds * 1000);
    return (processorMilliseconds() - begin) / paints.count;
}

} // namespace

void compareShowing(Table &table)
{
    Live live;
    Samples ours;
    Samples plain;
    QString numbers;
    for (int i = 0; i < repetitions; ++i) {
        ours.add(live.measure());
        numbers = live.numbers();
        plain.add(measurePlain(live.viewSize()));
    }
    require(numbers.endsWith(QLatin1String(" 0 lost")), "frames were lost");
    table.add(QStringLiteral("Mono8 made, received and shown, beside an image"), QStringLiteral("ms"), ours.median(),
              plain.median(), 3.0);
    table.add(QStringLiteral("frames at 30/s: due, shown"), QString(), double(repetitions * seconds * rate),
              double(live.shown), 1.05);
}
