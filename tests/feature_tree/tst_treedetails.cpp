// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <QAction>
#include <QElapsedTimer>
#include <QMenu>

namespace {

QByteArray detailNodes()
{
    return R"(<Category Name="Root"><pFeature>Plain</pFeature><pFeature>Deep</pFeature></Category>
<Category Name="Plain"><pFeature>Beyond</pFeature><pFeature>Secret</pFeature><pFeature>Blob</pFeature>
  <pFeature>Narrow</pFeature><pFeature>Fine</pFeature><pFeature>Long</pFeature><pFeature>Slow</pFeature>
  <pFeature>PixelFormat</pFeature></Category>
<Category Name="Deep"><Visibility>Guru</Visibility><pFeature>Hidden</pFeature></Category>
<Integer Name="Beyond"><pValue>BeyondReg</pValue><Min>100</Min><Max>4000</Max></Integer>
<IntReg Name="BeyondReg"><Address>0</Address><Length>8</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
  <Endianess>BigEndian</Endianess></IntReg>
<StringReg Name="Secret"><Address>0x80</Address><Length>16</Length><AccessMode>WO</AccessMode><pPort>Device</pPort>
  </StringReg>
<Register Name="Blob"><Address>0xA0</Address><Length>8</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
  </Register>
<Float Name="Narrow"><Value>0.5</Value><Min>0.126</Min><Max>8.128</Max><DisplayPrecision>2</DisplayPrecision></Float>
<Float Name="Fine"><Value>0.5</Value><Min>0</Min><Max>8</Max><Inc>0.125</Inc><DisplayPrecision>1</DisplayPrecision>
  </Float>
<Integer Name="Long"><Description>LONG</Description><Value>1</Value></Integer>
<IntReg Name="Slow"><Address>0x200</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
  <PollingTime>10</PollingTime><Endianess>BigEndian</Endianess></IntReg>
<Integer Name="PixelFormat"><DisplayName>Colors</DisplayName><Value>1</Value></Integer>
<Integer Name="Hidden"><Visibility>Guru</Visibility><Value>7</Value></Integer>)";
}

QStringList expandedIn(const ShownView &shown)
{
    QStringList names;
    const QModelIndexList rows = shown.rows();
    for (const QModelIndex &index : rows) {
        if (shown.tree->isExpanded(index))
            names += index.data().toString();
    }
    return names;
}

} // namespace

class TestTreeDetails : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void offersWhatIsTaken()
    {
        ShownView shown(detailNodes());
        shown.node<GenApi::CIntegerPtr>("BeyondReg")->SetValue(5000);
        QVERIFY(shown.show());
        const auto *const beyond = shown.open<QAbstractSpinBox>("Beyond");
        QVERIFY(beyond);
        QCOMPARE(beyond->text(), QStringLiteral("5000"));

        auto *const secret = shown.open<QLineEdit>("Secret");
        QVERIFY(secret);
        QCOMPARE(secret->text(), QString());
        QCOMPARE(secret->placeholderText(), QStringLiteral("<Value not readable>"));
        QTest::keyClicks(secret, QStringLiteral("abc\r"));
        QTRY_COMPARE(shown.port.writeCount(), uint64_t(2));

        const auto *const blob = shown.open<QLineEdit>("Blob");
        QVERIFY(!blob || blob->isReadOnly());
        const auto *const narrow = shown.open<QDoubleSpinBox>("Narrow");
        QVERIFY(narrow);
        QCOMPARE(narrow->decimals(), 2);
        QCOMPARE(narrow->minimum(), 0.13);
        QCOMPARE(narrow->maximum(), 8.12);
        const auto *const fine = shown.open<QDoubleSpinBox>("Fine");
        QVERIFY(fine);
        QCOMPARE(fine->decimals(), 3);
        QCOMPARE(fine->singleStep(), 0.125);
    }

    /** An editor without a value shows none, also if it has shown one before. */
    void marksWhatCannotBeRead()
    {
        const std::tuple<const char *, const char *, const char *> rows[] = {
            {"Exposure", "GetValue", "ERROR"},   {"Gain", "GetValue", "ERROR"},
            {"Label", "GetValue", "ERROR"},      {"Mode", "GetCurrentEntry", ""},
            {"Key", "", "<Value not readable>"}, {"GevMACAddress", "", "00:00:00:00:00:00"},
        };
        for (const auto &[name, getter, placeholder] : rows) {
            ShownView shown;
            shown.node<GenApi::CStringPtr>("Label")->SetValue("abc");
            QVERIFY(shown.show());
            const bool fails = *getter;
            const auto textOf = [](QWidget *editor) {
                const auto *const box = qobject_cast<QComboBox *>(editor);
                const auto *const number = qobject_cast<QAbstractSpinBox *>(editor);
                return box ? box->currentText() : number ? number->text() : static_cast<QLineEdit *>(editor)->text();
            };
            auto *const editor = shown.open(name);
            QVERIFY(editor);
            const QString text = textOf(editor);
            QCOMPARE(text.isEmpty(), !fails);
            if (fails) {
                failGetter(*shown.map, name, getter, "no");
                shown.node(name)->InvalidateNode();
            }
            QCOMPARE(textOf(editor),
                     name == QByteArray("Gain") ? QStringLiteral("dB") : QString()); // nothing but the unit
            const auto fields = editor->findChildren<QLineEdit *>();
            const auto *const field = fields.isEmpty() ? qobject_cast<QLineEdit *>(editor) : fields.constFirst();
            QCOMPARE(field ? field->placeholderText() : QString(), QLatin1String(placeholder));
            clearFaults(*shown.map);
            shown.node(name)->InvalidateNode();
            QCOMPARE(textOf(editor), text);
            QVERIFY(!field || !fails || field->placeholderText().isEmpty());
            // Nothing was entered.
            const uint64_t writes = shown.port.writeCount();
            QTest::keyClick(editor, Qt::Key_Return);
            QCoreApplication::processEvents();
            QCOMPARE(shown.port.writeCount(), writes);
        }
    }

    void forgetsErrors()
    {
        ShownView shown;
        QVERIFY(shown.show());
        const QModelIndex label = shown.cell("Label", 0);
        const auto isRed = [&] { return label.data(Qt::ForegroundRole).isValid(); };
        const auto failWrite = [&] {
            failGetter(*shown.map, "Label", "SetValue", "no");
            shown.tree->clearSelection();
            const bool isEntered = shown.enter("Label", "new");
            QCoreApplication::processEvents();
            clearFaults(*shown.map);
            return isEntered && isRed();
        };
        QVERIFY(failWrite());
        QCOMPARE(label.data(Qt::ToolTipRole).toString(), QStringLiteral("no"));
        shown.tree->clearSelection();
        QVERIFY(shown.enter("Label", "newer")); // a write that succeeds
        QVERIFY(!isRed());
        QVERIFY(failWrite());
        shown.node("Label")->InvalidateNode(); // the same value once more
        QCoreApplication::processEvents();
        QVERIFY(isRed());
        failGetter(*shown.map, "Label", "GetValue", "unreadable"); // a read that fails, and one that is well again
        for (int i = 0; i < 2; ++i) {
            shown.node("Label")->InvalidateNode();
            QCoreApplication::processEvents();
            clearFaults(*shown.map);
        }
        QVERIFY(isRed());
        QSignalSpy written(&shown.view, &OrvGui::OrvGenParamTreeView::featureWritten);
        shown.node<GenApi::CStringPtr>("Label")->SetValue("other");
        QTRY_VERIFY(!isRed());

        auto *const status = shown.part<QToolButton>("pbStatus");
        QVERIFY(failWrite());
        QCOMPARE(status->actions().size(), 1);
        status->actions().constFirst()->trigger();
        QVERIFY(!isRed());
        QCOMPARE(status->accessibleName(), QStringLiteral("No errors"));
        QCOMPARE(written.count(), 0);

        QVERIFY(failWrite());
        QTest::mouseClick(status, Qt::LeftButton);
        const QPointer<QWidget> dialog = QApplication::activeModalWidget();
        QVERIFY(dialog);
        auto *const list = dialog->findChild<QTextBrowser *>();
        expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        Q_EMIT list->customContextMenuRequested(QPoint(5, 5));
        auto *const menu = list->findChild<QMenu *>();
        QVERIFY(menu && menu->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().constLast()).center());
        QVERIFY(!isRed());
        QCOMPARE(status->accessibleName(), QStringLiteral("No errors"));
        QCOMPARE(list->toPlainText(), QStringLiteral("No Errors"));
        dialog->close();
        QCOMPARE(written.count(), 0);

        // Of the value to be edited; what is shown could be read all the time.
        failGetter(*shown.map, "Mode", "GetCurrentEntry", "no");
        shown.click(shown.cell("Mode"));
        QVERIFY(shown.cell("Mode", 0).data(Qt::ForegroundRole).isValid());
        QCoreApplication::processEvents();
        clearFaults(*shown.map);
        shown.tree->setCurrentIndex(QModelIndex());
        shown.node("Mode")->InvalidateNode();
        QTRY_VERIFY(!shown.cell("Mode", 0).data(Qt::ForegroundRole).isValid());
    }

    /** Each write fails though it takes effect: what is there then is what the error stands beside. */
    void keepsTheErrorOfTheLastWrite()
    {
        struct Port : OrvGenApi::MemoryPort
        {
            void Write(const void *buffer, int64_t address, int64_t length) override
            {
                MemoryPort::Write(buffer, address, length);
                if (fails)
                    throw GenICam::TimeoutException("no answer", __FILE__, __LINE__);
            }
            bool fails = true;
        };
        Port port;
        ShownView shown(detailNodes().replace("<PollingTime>10", "<Cachable>NoCache</Cachable><PollingTime>10"));
        QVERIFY(shown.map->connect(&port));
        QVERIFY(shown.show());
        const auto isRed = [&] { return shown.cell("Slow", 0).data(Qt::ForegroundRole).isValid(); };
        for (const char *value : {"1", "2"}) {
            shown.tree->setCurrentIndex(QModelIndex());
            QVERIFY(shown.enter("Slow", value));
            QCoreApplication::processEvents();
            QCOMPARE(shown.cell("Slow").data().toString(), QString::fromLatin1(value));
            QVERIFY(isRed());
        }
        port.fails = false;
        shown.node<GenApi::CIntegerPtr>("Slow")->SetValue(3);
        QTRY_VERIFY(!isRed());
    }

    void keepsStates()
    {
        ShownView shown(detailNodes());
        QVERIFY(shown.show());
        QCOMPARE(shown.view.lastState(), "");
        const QByteArray state = shown.view.saveState();
        shown.view.clearParams();
        QCOMPARE(QByteArray(shown.view.lastState()), state);
        QCOMPARE(shown.view.saveState(), "");

        shown.view.setVisibility(OrvGui::Basic);
        shown.view.loadState("Deep&lt;&amp;W123&amp;V2");
        QCOMPARE(shown.view.visibility(), OrvGui::Basic);
        shown.view.setParams(shown.map.get());
        QCOMPARE(shown.view.visibility(), OrvGui::Guru);
        QCOMPARE(shown.tree->columnWidth(0), 123);
        QCOMPARE(expandedIn(shown), QStringList(QStringLiteral("Deep"))); // a row that the level has brought
        shown.view.setParams(shown.map.get());
        QCOMPARE(expandedIn(shown), QStringList()); // once
    }

    void shortensEndlessWords()
    {
        ShownView shown(
            detailNodes().replace("LONG", QByteArray(100000, 'x') + " &amp; end " + QByteArray(1997, 'y') + "&amp;z"));
        QVERIFY(shown.show());
        QElapsedTimer time;
        time.start();
        shown.click(shown.cell("Long", 0));
        QCoreApplication::processEvents();
        QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
        const QString text = shown.part<QTextBrowser>("whatsThisLabel")->toPlainText();
        QVERIFY(text.contains(QStringLiteral("xxx\u2026 & end")));
        QVERIFY(text.contains(QStringLiteral("yyy\u2026"))); // not within an entity
        QVERIFY(shown.cell("Long", 0).data(Qt::WhatsThisRole).toString().size() > 100000);
    }

    void servesIntegrators()
    {
        using View = OrvGui::OrvGenParamTreeView;
        ShownView shown(detailNodes());
        QVERIFY(shown.show());
        QSignalSpy current(&shown.view, &View::currentFeatureChanged);
        QSignalSpy written(&shown.view, &View::featureWritten);
        QSignalSpy failed(&shown.view, &View::errorOccurred);
        shown.click(shown.cell("Colors", 0));
        QCOMPARE(current.takeLast(), QVariantList{QStringLiteral("PixelFormat")});
        QCOMPARE(shown.cell("Colors").data(View::FeatureNameRole).toString(), QStringLiteral("PixelFormat"));
        QVERIFY(shown.enter("Colors", "3"));
        QCOMPARE(current.size(), 0); // the same feature
        QCOMPARE(written.takeLast(), QVariantList{QStringLiteral("PixelFormat")});
        failGetter(*shown.map, "PixelFormat", "SetValue", "no");
        shown.tree->clearSelection();
        QVERIFY(shown.enter("Colors", "4"));
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(failed.takeLast(), (QVariantList{QStringLiteral("PixelFormat"), QStringLiteral("no")}));
        clearFaults(*shown.map);

        shown.view.setReadOnly(true);
        shown.click(shown.cell("Slow"));
        QTest::keyClick(shown.tree, Qt::Key_F2);
        QCOMPARE(shown.tree->viewport()->findChildren<QAbstractSpinBox *>().size(), 0);
        shown.view.setReadOnly(false);
        shown.tree->clearSelection();
        QVERIFY(shown.enter("Slow", "4"));

        shown.view.setFilterText(QStringLiteral("PixelF*"));
        QVERIFY(!shown.cell("Colors").isValid());
        shown.view.setFilterMatchesNames(true);
        QVERIFY(shown.cell("Colors").isValid() && !shown.cell("Slow").isValid());
        shown.view.setParams(shown.map.get());
        shown.tree->expandAll();
        QVERIFY(shown.cell("Colors").isValid() && !shown.cell("Slow").isValid());
        shown.click(shown.cell("Colors", 0));
        shown.part<QCheckBox>("checkBoxCase")->setChecked(true);
        shown.view.setParams(shown.map.get());
        QVERIFY(shown.cell("Colors").isValid());
        shown.view.setFilterText(QStringLiteral("pixelF*"));
        shown.view.setParams(shown.map.get());
        QVERIFY(!shown.cell("Colors").isValid());
        shown.view.setFilterText(QString());
        shown.click(shown.cell("Colors", 0));
        shown.view.clearParams();
        QCOMPARE(current.takeLast(), QVariantList{QString()});
    }
};

ORV_TEST_MAIN(TestTreeDetails)
#include "tst_treedetails.moc"
