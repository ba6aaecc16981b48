// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/namedcombobox.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>

/** A host may destroy its application object and make another one, without unloading the library between. */
class TestSecondApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolsMeetTheWidgets()
    {
        for (int i = 0; i < 2; ++i) {
            int argumentCount = 1;
            char name[] = "test";
            char *arguments[] = {name, nullptr};
            const QApplication application(argumentCount, arguments);
            QtOrvSliderSpinBox composite;
            QCOMPARE(QAccessible::queryAccessibleInterface(&composite)->role(), QAccessible::Grouping);
            NamedComboBox box;
            box.addItem(QStringLiteral("M1"));
            QVERIFY(QAccessible::queryAccessibleInterface(&box)->textInterface());
        }
    }
};

QTEST_APPLESS_MAIN(TestSecondApplication)
#include "tst_secondapplication.moc"
