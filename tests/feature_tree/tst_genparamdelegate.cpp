// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <OrvCameraGuiApi/device_selection/ip4validator.h>
#include <OrvCameraGuiApi/feature_tree/genparamdelegate.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QPushButton>
#include <QToolTip>
#include <QWheelEvent>

namespace {

/** A view that is shown, with registers that are polled. */
struct EditedTree : ShownView
{
    EditedTree()
        : ShownView(allKinds().replace("<pPort>", "<PollingTime>10</PollingTime><pPort>"))
        , model(static_cast<GenParamTreeModel *>(static_cast<QAbstractProxyModel *>(tree->model())->sourceModel()))
    {
        const auto isWrite = [](int role) { return role == GenParamTreeModel::ValueInterfaceRole ? 1 : 0; };
        QObject::connect(model, &GenParamTreeModel::errorDisappeared, &view,
                         [=](const QModelIndex &, const QString &, int role) { writes += isWrite(role); });
        QObject::connect(model, &GenParamTreeModel::errorAppeared, &view,
                         [=](const QModelIndex &, const QString &, const QString &, int r) { failures += isWrite(r); });
        if (!show())
            qFatal("The window does not become active");
    }

    QString text(const char *name) const { return cell(name).data().toString(); }
    /** The model reports it at once. */
    void setRegister(const char *name, qint64 value) { node<GenApi::CIntegerPtr>(name)->SetValue(value); }

    GenParamTreeModel *const model;
    int writes = 0;
    int failures = 0; ///< of writes
};

} // namespace

class TestGenParamDelegate : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void edits_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("opening"); ///< by keys; empty: with the mouse
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("writes");
        QString locale = QStringLiteral("C");
        QString opening;
        const auto row = [&](const char *name, const char *keys, const char *text, int writes) {
            const QString title =
                QStringLiteral("%1 %2%3").arg(locale, QLatin1String(name), opening + QLatin1String(keys));
            QTest::newRow(QString(title).replace(QLatin1Char('\r'), QLatin1String("Enter")).toLatin1().constData())
                << locale << opening << QByteArray(name) << QString::fromLatin1(keys) << QString::fromLatin1(text)
                << writes;
        };
        row("Exposure", "42\r", "44us", 1); // in steps of 4
        row("Exposure", "40|", "0us", 0); // typed, and not confirmed
        row("Exposure", "^^|", "8us", 1);
        row("Exposure", "^_|", "0us", 0);
        row("Exposure", "^*12|", "0us", 0); // in the place of a step
        row("Exposure", "^*40000|", "0us", 0);
        row("Exposure", "\r", "0us", 0);
        row("Exposure", "30000\b8\r", "3008us", 1);
        row("Mask", "xyz\r", "0", 0);
        row("GevSCDA", "192.168.1.7|", "192.168.1.7", 1);
        row("GevSCDA", "x192.168.1.7\r", "192.168.1.7", 1); // a letter is not taken
        row("GevSCDA", "192.168.\r", "0.0.0.0", 0);
        row("GevSCDA", "192.168.|", "0.0.0.0", 0);
        row("GevSCDA", "\b\r", "0.0.0.0", 0);
        row("GevMACAddress", "0\r", "00:00:00:00:00:00", 1); // what the box shows is not the value
        row("GevMACAddress", "-\r", "00:01:A2:B3:C4:D5", 0);
        row("Key", "0\r", "<Value not readable>", 1);
        row("Binning", "8\r", "2px", 0);
        row("Gain", "2.5|", "2.500dB", 1);
        row("Gain", "2^|", "2.250dB", 1);
        row("Gain", "^|", "1.750dB", 1);
        row("Gain", "^*99|", "1.500dB", 0);
        row("Gain", "2\b\r", "1.500dB", 0); // though it was a number for a moment
        row("Gain", "2\b|", "1.500dB", 0);
        row("Gain", "3,5\r", "1.500dB", 0);
        row("Gain", "3.7555\b\r", "3.750dB", 1);
        row("Label", "abc|", "abc", 1);
        row("Label", "abc\x1b", "", 0);
        row("Start", " \r ", "Execute", 3);
        for (const char *end : {"\r", "\t", "|"})
            row("Exposure", QByteArray("40000").append(end).constData(), "0us", 0);
        locale = QStringLiteral("de");
        row("Gain", "3.5\r", "3.500dB", 1);
        row("Gain", "3,5\r", "3.500dB", 1);
        for (const char *end : {"\r", "\t", "|"})
            row("Gain", QByteArray("3.5555").append(end).constData(), "1.500dB", 0); // a decimal too many
        locale = QStringLiteral("C");
        for (const char *const keys : {"", "~", "\r", ">~", ">\r"}) {
            opening = QLatin1String(keys);
            row("Exposure", "40\r", "40us", 1);
            row("GevSCDA", "192.168.1.7\r", "192.168.1.7", 1);
            row("GevMACAddress", "258\r", "00:00:00:00:01:02", 1);
            row("Mask", "beef\r", "BEEF", 1);
            row("Gain", "2.5\r", "2.500dB", 1);
            row("Label", "abc\r", "abc", 1);
            row("Binning", "_", "4px", 1);
            row("Mode", "_", "Continuous", 1);
            row("Flag", "^", "True", 1);
            row("Start", " ", "Execute", 1);
            row("Start", "\r", "Execute", 1);
        }
        opening = QStringLiteral(">"); // without an editor
        row("Flag", " ", "True", 1);
        row("Start", " ", "Execute", 1);
    }

    void edits()
    {
        QFETCH(QString, locale);
        QFETCH(QString, opening);
        QFETCH(QByteArray, name);
        QFETCH(QString, keys);
        QLocale::setDefault(QLocale(locale));
        EditedTree tree;
        QLocale::setDefault(QLocale::c());
        tree.setRegister("MacReg", 0x0001A2B3C4D5);
        if (opening.isEmpty()) {
            tree.click(tree.cell(name));
        } else {
            QVERIFY(tree.walkTo(tree.cell(name)));
            QVERIFY(!tree.editor());
            tree.press(opening);
        }
        QCOMPARE(tree.editor() != nullptr, opening != QLatin1String(">"));
        QCOMPARE(tree.writes, 0);
        tree.press(keys);
        QCoreApplication::processEvents();
        tree.tree->setCurrentIndex(QModelIndex());
        QToolTip::hideText();
        QTRY_VERIFY(!tree.editor());
        QTEST(tree.text(name), "text");
        QTEST(tree.writes, "writes");
        QCOMPARE(tree.failures, 0);
    }

    void executesOnceAClick()
    {
        EditedTree tree;
        auto *const button = tree.open<QPushButton>("Start");
        QVERIFY(button);
        WindowMouse::click(button, button->rect().center());
        QCOMPARE(tree.writes, 1);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(button, &held);
        QCOMPARE(tree.editor(), button);
        tree.tree->setCurrentIndex(QModelIndex());
        QCOMPARE(tree.writes, 1);
    }

    void choosesFromAPopUp()
    {
        EditedTree tree;
        tree.setRegister("ModeReg", 3); // an entry that is not available
        QCOMPARE(tree.open<QComboBox>("Mode")->currentIndex(), -1);
        tree.tree->setCurrentIndex(QModelIndex());
        failGetter(*tree.map, "Mode", "GetCurrentEntry");
        auto *const box = tree.open<QComboBox>("Mode");
        QCOMPARE(box->count(), 2);
        QCOMPARE(box->currentIndex(), -1);
        expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        box->showPopup();
        QTest::keyClick(box->view(), Qt::Key_Return);
        QVERIFY(!tree.editor());
        QCOMPARE(tree.text("Mode"), QStringLiteral("Off"));
        QCOMPARE(tree.writes, 1);
    }

    void clicksInsideKeepTheEditor()
    {
        EditedTree tree;
        auto *const box = tree.open<QtOrvSpinBoxVal64>("Exposure");
        QVERIFY(box);
        tree.click(tree.cell("Exposure")); // into its text
        WindowMouse::click(box, box->rect().topRight() + QPoint(-4, 3));
        QTest::mouseClick(box->findChild<QLineEdit *>(), Qt::RightButton);
        QCOMPARE(tree.editor(), box);
        QCOMPARE(box->value(), 4);
        QCOMPARE(tree.writes, 0);
        tree.clickOutside();
        QVERIFY(!tree.editor());
        QCOMPARE(tree.writes, 1);
    }

    void walkingWritesNothing()
    {
        // Within all ranges; beyond them and no entries of lists; the end of 64 bits.
        for (const qint64 content : {qint64(0), qint64(-1), std::numeric_limits<qint64>::min()}) {
            EditedTree tree;
            for (const char *name : {"ExposureReg", "AddressReg", "MacReg", "MaskReg", "FlagReg", "ModeReg"})
                tree.setRegister(name, content);
            tree.node<GenApi::CFloatPtr>("Gain")->SetValue(1.2345678, false); // more digits than are shown
            const quint64 writes = tree.port.writeCount();
            int editors = 0;
            const auto linger = [&] {
                tree.map->Poll(10);
                QCoreApplication::processEvents();
                editors += tree.editor() ? 1 : 0;
                return tree.editor();
            };
            for (QModelIndex row = tree.tree->model()->index(0, 0); row.isValid(); row = tree.tree->indexBelow(row)) {
                if (!tree.tree->isFirstColumnSpanned(row.row(), row.parent()))
                    tree.click(row.siblingAtColumn(1));
                if (QWidget *const editor = linger()) {
                    const QPoint pos = editor->rect().center();
                    QWheelEvent wheel(pos, editor->mapToGlobal(pos), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
                    QCoreApplication::sendEvent(editor, &wheel);
                }
                tree.click(row);
            }
            QCOMPARE(editors, 14);
            tree.click(tree.cell("Exposure"));
            for (QModelIndex previous; tree.tree->currentIndex() != previous;) {
                previous = tree.tree->currentIndex();
                tree.press(linger() ? QStringLiteral("\t") : QStringLiteral("_"));
            }
            QCOMPARE(tree.tree->currentIndex(), tree.cell("Gone"));
            QCOMPARE(tree.writes + tree.failures, 0);
            QCOMPARE(tree.port.writeCount(), writes);
        }
    }

    void followsTheValueUntilTouched()
    {
        EditedTree tree;
        auto *const box = tree.open<QtOrvSpinBoxVal64>("Exposure");
        QVERIFY(box);
        for (const int value : {8, 12}) {
            tree.setRegister("ExposureReg", value);
            QCOMPARE(box->value(), value);
        }
        tree.press(QStringLiteral("1")); // in place of the whole number
        tree.setRegister("ExposureReg", 16);
        tree.press(QStringLiteral("2"));
        QCOMPARE(box->text(), QStringLiteral("12"));
        QCOMPARE(tree.text("Exposure"), QStringLiteral("16us"));
        // The number that was loaded, but not the feature's any more.
        tree.press(QStringLiteral("\r"));
        QTRY_VERIFY(!tree.editor());
        QCOMPARE(tree.text("Exposure"), QStringLiteral("12us"));
        QCOMPARE(tree.writes, 1);

        auto *const mode = tree.open<QComboBox>("Mode");
        QVERIFY(mode);
        tree.setRegister("ModeReg", 10);
        QCOMPARE(mode->currentText(), QStringLiteral("Continuous"));
        QCOMPARE(tree.editor(), mode);
        tree.node<GenApi::CStringPtr>("Label")->SetValue("bc");
        auto *const edit = tree.open<QLineEdit>("Label");
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Home);
        tree.map->Poll(10); // reports the value, which is the same
        tree.press(QStringLiteral("a"));
        QCOMPARE(edit->text(), QStringLiteral("abc"));
        QCOMPARE(tree.writes, 1);
    }

    void writesForeignEditors()
    {
        const EditedTree tree;
        GenParamDelegate delegate;
        const QModelIndex label = cellOf(*tree.model, tree.map->GetNode("Label"));
        FeatureCamera other(FeatureCamera::allKinds());
        GenParamTreeModel otherModel(other.map.get(), nullptr);
        QLineEdit edit(QStringLiteral("abc"));
        const auto write = [&](QAbstractItemModel *model) { delegate.setModelData(&edit, model, label); };
        write(&otherModel);
        write(nullptr);
        QCOMPARE(tree.text("Label"), QString());
        write(tree.model); // nothing was loaded: all of it is an entry
        QCOMPARE(tree.text("Label"), QStringLiteral("abc"));
        delegate.setEditorData(&edit, label);
        write(tree.model);
        QCOMPARE(tree.writes, 1);
        edit.setText(QStringLiteral("1.2"));
        write(tree.model);
        write(tree.model);
        QCOMPARE(tree.writes, 2);
        edit.setValidator(new IP4Validator(&edit));
        edit.setText(QStringLiteral("1.2."));
        write(tree.model);
        delegate.setModelData(nullptr, tree.model, label);
        delegate.setEditorData(nullptr, label);
        delegate.captureMouseForEditor(nullptr);
        QVERIFY(!delegate.createEditor(tree.tree, {}, QModelIndex()));
        QCOMPARE(tree.writes, 2);
    }
};

ORV_TEST_MAIN(TestGenParamDelegate)

#include "tst_genparamdelegate.moc"
