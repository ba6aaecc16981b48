// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "camerasource.h"
#include "explorerwindow.h"
#include "log/eventlog.h"
#include "orvtest.h"
#include "picture/elidedlabel.h"
#include "picture/picturedock.h"
#include "picture/pictureview.h"

#include <OrvCameraApi/simulation.h>
#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <GenApi/GenApi.h>

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <future>
#include <malloc.h>

namespace {

const char *const colorCamera = "ORV-GIGE-0001";
const char *const grayCamera = "ORV-USB3-0001";

/** The explorer's window with the picture of a simulated camera. */
struct Shown
{
    explicit Shown(const char *camera = colorCamera)
        : Shown(openCamera(QLatin1String(camera)))
    {
    }

    explicit Shown(std::unique_ptr<CameraSource> camera)
        : map(camera->nodeMap())
        , window(std::move(camera))
    {
        window.show();
        isActive = QTest::qWaitForWindowActive(&window);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&window, key, modifiers);
    }
    QAction *action(const char *name) const { return window.findChild<QAction *>(QLatin1String(name)); }
    QString text(const char *label) const { return window.findChild<ElidedLabel *>(QLatin1String(label))->text(); }
    PictureDock *dock() const { return window.findChild<PictureDock *>(); }
    PictureView *view() const { return window.findChild<PictureView *>(); }
    const QImage &image() const { return view()->image(); }
    bool runs() const { return action("start")->text() == QLatin1String("&Stop"); }

    void set(const char *feature, const char *value) const
    {
        GenApi::CValuePtr(map->GetNode(feature))->FromString(value);
    }

    GenApi::INodeMap *const map;
    ExplorerWindow window;
    bool isActive = false;
};

QPoint placeOf(const PictureView &view, double x, double y)
{
    return {int(x * view.width()), int(y * view.height())};
}

void turnWheel(PictureView &view, const QPoint &place, int delta)
{
    QWheelEvent event(place, view.mapToGlobal(place), {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&view, &event);
}

/** An image in which each pixel tells where it is. */
QImage placesImage(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x, y, 200));
    }
    return image;
}

/** Gives the frames that a test makes. */
class FakeStream : public OrvStreams::Stream
{
public:
    void start(std::uint64_t) override { }
    void stop() override { }
    OrvStreams::State state() const override { return OrvStreams::State::Running; }
    std::string failure() const override { return {}; }
    OrvStreams::Statistics statistics() const override { return {}; }
    std::shared_ptr<const OrvStreams::Frame> take() override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return std::exchange(m_newest, nullptr);
    }
    void setListener(std::function<void()> listener) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_listener = std::move(listener);
    }

    void send(const std::shared_ptr<const OrvStreams::Frame> &frame)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_newest = frame;
        if (m_listener)
            m_listener();
    }

private:
    std::mutex m_mutex;
    std::shared_ptr<const OrvStreams::Frame> m_newest;
    std::function<void()> m_listener;
};

/** Qt's file dialog has a thread that posts events past what the thread sanitizer sees. */
constexpr bool hasFileDialogs =
#ifdef __SANITIZE_THREAD__
    false;
#else
    true;
#endif

/** Ends when a test lets it. */
class SlowStream : public FakeStream
{
public:
    explicit SlowStream(std::future<void> end)
        : m_end(std::move(end))
    {
    }
    ~SlowStream() override { m_end.wait(); }
    SlowStream(const SlowStream &) = delete;
    SlowStream &operator=(const SlowStream &) = delete;

private:
    const std::future<void> m_end;
};

std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2(); // zeros with a sanitizer, which looks for leaks by itself
    return info.uordblks + info.hblkhd;
}

} // namespace

class TestPictureDock : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
    }

    void opensStartsAndStopsByKeys();
    void takesOneFrame();
    void showsTheNewestAndHoldsTwoFrames();
    void zoomsAroundTheMouse();
    void paintsWholePixels();
    void tellsThePixelUnderTheMouse();
    void countsValuesWhileTheHistogramIsShown();
    void savesAllBits_data();
    void savesAllBits();
    void tellsWhyNothingWasSaved();
    void followsTheCameraThatIsLostAndBack();
    void tellsWhatFailsAtOnce();
    void needsACamera();
    void waitsForNoCamera();
    void isWhereItWas();
    void randomUse();
};

void TestPictureDock::opensStartsAndStopsByKeys()
{
    Shown shown;
    QVERIFY(!shown.dock()->isVisible());
    shown.press(Qt::Key_I, Qt::ControlModifier);
    QVERIFY(shown.dock()->isVisible());
    shown.press(Qt::Key_F9);
    QVERIFY(shown.runs());
    QTRY_VERIFY(!shown.image().isNull());
    QCOMPARE(shown.image().size(), QSize(1920, 1080));
    QVERIFY2(shown.text("pictureKind").startsWith(QLatin1String("1920 x 1080, BayerRG8, shown at ")),
             qPrintable(shown.text("pictureKind")));
    QVERIFY(shown.text("pictureNumbers").contains(QLatin1String(" frames/s, ")));
    shown.press(Qt::Key_F9);
    QTRY_COMPARE(GenApi::CIntegerPtr(shown.map->GetNode("TLParamsLocked"))->GetValue(), 0);
    QVERIFY(!shown.runs());

    shown.press(Qt::Key_F9);
    shown.press(Qt::Key_I, Qt::ControlModifier); // closing stops
    QVERIFY(!shown.dock()->isVisible() && !shown.runs());
    shown.press(Qt::Key_F9); // starting opens
    QVERIFY(shown.dock()->isVisible());
    QTRY_VERIFY(shown.runs());
    QCOMPARE(shown.text("pictureTrouble"), QString());
}

void TestPictureDock::takesOneFrame()
{
    Shown shown(grayCamera);
    for (int i = 0; i < 2; ++i) {
        shown.press(Qt::Key_F9, Qt::ShiftModifier);
        QTRY_VERIFY(shown.action("oneframe")->isEnabled());
        QTRY_COMPARE(shown.text("pictureNumbers"), QStringLiteral("1 received, 0 skipped, 0 lost"));
    }
    QCOMPARE(shown.image().format(), QImage::Format_Grayscale8);
}

/** However many come while nobody looks. */
void TestPictureDock::showsTheNewestAndHoldsTwoFrames()
{
    auto owned = std::make_unique<FakeStream>();
    FakeStream &stream = *owned;
    PictureFeed feed(std::move(owned));
    QSignalSpy spy(&feed, &PictureFeed::changed);
    static const std::uint8_t bytes[2] = {10, 200};
    std::vector<std::weak_ptr<OrvStreams::Frame>> frames;
    const auto send = [&](std::uint64_t number, std::uint32_t format) {
        auto frame = std::make_shared<OrvStreams::Frame>();
        frame->number = number;
        frame->pixelFormat = format;
        frame->width = 2;
        frame->height = 2;
        frame->data = bytes;
        frame->size = sizeof bytes;
        frames.push_back(frame);
        stream.send(frame);
    };
    send(0, 0x01080001);
    QVERIFY(spy.wait());
    for (std::uint64_t i = 1; i < 50; ++i)
        send(i, 0x01080001);
    const auto inUse = [&frames] {
        return std::count_if(frames.begin(), frames.end(), [](const auto &frame) { return !frame.expired(); });
    };
    QTRY_COMPARE(inUse(), 2); // the picture, and what the stream has
    std::optional<Picture> picture = feed.takePicture();
    QCOMPARE(picture->frame->number, std::uint64_t(0));
    const auto next = [&] { return QTest::qWaitFor([&] { return bool(picture = feed.takePicture()); }); };
    QVERIFY(next());
    QCOMPARE(picture->frame->number, std::uint64_t(49));
    QCOMPARE(picture->image.pixelColor(1, 0).red(), 200);
    QCOMPARE(picture->remark, QStringLiteral("2 of 4 pixels are missing."));
    send(50, 0x01000000);
    QVERIFY(next());
    QCOMPARE(picture->remark, QStringLiteral("The pixel format 0x01000000 is unknown."));
}

void TestPictureDock::zoomsAroundTheMouse()
{
    PictureView view;
    view.resize(400, 300);
    view.setImage(placesImage({200, 100}));
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    QCOMPARE(view.zoom(), 2.0);
    view.resize(200, 300);
    QTRY_COMPARE(view.zoom(), 1.0); // stays fitted
    const QPoint place(170, 150);
    QTest::mouseMove(&view, place);
    const QPoint pixel = view.pixelUnderMouse();
    QCOMPARE(pixel, QPoint(170, 50));
    for (int i = 0; i < 8; ++i)
        turnWheel(view, place, 120);
    QVERIFY(view.zoom() > 5 && !view.fits());
    QVERIFY((view.pixelUnderMouse() - pixel).manhattanLength() <= 1);
    QTest::mousePress(&view, Qt::LeftButton, {}, place);
    QTest::mouseMove(&view, place - QPoint(60, 0));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, place - QPoint(60, 0));
    QVERIFY((view.pixelUnderMouse() - pixel).manhattanLength() <= 1); // it came along
    for (int i = 0; i < 99; ++i)
        QTest::keyClick(&view, Qt::Key_Right);
    QTest::mouseMove(&view, QPoint(199, 150));
    QCOMPARE(view.pixelUnderMouse().x(), 199); // no further than its edge
    for (const int delta : {INT_MAX, INT_MIN, INT_MIN})
        turnWheel(view, place, delta);
    QTest::keyClick(&view, Qt::Key_1);
    QCOMPARE(view.zoom(), 1.0);
    QTest::keyClick(&view, Qt::Key_Plus);
    QTest::keyClick(&view, Qt::Key_Minus);
    QVERIFY(!view.fits());
    QTest::keyClick(&view, Qt::Key_0);
    QVERIFY(view.fits());
}

/** None is blurred above 100 %, and none is left out at the edges. */
void TestPictureDock::paintsWholePixels()
{
    PictureView view;
    const QImage image = placesImage({200, 100});
    view.resize(203, 107);
    view.setImage(image);
    for (int i = 0; i < 12; ++i) {
        const QImage painted = view.grab().toImage();
        for (int y = 0; y < view.height(); y += 5) {
            for (int x = 0; x < view.width(); x += 3) {
                QTest::mouseMove(&view, {x, y});
                const QPoint pixel = view.pixelUnderMouse();
                if (view.zoom() >= 1 && pixel.x() >= 0)
                    QVERIFY((QPoint(qRed(painted.pixel(x, y)), qGreen(painted.pixel(x, y))) - pixel).manhattanLength()
                            <= 1);
            }
        }
        view.zoomIn();
    }
}

void TestPictureDock::tellsThePixelUnderTheMouse()
{
    Shown shown;
    shown.set("PixelFormat", "BayerRG12");
    shown.press(Qt::Key_F9, Qt::ShiftModifier);
    QTRY_VERIFY(!shown.image().isNull());
    const QPoint middle = placeOf(*shown.view(), 0.5, 0.5);
    QTest::mouseMove(shown.view(), middle);
    const QPoint pixel = shown.view()->pixelUnderMouse();
    const QString place = QStringLiteral("(%1, %2) ").arg(pixel.x()).arg(pixel.y());
    QTRY_VERIFY2(shown.text("picturePixel").contains(place), qPrintable(shown.text("picturePixel")));
    QVERIFY(shown.text("picturePixel").contains(QLatin1String(" (0x")));
    QTest::mouseMove(&shown.window, {1, 1});
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(shown.view(), &leave);
    QVERIFY(!shown.text("picturePixel").contains(QLatin1Char('(')));
}

void TestPictureDock::countsValuesWhileTheHistogramIsShown()
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(qRgb(1, 2, 255));
    const Histogram histogram = histogramOf(image);
    QCOMPARE(histogram.channels, 3);
    QCOMPARE(histogram.counts[0][1] + histogram.counts[1][2] + histogram.counts[2][255], 18U);

    Shown shown(grayCamera);
    shown.press(Qt::Key_F9, Qt::ShiftModifier);
    QTRY_VERIFY(!shown.image().isNull());
    auto *const view = shown.window.findChild<HistogramView *>();
    QVERIFY(!view->isVisible());
    shown.action("histogram")->trigger();
    QVERIFY(view->isVisible());
    QTRY_VERIFY(!view->isEmpty()); // also of a picture that came before
}

void TestPictureDock::savesAllBits_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("depth");
    QTest::newRow("gray") << QStringLiteral("Mono8") << 8;
    QTest::newRow("deep gray") << QStringLiteral("Mono12") << 16;
    QTest::newRow("color") << QStringLiteral("BayerRG8") << 32;
    QTest::newRow("deep color") << QStringLiteral("BayerRG12") << 64;
}

/** Of the picture at the moment of the command. */
void TestPictureDock::savesAllBits()
{
    if (!hasFileDialogs)
        QSKIP("Not with the thread sanitizer");
    QFETCH(QString, format);
    QFETCH(int, depth);
    const QTemporaryDir directory;
    Shown shown(depth <= 16 ? grayCamera : colorCamera);
    shown.set("PixelFormat", qPrintable(format));
    shown.press(Qt::Key_F9);
    QTRY_VERIFY(!shown.image().isNull());
    const QImage image = shown.image().copy();
    shown.action("savepicture")->trigger();
    auto *const dialog = shown.window.findChild<QFileDialog *>();
    QVERIFY(dialog);
    const QString path = directory.filePath(QStringLiteral("a"));
    dialog->findChild<QLineEdit *>()->setText(path);
    QTest::keyClick(dialog->findChild<QLineEdit *>(), Qt::Key_Return);
    QTRY_COMPARE(shown.window.statusBar()->currentMessage(), QStringLiteral("Saved '%1.png'.").arg(path));
    const QImage saved(path + QStringLiteral(".png"));
    QCOMPARE(saved.size(), image.size());
    QCOMPARE(saved.depth(), depth);
    for (int x = 0; x < image.width(); x += 7) { // 12 bits in 16 have the eight that are shown on top
        const QColor color = saved.pixelColor(x, x / 2);
        QVERIFY(std::abs(color.green() - image.pixelColor(x, x / 2).green()) <= 1);
    }
}

void TestPictureDock::tellsWhyNothingWasSaved()
{
    if (!hasFileDialogs)
        QSKIP("Not with the thread sanitizer");
    const QTemporaryDir directory;
    Shown shown;
    QVERIFY(!shown.action("savepicture")->isEnabled());
    shown.press(Qt::Key_F9, Qt::ShiftModifier);
    QTRY_VERIFY(!shown.image().isNull());
    shown.action("savepicture")->trigger();
    Q_EMIT shown.window.findChild<QFileDialog *>()->fileSelected(directory.filePath(QStringLiteral("no/such/a.png")));
    QTRY_VERIFY(shown.window.findChild<QMessageBox *>());
    QVERIFY(shown.window.findChild<QMessageBox *>()->text().contains(QLatin1String("no/such/a.png")));
}

void TestPictureDock::followsTheCameraThatIsLostAndBack()
{
    Shown shown;
    shown.press(Qt::Key_F9);
    QTRY_VERIFY(!shown.image().isNull());
    OrvSim::unplug(colorCamera);
    QTRY_VERIFY(!shown.runs());
    QTRY_VERIFY(!shown.text("pictureTrouble").isEmpty());
    QTRY_VERIFY(!shown.action("start")->isEnabled());
    QVERIFY(shown.action("start")->toolTip().startsWith(QLatin1String("The camera is disconnected")));
    OrvSim::replug(colorCamera);
    QTRY_VERIFY(shown.action("start")->isEnabled());
    shown.press(Qt::Key_F9);
    QTRY_VERIFY(shown.text("pictureNumbers").contains(QLatin1String("frames/s")));
    QCOMPARE(shown.text("pictureTrouble"), QString());

    shown.window.showCamera(QLatin1String(grayCamera));
    QVERIFY(shown.image().isNull() && !shown.runs());
    shown.press(Qt::Key_F9, Qt::ShiftModifier);
    QTRY_COMPARE(shown.image().format(), QImage::Format_Grayscale8);
}

void TestPictureDock::tellsWhatFailsAtOnce()
{
    QVERIFY(OrvSim::setFault(grayCamera, "Width", OrvSim::Fault::FailRead));
    Shown shown(grayCamera);
    for (int i = 0; i < 3; ++i) {
        shown.press(Qt::Key_F9);
        QTRY_VERIFY(!shown.text("pictureTrouble").isEmpty() && !shown.runs());
    }
    OrvSim::clearFaults(grayCamera);
    shown.press(Qt::Key_F9);
    QTRY_VERIFY(!shown.image().isNull());
    QCOMPARE(shown.text("pictureTrouble"), QString());
}

void TestPictureDock::needsACamera()
{
    Shown shown(openDescription(QStringLiteral(TEST_DATA "/probe.xml")));
    shown.press(Qt::Key_I, Qt::ControlModifier);
    for (const char *action : {"start", "oneframe"}) {
        QVERIFY(!shown.action(action)->isEnabled());
        QVERIFY(shown.action(action)->toolTip().startsWith(QLatin1String("There is no camera")));
    }
    shown.press(Qt::Key_F9);
    QVERIFY(!shown.runs());
}

/** The camera does not answer until the window has another one. */
void TestPictureDock::waitsForNoCamera()
{
    Shown shown;
    OrvSim::setFault(colorCamera, "AcquisitionStart", OrvSim::Fault::StallWrite);
    shown.press(Qt::Key_F9);
    QVERIFY(OrvSim::waitUntilStalled(colorCamera, std::chrono::seconds(20)));
    shown.press(Qt::Key_F9);
    shown.press(Qt::Key_F9);
    shown.dock()->setCamera(nullptr);
    QVERIFY(!shown.runs());
    OrvSim::clearFaults(colorCamera);

    std::promise<void> end; // the camera is not released before, which would wait for it
    std::weak_ptr<const CameraSource> kept;
    {
        const std::shared_ptr<const CameraSource> camera = openCamera(QLatin1String(grayCamera));
        kept = camera;
        const PictureFeed feed(std::make_unique<SlowStream>(end.get_future()), camera);
    }
    QVERIFY(!kept.expired());
    end.set_value();
    QTRY_VERIFY(kept.expired());
}

void TestPictureDock::isWhereItWas()
{
    const QTemporaryDir directory;
    QSettings settings(directory.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    {
        Shown shown;
        shown.press(Qt::Key_I, Qt::ControlModifier);
        shown.window.addDockWidget(Qt::BottomDockWidgetArea, shown.dock());
        shown.window.saveSettings(settings);
    }
    ExplorerWindow window(openCamera(QString()));
    window.restoreSettings(settings);
    auto *const dock = window.findChild<PictureDock *>();
    QVERIFY(!dock->isHidden());
    QCOMPARE(window.dockWidgetArea(dock), Qt::BottomDockWidgetArea);
}

/** Anything in any order, as many rounds as ORV_ROUNDS says. Memory is level from the middle on. */
void TestPictureDock::randomUse()
{
    const int rounds = std::max(20, qEnvironmentVariableIntValue("ORV_ROUNDS"));
    Shown shown;
    for (const char *feature : {"Frame_Width", "Frame_Height"})
        shown.set(feature, "64"); // so that the pictures that are kept for the next ones do not count
    shown.press(Qt::Key_F9);
    QRandomGenerator random(7);
    const QStringList formats = {QStringLiteral("BayerRG8"), QStringLiteral("BayerRG10"), QStringLiteral("BayerRG12")};
    const auto pressKey = [&] {
        const int keys[] = {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0, Qt::Key_1, Qt::Key_Left, Qt::Key_Down};
        QTest::keyClick(shown.view(), Qt::Key(keys[random.bounded(6)]));
    };
    const auto useMouse = [&] {
        const QPoint place = placeOf(*shown.view(), random.generateDouble(), random.generateDouble());
        turnWheel(*shown.view(), place, random.bounded(-240, 240));
        QTest::mouseClick(shown.view(), Qt::LeftButton, {}, place);
        QTest::mouseMove(shown.view(), place);
    };
    const auto plug = [&] { random.bounded(2) ? OrvSim::unplug(colorCamera) : OrvSim::replug(colorCamera); };
    const auto setFeature = [&] {
        const std::pair<const char *, QString> features[] = {
            {"PixelFormat", formats[random.bounded(3)]},
            {"Frame_Width", QString::number(16 * random.bounded(4, 40))},
            {"Frame_ExposureLines", QString::number(random.bounded(100, 20000))}};
        const auto &[name, value] = features[random.bounded(3)];
        try {
            shown.set(name, qPrintable(value));
        } catch (const GenICam::GenericException &) {
            // locked, or the camera is away
        }
    };
    const auto trigger = [&] {
        const QList<QAction *> actions = shown.dock()->menu()->actions() << shown.dock()->toggleViewAction();
        QAction *const action = actions[random.bounded(actions.size())];
        if (action->objectName() != QLatin1String("savepicture"))
            action->trigger();
    };
    const std::function<void()> deeds[] = {pressKey, useMouse, plug, setFeature, trigger, trigger};
    std::size_t middle = 0;
    for (int i = 0; i < rounds; ++i) {
        for (int j = 0; j < 10; ++j)
            deeds[random.bounded(6)]();
        OrvSim::replug(colorCamera);
        QTRY_VERIFY(shown.action("start")->isEnabled());
        if (!shown.runs())
            shown.action("start")->trigger();
        const QString before = shown.text("pictureNumbers");
        QTRY_VERIFY2(!shown.runs() || shown.text("pictureNumbers") != before, qPrintable(before));
        if (i != rounds / 2 && i != rounds - 1)
            continue;
        shown.dock()->close();
        QTRY_COMPARE(GenApi::CIntegerPtr(shown.map->GetNode("TLParamsLocked"))->GetValue(), 0);
        shown.window.findChild<EventLog *>()->clear(); // it keeps thousands of lines
        if (i == rounds / 2)
            middle = heapInUse();
    }
    const std::size_t bound = 1 << 20;
    QVERIFY2(heapInUse() < middle + bound, qPrintable(QString::number(heapInUse() - middle)));
}

ORV_TEST_MAIN(TestPictureDock)
#include "tst_picturedock.moc"
