// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <QPushButton>
#include <QSplitter>
#include <QToolTip>

namespace {

bool showsIcon(const QIcon &icon, const char *path)
{
    const QImage wanted = QIcon(QLatin1String(path)).pixmap(16).toImage();
    return !wanted.isNull() && icon.pixmap(16).toImage() == wanted;
}

/** A register that is polled, and categories whose paths occur in one another. */
QByteArray polledNodes()
{
    return R"(<Category Name="Root"><pFeature>Plain</pFeature><pFeature>Other</pFeature></Category>
<Category Name="Plain"><DisplayName>Device Control</DisplayName><pFeature>Slow</pFeature><pFeature>Never</pFeature>
</Category><Category Name="Other"><DisplayName>Device</DisplayName>
<pFeature>Deep</pFeature></Category><Category Name="Deep"><pFeature>Hidden</pFeature></Category>
<IntReg Name="Slow"><Address>0</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
<PollingTime>40</PollingTime><Endianess>BigEndian</Endianess></IntReg>
<Integer Name="Never"><Value>1</Value></Integer>
<Integer Name="Hidden"><Visibility>Guru</Visibility><Value>7</Value></Integer>)";
}

/** The button of the filter line edit's action with that tool tip. */
QToolButton *filterButton(const ShownView &shown, const char *toolTip)
{
    for (auto *button : shown.part<QLineEdit>("filterLineEdit")->findChildren<QToolButton *>()) {
        if (button->toolTip() == QLatin1String(toolTip))
            return button;
    }
    return nullptr;
}

} // namespace

class TestOrvGenParamTreeView : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsErrors()
    {
        ShownView shown;
        QVERIFY(shown.show());
        QCoreApplication::processEvents();
        auto *const status = shown.part<QToolButton>("pbStatus");
        QVERIFY(showsIcon(status->icon(), "://images//ok.png"));
        const QModelIndex value = shown.cell("Exposure Time");
        const QModelIndex name = value.siblingAtColumn(0);
        const QPoint nameCenter = shown.tree->visualRect(name).center();
        PaintLog paints(shown.tree->viewport());
        failGetter(*shown.map, "Exposure", "GetValue", "no <i>answer</i> for %1");
        shown.node("Exposure")->InvalidateNode();
        QTRY_VERIFY(showsIcon(status->icon(), "://images//err.png"));
        QTRY_VERIFY(paints.region.contains(nameCenter));
        QVERIFY(shown.isRed(name) && shown.isRed(value));
        QHelpEvent help(QEvent::ToolTip, shown.tree->visualRect(value).center(), QCursor::pos());
        QCoreApplication::sendEvent(shown.tree->viewport(), &help);
        QVERIFY(QToolTip::text().contains(QLatin1String("answer")));
        QToolTip::hideText();

        QTest::mouseClick(status, Qt::LeftButton);
        QPointer<QWidget> dialog = QApplication::activeModalWidget();
        QVERIFY(dialog);
        QCOMPARE(dialog->objectName(), QStringLiteral("GenErrorsDlg"));
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Gen<i>Cam errors"));
        QCOMPARE(dialog->size(), QSize(400, 171));
        QCOMPARE(dialog->findChild<QTextBrowser *>()->toPlainText(),
                 QStringLiteral("{Exposure}{id:0}: no <i>answer</i> for %1 \n"));
        QTest::mouseClick(dialog->findChild<QPushButton *>(), Qt::LeftButton);
        QTRY_VERIFY(!dialog);

        QCoreApplication::processEvents();
        paints.clear();
        clearFaults(*shown.map);
        shown.node("Exposure")->InvalidateNode();
        QTRY_VERIFY(showsIcon(status->icon(), "://images//ok.png"));
        QTRY_VERIFY(paints.region.contains(nameCenter));
        QVERIFY(!shown.isRed(name) && !shown.isRed(value));
        QTest::mouseClick(status, Qt::LeftButton);
        dialog = QApplication::activeModalWidget();
        QCOMPARE(dialog->findChild<QTextBrowser *>()->toPlainText(), QStringLiteral("No Errors"));
        QTest::keyClick(dialog, Qt::Key_Escape);
        QTRY_VERIFY(!dialog);
    }

    void dividesTheColumnsOnce()
    {
        for (const auto &[state, width] : {std::pair("", 0), std::pair("&amp;W123&amp;V2", 123),
                                           std::pair("&amp;W0&amp;V2", 0), std::pair("&amp;W-9&amp;V2", 0)}) {
            ShownView shown;
            shown.view.loadState(state);
            QVERIFY(shown.show());
            if (width)
                QCOMPARE(shown.tree->columnWidth(0), width);
            else
                QVERIFY(qAbs(shown.tree->columnWidth(0) - shown.tree->viewport()->width() / 2) < 10);
            shown.tree->setColumnWidth(0, 77);
            shown.view.hide();
            QVERIFY(shown.show());
            QCOMPARE(shown.tree->columnWidth(0), 77);
        }
    }

    void filters()
    {
        ShownView shown;
        QVERIFY(shown.show());
        auto *const edit = shown.part<QLineEdit>("filterLineEdit");
        QTest::keyClicks(edit, QStringLiteral("gain"));
        QVERIFY(shown.cell("Gain").isValid() && !shown.cell("Ratio").isValid());

        QToolButton *const options = filterButton(shown, "Filter options");
        QVERIFY(showsIcon(options->icon(), "://images//options.png"));
        expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        QTest::mouseClick(options, Qt::LeftButton);
        QWidget *const popup = QApplication::activePopupWidget();
        QCOMPARE(popup->objectName(), QStringLiteral("FilterOptions"));
        const auto toggle = [popup](const char *name) {
            auto *const box = popup->findChild<QCheckBox *>(QLatin1String(name));
            QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
        };
        toggle("checkBoxCase");
        QVERIFY(showsIcon(options->icon(), "://images//options-c.png"));
        QVERIFY(!shown.cell("Gain").isValid());
        toggle("checkBoxWhole");
        QVERIFY(showsIcon(options->icon(), "://images//options-cw.png"));
        toggle("checkBoxCase");
        QVERIFY(showsIcon(options->icon(), "://images//options-w.png"));
        QVERIFY(shown.cell("Gain").isValid());
        QTest::keyClick(popup, Qt::Key_Escape);
        QVERIFY(!popup->isVisible());
        QVERIFY(shown.view.isVisible());

        QTest::keyClick(edit, Qt::Key_Backspace);
        QVERIFY(!shown.cell("Gain").isValid());
        QTest::mouseClick(filterButton(shown, "Clear filter"), Qt::LeftButton);
        QVERIFY(shown.cell("Gain").isValid() && shown.cell("Ratio").isValid());
    }

    void keepsItsSettingsForANewNodeMap()
    {
        const FeatureCamera other(polledNodes());
        ShownView shown;
        failGetter(*shown.map, "Exposure", "GetValue");
        QVERIFY(shown.show());
        shown.click(shown.cell("Exposure"));
        auto *const pane = shown.part<QTextBrowser>("whatsThisLabel");
        QVERIFY(pane->toPlainText().startsWith(QLatin1String("Name: Exposure")));
        QTest::keyClicks(shown.part<QLineEdit>("filterLineEdit"), QStringLiteral("e*r"));
        QTest::keyClick(shown.part<QComboBox>("cbVisibility"), Qt::Key_B);
        shown.view.setParams(other.map.get());
        QVERIFY(shown.cell("Never").isValid());
        QVERIFY(!shown.cell("Slow").isValid() && !shown.cell("Device").isValid());
        QVERIFY(showsIcon(shown.part<QToolButton>("pbStatus")->icon(), "://images//ok.png"));
        QVERIFY(pane->toPlainText().isEmpty());
        shown.view.setVisibility(OrvGui::Guru);
        shown.view.setVisibility(OrvGui::Visibility(3));
        QCOMPARE(shown.view.visibility(), OrvGui::Guru);
    }

    void keysDoNoHarm()
    {
        QWidget host;
        ShownView shown;
        QVERIFY(shown.show());
        shown.click(shown.cell("Start"));
        QVERIFY(shown.tree->findChild<QPushButton *>());
        QTest::keyClick(shown.part<QLineEdit>("filterLineEdit"), Qt::Key_Return);
        QCOMPARE(shown.port.writeCount(), uint64_t(0));

        shown.view.setParent(&host, Qt::Widget);
        host.show();
        shown.view.show();
        QTest::keyClick(shown.part<QLineEdit>("filterLineEdit"), Qt::Key_Escape);
        QVERIFY(shown.view.isVisible());
        shown.view.setParent(nullptr, Qt::Dialog);
        shown.view.show();
        QTest::keyClick(shown.tree, Qt::Key_Escape);
        QVERIFY(!shown.view.isVisible());
    }

    void polls()
    {
        ShownView shown(polledNodes());
        QVERIFY(shown.show());
        OrvGui::IOrvGenParamTreeView &view = shown.view;
        QCOMPARE(view.getPollingTime(), 0UL);
        view.setPollingTime(~0UL);
        QCOMPARE(view.getPollingTime(), 2147483647UL);
        QStringList changed;
        connect(shown.tree->model(), &QAbstractItemModel::dataChanged, &shown.view,
                [&changed](const QModelIndex &index) { changed += index.siblingAtColumn(0).data().toString(); });
        QVERIFY(!view.isPollingEnabled());
        view.enablePolling(true);
        view.setPollingTime(15);
        QTRY_VERIFY(changed.size() >= 4);
        QVERIFY(changed.contains(QLatin1String("Slow")) && !changed.contains(QLatin1String("Never")));
        view.clearParams();
        QVERIFY(view.isPollingEnabled());
    }

    void savesItsState()
    {
        ShownView shown(polledNodes());
        QVERIFY(shown.show());
        shown.tree->collapse(shown.cell("Device", 0));
        shown.tree->setColumnWidth(0, 250);
        const QByteArray splitter = shown.part<QSplitter>("")->saveState().toHex();
        const QByteArray saved = shown.view.saveState();
        QCOMPARE(saved, "Device Control&lt;Device/Deep&lt;&amp;W250&amp;V2&amp;S" + splitter);

        // A level that hides a category takes it out of the text; what is left of the path is found in "Device
        // Control".
        shown.view.setVisibility(OrvGui::Basic);
        QCOMPARE(QByteArray(shown.view.saveState()), "Device Control&lt;&amp;W250&amp;V0&amp;S" + splitter);
        shown.view.setVisibility(OrvGui::Guru);
        shown.tree->setColumnWidth(0, 99);
        shown.view.loadState(saved);
        QVERIFY(shown.tree->isExpanded(shown.cell("Device", 0)));
        QVERIFY(shown.tree->isExpanded(shown.cell("Deep", 0)));
        QCOMPARE(shown.tree->columnWidth(0), 250);
        shown.tree->collapse(shown.cell("Device", 0));
        shown.view.loadState(shown.view.saveState());
        QVERIFY(shown.tree->isExpanded(shown.cell("Device", 0)));

        for (const auto &[button, paths] : {std::pair("pbCollapseAll", ""),
                                            std::pair("pbExpandAll", "Device Control&lt;Device&lt;Device/Deep&lt;")}) {
            QTest::mouseClick(shown.part<QToolButton>(button), Qt::LeftButton);
            QCOMPARE(QByteArray(shown.view.saveState()), paths + ("&amp;W250&amp;V2&amp;S" + splitter));
        }
        shown.view.setParams(static_cast<OrvGenParam::Array *>(nullptr));
        shown.view.loadState(saved);
        QCOMPARE(shown.view.saveState(), "");
        QCOMPARE(shown.rows().size(), 0);
    }

    void loadsStates()
    {
        const QByteArray sizes = "000000ff0000000100000002000002ea0000004bffffffffff010000000200";
        std::vector<std::pair<QByteArray, QByteArray>> rows = {
            {QByteArray(), "Device Control&lt;Device&lt;Device/Deep&lt;&amp;W200&amp;V2"},
            {"x Device/Deep y", "Device&lt;Device/Deep&lt;&amp;W200&amp;V2"}, // a part of a path
            {"&amp;V1", "&amp;W200&amp;V1"},
            {"&amp;W&amp;Vx&amp;Sno", "&amp;W200&amp;V2"},
            {"&amp;W 300px&amp;V+1st", "&amp;W300&amp;V1"},
            {"&amp;W99999999999999999999&amp;V3", "&amp;W200&amp;V2"},
            {"&amp;W-5&amp;V-1", "&amp;W200&amp;V2"},
            {"&amp;V0&amp;V1&amp;W", "&amp;W200&amp;V0"}, // the first of each counts
            {QByteArray("\xff\xfe\x01\xc3(&amp;S\xff"), "&amp;W200&amp;V2"},
            {QByteArray(1 << 20, 'D') + "&amp;S" + QByteArray(1 << 20, '0'), "&amp;W200&amp;V2"},
        };
        for (int cut = 1; cut < sizes.size(); cut += 7)
            rows.emplace_back("&amp;S" + sizes.chopped(cut), "&amp;W200&amp;V2");
        for (const auto &[place, bytes] :
             {std::pair(0, "01"), std::pair(8, "7fffffff"), std::pair(16, "7fffffff"), std::pair(24, "80000000"),
              std::pair(32, "7fffffff"), std::pair(24, "ffffffff")})
            rows.emplace_back("&amp;S" + QByteArray(sizes).replace(place, int(qstrlen(bytes)), bytes),
                              "&amp;W200&amp;V2");
        for (const auto &[state, expected] : rows) {
            ShownView shown(polledNodes());
            QVERIFY(shown.show());
            shown.tree->setColumnWidth(0, 200);
            auto *const splitter = shown.part<QSplitter>("");
            const QByteArray before = splitter->saveState();
            shown.view.loadState(state.isNull() ? nullptr : state.constData());
            QCOMPARE(QByteArray(shown.view.saveState()), expected + "&amp;S" + before.toHex());
            QCOMPARE(splitter->orientation(), Qt::Vertical);
        }
    }
};

ORV_TEST_MAIN(TestOrvGenParamTreeView)
#include "tst_orvgenparamtreeview.moc"
