// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <QAction>

#include <cmath>

namespace {

/** Into whatever has the focus now. */
void press(int key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
}

double luminance(const QColor &color)
{
    const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/** Between the row's ground and what differs most from it. */
double contrastIn(const QImage &cell)
{
    double darkest = 1;
    double lightest = 0;
    for (int y = 0; y < cell.height(); ++y) {
        for (int x = 0; x < cell.width(); ++x) {
            darkest = std::min(darkest, luminance(cell.pixelColor(x, y)));
            lightest = std::max(lightest, luminance(cell.pixelColor(x, y)));
        }
    }
    return (lightest + 0.05) / (darkest + 0.05);
}

} // namespace

class TestTreeKeys : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void movesBetweenColumns()
    {
        for (const bool mirrored : {false, true}) {
            ShownView shown;
            shown.view.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
            QVERIFY(shown.show());
            QVERIFY(shown.walkTo(shown.cell("Label")));
            press(mirrored ? Qt::Key_Left : Qt::Key_Right);
            QCOMPARE(shown.tree->currentIndex(), shown.cell("Label"));
            QVERIFY(!shown.editor());
            press(mirrored ? Qt::Key_Right : Qt::Key_Left);
            QCOMPARE(shown.tree->currentIndex(), shown.cell("Label", 0));
            QVERIFY(shown.tree->hasFocus());
            // Read-only values have no editor, and Tab leaves the tree.
            QVERIFY(shown.walkTo(shown.cell("Serial")));
            press(Qt::Key_F2);
            press(Qt::Key_Space);
            QVERIFY(!shown.editor());
            press(Qt::Key_Tab);
            QVERIFY(!shown.tree->hasFocus());
            QCOMPARE(shown.port.writeCount(), uint64_t(0));
        }
    }

    void changesNothingUnasked()
    {
        ShownView shown;
        QVERIFY(shown.show());
        QVERIFY(shown.walkTo(shown.cell("Flag")));
        press(Qt::Key_Right);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
        QCoreApplication::sendEvent(shown.tree, &held);
        QCOMPARE(shown.port.writeCount(), uint64_t(0));
        shown.tree->setEditTriggers(QTreeView::NoEditTriggers);
        for (const int key : {Qt::Key_Space, Qt::Key_F2, Qt::Key_Return})
            press(key);
        QVERIFY(!shown.editor());
        QCOMPARE(shown.port.writeCount(), uint64_t(0));
    }

    void leavesTheSearchItsKeys()
    {
        for (const bool fromValues : {false, true}) {
            ShownView shown;
            QVERIFY(shown.show());
            QVERIFY(shown.walkTo(shown.cell("Flag")));
            if (fromValues)
                press(Qt::Key_Right);
            for (const char *const keys : {"plain n", "u"}) {
                shown.press(QLatin1String(keys));
                QCOMPARE(shown.tree->currentIndex().data().toString(), QStringLiteral("Plain Numbers"));
            }
            QVERIFY(!shown.editor());
            QCOMPARE(shown.port.writeCount(), uint64_t(0));
        }
    }

    void goesToTheFilter()
    {
        ShownView shown;
        QVERIFY(shown.show());
        auto *const filter = shown.part<QLineEdit>("filterLineEdit");
        for (const char *name : {"Label", "Mode", "Exposure Time"}) {
            shown.click(shown.cell(name));
            QVERIFY(QApplication::focusWidget() != shown.tree);
            press(Qt::Key_F, Qt::ControlModifier);
            QCOMPARE(QApplication::focusWidget(), filter);
        }
        // A host's own use of the key comes first.
        auto own = std::make_unique<QAction>();
        own->setShortcut(QKeySequence::Find);
        shown.view.addAction(own.get());
        QSignalSpy triggered(own.get(), &QAction::triggered);
        shown.tree->setFocus();
        QTest::keyClick(shown.view.windowHandle(), Qt::Key_F, Qt::ControlModifier);
        QTRY_COMPARE(triggered.count(), 1);
        QVERIFY(shown.tree->hasFocus());
        own.reset();

        shown.part<QWidget>("cbVisibility")->setFocus();
        press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), filter);
        press(Qt::Key_Tab);
        expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        press(Qt::Key_Space);
        QWidget *const popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        QTest::keyClick(popup->focusWidget(), Qt::Key_Space);
        QVERIFY(shown.part<QCheckBox>("checkBoxCase")->isChecked());
        QTest::keyClick(popup, Qt::Key_Escape);
        QCOMPARE(shown.port.writeCount(), uint64_t(0));
    }

    void paintsReadably()
    {
        QPalette dark(QColor(50, 50, 50));
        dark.setColor(QPalette::Base, QColor(35, 35, 35));
        dark.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
        dark.setColor(QPalette::Text, Qt::white);
        dark.setColor(QPalette::Disabled, QPalette::Text, QColor(90, 90, 90));
        for (const QPalette &palette : {QPalette(QColor(239, 239, 239)), dark}) {
            const QPalette former = QApplication::palette();
            QApplication::setPalette(palette);
            ShownView shown;
            QVERIFY(shown.show());
            OrvGenApi::NodeMap &map = *shown.map;
            failGetter(map, "Label", "GetValue");
            failGetter(map, "Gain", "GetValue");
            shown.tree->viewport()->grab();
            for (const char *name : {"Serial", "Key", "Gone", "Label", "Gain"}) {
                for (const int column : {0, 1}) {
                    const QModelIndex cell = shown.cell(name, column);
                    const QVariant brush = cell.data(Qt::ForegroundRole);
                    const QImage image = shown.tree->viewport()->grab(shown.tree->visualRect(cell)).toImage();
                    QVERIFY2(
                        contrastIn(image) > 4.2,
                        qPrintable(
                            QStringLiteral("%1 %2: %3").arg(QLatin1String(name)).arg(column).arg(contrastIn(image))));
                    if (column == 1)
                        QVERIFY(brush.isValid()); // as the model says
                }
            }
            QApplication::setPalette(former);
        }
    }
};

ORV_TEST_MAIN(TestTreeKeys)
#include "tst_treekeys.moc"
