// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "camerasource.h"
#include "explorerwindow.h"
#include "log/eventlog.h"
#include "log/logdock.h"
#include "orvtest.h"

#include <OrvCameraApi/simulation.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <GenApi/GenApi.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeView>

#include <thread>

namespace {

const char *const camera = "ORV-GIGE-0001";

QStringList linesOf(const EventLog &log)
{
    QStringList lines;
    for (int row = 0; row < log.rowCount(); ++row)
        lines << log.lineOf(row).section(QLatin1Char('\t'), 1);
    return lines;
}

GenApi::IValue &valueOf(const CameraSource &source, const char *name)
{
    return dynamic_cast<GenApi::IValue &>(*source.nodeMap()->GetNode(name));
}

} // namespace

class LogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
    }

    void keepsTheNewest()
    {
        EventLog log;
        log.add(LogLevel::Error, QStringLiteral("F"), QStringLiteral("<b>one</b>\ntwo"));
        QTRY_COMPARE(linesOf(log), QStringList{QStringLiteral("Error\tF\t<b>one</b> two")});
        const auto flood = [&log](int first, int count) {
            for (int i = first; i < first + count; ++i)
                log.add(LogLevel::Write, QString(), QString::number(i));
        };
        std::thread other(flood, 0, 300);
        other.join();
        QTRY_COMPARE(log.rowCount(), 301);
        for (const int count : {EventLog::mostEntries - 1, EventLog::mostEntries + 700}) {
            flood(0, count);
            QTRY_COMPARE(linesOf(log).constLast(), QStringLiteral("Write\t\t%1").arg(count - 1));
            QCOMPARE(log.rowCount(), int(EventLog::mostEntries));
        }
        QCOMPARE(linesOf(log).constFirst(), QStringLiteral("Write\t\t700"));
        log.add(LogLevel::Write, {}, {});
        log.clear();
        QCOMPARE(log.rowCount(), 0);
    }

    /** Whoever writes; what changes by itself is no write. */
    void logsWrites()
    {
        std::unique_ptr<CameraSource> source = openCamera(QLatin1String(camera));
        const CameraSource &seen = *source;
        ExplorerWindow window(std::move(source));
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto *const dock = window.findChild<LogDock *>(QStringLiteral("log"));
        QVERIFY(dock && dock->isHidden());
        QTest::keyClick(&window, Qt::Key_L, Qt::ControlModifier);
        QVERIFY(dock->isVisible());
        auto *const view = window.findChild<OrvGui::OrvGenParamTreeView *>();
        const auto cell = [&](const char *name) {
            QAbstractItemModel *const model = view->treeView()->model();
            return model
                ->match(model->index(0, 0), OrvGui::OrvGenParamTreeView::FeatureNameRole, QLatin1String(name), 1,
                        Qt::MatchExactly | Qt::MatchRecursive)
                .value(0)
                .siblingAtColumn(1);
        };
        view->treeView()->setCurrentIndex(cell("DeviceUserID"));
        QTest::keyClick(view->treeView(), Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Mine"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        std::thread other([&seen] { valueOf(seen, "TriggerMode").FromString("On"); });
        other.join();
        valueOf(seen, "TriggerMode").FromString("Off");
        const auto lines = [&] { return linesOf(dock->log()).join(QLatin1Char('\n')); };
        QTRY_VERIFY2(lines().contains(QLatin1String("Write\tDeviceUserID\tMine, before: Line 1")), qPrintable(lines()));
        OrvSim::setRegister(camera, "DeviceUserIDReg", "Other");
        seen.nodeMap()->InvalidateNodes();
        OrvSim::setFault(camera, "DeviceUserIDReg", OrvSim::Fault::FailRead);
        view->treeView()->viewport()->update();
        QTRY_VERIFY(lines().contains(QLatin1String("Error\tDeviceUserID\t")));
        QVERIFY(lines().contains(QLatin1String("Write\tTriggerMode\tOff, before: On")));
        QVERIFY(!lines().contains(QLatin1String("Other")));
        valueOf(seen, "TriggerMode").ToString();
        OrvSim::setRegister(camera, "TriggerModeReg", "1"); // by the camera
        seen.nodeMap()->InvalidateNodes();
        valueOf(seen, "TriggerMode").FromString("Off"); // the last that was written
        QTRY_COMPARE(lines().count(QLatin1String("Write\tTriggerMode\tOff")), 2);
        OrvSim::unplug(camera);
        QTRY_VERIFY(lines().contains(QLatin1String("Error\t\tTF-2000C (SN0001) is lost.")));
    }

    void isFilteredCopiedAndSaved()
    {
        LogDock dock;
        dock.show();
        QVERIFY(QTest::qWaitForWindowActive(&dock));
        auto *const view = dock.findChild<QTreeView *>();
        for (const LogLevel level : {LogLevel::Information, LogLevel::Write, LogLevel::Error})
            dock.log().add(level, QStringLiteral("Width"), QStringLiteral("x%1").arg(int(level)));
        QTRY_COMPARE(view->model()->rowCount(), 3);
        dock.findChild<QComboBox *>()->setFocus();
        QTest::keyClick(dock.findChild<QComboBox *>(), Qt::Key_Down);
        QCOMPARE(view->model()->rowCount(), 2);
        dock.findChild<QLineEdit *>()->setFocus();
        QTest::keyClicks(dock.findChild<QLineEdit *>(), QStringLiteral("X2"));
        QCOMPARE(view->model()->rowCount(), 1);
        QTest::keyClick(dock.findChild<QLineEdit *>(), Qt::Key_Escape);
        QCOMPARE(view->model()->rowCount(), 2);
        QTest::keyClicks(dock.findChild<QLineEdit *>(), QStringLiteral("X2"));
        view->setFocus();
        QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().endsWith(QLatin1String("\tError\tWidth\tx2\n")));
        const QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("log.txt"));
        dock.saveTo(path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(file.readAll()), QApplication::clipboard()->text());
    }
};

ORV_TEST_MAIN(LogTest)
#include "tst_log.moc"
