// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <QScrollBar>

#include <array>
#include <functional>

namespace {

/** 10,000 registers that are read whenever they are asked for, 20 a category, in categories on three levels. */
QByteArray manyRegisters(const QByteArray &name = "Root", size_t level = 0)
{
    constexpr std::array children{10, 10, 5, 20};
    static int count = 0;
    QByteArray features;
    QByteArray nodes;
    for (int i = 0; i < children[level]; ++i) {
        const QByteArray child = (level ? name : "Feature") + '_' + QByteArray::number(i);
        features += "<pFeature>" + child + "</pFeature>";
        if (level + 1 < children.size())
            nodes += manyRegisters(child, level + 1);
        else
            nodes += "<IntReg Name=\"" + child + "\"><Address>" + QByteArray::number(4 * count++)
                + "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
                  "<Cachable>NoCache</Cachable><PollingTime>1000</PollingTime></IntReg>";
    }
    return nodes + "<Category Name=\"" + name + "\">" + features + "</Category>";
}

/** What is shown, a line a feature, in order, but for \a skipped and what is in it. */
QStringList shownTexts(const ShownView &shown, const GenApi::INode *skipped = nullptr)
{
    const auto isSkipped = [&](QModelIndex index) {
        for (; index.isValid(); index = index.parent()) {
            if (skipped && nodeOf(index) == skipped)
                return true;
        }
        return false;
    };
    QStringList texts;
    const QModelIndexList rows = shown.rows();
    for (const QModelIndex &index : rows) {
        if (!isSkipped(index))
            texts += index.data().toString() + QLatin1Char('=') + index.siblingAtColumn(1).data().toString();
    }
    return texts;
}

/** Walks over the row as a user would, changes nothing that is right. */
void exercise(const ShownView &shown, const QModelIndex &row)
{
    shown.click(row.siblingAtColumn(1));
    if (QWidget *const editor = QApplication::focusWidget()) {
        QTest::keyClick(editor, Qt::Key_1);
        QTest::keyClick(editor, Qt::Key_Return);
    }
}

} // namespace

class TestOrvGenParamTreeViewLoad : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void survivesFailingGetters()
    {
        const QByteArray getters =
            "GetAccessMode GetNode ToString GetName GetVisibility GetToolTip GetDescription GetDisplayName "
            "GetCachingMode "
            "IsStreamable GetPrincipalInterfaceType RegisterCallback DeregisterCallback GetSelectingFeatures "
            "GetFeatures "
            "GetValue SetValue GetMin GetMax GetInc GetIncMode GetListOfValidValues GetRepresentation GetUnit HasInc "
            "GetDisplayPrecision GetDisplayNotation GetMaxLength GetEntries GetIntValue GetCurrentEntry GetSymbolic "
            "GetEntry Execute IsDone";
        for (const QByteArray &getter : getters.split(' ')) {
            ShownView shown;
            QVERIFY(shown.show());
            GenApi::NodeList_t nodes;
            shown.map->GetNodes(nodes);
            for (size_t i = 0; i < nodes.size(); ++i) {
                GenApi::INode *const node = nodes[i];
                const std::string name = node->GetName().c_str();
                if (name == "Root")
                    continue;
                const QStringList others = shownTexts(shown, node);
                failGetter(*shown.map, name, getter.toStdString());
                shown.view.setParams(shown.map.get());
                shown.tree->expandAll();
                shown.tree->grab();
                QCOMPARE(shownTexts(shown, node), others);
                if (const QModelIndex row = cellOf(*shown.tree->model(), node, 0); row.isValid())
                    exercise(shown, row);
                shown.view.loadState(shown.view.saveState());
                QTest::mouseClick(shown.part<QToolButton>("pbExpandAll"), Qt::LeftButton);
                QTest::keyClick(shown.part<QLineEdit>("filterLineEdit"), Qt::Key_L);
                QTest::keyClick(shown.part<QLineEdit>("filterLineEdit"), Qt::Key_Backspace);
                clearFaults(*shown.map);
                shown.view.setParams(shown.map.get());
                shown.tree->expandAll();
            }
            QVERIFY(shown.enter("Label", "done"));
            QCOMPARE(shown.cell("Label").data().toString(), QStringLiteral("done"));
        }
    }

    void letsGoOfTheNodeMapAtOnce()
    {
        const std::function<void(ShownView &)> changes[] = {
            [](ShownView &shown) { shown.view.clearParams(); },
            [](ShownView &shown) { shown.view.setParams(static_cast<GenApi::INodeMap *>(nullptr)); },
            [](ShownView &shown) { shown.view.setParams(static_cast<OrvGenParam::Array *>(nullptr)); },
            [](ShownView &shown) { // while a change is announced
                QObject::connect(shown.tree->model(), &QAbstractItemModel::dataChanged, &shown.view,
                                 [&shown] { shown.view.clearParams(); });
                shown.node("Label")->InvalidateNode();
            },
        };
        for (const auto &letGo : changes) {
            ShownView shown;
            QVERIFY(shown.show());
            shown.view.enablePolling(true);
            QVERIFY(shown.type("Label", "unfinished"));
            const QPersistentModelIndex held = shown.cell("Label");
            letGo(shown);
            QCOMPARE(registeredCallbacks(*shown.map), size_t(0));
            const uint64_t writes = shown.port.writeCount();
            QCOMPARE(writes, uint64_t(0));
            shown.map.reset();

            QVERIFY(!held.isValid());
            QVERIFY(!shown.tree->model() || shown.tree->model()->rowCount() == 0);
            shown.view.loadState("&amp;V1");
            for (int i = 0; i < 5; ++i)
                QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCOMPARE(shown.tree->viewport()->findChildren<QLineEdit *>().size(), 0);
            QVERIFY(shown.tree->grab().width() > 0);
        }
    }

    void readsOnlyWhatItPaints()
    {
        ShownView shown(manyRegisters());
        QCOMPARE(shown.port.readCount(), uint64_t(0));
        PaintLog paints(shown.tree->viewport());
        uint64_t before = 0;
        const auto start = [&] {
            paints.clear();
            before = shown.port.readCount();
        };
        // At each paint twice each row that fits into the viewport.
        const auto readsWhatItPaints = [&] {
            const int height = shown.tree->visualRect(shown.tree->indexAt(QPoint(0, 0))).height();
            const auto rows = uint64_t(shown.tree->viewport()->height() / height + 2);
            return shown.port.readCount() - before <= paints.count * 2 * rows;
        };
        QVERIFY(shown.show());
        QVERIFY(shown.port.readCount() > 0 && readsWhatItPaints());

        auto *const edit = shown.part<QLineEdit>("filterLineEdit");
        QByteArray saved;
        const std::pair<const char *, std::function<void()>> actions[] = {
            {"scroll", [&] { shown.tree->verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd); }},
            {"scroll far", [&] { shown.tree->verticalScrollBar()->setValue(5000); }},
            {"filter", [&] { QTest::keyClicks(edit, QStringLiteral("9*")); }},
            {"clear the filter", [&] { edit->clear(); }},
            {"collapse all", [&] { shown.part<QToolButton>("pbCollapseAll")->click(); }},
            {"expand all", [&] { shown.part<QToolButton>("pbExpandAll")->click(); }},
            {"save", [&] { saved = shown.view.saveState(); }},
            {"load", [&] { shown.view.loadState(saved); }},
            {"load nothing expanded", [&] { shown.view.loadState("&amp;W200"); }},
            {"load all expanded", [&] { shown.view.loadState(saved); }},
        };
        for (const auto &[name, action] : actions) {
            start();
            action();
            QVERIFY2(paints.count > 0 || shown.port.readCount() == before, name);
            for (int i = 0; i < 5; ++i)
                QCoreApplication::processEvents();
            QVERIFY2(readsWhatItPaints(), name);
        }

        start();
        QSignalSpy changes(shown.tree->model(), &QAbstractItemModel::dataChanged);
        shown.map->Poll(10);
        QCoreApplication::processEvents();
        QCOMPARE(changes.count(), 0);
        QCOMPARE(paints.count, uint64_t(0));
        QCOMPARE(shown.port.readCount(), before);
    }
};

ORV_TEST_MAIN(TestOrvGenParamTreeViewLoad)
#include "tst_orvgenparamtreeviewload.moc"
