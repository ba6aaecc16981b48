// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "foreignwindow.h"
#include "orvtest.h"
#include "simtest.h"
#include "whenopen.h"

#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>
#include <OrvCameraGuiApi/device_selection/selectcamera.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTreeView>

#include <functional>
#include <memory>

using OrvGui::OrvCameraSelectorDialog;

namespace {

void whenOpen(const std::function<void(OrvCameraSelectorDialog &)> &action)
{
    OrvTest::whenOpen(action);
}

void cancel(OrvCameraSelectorDialog &dialog)
{
    QTest::keyClick(&dialog, Qt::Key_Escape);
}

QTreeView *deviceTree(const OrvCameraSelectorDialog &dialog)
{
    return dialog.findChild<QTreeView *>(QStringLiteral("deviceTreeView"));
}

/** Clicks the row with that text, which is shown, and then the OK button. */
void choose(OrvCameraSelectorDialog &dialog, const QString &text)
{
    QTreeView *const tree = deviceTree(dialog);
    const QModelIndex index =
        tree->model()
            ->match(tree->model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualRect(index).center());
    QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

} // namespace

class TestSelectCamera : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
        m_system = SimTest::getSystem();
    }

    void cleanup()
    {
        m_system.reset();
        QCOMPARE(OrvSim::liveObjects().lists, std::size_t(0));
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
        TestCase::cleanup();
    }

    void answersTheChosenCameraOrNull()
    {
        const struct
        {
            bool wide, hasTitle, hasSystem, poll;
        } rows[] = {{false, true, true, true},
                    {true, true, true, false},
                    {false, false, true, false},
                    {true, false, false, true}};
        for (const auto &row : rows) {
            for (const bool isChosen : {false, row.hasSystem}) {
                QString title;
                whenOpen([&](OrvCameraSelectorDialog &dialog) {
                    title = dialog.windowTitle();
                    QVERIFY(dialog.isModal() && !dialog.parent());
                    QCOMPARE(dialog.isPollChecked(), row.poll);
                    QCOMPARE(deviceTree(dialog)->model()->rowCount() > 0, row.hasSystem);
                    if (isChosen)
                        return choose(dialog, QStringLiteral("TF-2000C (SN0001)"));
                    // A camera is current, but the button is not clicked.
                    QTest::keyClick(deviceTree(dialog), Qt::Key_Down); // the focus comes with the activation
                    cancel(dialog);
                });
                OrvCam::System *const system = row.hasSystem ? m_system.get() : nullptr;
                OrvCam::DeviceInfo *const camera = row.wide
                    ? SelectCameraW(system, row.hasTitle ? L"\u00b5 \U0001F4F7" : nullptr, 0, row.poll)
                    : SelectCameraA(system, row.hasTitle ? "\xc2\xb5 \xf0\x9f\x93\xb7" : nullptr, 0, row.poll);
                QCOMPARE(camera ? camera->GetID() : "", isChosen ? "ORV-GIGE-0001" : "");
                QCOMPARE(title, row.hasTitle ? QStringLiteral("µ 📷") : QString());
            }
        }
    }

    void standsInFrontOfAForeignWindow()
    {
        OrvTest::ForeignWindow foreign;
        const QString before = foreign.state();
        QCOMPARE(before, QStringLiteral("1 7 9 300 200 2"));
        whenOpen([&](OrvCameraSelectorDialog &dialog) {
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QCOMPARE(foreign.state(), before);
            QCOMPARE(foreign.transientForOf(dialog.winId()), foreign.id());
            cancel(dialog);
        });
        QVERIFY(!SelectCameraA(m_system.get(), "Camera", foreign.id(), false));
        QCoreApplication::processEvents();
        QCOMPARE(foreign.state(), before);

        whenOpen([&](OrvCameraSelectorDialog &dialog) {
            foreign.close();
            QTRY_COMPARE(foreign.state(), QString());
            choose(dialog, QStringLiteral("TF-2000C (SN0001)"));
        });
        QVERIFY(SelectCameraA(m_system.get(), "Camera", foreign.id(), true));
    }

    void belongsToAWidgetAndGoesWithIt()
    {
        auto parent = std::make_unique<QWidget>();
        QWidget *const child = new QWidget(parent.get());
        whenOpen([&](OrvCameraSelectorDialog &dialog) {
            QCOMPARE(dialog.parentWidget(), child);
            QVERIFY(dialog.isWindow());
            cancel(dialog);
        });
        QVERIFY(!SelectCameraA(m_system.get(), "Camera", child->winId(), false));
        QVERIFY(child->children().isEmpty());
        whenOpen([&parent](OrvCameraSelectorDialog &) { parent.reset(); });
        QVERIFY(!SelectCameraA(m_system.get(), "Camera", child->winId(), true));
        QVERIFY(!parent);
    }

private:
    SimTest::Held<OrvCam::System> m_system;
};

int main(int argc, char **argv)
{
    {
        const QCoreApplication withoutWidgets(argc, argv);
        if (SelectCameraA(nullptr, "", 0, false))
            qFatal("a dialog without widgets");
    }
    int opened = 0;
    for (int i = 0; i < 2; ++i) {
        whenOpen([&opened](OrvCameraSelectorDialog &dialog) {
            ++opened;
            cancel(dialog);
        });
        SelectCameraA(nullptr, nullptr, 0, false);
    }
    if (opened != 2)
        qFatal("no dialog without an application");
    TestSelectCamera test;
    return OrvTest::runTests(&test, argc, argv);
}
#include "tst_selectcamera.moc"
