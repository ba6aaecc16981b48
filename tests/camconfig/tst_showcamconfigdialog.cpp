// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "configwindow.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/featuredialogs.h>

using namespace ConfigTest;
using DialogTest::Camera;

namespace {

using Function = void (*)(OrvCam::Device *, std::uint64_t);

/** Notes the windows that are shown, by the names of their classes and of their parents. */
class WindowWatch : public QObject
{
public:
    WindowWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const widget = qobject_cast<QWidget *>(watched);
        if (widget && widget->isWindow() && event->type() == QEvent::Show) {
            shown.append(QString::fromLatin1(widget->metaObject()->className()));
            if (widget->parent())
                shown.append(widget->parent()->objectName());
        }
        return false;
    }

    QStringList shown;
};

} // namespace

Q_DECLARE_METATYPE(Function)

class ShowCamConfigDialogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsAndDestroys_data()
    {
        QTest::addColumn<Function>("show");
        QTest::addColumn<QString>("window");
        QTest::newRow("window") << Function(ShowCamConfigDialog) << QStringLiteral("OrvGui::OrvCamConfig");
        for (const OrvGui::FeatureDialog &dialog : OrvGui::featureDialogs()) {
            const bool isOdd = dialog.show == ShowFrameABDialog; // shows another one
            const QMetaObject &shown = isOdd ? OrvGui::OrvCamConfigColorDialog::staticMetaObject : *dialog.type;
            QTest::newRow(dialog.kind) << Function(dialog.show) << QString::fromLatin1(shown.className());
        }
    }

    void showsAndDestroys()
    {
        QFETCH(Function, show);
        QFETCH(QString, window);
        {
            const Camera camera;
            QWidget parent;
            parent.setObjectName(QStringLiteral("parent"));
            WindowWatch watch;
            for (const std::uint64_t id : {std::uint64_t(0), std::uint64_t(parent.winId()), ~std::uint64_t(0)})
                show(camera.device(), id);
            QCOMPARE(watch.shown, QStringList({window, window, QStringLiteral("parent"), window}));
            QVERIFY(parent.children().isEmpty());
            QCOMPARE(OrvSim::liveObjects().devices, std::size_t(1));
            QCOMPARE(OrvSim::liveObjects().sinks + OrvSim::liveObjects().eventCallbacks, std::size_t(0));
        }
        QVERIFY(isNothingHeld());
    }

    void asksWithoutADevice()
    {
        WindowWatch watch;
        chooseWhenAsked(SimTest::twoFrame);
        ShowCamConfigDialog(nullptr, 0);
        QCOMPARE(watch.shown.first(), QStringLiteral("OrvGui::OrvCameraSelectorDialog"));
        QCOMPARE(watch.shown.last(), QStringLiteral("OrvGui::OrvCamConfig"));
        QVERIFY(isNothingHeld());
        for (const Function show : {ShowColorDialog, ShowFrameABDialog, ShowPulseDialog})
            show(nullptr, 0);

        const auto parent = new QWidget;
        OrvTest::whenOpen<OrvCameraSelectorDialog>([&](OrvCameraSelectorDialog &) { delete parent; });
        ShowCamConfigDialog(nullptr, parent->winId());
        QVERIFY(isNothingHeld());
    }
};

int main(int argc, char **argv)
{
    {
        const QCoreApplication withoutWidgets(argc, argv);
        ShowCamConfigDialog(nullptr, 0);
        ShowColorDialog(nullptr, 0);
    }
    ShowColorDialog(nullptr, 0);
    ShowCamConfigDialogTest test;
    return OrvTest::runTests(&test, argc, argv);
}

#include "tst_showcamconfigdialog.moc"
